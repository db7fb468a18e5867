#pragma once

// Text between Python's str and the platform's 16-bit strings.

#include <Python.h>

#include <string>
#include <string_view>

namespace zelmar {

/// Puts the UTF-16 code units of the str `text` into `units`: a character
/// above U+FFFF becomes a surrogate pair, and a lone surrogate stays the one
/// unit it is, so no str fails or loses anything on the way.
void toUtf16(PyObject* text, std::u16string& units);

/// A new str of `units`: a surrogate pair becomes one character, a lone
/// surrogate a character of its own. Null with a Python error set on failure.
PyObject* fromUtf16(std::u16string_view units);

/// A new str of UTF-8 `text` (lone surrogates as their three bytes kept, any
/// other bad byte replaced). Null with a Python error set on failure.
PyObject* fromUtf8(std::string_view text);

}  // namespace zelmar
