#include <paxorel/xml/host/ClassRecords.hpp>

#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/dom/DocumentRegistry.hpp>

#include <vorlo/VORClass.hpp>
#include <vorlo/factory/basic/BindingRegistry.hpp>
#include <vorlo/factory/downcast.hpp>
#include <vorlo/factory/detail/initStringDataTypes.hpp>

namespace paxorel::xml::mi {

void VorXMLObjectClassInfo::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) { startClass(cls); }

vorlo::factory::full::Wrappable* VorXMLObjectClassInfo::allocateInstance(vorlo::VORInterface* /*object*/) {
  return nullptr;
}

void VorXMLObjectClassInfo::deallocateInstance(vorlo::VORInterface* /*object*/,
                                               vorlo::factory::full::Wrappable* instance) {
  if (!instance) return;
  vorlo::factory::basic::BindingRegistry::instance().remove(instance);
  if (const auto* document = vorlo::factory::downcast<const Document>(instance)) {
    DocumentRegistry::getInstance()->unregisterDocument(document);
  } else {
    delete instance;
  }
}

bool VorXMLObjectClassInfo::isOkToDestroy() const { return true; }
bool VorXMLObjectClassInfo::isHandleClass() const { return true; }
bool VorXMLObjectClassInfo::isAbstract() const { return false; }

void VorXMLObjectClassInfo::startClass(vorlo::VORClass* cls) const {
  vorlo::factory::detail::initStringDataTypes();
  for (const char* base : bases_) cls->addSuperclass(vorlo::internal::makeInterned(base), 1, 0, 1);
}

}  // namespace paxorel::xml::mi
