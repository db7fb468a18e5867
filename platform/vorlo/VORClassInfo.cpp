#include <vorlo/VORClassInfo.hpp>

#include <vorlo/VORClass.hpp>

namespace vorlo {

VORClassInfo::~VORClassInfo() = default;

const char* VORClassInfo::getDescription() const { return ""; }
const char* VORClassInfo::getDetailedDescription() const { return ""; }
int VORClassInfo::getAccess() const { return 0; }
factory::full::Wrappable* VORClassInfo::allocateInstance(VORInterface* /*object*/) { return nullptr; }
void VORClassInfo::deallocateInstance(VORInterface* /*object*/, factory::full::Wrappable* /*instance*/) {}
void VORClassInfo::updateInstance(VORInterface* /*object*/) {}
bool VORClassInfo::isOkToDestroy() const { return true; }
bool VORClassInfo::isHandleClass() const { return true; }
bool VORClassInfo::isEnumeration() const { return false; }
bool VORClassInfo::isAbstract() const { return class_ && class_->hasAbstractMethods(); }
bool VORClassInfo::isConstructedOnLoad() const { return false; }

}  // namespace vorlo
