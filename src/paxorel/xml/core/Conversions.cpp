#include <paxorel/xml/core/Conversions.hpp>

#include <cstdio>
#include <limits>

namespace paxorel::xml {

namespace {

constexpr double two63 = 9223372036854775808.0;

// Truncation to a signed 64-bit integer; out of range and NaN give the
// smallest 64-bit integer.
std::int64_t truncateS64(double value) noexcept {
  if (value >= -two63 && value < two63) return static_cast<std::int64_t>(value);
  return std::numeric_limits<std::int64_t>::min();
}

}  // namespace

std::int32_t truncateS(double value) noexcept {
  if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
  return std::numeric_limits<std::int32_t>::min();
}

XMLSize_t conversionS(double value) noexcept {
  return static_cast<XMLSize_t>(static_cast<std::int64_t>(truncateS(value)));
}

XMLSize_t conversionU(double value) noexcept {
  if (!(value >= two63)) return static_cast<XMLSize_t>(truncateS64(value));
  return static_cast<XMLSize_t>(truncateS64(value - two63)) ^ (XMLSize_t{1} << 63);
}

std::string formatOffset(double offset) {
  char text[400];  // the longest "%f" of a double is 317 characters
  (void)std::snprintf(text, sizeof text, "%f", offset);
  return text;
}

}  // namespace paxorel::xml
