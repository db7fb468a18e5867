#include <paxorel/xml/host/HostValue.hpp>

#include <paxorel/xml/dom/Node.hpp>

#include <ZELMAR/string/MissingNotSupported.hpp>
#include <host/hostArrays.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/factory/extractString.hpp>

#include <memory>

namespace paxorel::xml::mi {

using vorlo::VORValue;

ustring HostValue<ustring>::from(VORValue slot) { return vorlo::factory::extractString(slot.array()); }

VORValue HostValue<ustring>::to(const ustring& text) { return VORValue::ofArray(hostCreateString_UTF16(text.c_str())); }

VORValue HostValue<std::vector<Node*>>::to(const std::vector<Node*>& nodes) {
  const vorlo::InternedName node = hostClassName<Node>();
  std::unique_ptr<HostArray, decltype(&hostDestroyArray)> array(hostCreateObjectMatrix(1, nodes.size(), node),
                                                                &hostDestroyArray);
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    HostArray* single = Marshal::toMForPtr(nodes[i], node);
    hostSetArrayElement(array.get(), i, hostGetArrayElement(single, 0));
    hostDestroyArray(single);
  }
  hostSetClassOfHeterogeneousArray(array.get());
  return VORValue::ofArray(array.release());
}

const ustring& TextPointer::from(VORValue slot) {
  const ustring* text = slot.text();
  if (!text) hostRaise(ZELMAR::string::MissingNotSupported());
  return *text;
}

}  // namespace paxorel::xml::mi
