#include <vorlo/VORClass.hpp>

#include <vorlo/detail/Platform.hpp>

#include <algorithm>

namespace vorlo {

VORClass::VORClass(VORPackage* package, std::string fullName, std::unique_ptr<VORClassInfo> record, VORClient* client)
    : package_(package),
      fullName_(internal::makeInterned(std::move(fullName))),
      record_(std::move(record)),
      client_(client) {
  record_->class_ = this;
  fullName_.setClass(this);
}

VORClass::~VORClass() {
  fullName_.setClass(nullptr);
  // Records go before the class record, newest first.
  members_.clear();
  properties_.clear();
  methods_.clear();
}

VORClass* VORClass::getClass(std::string_view fullName) {
  detail::ensureBuiltinClasses();
  return internal::makeInterned(fullName).getClass();
}

void VORClass::initialize() {
  if (initialized_) return;
  initialized_ = true;
  record_->initializeClass(this, client_);
}

void VORClass::addSuperclass(InternedName name, int first, int second, int third) {
  superclasses_.push_back({name, {first, second, third}});
}

void VORClass::addMethod(VORMethodInfo* record) { methods_.emplace_back(record); }
void VORClass::addProperty(VORPropertyInfo* record) { properties_.emplace_back(record); }
void VORClass::addEnumerationMember(VOREnumInfo* record) { members_.emplace_back(record); }

VORIterator VORClass::getMethods(std::string_view name) const {
  std::vector<VORMethodInfo*> named;
  for (const auto& method : methods_) {
    if (name == method->getName()) named.push_back(method.get());
  }
  return VORIterator(std::move(named));
}

VOREnumInfo* VORClass::findEnumerationMember(std::string_view name) const {
  const auto found = std::find_if(members_.begin(), members_.end(),
                                  [name](const auto& member) { return name == member->getName(); });
  return found == members_.end() ? nullptr : found->get();
}

bool VORClass::hasAbstractMethods() const noexcept {
  return std::any_of(methods_.begin(), methods_.end(), [](const auto& method) { return method->isAbstract(); });
}

bool VORClass::isA(InternedName name) const {
  if (name == fullName_) return true;
  return std::any_of(superclasses_.begin(), superclasses_.end(), [name](const Superclass& base) {
    if (base.name == name) return true;
    const VORClass* cls = base.name.getClass();
    return cls && cls->isA(name);
  });
}

void VORClass::constructSuperclass(const SuperclassConstruction& construction) const {
  int outputCount = construction.outputCount;
  construction.method->invoke(client_, outputCount, construction.outputs, construction.inputCount,
                              construction.inputs);
}

namespace detail {

VORMethodSignaturePtr makeSignature(int outputCount, const char* const* outputTypes, int inputCount,
                                    const char* const* inputTypes) {
  VORMethodSignaturePtr signature = VORMethodSignature::createMethodSignature();
  for (int i = 0; i < outputCount; ++i) signature->addOutputType(internal::makeInterned(outputTypes[i]));
  for (int i = 0; i < inputCount; ++i) {
    signature->addInputType(inputTypes[i] ? internal::makeInterned(inputTypes[i]) : InternedName());
  }
  return signature;
}

}  // namespace detail

}  // namespace vorlo
