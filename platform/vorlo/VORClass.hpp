#pragma once

#include <vorlo/InternedName.hpp>
#include <vorlo/VORClassInfo.hpp>
#include <vorlo/VOREnumInfo.hpp>
#include <vorlo/VORIterator.hpp>
#include <vorlo/VORMethodInfo.hpp>
#include <vorlo/VORMethodWithAnsCLNRN.hpp>
#include <vorlo/VORPropertyInfo.hpp>

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class HostArray;

namespace vorlo {

class VORPackage;

/// A superclass's constructor run on an object of a derived class: the
/// object under construction, the superclass's name, its constructor record
/// and the slots to run it with.
struct SuperclassConstruction {
  HostArray* object;
  InternedName name;
  const VORMethodInfo* method;
  int outputCount;
  VORValue* outputs;
  int inputCount;
  const VORValue* inputs;
};

/// A class of the platform, made of a class record: its name, its
/// superclasses and the method, property and enumeration member records that
/// the record adds when the class is initialised. The class owns the record
/// and all of them. A class is found by its full name as long as it lives.
class VORClass {
 public:
  struct Superclass {
    InternedName name;
    std::array<int, 3> words;
  };

  /// A class of `package` (null for one of the platform's own) made of
  /// `record`, which it owns from now on. No other class may live under
  /// `fullName`: VORPackage::addClass sees to that.
  VORClass(VORPackage* package, std::string fullName, std::unique_ptr<VORClassInfo> record, VORClient* client);
  VORClass(const VORClass&) = delete;
  VORClass& operator=(const VORClass&) = delete;
  ~VORClass();

  /// The class registered under `fullName`, or null.
  static VORClass* getClass(InternedName fullName) noexcept { return fullName.getClass(); }
  static VORClass* getClass(std::string_view fullName);

  VORClassInfo& getInfo() const noexcept { return *record_; }
  VORPackage* getPackage() const noexcept { return package_; }
  VORClient* getClient() const noexcept { return client_; }
  /// The short name, as the record gives it.
  const char* getShortName() const { return record_->getName(); }
  InternedName getInternedFullName() const noexcept { return fullName_; }

  /// Runs the record's initializeClass, once. Should it fail, what it added
  /// so far stays, and the class counts as initialised.
  void initialize();

  void addSuperclass(InternedName name, int first, int second, int third);
  /// The class takes ownership of each record it is given.
  void addMethod(VORMethodInfo* record);
  void addProperty(VORPropertyInfo* record);
  void addEnumerationMember(VOREnumInfo* record);
  /// Adds a direct method of `T` named `name`, with the given output and
  /// input type strings (input 0 is the object's), calling `function`.
  template <class Pointer>
  void addMethod(const char* name, int access, int outputCount, const char* const* outputTypes, int inputCount,
                 const char* const* inputTypes, typename VORMethodWithAnsCLNRN<Pointer>::Function function,
                 bool firstArgDispatch);

  const std::vector<Superclass>& getSuperclasses() const noexcept { return superclasses_; }
  const std::vector<std::unique_ptr<VORMethodInfo>>& getMethodRecords() const noexcept { return methods_; }
  const std::vector<std::unique_ptr<VORPropertyInfo>>& getProperties() const noexcept { return properties_; }
  const std::vector<std::unique_ptr<VOREnumInfo>>& getEnumerationMembers() const noexcept { return members_; }
  /// The method records of this class named `name`, in registration order.
  VORIterator getMethods(std::string_view name) const;
  /// The enumeration member named `name`, or null.
  VOREnumInfo* findEnumerationMember(std::string_view name) const;
  bool hasAbstractMethods() const noexcept;

  /// Whether the class is, or derives from, the class named `name`.
  bool isA(InternedName name) const;
  /// Runs a superclass's constructor on an object of this class.
  void constructSuperclass(const SuperclassConstruction& construction) const;

  /// The host language's own object for this class (its class object), or null.
  void* getHostData() const noexcept { return hostData_; }
  void setHostData(void* data) noexcept { hostData_ = data; }

 private:
  VORPackage* package_;
  InternedName fullName_;
  std::unique_ptr<VORClassInfo> record_;
  VORClient* client_;
  bool initialized_ = false;
  std::vector<Superclass> superclasses_;
  std::vector<std::unique_ptr<VORMethodInfo>> methods_;
  std::vector<std::unique_ptr<VORPropertyInfo>> properties_;
  std::vector<std::unique_ptr<VOREnumInfo>> members_;
  void* hostData_ = nullptr;
};

namespace detail {
/// A signature of one output and the given inputs, every type interned.
VORMethodSignaturePtr makeSignature(int outputCount, const char* const* outputTypes, int inputCount,
                                    const char* const* inputTypes);
}  // namespace detail

template <class Pointer>
void VORClass::addMethod(const char* name, int access, int outputCount, const char* const* outputTypes,
                         int inputCount, const char* const* inputTypes,
                         typename VORMethodWithAnsCLNRN<Pointer>::Function function, bool /*firstArgDispatch*/) {
  addMethod(new VORMethodWithAnsCLNRN<Pointer>(fullName_, internal::makeInterned(name),
                                               detail::makeSignature(outputCount, outputTypes, inputCount, inputTypes),
                                               function, access));
}

}  // namespace vorlo
