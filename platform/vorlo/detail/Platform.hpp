#pragma once

#include <vorlo/InternedName.hpp>
#include <vorlo/VORTypeRepository.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vorlo {

class VORClass;
class VORPackage;

namespace internal {

struct InternedEntry {
  explicit InternedEntry(std::string name) : text(std::move(name)) {}
  const std::string text;
  mutable VORClass* cls = nullptr;                // set by VORClass while registered
  mutable std::unique_ptr<const TypeSpec> typeSpec;  // parsed on first use
};

}  // namespace internal

namespace detail {

/// All state of the class-object system, in one object so that it goes at
/// process exit in a known order: packages (with their classes and records)
/// first, the platform's own classes next, the interned names last, since
/// everything before refers to them.
struct Platform {
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  ~Platform() = default;

  // Keys are views of the entries' own texts, so a lookup by view allocates
  // nothing.
  std::unordered_map<std::string_view, std::unique_ptr<internal::InternedEntry>> names;
  VORTypeRepository types;
  std::vector<std::unique_ptr<VORClass>> builtinClasses;
  std::vector<std::unique_ptr<VORPackage>> packages;
};

/// The one platform state of the process.
Platform& platform();
/// Registers the platform's own classes ("uint32"), once.
void ensureBuiltinClasses();

}  // namespace detail
}  // namespace vorlo
