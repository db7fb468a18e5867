#pragma once

#include <paxorel/xml.hpp>

#include "support/TempDir.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace testing_support {

using basis::i18n::MsgArg;

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

}  // namespace testing_support

/// EXPECT_XML_ERROR(statement, "key", args...): the statement fails with that
/// identifier and those arguments.
#define EXPECT_XML_ERROR(statement, ...) \
  ::testing_support::expectXmlError([&] { statement; }, __FILE__, __LINE__, __VA_ARGS__)
