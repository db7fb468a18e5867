#include <paxorel/xml/host/Enumerations.hpp>

#include <host/hostArrays.hpp>
#include <host/hostCalls.hpp>
#include <vorlo/VORClass.hpp>

#include <memory>

namespace paxorel::xml::mi {

using vorlo::internal::makeInterned;

template <const auto& Members>
EnumerationMemberInfo<Members>::~EnumerationMemberInfo() {
  hostDestroyArray(valueObject_);
}

template <const auto& Members>
HostArray* EnumerationMemberInfo<Members>::getValue() {
  if (valueObject_) return valueObject_;
  const std::unique_ptr<HostArray, decltype(&hostDestroyArray)> number(hostCreateNumericScalar(HostClassID::UInt32),
                                                                       &hostDestroyArray);
  number->setWord(0, value_);
  HostArray* const inputs[] = {number.get()};
  valueObject_ = hostConstructObjectWithClient(class_->getInternedFullName(), 1, inputs, client_);
  return valueObject_;
}

template <const auto& Members>
const char* EnumerationValueCtor<Members>::getName() const {
  return class_->getShortName();
}

template <const auto& Members>
void EnumerationValueCtor<Members>::invoke(vorlo::VORClient* /*client*/, int& outputCount, vorlo::VORValue* outputs,
                                           int /*inputCount*/, const vorlo::VORValue* inputs) const {
  vorlo::VORIterator constructors = vorlo::VORClass::getClass("uint32")->getMethods("uint32");
  const vorlo::VORMethodInfo* constructor = vorlo::voriToMethod(constructors.nextElement());
  class_->constructSuperclass({outputs[0].array(), makeInterned("uint32"), constructor, 1, outputs, 1, inputs});
  if (outputCount == 0) outputCount = 1;
}

template <const auto& Members>
void EnumerationClass<Members>::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* client) {
  cls->addSuperclass(makeInterned("uint32"), 0, 0, 1);
  for (const EnumerationMember& member : Members) {
    cls->addEnumerationMember(new EnumerationMemberInfo<Members>(member, client, cls));
  }
  vorlo::VORMethodSignaturePtr signature = vorlo::VORMethodSignature::createMethodSignature();
  signature->addInputType(makeInterned("uint32"));
  signature->addOutputType(cls->getInternedFullName());
  cls->addMethod(new EnumerationValueCtor<Members>(std::move(signature), cls));
}

template class EnumerationClass<parseErrorSeverity>;
template class EnumerationClass<resourceIdentifierType>;

}  // namespace paxorel::xml::mi
