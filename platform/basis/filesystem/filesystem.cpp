#include <basis/filesystem/filesystem.hpp>

#include <basis/text/utf.hpp>

#include <sys/stat.h>
#include <unistd.h>

namespace basis::filesystem {

namespace {

// The path as the system takes it; a path with a NUL in it names nothing.
bool systemPath(const ustring& path, std::string& out) {
  out = text::to_utf8(path);
  return out.find('\0') == std::string::npos;
}

}  // namespace

ustring make_native_form(const ustring& path, bool trimTrailing) {
  ustring native;
  native.reserve(path.size());
  for (const char16_t c : path) {
    if (c == u'/' && !native.empty() && native.back() == u'/') continue;
    native += c;
  }
  if (trimTrailing && native.size() > 1 && native.back() == u'/') native.pop_back();
  return native;
}

ustring extract_parent_path(const ustring& path) {
  const auto slash = path.rfind(u'/');
  if (slash == ustring::npos) return {};
  return slash == 0 ? ustring(u"/") : path.substr(0, slash);
}

bool exists(const ustring& path) { return status(path) != 0; }

bool access(const ustring& path, int mode) {
  int flags = F_OK;
  if (mode & access_read) flags |= R_OK;
  if (mode & access_write) flags |= W_OK;
  std::string system;
  return systemPath(path, system) && ::access(system.c_str(), flags) == 0;
}

std::uint32_t status(const ustring& path) {
  std::string system;
  struct stat info {};
  if (!systemPath(path, system) || ::stat(system.c_str(), &info) != 0) return 0;
  return static_cast<std::uint32_t>(info.st_mode);
}

}  // namespace basis::filesystem
