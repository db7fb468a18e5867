#pragma once

#include <vorlo/InternedName.hpp>

#include <string>

class HostArray;

namespace basis::except {
class IUserException;
}
namespace vorlo {
class VORClass;
class VORInterface;
}  // namespace vorlo

namespace host {

/// The seam between the platform and a host language: what the platform asks
/// of the language whose objects it hands around. One language is attached
/// at a time. The platform never calls into it once it has been detached,
/// so a language may go before the platform does.
class Language {
 public:
  Language() = default;
  Language(const Language&) = delete;
  Language& operator=(const Language&) = delete;
  virtual ~Language();

  /// A new host object of the platform class `cls`, standing for no native
  /// object yet; the caller receives its one reference.
  virtual vorlo::VORInterface* createObject(vorlo::VORClass& cls) = 0;
  /// Counts one more reference to a host object, or one fewer; the last one
  /// lets the object go (the class's deallocateInstance runs then).
  virtual void retain(vorlo::VORInterface& object) noexcept = 0;
  virtual void release(vorlo::VORInterface& object) noexcept = 0;
  /// The full name of the object's own class, which may be a class that host
  /// code derived from a platform class.
  virtual std::string className(const vorlo::VORInterface& object) = 0;
  /// Whether the object's class is, or derives from, the class named `cls`.
  virtual bool isA(const vorlo::VORInterface& object, vorlo::InternedName cls) = 0;
  /// Calls the method named `method` of the host object in element 0 of
  /// inputs[0], with the other inputs as its arguments, and puts its results
  /// (owned by the caller) into `outputs`. `cls` names the object's class.
  /// A failure in host code leaves as an exception of the language's own,
  /// which the language's call boundary turns back into the host's error.
  virtual void callMethod(vorlo::InternedName cls, vorlo::InternedName method, int outputCount, HostArray** outputs,
                          int inputCount, HostArray* const* inputs) = 0;
  /// Raises `error` as an error of the host language: throws what the
  /// language's call boundary turns into that error. Never returns.
  [[noreturn]] virtual void raiseError(const basis::except::IUserException& error) = 0;
};

/// Makes `language` the attached language (null: none).
void attachLanguage(Language* language) noexcept;
/// The attached language, or null.
Language* currentLanguage() noexcept;

}  // namespace host
