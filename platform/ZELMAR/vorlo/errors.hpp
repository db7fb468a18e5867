#pragma once

// The platform's own failures, catalogue "ZELMAR:vorlo". Each type's name is
// its message key; its constructor takes the message's arguments in order.

#include <basis/i18n/BaseMsgID.hpp>

#include <string>

namespace ZELMAR::vorlo {

/// A method was called for an object that is empty, of another class, or no
/// longer stands for a native object.
struct InvalidObject : basis::i18n::BaseMsgID {
  InvalidObject() : BaseMsgID("ZELMAR:vorlo", "InvalidObject", {}) {}
};

/// No class is registered under the name.
struct UnknownClass : basis::i18n::BaseMsgID {
  explicit UnknownClass(const std::string& cls) : BaseMsgID("ZELMAR:vorlo", "UnknownClass", {cls}) {}
};

/// A package tried to add a class under a name already taken.
struct ClassExists : basis::i18n::BaseMsgID {
  explicit ClassExists(const std::string& cls) : BaseMsgID("ZELMAR:vorlo", "ClassExists", {cls}) {}
};

/// An enumeration has no member of the name.
struct UnknownMember : basis::i18n::BaseMsgID {
  UnknownMember(const std::string& cls, const std::string& member)
      : BaseMsgID("ZELMAR:vorlo", "UnknownMember", {cls, member}) {}
};

/// Text was expected, and the value is of another class.
struct NotText : basis::i18n::BaseMsgID {
  explicit NotText(const std::string& cls) : BaseMsgID("ZELMAR:vorlo", "NotText", {cls}) {}
};

/// No method of the name takes the arguments given.
struct NoSuchMethod : basis::i18n::BaseMsgID {
  NoSuchMethod(const std::string& cls, const std::string& method)
      : BaseMsgID("ZELMAR:vorlo", "NoSuchMethod", {cls, method}) {}
};

/// No property of the name exists.
struct NoSuchProperty : basis::i18n::BaseMsgID {
  NoSuchProperty(const std::string& cls, const std::string& property)
      : BaseMsgID("ZELMAR:vorlo", "NoSuchProperty", {cls, property}) {}
};

/// A property was given a value of a class it does not take.
struct BadPropertyValue : basis::i18n::BaseMsgID {
  BadPropertyValue(const std::string& cls, const std::string& property, const std::string& valueClass)
      : BaseMsgID("ZELMAR:vorlo", "BadPropertyValue", {cls, property, valueClass}) {}
};

/// The class's constructor is not for host code, or the class is abstract.
struct NotConstructible : basis::i18n::BaseMsgID {
  explicit NotConstructible(const std::string& cls) : BaseMsgID("ZELMAR:vorlo", "NotConstructible", {cls}) {}
};

/// A property without a setter was assigned to.
struct ReadOnlyProperty : basis::i18n::BaseMsgID {
  explicit ReadOnlyProperty(const std::string& property)
      : BaseMsgID("ZELMAR:vorlo", "ReadOnlyProperty", {property}) {}
};

/// A host object was needed, and no host language is attached.
struct NoHostLanguage : basis::i18n::BaseMsgID {
  NoHostLanguage() : BaseMsgID("ZELMAR:vorlo", "NoHostLanguage", {}) {}
};

}  // namespace ZELMAR::vorlo
