#include "support/CppHost.hpp"

#include <basis/except/IMsgIDException.hpp>
#include <host/hostArrays.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/dispatch.hpp>
#include <vorlo/hostObjects.hpp>

namespace testing_support {

HostError::HostError(const basis::except::IUserException& error) : std::runtime_error(error.what()) {
  if (const auto* withId = dynamic_cast<const basis::except::IMsgIDException*>(&error)) identifier_ = withId->GetID();
}

struct CppHost::Object : vorlo::VORInterface {
  Object(vorlo::VORClass& cls, std::string ownClass, std::map<std::string, Method> ownMethods)
      : VORInterface(&cls), className(std::move(ownClass)), methods(std::move(ownMethods)) {}
  int references = 1;
  std::string className;  // the class host code derived, or the platform class's name
  std::map<std::string, Method> methods;
};

CppHost::CppHost() { host::attachLanguage(this); }

CppHost::~CppHost() { host::attachLanguage(nullptr); }

HostArray* CppHost::makeDerived(const std::string& base, const std::string& className,
                                std::map<std::string, Method> methods) {
  vorlo::VORClass* cls = vorlo::VORClass::getClass(base);
  if (!cls) throw std::invalid_argument("no platform class " + base);
  HostArray* array = hostCreateObjectMatrix(1, 1, vorlo::internal::makeInterned(className));
  ++live_;
  array->adoptObject(0, new Object(*cls, className, std::move(methods)));
  return array;
}

int CppHost::referencesOf(const HostArray* array) {
  const auto* object = static_cast<const Object*>(hostGetArrayElement(array, 0));
  return object ? object->references : 0;
}

vorlo::VORInterface* CppHost::createObject(vorlo::VORClass& cls) {
  ++live_;
  return new Object(cls, cls.getInternedFullName().str(), {});
}

void CppHost::retain(vorlo::VORInterface& object) noexcept { ++static_cast<Object&>(object).references; }

void CppHost::release(vorlo::VORInterface& object) noexcept {
  auto& own = static_cast<Object&>(object);
  if (--own.references > 0) return;
  --live_;
  vorlo::endHostObject(own);
  delete &own;
}

std::string CppHost::className(const vorlo::VORInterface& object) {
  return static_cast<const Object&>(object).className;
}

bool CppHost::isA(const vorlo::VORInterface& object, vorlo::InternedName cls) {
  return static_cast<const Object&>(object).className == cls.view() || object.getClass()->isA(cls);
}

void CppHost::callMethod(vorlo::InternedName /*cls*/, vorlo::InternedName method, int outputCount,
                         HostArray** outputs, int inputCount, HostArray* const* inputs) {
  auto* object = static_cast<Object*>(hostGetArrayElement(inputs[0], 0));
  if (const auto own = object->methods.find(method.str()); own != object->methods.end()) {
    own->second(outputCount, outputs, inputCount, inputs);
    return;
  }
  vorlo::dispatch::callMethod(inputs[0], method.view(), outputCount, outputs, inputCount - 1, inputs + 1);
}

void CppHost::raiseError(const basis::except::IUserException& error) { throw HostError(error); }

}  // namespace testing_support
