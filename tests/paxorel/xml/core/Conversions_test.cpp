#include <paxorel/xml/core/Conversions.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace paxorel::xml;

namespace {
constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr XMLSize_t huge32 = 0xFFFFFFFF80000000ull;  // the smallest 32-bit integer, widened
}  // namespace

TEST(Conversions, STruncatesToSigned32AndWidensWithSign) {
  const struct { double in; XMLSize_t out; } cases[] = {
      {0, 0}, {2.9, 2}, {-0.5, 0}, {-0.99, 0}, {-1, ~XMLSize_t{0}}, {-2.5, ~XMLSize_t{0} - 1},
      {2147483647.9, 2147483647}, {2147483648.0, huge32}, {-2147483648.0, huge32},
      {-2147483649.0, huge32}, {3e9, huge32}, {inf, huge32}, {-inf, huge32}, {notANumber, huge32},
  };
  for (const auto& c : cases) EXPECT_EQ(conversionS(c.in), c.out) << c.in;
  EXPECT_EQ(truncateS(2.9), 2);
  EXPECT_EQ(truncateS(-2.9), -2);
  EXPECT_EQ(truncateS(notANumber), std::numeric_limits<std::int32_t>::min());
}

TEST(Conversions, UTruncatesToUnsigned64) {
  const double two63 = std::ldexp(1.0, 63);
  const double two64 = std::ldexp(1.0, 64);
  const struct { double in; XMLSize_t out; } cases[] = {
      {0, 0}, {1.9, 1}, {-0.5, 0}, {-1, ~XMLSize_t{0}}, {3e9, 3000000000ull},
      {two63, XMLSize_t{1} << 63}, {two63 + 4096, (XMLSize_t{1} << 63) + 4096},
      {two64, 0}, {1e20, 0}, {inf, 0}, {notANumber, XMLSize_t{1} << 63}, {-inf, XMLSize_t{1} << 63},
  };
  for (const auto& c : cases) EXPECT_EQ(conversionU(c.in), c.out) << c.in;
}

TEST(Conversions, OffsetsAreFormattedAsPrintfF) {
  EXPECT_EQ(formatOffset(12), "12.000000");
  EXPECT_EQ(formatOffset(3.5), "3.500000");
  EXPECT_EQ(formatOffset(-1), "-1.000000");
  EXPECT_EQ(formatOffset(1e300).size(), 308u);  // no truncation of long values
  EXPECT_NE(formatOffset(notANumber).find("nan"), std::string::npos);
}
