#include <vorlo/VORPackage.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORClient.hpp>
#include <vorlo/detail/Platform.hpp>

namespace vorlo {

namespace {

std::vector<std::unique_ptr<VORPackage>>& packages() { return detail::platform().packages; }

}  // namespace

VORPackage::~VORPackage() {
  // Later classes may name earlier ones as superclasses: they go first.
  while (!owned_.empty()) owned_.pop_back();
}

VORPackage* VORPackage::find(std::string_view name) {
  for (const auto& package : packages()) {
    if (package->name_ == name) return package.get();
  }
  return nullptr;
}

std::vector<VORPackage*> VORPackage::all() {
  std::vector<VORPackage*> result;
  for (const auto& package : packages()) result.push_back(package.get());
  return result;
}

void VORPackage::addClass(VORClassInfo* record, int /*flags*/) {
  std::unique_ptr<VORClassInfo> owned(record);
  std::string fullName = name_ + "." + record->getName();
  if (VORClass::getClass(fullName)) hostRaise(ZELMAR::vorlo::ClassExists(fullName));
  owned_.push_back(std::make_unique<VORClass>(this, std::move(fullName), std::move(owned), VORGetPublicClient()));
  classes_.push_back(owned_.back().get());
}

const std::vector<VORClass*>& VORPackage::getClasses() {
  if (!loaded_) {
    loaded_ = true;
    if (callback_) callback_(this);
    for (VORClass* cls : classes_) cls->initialize();
  }
  return classes_;
}

namespace factory {

bool registerVorloPackage(std::string name, VORPackage::Callback callback) {
  detail::ensureBuiltinClasses();
  if (VORPackage::find(name)) return false;
  packages().push_back(std::make_unique<VORPackage>(std::move(name), std::move(callback)));
  return true;
}

}  // namespace factory

}  // namespace vorlo
