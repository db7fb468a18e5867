#pragma once

// Python as the platform's host language.

namespace zelmar {

/// Attaches Python as the platform's host language, and detaches it when
/// the interpreter ends, so that the platform never calls into a finalised
/// interpreter (the library's statics end at process exit, after Python).
bool attachPython() noexcept;

}  // namespace zelmar
