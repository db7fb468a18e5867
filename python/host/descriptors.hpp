#pragma once

// The attributes that a Python class gets from the records of its platform
// class: methods, static methods, abstract methods and properties.

#include <Python.h>

namespace zelmar {

struct ClassEntry;

/// Adds to the Python class of `entry` one attribute per method name and per
/// property of its platform class (the class's own records; the bases' come
/// by inheritance).
void addMembers(ClassEntry& entry);

/// Whether `attribute` is a record that listings leave out (a method whose
/// records all have the word 0x2, a property with 0x800).
bool isHidden(PyObject* attribute) noexcept;
/// Whether `attribute` is an abstract method that no Python code implemented.
bool isAbstractPlaceholder(PyObject* attribute) noexcept;

/// Readies the descriptor types; false with a Python error set.
bool readyDescriptorTypes() noexcept;

}  // namespace zelmar
