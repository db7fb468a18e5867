#pragma once

// What the tests of the binding share: the package loaded as a host loads
// it, a C++ host language attached for each test, and calls made through the
// platform's dispatch as a host makes them.

#include <paxorel/xml/host/ModuleEntries.hpp>

#include "support/CppHost.hpp"
#include "support/expectations.hpp"

#include <host/hostArrays.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/dispatch.hpp>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>

namespace testing_support {

/// A host array, destroyed with the test's scope (before the host goes).
using Array = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;
inline Array adopt(HostArray* array) { return Array(array, &hostDestroyArray); }

/// Text as a host holds it: zero units included.
inline Array text(const std::u16string& value) {
  Array array = adopt(new HostArray(HostClassID::Char, 1, value.size()));
  array->string(0).setText(value);
  return array;
}
inline Array number(double value) {
  Array array = adopt(hostCreateNumericScalar(HostClassID::Double));
  array->setReal(0, value);
  return array;
}
inline Array logical(bool value) { return adopt(hostCreateLogicalScalar(value)); }
/// An empty object array of the class, as a host passes for "no object".
inline Array none(const char* className) {
  return adopt(hostCreateObjectMatrix(0, 0, vorlo::internal::makeInterned(className)));
}

/// The host object in element 0 of `array`, or null.
inline const vorlo::VORInterface* objectOf(const Array& array) { return hostGetArrayElement(array.get(), 0); }
/// The native object behind the host object in `array`, as a T, or null.
template <class T>
T* nativeOf(const Array& array) {
  const vorlo::VORInterface* object = objectOf(array);
  return object ? dynamic_cast<T*>(object->getNativeInstance(hostGetClassName(array.get()))) : nullptr;
}

class HostTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    ModuleInitialize_paxorel_xml();
    vorlo::VORPackage::find("zelmar.io.xml.dom")->getClasses();
  }

  /// The class of the package with that short name.
  static vorlo::VORClass& cls(const std::string& shortName) {
    return *vorlo::VORClass::getClass("zelmar.io.xml.dom." + shortName);
  }

  static Array construct(const std::string& shortName, std::initializer_list<HostArray*> arguments = {}) {
    return adopt(vorlo::dispatch::construct(cls(shortName), static_cast<int>(arguments.size()), arguments.begin()));
  }
  static Array call(const Array& self, const char* method, std::initializer_list<HostArray*> arguments = {}) {
    HostArray* result = nullptr;
    vorlo::dispatch::callMethod(self.get(), method, 1, &result, static_cast<int>(arguments.size()), arguments.begin());
    return adopt(result);
  }
  static Array get(const Array& self, const char* property) {
    return adopt(vorlo::dispatch::getProperty(self.get(), property));
  }
  static void set(const Array& self, const char* property, const Array& value) {
    vorlo::dispatch::setProperty(self.get(), property, value.get());
  }
  static std::u16string textOf(const Array& array) { return hostGetString(array.get())->text(); }
  static double numberOf(const Array& array) { return array->real(0); }

  /// A document made by the host: its host object stands for its registry entry.
  static Array parse(const std::u16string& xml) {
    const Array parser = construct("Parser");
    return call(parser, "parseString", {text(xml).get()});
  }

  CppHost host;
};

/// EXPECT_HOST_ERROR(statement, "catalogue:key"): the statement raises that
/// error into the host.
#define EXPECT_HOST_ERROR(statement, id)                  \
  do {                                                    \
    try {                                                 \
      statement;                                          \
      ADD_FAILURE() << "expected " << (id);               \
    } catch (const ::testing_support::HostError& error) { \
      EXPECT_EQ(error.identifier(), id);                  \
    }                                                     \
  } while (false)

}  // namespace testing_support
