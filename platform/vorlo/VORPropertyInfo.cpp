#include <vorlo/VORPropertyInfo.hpp>

namespace vorlo {

VORPropertyInfo::~VORPropertyInfo() = default;

}  // namespace vorlo
