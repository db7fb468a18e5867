#include <vorlo/VORMethodSignature.hpp>

namespace vorlo {

VORMethodSignaturePtr VORMethodSignature::createMethodSignature() { return std::make_shared<VORMethodSignature>(); }

InternedName VORMethodSignature::getOutputType() const {
  return outputs_.empty() ? internal::makeInterned("void") : outputs_.front();
}

}  // namespace vorlo
