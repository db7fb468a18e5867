#include <vorlo/hostObjects.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/Language.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORInterface.hpp>
#include <vorlo/factory/basic/BindingRegistry.hpp>

namespace vorlo {

VORInterface* newHostObject(VORClass& cls) {
  host::Language* language = host::currentLanguage();
  if (!language) hostRaise(ZELMAR::vorlo::NoHostLanguage());
  return language->createObject(cls);
}

void endHostObject(VORInterface& object) {
  VORClass* cls = object.getClass();
  factory::full::Wrappable* native = object.getNativeInstance(cls->getInternedFullName());
  auto& registry = factory::basic::BindingRegistry::instance();
  if (registry.find(native) == &object) registry.remove(native);
  cls->getInfo().deallocateInstance(&object, native);
}

}  // namespace vorlo
