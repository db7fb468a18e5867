#include <vorlo/VORMethodInfo.hpp>

namespace vorlo {

VORMethodInfo::~VORMethodInfo() = default;

const char* VORMethodInfo::getDescription() const { return ""; }
std::uint32_t VORMethodInfo::getAttributes() const { return 0; }
bool VORMethodInfo::isStatic() const {
  const Kind kind = getKind();
  if (kind == Kind::Constructor || kind == Kind::ValueConstructor) return true;
  const VORMethodSignaturePtr signature = getSignature();
  return !signature || !signature->hasSelf();
}
bool VORMethodInfo::isAbstract() const { return false; }
bool VORMethodInfo::isSealed() const { return false; }
int VORMethodInfo::getMemberAccess() const { return 0; }
bool VORMethodInfo::isFirstArgDispatch() const { return true; }

}  // namespace vorlo
