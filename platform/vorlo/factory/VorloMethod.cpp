#include <vorlo/factory/VorloMethod.hpp>

namespace vorlo::factory::impl {

void Invoker::createSignature(const char* description, std::initializer_list<const char*> types,
                              VORMethodSignaturePtr& signature) {
  signature = VORMethodSignature::createMethodSignature();
  signature->setDescription(description ? description : "");
  bool output = true;
  for (const char* type : types) {
    if (output) {
      signature->addOutputType(internal::makeInterned(type));
      output = false;
    } else {
      signature->addInputType(type ? internal::makeInterned(type) : InternedName());
    }
  }
}

}  // namespace vorlo::factory::impl
