#include <paxorel/xml/host/AbstractClasses.hpp>

#include <vorlo/VORClass.hpp>

#include <memory>

namespace paxorel::xml::mi {

template <const AbstractClassRow& Row>
void AbstractClass<Row>::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  using vorlo::internal::makeInterned;
  cls->addSuperclass(makeInterned(Row.superclass), 1, 0, 1);
  std::unique_ptr<AbstractMethod<Row>> method(new AbstractMethod<Row>);
  vorlo::VORMethodSignaturePtr signature = vorlo::VORMethodSignature::createMethodSignature();
  signature->addInputType(makeInterned(Row.self));
  signature->addInputType(makeInterned(Row.argument));
  signature->addOutputType(makeInterned(Row.output));
  method->setSignature(std::move(signature));
  cls->addMethod(method.release());
}

template class AbstractClass<entityResolver>;
template class AbstractClass<resourceResolver>;
template class AbstractClass<parseErrorHandler>;

}  // namespace paxorel::xml::mi
