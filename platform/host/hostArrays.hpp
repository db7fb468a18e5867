#pragma once

// The host's operations on its arrays. Whoever makes an array, or is handed
// one, owns it and ends it with hostDestroyArray.

#include <host/HostArray.hpp>
#include <vorlo/InternedName.hpp>
#include <vorlo/VORInterface.hpp>

#include <cstddef>

/// A rows-by-columns array of real zeros; 0-by-0 is the empty value.
HostArray* hostCreateDoubleMatrix(std::size_t rows, std::size_t columns, HostComplexity complexity);
/// A 1-by-1 zero of a numeric kind (Double, Logical, UInt32 or UInt64).
HostArray* hostCreateNumericScalar(HostClassID classID);
/// A 1-by-1 logical.
HostArray* hostCreateLogicalScalar(bool value);
/// A 1-by-n char array of `text` up to its terminating zero unit; null text
/// gives the empty text.
HostArray* hostCreateString_UTF16(const char16_t* text);
/// A rows-by-columns string array, every element missing.
HostArray* hostCreateStringArray(std::size_t rows, std::size_t columns);
/// Text element `index` of a char array (its one text) or a string array; any
/// other array is ZELMAR:vorlo:NotText.
HostString* hostGetString(HostArray* array, std::size_t index = 0);

/// A rows-by-columns array of objects of the class named `className`, every
/// element unset.
HostArray* hostCreateObjectMatrix(std::size_t rows, std::size_t columns, vorlo::InternedName className);
/// Stores `object` (counted once more) as element `index`.
void hostSetArrayElement(HostArray* array, std::size_t index, vorlo::VORInterfacePtr object);
/// Object element `index`; null where none is set, past the end, or for an
/// array that holds no objects.
vorlo::VORInterfacePtr hostGetArrayElement(const HostArray* array, std::size_t index);
/// The same, for the object under construction in a constructor's output.
vorlo::VORInterfacePtr hostGetObjectElement(const HostArray* array, std::size_t index);
/// Settles the class of an array of objects of several classes.
void hostSetClassOfHeterogeneousArray(HostArray* array);

/// A rows-by-columns array of members of the enumeration named `className`,
/// each the member of value 0 until set.
HostArray* hostCreateEnumerationMatrix(std::size_t rows, std::size_t columns, vorlo::InternedName className);
/// Makes element `index` the member named `member` of the array's
/// enumeration; an unknown member is ZELMAR:vorlo:UnknownMember.
void hostSetEnumerationElement(HostArray* array, std::size_t index, vorlo::InternedName member);

/// The class of the array's elements (HostArray::getClassName).
vorlo::InternedName hostGetClassName(const HostArray* array);
/// Whether the array has no elements; a null array counts as empty.
bool hostIsEmpty(const HostArray* array) noexcept;
/// Whether the array holds objects of the class system (not numbers, text or
/// enumeration members).
bool hostIsObject(const HostArray* array) noexcept;
void hostDestroyArray(HostArray* array) noexcept;
