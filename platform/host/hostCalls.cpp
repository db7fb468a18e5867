#include <host/hostCalls.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/Language.hpp>
#include <host/hostArrays.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/dispatch.hpp>

#include <algorithm>
#include <memory>
#include <vector>

void hostCallMethod(vorlo::InternedName className, vorlo::InternedName method, vorlo::VORClient* /*client*/,
                    int outputCount, HostArray** outputs, int inputCount, HostArray* const* inputs,
                    bool /*dispatchOnFirst*/) {
  host::Language* language = host::currentLanguage();
  if (!language) hostRaise(ZELMAR::vorlo::NoHostLanguage());
  language->callMethod(className, method, outputCount, outputs, inputCount, inputs);
}

HostArray* hostConstructObjectWithClient(vorlo::InternedName className, int inputCount, HostArray* const* inputs,
                                         vorlo::VORClient* client) {
  vorlo::VORClass* cls = className.getClass();
  if (!cls) hostRaise(ZELMAR::vorlo::UnknownClass(className.str()));
  if (!cls->getInfo().isEnumeration()) return vorlo::dispatch::construct(*cls, inputCount, inputs);

  const auto& methods = cls->getMethodRecords();
  const auto valueConstructor = std::find_if(methods.begin(), methods.end(), [](const auto& method) {
    return method->getKind() == vorlo::VORMethodInfo::Kind::ValueConstructor;
  });
  if (valueConstructor == methods.end()) hostRaise(ZELMAR::vorlo::NotConstructible(className.str()));
  std::unique_ptr<HostArray, decltype(&hostDestroyArray)> member(hostCreateEnumerationMatrix(1, 1, className),
                                                                 &hostDestroyArray);
  std::vector<vorlo::VORValue> slots;
  slots.reserve(static_cast<std::size_t>(inputCount));
  for (int i = 0; i < inputCount; ++i) slots.push_back(vorlo::VORValue::ofArray(inputs[i]));
  vorlo::VORValue output = vorlo::VORValue::ofArray(member.get());
  int produced = 0;
  (*valueConstructor)->invoke(client, produced, &output, inputCount, slots.data());
  return member.release();
}
