#include <basis/text/utf.hpp>

namespace basis::text {

namespace {

bool isHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool isLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void appendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

void appendUtf16(ustring& out, char32_t c) {
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
  } else {
    c -= 0x10000;
    out += static_cast<char16_t>(0xD800 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
}

// Decodes one well-formed UTF-8 sequence at `pos`; returns its length, or 0
// when the bytes there are not one (overlong forms and surrogates included).
std::size_t decodeUtf8(std::string_view text, std::size_t pos, char32_t& c) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[pos + i]); };
  const unsigned char lead = byte(0);
  std::size_t length = 0;
  char32_t min = 0;
  if (lead < 0x80) {
    c = lead;
    return 1;
  } else if ((lead & 0xE0) == 0xC0) {
    length = 2, c = lead & 0x1F, min = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, c = lead & 0x0F, min = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, c = lead & 0x07, min = 0x10000;
  } else {
    return 0;
  }
  if (pos + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
    c = (c << 6) | (byte(i) & 0x3F);
  }
  if (c < min || c > 0x10FFFF || isHighSurrogate(c) || isLowSurrogate(c)) return 0;
  return length;
}

}  // namespace

std::string to_utf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (isHighSurrogate(c) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
      ++i;
    }
    appendUtf8(out, c);
  }
  return out;
}

ustring from_utf8(std::string_view text) {
  ustring out;
  out.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    char32_t c = 0;
    const std::size_t length = decodeUtf8(text, pos, c);
    appendUtf16(out, length ? c : U'\uFFFD');
    pos += length ? length : 1;
  }
  return out;
}

}  // namespace basis::text
