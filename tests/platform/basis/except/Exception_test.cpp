#include <basis/except/Exception.hpp>

#include <ZELMAR/string/MissingNotSupported.hpp>

#include <gtest/gtest.h>

#include <memory>

using basis::except::Exception;
using basis::except::IMsgIDException;
using ZELMAR::string::MissingNotSupported;

namespace {

struct Sample : basis::i18n::BaseMsgID {
  explicit Sample(const basis::ustring& name) : BaseMsgID("paxorel:xml_error", "inputFileIsDirectoryError", {name}) {}
};

}  // namespace

TEST(Exception, CarriesItsIdentifierTextAndArguments) {
  Exception<Sample> e(Sample(u"/tmp"));
  e.setErrorId(IMsgIDException::get_error_id(e.GetBaseMsgIDObj()));
  EXPECT_EQ(e.GetID(), "paxorel:xml_error:inputFileIsDirectoryError");
  EXPECT_STREQ(e.what(), "Cannot read the file '/tmp': it is a directory.");
  EXPECT_EQ(e.ToUstringImpl(), u"Cannot read the file '/tmp': it is a directory.");
  std::string narrow;
  e.convert_str(narrow);
  EXPECT_EQ(narrow, e.what());
  EXPECT_EQ(e.throwSite().line, -1);
  EXPECT_TRUE(e.throwSite().function.empty());
}

TEST(Exception, CopiesShareTheThrowSiteAndKeepEverythingElse) {
  Exception<MissingNotSupported> e{MissingNotSupported()};
  e.setErrorId("ZELMAR:string:MissingNotSupported");
  const std::unique_ptr<basis::except::IException> copy(e.clone());
  EXPECT_EQ(&copy->throwSite(), &e.throwSite());
  try {
    copy->rethrow();
  } catch (const std::exception& thrown) {  // also a standard exception
    const auto& again = dynamic_cast<const IMsgIDException&>(thrown);
    EXPECT_EQ(again.GetID(), "ZELMAR:string:MissingNotSupported");
    EXPECT_EQ(again.GetBaseMsgIDObj().catalogue, "ZELMAR:string");
    EXPECT_TRUE(again.GetBaseMsgIDObj().args.empty());
    EXPECT_STREQ(thrown.what(), e.what());
    return;
  }
  FAIL() << "rethrow did not throw";
}
