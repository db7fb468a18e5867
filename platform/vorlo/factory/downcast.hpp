#pragma once

#include <cstddef>
#include <type_traits>
#include <typeinfo>

namespace vorlo::factory {

/// `object` as a `T` when its class is, or derives from, `T`; null otherwise
/// and for null. The answer of dynamic_cast for a class of object is the same
/// for every object of that class, so it is kept, for the last few classes
/// seen, as the distance from `object` to its `T`: a cast between classes
/// of two libraries would otherwise compare class names, at every call.
/// Like the rest of the platform it expects one thread at a time. `Base`
/// must be a single base of every class it is used with, as Wrappable is.
template <class T, class Base>
T* downcast(Base* object) {
  if (!object) return nullptr;
  struct Known {
    const std::type_info* type;
    bool isT;
    std::ptrdiff_t offset;  // from `object` to its T
  };
  constexpr std::size_t kept = 8;
  static Known known[kept];
  static std::size_t next = 0;

  const std::type_info* type = &typeid(*object);
  // Byte arithmetic on the object's address; a T's constness follows Base's.
  using Byte = std::conditional_t<std::is_const_v<Base>, const char, char>;
  Byte* bytes = reinterpret_cast<Byte*>(object);
  for (const Known& entry : known) {
    if (entry.type == type) return entry.isT ? reinterpret_cast<T*>(bytes + entry.offset) : nullptr;
  }
  T* cast = dynamic_cast<T*>(object);
  known[next] = {type, cast != nullptr, cast ? reinterpret_cast<const char*>(cast) - bytes : 0};
  next = (next + 1) % kept;
  return cast;
}

}  // namespace vorlo::factory
