#pragma once

// What the tests of the library share: the library, the DOM of Xerces,
// GoogleTest, and the helpers below.
#include <paxorel/xml.hpp>

#include "support/TempDir.hpp"

#include <xercesc/dom/DOM.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace testing_support {

using basis::i18n::MsgArg;

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Checks that `action` fails by the host way with "paxorel:xml_error:<key>"
/// and exactly the arguments `args`.
template <class Action, class... Args>
void expectXmlError(Action&& action, const char* file, int line, const std::string& key, const Args&... expected) {
  const std::vector<MsgArg> args{MsgArg(expected)...};
  const std::string where = std::string(file) + ":" + std::to_string(line);
  try {
    action();
  } catch (const basis::except::IMsgIDException& e) {
    EXPECT_EQ(e.GetID(), "paxorel:xml_error:" + key) << where;
    EXPECT_EQ(e.GetBaseMsgIDObj().args, args) << where;
    return;
  }
  ADD_FAILURE_AT(file, line) << "expected paxorel:xml_error:" << key;
}

/// Takes over a wrapper (or null), as a `T` when one is named.
template <class T = void, class From>
auto own(From* object) {
  using To = std::conditional_t<std::is_void_v<T>, From, T>;
  return std::unique_ptr<To>(object ? &dynamic_cast<To&>(*object) : nullptr);
}

/// The number of documents in the registry.
inline std::size_t registered() { return paxorel::xml::DocumentRegistry::getInstance()->entries().size(); }

}  // namespace testing_support

/// EXPECT_XML_ERROR(statement, "key", args...): the statement fails with that
/// identifier and those arguments.
#define EXPECT_XML_ERROR(statement, ...) \
  ::testing_support::expectXmlError([&] { statement; }, __FILE__, __LINE__, __VA_ARGS__)
