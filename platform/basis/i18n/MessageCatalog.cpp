#include <basis/i18n/MessageCatalog.hpp>

#include <basis/text/utf.hpp>

#include <map>
#include <sstream>
#include <string_view>

namespace basis::i18n {

namespace detail {
// The catalogue files, embedded at build time; the list ends with a null.
extern const char* const embeddedCatalogues[];
}  // namespace detail

namespace {

using Texts = std::map<std::string, std::string, std::less<>>;

std::string_view trim(std::string_view s) {
  const auto first = s.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  const auto last = s.find_last_not_of(" \t\r");
  return s.substr(first, last - first + 1);
}

// A catalogue file: "@catalogue <name>" once, then "key = text" lines;
// blank lines and lines starting with '#' are ignored.
void load(std::string_view file, std::map<std::string, Texts, std::less<>>& catalogues) {
  Texts* texts = nullptr;
  while (!file.empty()) {
    const auto end = file.find('\n');
    const std::string_view line = trim(file.substr(0, end));
    file = end == std::string_view::npos ? std::string_view() : file.substr(end + 1);
    if (line.empty() || line.front() == '#') continue;
    constexpr std::string_view header = "@catalogue ";
    if (line.substr(0, header.size()) == header) {
      texts = &catalogues[std::string(trim(line.substr(header.size())))];
      continue;
    }
    const auto equals = line.find('=');
    if (texts && equals != std::string_view::npos) {
      (*texts)[std::string(trim(line.substr(0, equals)))] = std::string(trim(line.substr(equals + 1)));
    }
  }
}

const std::map<std::string, Texts, std::less<>>& catalogues() {
  static const auto all = [] {
    std::map<std::string, Texts, std::less<>> result;
    for (const char* const* file = detail::embeddedCatalogues; *file; ++file) load(*file, result);
    return result;
  }();
  return all;
}

ustring argumentText(const MsgArg& arg) {
  if (const auto* number = std::get_if<std::int64_t>(&arg)) return text::from_utf8(std::to_string(*number));
  if (const auto* narrow = std::get_if<std::string>(&arg)) return text::from_utf8(*narrow);
  return std::get<ustring>(arg);
}

// Replaces each {N} of `pattern` whose N names an argument.
ustring fill(std::string_view pattern, const std::vector<MsgArg>& args) {
  ustring out;
  std::size_t done = 0;
  for (std::size_t open = pattern.find('{'); open != std::string_view::npos; open = pattern.find('{', open + 1)) {
    const auto close = pattern.find('}', open);
    if (close == std::string_view::npos) break;
    const std::string_view digits = pattern.substr(open + 1, close - open - 1);
    if (digits.empty() || digits.size() > 3 || digits.find_first_not_of("0123456789") != std::string_view::npos)
      continue;
    const auto index = static_cast<std::size_t>(std::stoul(std::string(digits)));
    if (index >= args.size()) continue;
    out += text::from_utf8(pattern.substr(done, open - done));
    out += argumentText(args[index]);
    done = close + 1;
  }
  out += text::from_utf8(pattern.substr(done));
  return out;
}

}  // namespace

std::string MessageCatalog::get_template(const std::string& catalogue, const std::string& key) {
  const auto& all = catalogues();
  const auto texts = all.find(catalogue);
  if (texts == all.end()) return {};
  const auto text = texts->second.find(key);
  return text == texts->second.end() ? std::string() : text->second;
}

ustring MessageCatalog::get_message(const BaseMsgID& id, const HostLocale& /*locale: one language*/) {
  const std::string pattern = get_template(id.catalogue, id.messageKey);
  if (!pattern.empty()) return fill(pattern, id.args);
  ustring out = text::from_utf8("Message " + id.catalogue + ":" + id.messageKey + " is not in the catalogue");
  for (std::size_t i = 0; i < id.args.size(); ++i) {
    out += i == 0 ? u"; arguments: " : u", ";
    out += argumentText(id.args[i]);
  }
  return out;
}

std::string to_string(const ustring& text) { return text::to_utf8(text); }

}  // namespace basis::i18n
