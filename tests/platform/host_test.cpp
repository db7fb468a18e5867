// Host values, errors raised into the host, native exceptions described for
// a host, and calls from native code into host objects.

#include "platform/samplePackage.hpp"
#include "support/CppHost.hpp"

#include <ZELMAR/vorlo/errors.hpp>
#include <host/ForeignError.hpp>
#include <host/HostArrayProxy.hpp>
#include <host/hostArrays.hpp>
#include <host/hostCalls.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORClient.hpp>
#include <vorlo/dispatch.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>

using testing_support::CppHost;
using testing_support::HostError;

namespace {

using Array = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;
Array own(HostArray* array) { return Array(array, &hostDestroyArray); }
vorlo::InternedName name(const char* text) { return vorlo::internal::makeInterned(text); }

Array newThing() {
  return own(vorlo::dispatch::construct(*vorlo::VORClass::getClass("sample.pkg.Thing"), 0, nullptr));
}

}  // namespace

TEST(HostArray, EachKindKeepsItsElementsAndNamesItsClass) {
  const Array real = own(hostCreateDoubleMatrix(2, 3, HostComplexity::Real));
  EXPECT_EQ(real->size(), 6u);
  real->setReal(5, -0.5);
  EXPECT_EQ(real->real(5), -0.5);
  EXPECT_EQ(hostGetClassName(real.get()), name("double"));
  EXPECT_THROW(real->real(6), std::out_of_range);
  EXPECT_TRUE(hostIsEmpty(own(hostCreateDoubleMatrix(0, 0, HostComplexity::Real)).get()));
  EXPECT_TRUE(hostIsEmpty(nullptr));

  const Array count = own(hostCreateNumericScalar(HostClassID::UInt64));
  count->setWord(0, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(count->real(0), 18446744073709551616.0);
  EXPECT_THROW(count->setReal(0, 1), std::invalid_argument);
  EXPECT_EQ(hostGetClassName(count.get()), name("uint64"));
  EXPECT_EQ(own(hostCreateLogicalScalar(true))->word(0), 1u);

  // Text is cut at its first zero unit; lone surrogates pass.
  const char16_t cut[] = {u'a', 0xD800, 0, u'b', 0};
  const Array text = own(hostCreateString_UTF16(cut));
  EXPECT_EQ(text->columns(), 2u);
  EXPECT_EQ(hostGetString(text.get())->text(), (basis::ustring{u'a', 0xD800}));
  EXPECT_EQ(hostGetString(own(hostCreateString_UTF16(nullptr)).get())->text(), u"");

  const Array strings = own(hostCreateStringArray(1, 2));
  EXPECT_TRUE(hostGetString(strings.get(), 1)->isMissing());
  hostGetString(strings.get(), 1)->setText(u"");
  EXPECT_FALSE(hostGetString(strings.get(), 1)->isMissing()) << "the empty text is not missing";
  EXPECT_THROW(hostGetString(real.get()), basis::except::Exception<ZELMAR::vorlo::NotText>)
      << "without a host language the platform's error is thrown";
}

TEST(HostArray, ObjectArraysCountTheirObjectsAndSettleTheirClass) {
  sample::registerPackage();
  CppHost host;
  {
    const Array thing = newThing();
    const Array pair = own(hostCreateObjectMatrix(1, 2, name("sample.pkg.Thing")));
    hostSetArrayElement(pair.get(), 0, hostGetArrayElement(thing.get(), 0));
    EXPECT_EQ(CppHost::referencesOf(thing.get()), 2);
    EXPECT_EQ(hostGetArrayElement(pair.get(), 1), nullptr);
    EXPECT_EQ(hostGetArrayElement(pair.get(), 2), nullptr) << "past the end";
    EXPECT_EQ(hostGetArrayElement(own(hostCreateDoubleMatrix(1, 1, HostComplexity::Real)).get(), 0), nullptr);
    {
      const HostArrayProxy proxy(new HostArray(*pair));
      const HostArrayProxy copy = proxy;  // NOLINT(performance-unnecessary-copy-initialization): the copy is the test
      EXPECT_EQ(CppHost::referencesOf(thing.get()), 4) << "a copy counts its objects again";
    }
    EXPECT_EQ(CppHost::referencesOf(thing.get()), 2);

    // The class of a heterogeneous array is the nearest one that all share.
    const Array mixed = own(hostCreateObjectMatrix(1, 2, name("sample.pkg.Nothing")));
    HostArray* size = hostCreateDoubleMatrix(1, 1, HostComplexity::Real);
    size->setReal(0, 1);
    vorlo::dispatch::setProperty(thing.get(), "Size", own(size).get());
    HostArray* big = nullptr;
    vorlo::dispatch::callMethod(thing.get(), "bigger", 1, &big, 0, nullptr);
    hostSetArrayElement(mixed.get(), 0, hostGetArrayElement(own(big).get(), 0));
    hostSetClassOfHeterogeneousArray(mixed.get());
    EXPECT_EQ(hostGetClassName(mixed.get()), name("sample.pkg.BigThing"));
    hostSetArrayElement(mixed.get(), 1, hostGetArrayElement(thing.get(), 0));
    hostSetClassOfHeterogeneousArray(mixed.get());
    EXPECT_EQ(hostGetClassName(mixed.get()), name("sample.pkg.Thing"));
    EXPECT_TRUE(mixed->isHeterogeneous());
    const Array none = own(hostCreateObjectMatrix(1, 0, name("sample.pkg.Thing")));
    hostSetClassOfHeterogeneousArray(none.get());
    EXPECT_EQ(hostGetClassName(none.get()), name("sample.pkg.Thing")) << "no element: the class stays";
  }
  EXPECT_EQ(host.liveObjects(), 0);
}

TEST(HostErrors, RaiseIntoTheAttachedLanguageOrThrowWithoutOne) {
  try {
    hostRaise(ZELMAR::vorlo::UnknownClass("a.B"));
  } catch (const basis::except::Exception<ZELMAR::vorlo::UnknownClass>& error) {
    EXPECT_EQ(error.GetID(), "ZELMAR:vorlo:UnknownClass");
    EXPECT_NE(std::string(error.what()).find("a.B"), std::string::npos) << error.what();
  }
  CppHost host;
  try {
    hostRaise(ZELMAR::vorlo::UnknownClass("a.B"));
  } catch (const HostError& error) {
    EXPECT_EQ(error.identifier(), "ZELMAR:vorlo:UnknownClass");
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
  EXPECT_EQ(special.identifier, "lib:Special");
  EXPECT_EQ(special.code, 7);
  const host::ForeignError range = host::describeException(std::make_exception_ptr(std::out_of_range("far")));
  EXPECT_EQ(range.identifier, "std:out_of_range");
  EXPECT_EQ(range.message, "far");
  EXPECT_FALSE(range.code);
  EXPECT_EQ(host::describeException(std::make_exception_ptr(42)).identifier, "unknown:exception");
}

TEST(HostCalls, NativeCodeCallsMethodsOfHostObjectsAndConstructsObjects) {
  sample::registerPackage();
  {
    CppHost host;
    int visits = 0;
    const Array visitor = own(host.makeDerived(
        "sample.pkg.Visitor", "tests.CountingVisitor",
        {{"visit", [&visits](int, HostArray** outputs, int inputCount, HostArray* const*) {
            visits += inputCount;
            outputs[0] = hostCreateLogicalScalar(true);
          }}}));
    EXPECT_TRUE(host.isA(*hostGetArrayElement(visitor.get(), 0), name("sample.pkg.Visitor")));
    EXPECT_TRUE(host.isA(*hostGetArrayElement(visitor.get(), 0), name("sample.other.Base")));
    EXPECT_EQ(host.className(*hostGetArrayElement(visitor.get(), 0)), "tests.CountingVisitor");

    const Array thing = newThing();
    HostArray* inputs[] = {visitor.get(), thing.get()};
    HostArray* output = nullptr;
    hostCallMethod(name("tests.CountingVisitor"), name("visit"), VORGetPublicClient(), 1, &output, 2, inputs, false);
    EXPECT_EQ(visits, 2);
    EXPECT_EQ(own(output)->word(0), 1u);

    // A method the object's own class does not have goes to the platform's records.
    HostArray* name = nullptr;
    hostCallMethod(hostGetClassName(thing.get()), vorlo::internal::makeInterned("getName"), VORGetPublicClient(), 1,
                   &name, 1, inputs + 1, false);
    EXPECT_EQ(hostGetString(own(name).get())->text(), u"thing");

    const Array member = own(hostConstructObjectWithClient(
        vorlo::internal::makeInterned("sample.pkg.Color"), 1,
        std::array<HostArray*, 1>{own(hostCreateNumericScalar(HostClassID::UInt32)).get()}.data(),
        VORGetPublicClient()));
    EXPECT_EQ(member->classID(), HostClassID::Enumeration);
    EXPECT_EQ(host.liveObjects(), 2);
  }
  EXPECT_THROW(hostCallMethod(name("x.Y"), name("z"), VORGetPublicClient(), 0, nullptr, 0, nullptr, false),
               basis::except::Exception<ZELMAR::vorlo::NoHostLanguage>);
}
