#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vorlo {

class VORClass;
class VORClassInfo;

/// A named group of classes. A package is registered with a callback that
/// adds its classes; the platform runs it, and then initialises each class in
/// the order of adding, the first time someone asks for the package's
/// classes. Packages live until the process ends.
class VORPackage {
 public:
  using Callback = std::function<void(VORPackage*)>;

  VORPackage(std::string name, Callback callback) : name_(std::move(name)), callback_(std::move(callback)) {}
  VORPackage(const VORPackage&) = delete;
  VORPackage& operator=(const VORPackage&) = delete;
  ~VORPackage();

  /// The package registered under `name`, or null.
  static VORPackage* find(std::string_view name);
  /// Every registered package, in the order of registration.
  static std::vector<VORPackage*> all();

  const std::string& getName() const noexcept { return name_; }
  /// Adds the class of `record`, named by the package's name, a dot and the
  /// record's short name. The package owns the record from now on (also when
  /// adding fails: a class of that name exists already). `flags` is kept as
  /// given.
  void addClass(VORClassInfo* record, int flags);
  /// The classes in the order of adding, all initialised; the first call
  /// runs the callback.
  const std::vector<VORClass*>& getClasses();

 private:
  std::string name_;
  Callback callback_;
  bool loaded_ = false;
  std::vector<std::unique_ptr<VORClass>> owned_;
  std::vector<VORClass*> classes_;
};

namespace factory {
/// Registers the package `name`, whose classes `callback` adds when the
/// platform asks for them. A second registration of a name changes nothing
/// and gives false.
bool registerVorloPackage(std::string name, VORPackage::Callback callback);
}  // namespace factory

}  // namespace vorlo
