#include <vorlo/VOREnumInfo.hpp>

namespace vorlo {

VOREnumInfo::~VOREnumInfo() = default;

const char* VOREnumInfo::getDescription() const { return ""; }
const char* VOREnumInfo::getDetailedDescription() const { return ""; }
bool VOREnumInfo::isDestructible() const { return true; }
bool VOREnumInfo::isHidden() const { return false; }

}  // namespace vorlo
