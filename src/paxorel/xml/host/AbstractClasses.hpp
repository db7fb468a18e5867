#pragma once

// The abstract classes of the package: host code subclasses each and
// implements its one method, which the library calls back during a parse.
// Their instances stand for no native object.

#include <vorlo/AbstractMethodInfo.hpp>
#include <vorlo/VORClassInfo.hpp>

namespace paxorel::xml::mi {

/// An abstract class: its name, its base, and the method it declares with
/// that method's types.
struct AbstractClassRow {
  const char* name;
  const char* superclass;
  const char* method;
  const char* output;
  const char* self;
  const char* argument;
};

// clang-format off
inline constexpr AbstractClassRow entityResolver{
    "EntityResolver", "zelmar.io.xml.transform.Object", "resolveEntity", "ustringToString scalar",
    "zelmar.io.xml.transform.EntityResolver", "zelmar.io.xml.ResourceIdentifier"};
inline constexpr AbstractClassRow resourceResolver{
    "ResourceResolver", "zelmar.io.xml.transform.Object", "resolveResource", "ustringToString scalar",
    "zelmar.io.xml.transform.ResourceResolver", "zelmar.io.xml.ResourceIdentifier"};
inline constexpr AbstractClassRow parseErrorHandler{
    "ParseErrorHandler", "zelmar.io.xml.dom.Object", "handleError", "logical scalar",
    "zelmar.io.xml.dom.ParseErrorHandler", "zelmar.io.xml.dom.ParseError"};
// clang-format on

/// The record of the method that the class of `Row` declares. Calling the
/// record itself does nothing.
template <const AbstractClassRow& Row>
class AbstractMethod final : public vorlo::AbstractMethodInfo {
 public:
  const char* getName() const override { return Row.method; }
};

/// The class record of the abstract class of `Row`.
template <const AbstractClassRow& Row>
class AbstractClass final : public vorlo::VORClassInfo {
 public:
  const char* getName() const override { return Row.name; }
  /// The base, then the abstract method; the string data types are not needed.
  void initializeClass(vorlo::VORClass* cls, vorlo::VORClient* client) override;
  vorlo::factory::full::Wrappable* allocateInstance(vorlo::VORInterface* /*object*/) override { return nullptr; }
  void deallocateInstance(vorlo::VORInterface* /*object*/, vorlo::factory::full::Wrappable* /*instance*/) override {}
  bool isOkToDestroy() const override { return true; }
  bool isHandleClass() const override { return true; }
};

extern template class AbstractClass<entityResolver>;
extern template class AbstractClass<resourceResolver>;
extern template class AbstractClass<parseErrorHandler>;

using VorEntityResolver = AbstractClass<entityResolver>;
using VorResolveEntity = AbstractMethod<entityResolver>;
using VorResourceResolver = AbstractClass<resourceResolver>;
using VorResolveResource = AbstractMethod<resourceResolver>;
using VorParseErrorHandler = AbstractClass<parseErrorHandler>;
using VorHandleError = AbstractMethod<parseErrorHandler>;

}  // namespace paxorel::xml::mi
