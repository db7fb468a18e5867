#pragma once

#include <basis/ustring.hpp>

#include <cstdint>

/// Path services. Paths are 16-bit strings; the system sees them as UTF-8.
namespace basis::filesystem {

/// Mode words of access().
enum : int {
  access_exists = 0,
  access_read = 2,
  access_write = 4,
};

/// File type bits of status(), to be masked with file_type_mask.
enum : std::uint32_t {
  file_type_mask = 0170000,
  directory_file = 0040000,
  regular_file = 0100000,
  symlink_file = 0120000,
};

/// The form in which the system takes `path`: runs of '/' become one, and
/// with `trimTrailing` a trailing '/' goes too (the root "/" stays).
ustring make_native_form(const ustring& path, bool trimTrailing);

/// Everything before the last '/' of `path`: "" for a bare name, "/" for a
/// name directly under the root.
ustring extract_parent_path(const ustring& path);

/// Whether something exists at `path` (a link is followed).
bool exists(const ustring& path);

/// Whether `path` may be used in the way that `mode` says (access_read,
/// access_write, or access_exists); the mode words may be added.
bool access(const ustring& path, int mode);

/// The type and permission bits of what `path` names (a link is followed),
/// or 0 when nothing can be found there.
std::uint32_t status(const ustring& path);

}  // namespace basis::filesystem
