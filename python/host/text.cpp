#include "text.hpp"

#include <algorithm>

namespace zelmar {

namespace {

bool isHigh(char16_t unit) noexcept { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLow(char16_t unit) noexcept { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

void toUtf16(PyObject* text, std::u16string& units) {
  const Py_ssize_t length = PyUnicode_GET_LENGTH(text);
  const void* data = PyUnicode_DATA(text);
  switch (PyUnicode_KIND(text)) {
    case PyUnicode_1BYTE_KIND: {
      const auto* characters = static_cast<const Py_UCS1*>(data);
      units.assign(characters, characters + length);
      return;
    }
    case PyUnicode_2BYTE_KIND: {
      const auto* characters = static_cast<const Py_UCS2*>(data);
      units.assign(characters, characters + length);
      return;
    }
    default: {
      const auto* characters = static_cast<const Py_UCS4*>(data);
      units.clear();
      units.reserve(static_cast<std::size_t>(length) + 1);
      for (Py_ssize_t i = 0; i < length; ++i) {
        Py_UCS4 character = characters[i];
        if (character > 0xFFFF) {
          character -= 0x10000;
          units.push_back(static_cast<char16_t>(0xD800 + (character >> 10)));
          units.push_back(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
        } else {
          units.push_back(static_cast<char16_t>(character));
        }
      }
    }
  }
}

PyObject* fromUtf16(std::u16string_view units) {
  const std::size_t size = units.size();
  Py_UCS4 widest = 0;
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (isHigh(units[i]) && i + 1 < size && isLow(units[i + 1])) {
      widest = 0x10FFFF;
      ++pairs;
      ++i;
    } else {
      widest = std::max<Py_UCS4>(widest, units[i]);
    }
  }
  PyObject* text = PyUnicode_New(static_cast<Py_ssize_t>(size - pairs), widest);
  if (!text) return nullptr;
  const int kind = PyUnicode_KIND(text);
  void* data = PyUnicode_DATA(text);
  if (kind == PyUnicode_1BYTE_KIND) {
    std::copy(units.begin(), units.end(), static_cast<Py_UCS1*>(data));
  } else if (kind == PyUnicode_2BYTE_KIND) {
    std::copy(units.begin(), units.end(), static_cast<Py_UCS2*>(data));
  } else {
    auto* characters = static_cast<Py_UCS4*>(data);
    for (std::size_t i = 0; i < size; ++i) {
      if (isHigh(units[i]) && i + 1 < size && isLow(units[i + 1])) {
        *characters++ = 0x10000 + ((static_cast<Py_UCS4>(units[i]) - 0xD800) << 10) + (units[i + 1] - 0xDC00);
        ++i;
      } else {
        *characters++ = units[i];
      }
    }
  }
  return text;
}

PyObject* fromUtf8(std::string_view text) {
  const auto length = static_cast<Py_ssize_t>(text.size());
  if (PyObject* decoded = PyUnicode_DecodeUTF8(text.data(), length, "surrogatepass")) return decoded;
  PyErr_Clear();
  return PyUnicode_DecodeUTF8(text.data(), length, "replace");
}

}  // namespace zelmar
