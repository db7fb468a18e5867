#include <paxorel/xml/dom/XMLObject.hpp>

#include <paxorel/xml/core/WrapperCache.hpp>

namespace paxorel::xml {

void* XMLObject::operator new(std::size_t size) {  // NOLINT(cert-dcl54-cpp,misc-new-delete-overloads)
  return detail::WrapperCache::allocate(size);
}

void XMLObject::operator delete(void* object, std::size_t size) noexcept {
  detail::WrapperCache::release(object, size);
}

XMLObject::~XMLObject() = default;

const char* XMLObject::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Object"; }

}  // namespace paxorel::xml
