#pragma once

// A host language made of C++, so that native tests can use the class-object
// system, host objects and calls into host code without Python.

#include <basis/except/IUserException.hpp>
#include <host/HostArray.hpp>
#include <host/Language.hpp>
#include <host/hostArrays.hpp>
#include <vorlo/VORInterface.hpp>

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

namespace testing_support {

/// What the C++ host raises for the platform: the error, with its identifier.
class HostError : public std::runtime_error {
 public:
  explicit HostError(const basis::except::IUserException& error);
  /// "catalogue:key" for an error with an identifier, otherwise empty.
  const std::string& identifier() const noexcept { return identifier_; }

 private:
  std::string identifier_;
};

/// The attached host language while it lives. Its objects are counted; a
/// host class of its own is a platform class with methods added in C++.
class CppHost : public host::Language {
 public:
  /// A method of a host class of C++: inputs[0] holds the object; the result goes into outputs[0].
  using Method = std::function<void(int outputCount, HostArray** outputs, int inputCount, HostArray* const* inputs)>;

  CppHost();
  ~CppHost() override;

  /// A new object of a class that host code derives, named `className`, from
  /// the platform class `base`, with the given methods; a 1-by-1 array.
  HostArray* makeDerived(const std::string& base, const std::string& className, std::map<std::string, Method> methods);
  /// Host objects made and not yet let go.
  int liveObjects() const noexcept { return live_; }
  /// How many references the host object in element 0 of `array` has.
  static int referencesOf(const HostArray* array);

  vorlo::VORInterface* createObject(vorlo::VORClass& cls) override;
  void retain(vorlo::VORInterface& object) noexcept override;
  void release(vorlo::VORInterface& object) noexcept override;
  std::string className(const vorlo::VORInterface& object) override;
  bool isA(const vorlo::VORInterface& object, vorlo::InternedName cls) override;
  void callMethod(vorlo::InternedName cls, vorlo::InternedName method, int outputCount, HostArray** outputs,
                  int inputCount, HostArray* const* inputs) override;
  [[noreturn]] void raiseError(const basis::except::IUserException& error) override;

 private:
  struct Object;
  int live_ = 0;
};

/// A host array that goes with its scope (before the host does).
using Array = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;
inline Array adopt(HostArray* array) { return {array, &hostDestroyArray}; }

inline vorlo::InternedName name(const char* text) { return vorlo::internal::makeInterned(text); }

/// "class RxC" of a host array, and " mixed" for a heterogeneous one.
inline std::string shapeOf(const Array& array) {
  return hostGetClassName(array.get()).str() + " " + std::to_string(array->rows()) + "x" +
         std::to_string(array->columns()) + (array->isHeterogeneous() ? " mixed" : "");
}

/// The identifier of the error that `run` raises into the host, or "nothing".
template <class Run>
std::string raised(Run&& run) {
  try {
    run();
  } catch (const HostError& error) {
    return error.identifier();
  }
  return "nothing";
}

}  // namespace testing_support
