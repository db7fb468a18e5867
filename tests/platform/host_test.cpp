// Host values, errors raised into the host, and native exceptions described
// for a host.

#include "support/CppHost.hpp"

#include <ZELMAR/vorlo/errors.hpp>
#include <host/ForeignError.hpp>
#include <host/hostArrays.hpp>
#include <host/hostCalls.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClient.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <stdexcept>
#include <tuple>

using namespace testing_support;

TEST(HostArray, EachKindKeepsItsElementsAndNamesItsClass) {
  const Array real = adopt(hostCreateDoubleMatrix(2, 3, HostComplexity::Real));
  EXPECT_EQ(real->size(), 6u);
  real->setReal(5, -0.5);
  EXPECT_EQ(real->real(5), -0.5);
  EXPECT_EQ(hostGetClassName(real.get()), name("double"));
  EXPECT_THROW(real->real(6), std::out_of_range);
  EXPECT_TRUE(hostIsEmpty(adopt(hostCreateDoubleMatrix(0, 0, HostComplexity::Real)).get()) && hostIsEmpty(nullptr));

  const Array count = adopt(hostCreateNumericScalar(HostClassID::UInt64));
  count->setWord(0, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(count->real(0), 18446744073709551616.0);
  EXPECT_THROW(count->setReal(0, 1), std::invalid_argument);
  EXPECT_EQ(hostGetClassName(count.get()), name("uint64"));

  // Text is cut at its first zero unit; lone surrogates pass.
  const char16_t cut[] = {u'a', 0xD800, 0, u'b', 0};
  const Array text = adopt(hostCreateString_UTF16(cut));
  EXPECT_EQ(text->columns(), 2u);
  EXPECT_EQ(hostGetString(text.get())->text(), (basis::ustring{u'a', 0xD800}));
  EXPECT_EQ(hostGetString(adopt(hostCreateString_UTF16(nullptr)).get())->text(), u"");

  const Array strings = adopt(hostCreateStringArray(1, 2));
  EXPECT_TRUE(hostGetString(strings.get(), 1)->isMissing());
  hostGetString(strings.get(), 1)->setText(u"");
  EXPECT_FALSE(hostGetString(strings.get(), 1)->isMissing()) << "the empty text is not missing";
  EXPECT_THROW(hostGetString(real.get()), basis::except::Exception<ZELMAR::vorlo::NotText>)
      << "without a host language the platform's error is thrown";
}

TEST(HostErrors, RaiseIntoTheAttachedLanguageOrThrowWithoutOne) {
  EXPECT_THROW(hostCallMethod(name("x.Y"), name("z"), VORGetPublicClient(), 0, nullptr, 0, nullptr, false),
               basis::except::Exception<ZELMAR::vorlo::NoHostLanguage>);
  EXPECT_THROW(hostRaise(ZELMAR::vorlo::UnknownClass("a.B")), basis::except::Exception<ZELMAR::vorlo::UnknownClass>);
  CppHost host;
  try {
    hostRaise(ZELMAR::vorlo::UnknownClass("a.B"));
  } catch (const HostError& error) {
    EXPECT_EQ(error.identifier(), "ZELMAR:vorlo:UnknownClass");
    EXPECT_NE(std::string(error.what()).find("a.B"), std::string::npos) << error.what();
  }
}

TEST(HostErrors, NativeExceptionsAreDescribedByTranslatorsFirst) {
  struct Special : std::exception {};
  host::addExceptionTranslator([](const std::exception_ptr& exception) -> std::optional<host::ForeignError> {
    try {
      std::rethrow_exception(exception);
    } catch (const Special&) {
      return host::ForeignError{"lib:Special", "special", 7};
    } catch (...) {
      return std::nullopt;
    }
  });
  const host::ForeignError special = host::describeException(std::make_exception_ptr(Special()));
  EXPECT_EQ(std::tuple(special.identifier, special.code), std::tuple("lib:Special", 7));
  // Others fall through to the platform's own descriptions.
  EXPECT_EQ(host::describeException(std::make_exception_ptr(std::out_of_range("far"))).message, "far");
  EXPECT_EQ(host::describeException(std::make_exception_ptr(42)).identifier, "unknown:exception");
}
