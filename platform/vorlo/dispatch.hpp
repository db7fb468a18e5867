#pragma once

// Calls by name and arguments, between host arrays and the records of a
// class: how a host without its own conversions (and native code standing
// in for one) uses the class-object system. Arguments and results are host
// arrays; the slot rules of each record's types are applied here.

#include <vorlo/InternedName.hpp>

#include <string_view>
#include <vector>

class HostArray;

namespace vorlo {

class VORClass;
class VORMethodInfo;
class VORPropertyInfo;

namespace dispatch {

/// Whether `argument` may stand for a value of `type`: text for the string
/// types; a numeric or logical scalar for the numbers and logicals; for a
/// class, any array of objects (of an unrelated class it arrives as null) or
/// an empty one; for "any", anything.
bool accepts(const HostArray* argument, const TypeSpec& type) noexcept;

/// The records named `name` that an object of `cls` answers to: those of the
/// nearest class that has any, looking at `cls` first and then at its
/// superclasses in order; abstract records left out.
std::vector<const VORMethodInfo*> methodsOf(const VORClass& cls, std::string_view name);
/// The property named `name` of `cls` or, failing that, of its nearest
/// superclass that has one; null when none has.
const VORPropertyInfo* propertyOf(const VORClass& cls, std::string_view name);

/// The first of `candidates` whose arguments (the inputs after the object or
/// the constructor's empty first input) take `arguments`; null when none does.
const VORMethodInfo* choose(const std::vector<const VORMethodInfo*>& candidates, int count,
                            HostArray* const* arguments);

/// Calls the method `name` of the object in element 0 of `self` with
/// `arguments`, chosen among its overloads. A result goes to outputs[0]
/// (owned by the caller; null for none). No fitting method is
/// ZELMAR:vorlo:NoSuchMethod.
void callMethod(HostArray* self, std::string_view name, int outputCount, HostArray** outputs, int count,
                HostArray* const* arguments);
/// Calls the static method `name` of `cls`.
void callStatic(const VORClass& cls, std::string_view name, int outputCount, HostArray** outputs, int count,
                HostArray* const* arguments);
/// A new host object of `cls` made by its constructor that takes
/// `arguments`, as a 1-by-1 array that the caller owns. A class without a
/// constructor for host code, or an abstract one, is
/// ZELMAR:vorlo:NotConstructible.
HostArray* construct(VORClass& cls, int count, HostArray* const* arguments);
/// The value of the property `name` of the object in `self` (owned by the caller).
HostArray* getProperty(HostArray* self, std::string_view name);
void setProperty(HostArray* self, std::string_view name, HostArray* value);

}  // namespace dispatch
}  // namespace vorlo
