#include <vorlo/detail/Platform.hpp>

#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/builtin/UInt32Class.hpp>

namespace vorlo::detail {

Platform& platform() {
  static Platform state;
  return state;
}

void ensureBuiltinClasses() {
  Platform& state = platform();
  if (state.builtinClasses.empty()) state.builtinClasses.push_back(builtin::makeUInt32Class());
}

}  // namespace vorlo::detail
