#include <vorlo/InternedName.hpp>

#include <vorlo/detail/Platform.hpp>

namespace vorlo {

namespace internal {

InternedName makeInterned(std::string name) {
  auto& names = detail::platform().names;
  if (const auto found = names.find(name); found != names.end()) return InternedName(found->second.get());
  auto entry = std::make_unique<InternedEntry>(std::move(name));
  const std::string_view key = entry->text;
  return InternedName(names.emplace(key, std::move(entry)).first->second.get());
}

InternedName makeInterned(std::string_view name) {
  const auto& names = detail::platform().names;
  if (const auto found = names.find(name); found != names.end()) return InternedName(found->second.get());
  return makeInterned(std::string(name));
}

InternedName makeInterned(const char* name) { return makeInterned(std::string_view(name ? name : "")); }

InternedName makeInternedConstant(std::string_view name) {
  struct Known {
    const char* text;
    std::size_t size;
    InternedName name;
  };
  constexpr std::size_t kept = 8;
  static Known known[kept];
  static std::size_t next = 0;
  for (const Known& entry : known) {
    if (entry.text == name.data() && entry.size == name.size() && entry.text) return entry.name;
  }
  const InternedName interned = makeInterned(name);
  known[next] = {name.data(), name.size(), interned};
  next = (next + 1) % kept;
  return interned;
}

}  // namespace internal

namespace {

TypeSpec parseTypeString(std::string_view text) {
  using internal::makeInterned;
  static const struct {
    std::string_view text;
    TypeSpec::Kind kind;
  } scalars[] = {
      {"void", TypeSpec::Void},
      {"any", TypeSpec::Any},
      {"VorloFactoryString scalar", TypeSpec::Text},
      {"ustringToString scalar", TypeSpec::TextPointer},
      {"logical scalar", TypeSpec::Logical},
      {"double scalar", TypeSpec::Double},
      {"uint64 scalar", TypeSpec::UInt64},
      {"uint32", TypeSpec::UInt32},
      {"uint32 scalar", TypeSpec::UInt32},
  };
  for (const auto& scalar : scalars) {
    if (text == scalar.text) return {scalar.kind, {}};
  }
  const auto endsWith = [text](std::string_view suffix) {
    return text.size() > suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
  };
  if (endsWith(" vector")) return {TypeSpec::ObjectVector, makeInterned(text.substr(0, text.size() - 7))};
  if (endsWith(" scalar")) return {TypeSpec::Self, makeInterned(text.substr(0, text.size() - 7))};
  return {TypeSpec::Object, makeInterned(text)};
}

}  // namespace

const char* InternedName::c_str() const noexcept { return entry_ ? entry_->text.c_str() : ""; }
std::size_t InternedName::size() const noexcept { return entry_ ? entry_->text.size() : 0; }
std::string_view InternedName::view() const noexcept { return entry_ ? std::string_view(entry_->text) : std::string_view(); }
VORClass* InternedName::getClass() const noexcept { return entry_ ? entry_->cls : nullptr; }
void InternedName::setClass(VORClass* cls) const noexcept {
  if (entry_) entry_->cls = cls;
}

const TypeSpec& InternedName::typeSpec() const {
  static const TypeSpec voidType{TypeSpec::Void, {}};
  if (!entry_) return voidType;
  if (!entry_->typeSpec) entry_->typeSpec = std::make_unique<const TypeSpec>(parseTypeString(entry_->text));
  return *entry_->typeSpec;
}

}  // namespace vorlo
