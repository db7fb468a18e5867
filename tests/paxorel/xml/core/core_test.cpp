// The core: number conversions, the error types and their catalogue texts,
// and the pool of wrapper blocks.
#include <paxorel/xml.hpp>
#include <paxorel/xml/core/Conversions.hpp>

#include <basis/i18n/MessageCatalog.hpp>

#include <gtest/gtest.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#endif
#if __has_include(<valgrind/valgrind.h>)
#include <valgrind/valgrind.h>
#else
#define RUNNING_ON_VALGRIND 0
#endif

#include <cmath>
#include <limits>
#include <memory>
#include <set>

using namespace paxorel;
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
}

TEST(Conversions, UTruncatesToUnsigned64AndOffsetsAreFormattedAsPrintfF) {
  const double two63 = std::ldexp(1.0, 63);
  const struct { double in; XMLSize_t out; } cases[] = {
      {0, 0}, {1.9, 1}, {-0.5, 0}, {-1, ~XMLSize_t{0}}, {3e9, 3000000000ull},
      {two63, XMLSize_t{1} << 63}, {two63 + 4096, (XMLSize_t{1} << 63) + 4096},
      {2 * two63, 0}, {1e20, 0}, {inf, 0}, {notANumber, XMLSize_t{1} << 63}, {-inf, XMLSize_t{1} << 63},
  };
  for (const auto& c : cases) EXPECT_EQ(conversionU(c.in), c.out) << c.in;
  EXPECT_EQ(formatOffset(3.5) + " " + formatOffset(-1), "3.500000 -1.000000");
  EXPECT_EQ(formatOffset(1e300).size(), 308u);  // no truncation of long values
  EXPECT_NE(formatOffset(notANumber).find("nan"), std::string::npos);
}

namespace {

struct ErrorRow {
  std::string name, key;  // the key: what the type puts into its BaseMsgID
  std::size_t arity;
};
const ErrorRow allErrors[] = {
#define PAXOREL_XML_ERROR_ROW(errorName, ...) {#errorName, xml_error::errorName::name, xml_error::errorName::arity},
    PAXOREL_XML_ERRORS(PAXOREL_XML_ERROR_ROW)
#undef PAXOREL_XML_ERROR_ROW
};

}  // namespace

TEST(Errors, EveryErrorIsKeyedByItsOwnNameAndHasACatalogueTextUsingEachArgument) {
  EXPECT_EQ(std::size(allErrors), 102u);  // the 101 of the contract and emptyObjectArgument
  for (const auto& row : allErrors) {
    EXPECT_EQ(row.key, row.name);
    const std::string text = basis::i18n::MessageCatalog::get_template("paxorel:xml_error", row.name);
    EXPECT_FALSE(text.empty()) << row.name << " has no text";
    std::set<std::size_t> used, expected;
    for (auto open = text.find('{'); open != std::string::npos; open = text.find('{', open + 1)) {
      used.insert(std::stoul(text.substr(open + 1)));
    }
    for (std::size_t i = 0; i < row.arity; ++i) expected.insert(i);
    EXPECT_EQ(used, expected) << row.name;
  }
}

TEST(Errors, AnAbsentXercesTextIsTheEmptyString) {
  EXPECT_EQ(std::get<ustring>(xml_error::malformedURL(u"p", nullptr).args[1]), u"");
}

// A wrapper's block is handed to the next wrapper of its size; meanwhile it
// stays poisoned, so that AddressSanitizer still reports a use after delete.
TEST(WrapperCache, RecyclesTheBlocksOfDeletedWrappers) {
  if (RUNNING_ON_VALGRIND) GTEST_SKIP() << "under valgrind every wrapper has a block of its own";
  const auto document = paxorel::xml::parseString(u"<r><a/></r>");
  auto* first = document->getFirstChild();
  delete first;
#if defined(__SANITIZE_ADDRESS__)
  EXPECT_TRUE(__asan_address_is_poisoned(first));
#endif
  const std::unique_ptr<paxorel::xml::Node> second(document->getFirstChild());
  EXPECT_EQ(static_cast<void*>(second.get()), static_cast<void*>(first));
  EXPECT_EQ(second->getNodeName(), u"r");
}
