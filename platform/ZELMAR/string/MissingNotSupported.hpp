#pragma once

#include <basis/i18n/BaseMsgID.hpp>

namespace ZELMAR::string {

/// A host callback gave a missing string where text was required.
struct MissingNotSupported : basis::i18n::BaseMsgID {
  MissingNotSupported() : BaseMsgID("ZELMAR:string", "MissingNotSupported", {}) {}
};

}  // namespace ZELMAR::string
