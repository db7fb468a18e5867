#pragma once

// A small package of native classes for the platform's tests: a class with
// overloads, statics, a direct method and properties of every kind, a
// subclass, an abstract class and an enumeration over "uint32".

#include <basis/ustring.hpp>
#include <vorlo/factory/full/Wrappable.hpp>

#include <cstdint>
#include <string>

namespace sample {

/// The package "sample.pkg"; registered (and its classes initialised) once.
void registerPackage();

/// The native object of class "sample.pkg.Thing".
class Thing : public vorlo::factory::full::Wrappable {
 public:
  explicit Thing(basis::ustring initial = u"thing") : name(std::move(initial)) { ++alive; }
  ~Thing() override { --alive; }
  basis::ustring name;
  double size = 0;
  mutable basis::ustring label = u"plain";
  basis::ustring* getLabel() const { return &label; }
  void setLabel(basis::ustring* /*ignored*/) {}
  unsigned long getCount() const { return 42; }
  void setCount(unsigned long /*ignored*/) {}
  static inline int alive = 0;
};

/// The native object of class "sample.pkg.BigThing".
class BigThing : public Thing {
 public:
  using Thing::Thing;
};

/// An unrelated native class, "sample.pkg.Other".
class Other : public vorlo::factory::full::Wrappable {};

}  // namespace sample
