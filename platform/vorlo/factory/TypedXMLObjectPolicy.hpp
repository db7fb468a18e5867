#pragma once

#include <string_view>

namespace vorlo::factory {

/// How the Marshaler treats native objects derived from `Base` that report
/// their own host class: by a virtual getFullyQualifiedVorloTypeName(), which
/// gives a constant string (the same address always holds the same name).
template <class Base>
struct TypedXMLObjectPolicy {
  /// The host class that `object` reports; empty for a null name.
  template <class T>
  static std::string_view typeName(const T& object) {
    const char* name = object.getFullyQualifiedVorloTypeName();
    return name ? std::string_view(name) : std::string_view();
  }
};

}  // namespace vorlo::factory
