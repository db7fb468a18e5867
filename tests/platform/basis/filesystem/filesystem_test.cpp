#include <basis/filesystem/filesystem.hpp>

#include "support/TempDir.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = basis::filesystem;
using testing_support::u;

TEST(Filesystem, NativeFormCollapsesSeparators) {
  EXPECT_EQ(fs::make_native_form(u"//a///b/", false), u"/a/b/");
  EXPECT_EQ(fs::make_native_form(u"//a///b/", true), u"/a/b");
  EXPECT_EQ(fs::make_native_form(u"/", true), u"/");
  EXPECT_EQ(fs::make_native_form(u"", true), u"");
}

TEST(Filesystem, ParentPath) {
  EXPECT_EQ(fs::extract_parent_path(u"/tmp/out.xml"), u"/tmp");
  EXPECT_EQ(fs::extract_parent_path(u"/out.xml"), u"/");
  EXPECT_EQ(fs::extract_parent_path(u"out.xml"), u"");
  EXPECT_EQ(fs::extract_parent_path(u"a/b/"), u"a/b");
  EXPECT_EQ(fs::extract_parent_path(u""), u"");
}

TEST(Filesystem, StatusTellsFilesFromDirectories) {
  const testing_support::TempDir dir;
  const auto file = u(dir.write("f\xC3\xA9.xml", "<a/>"));  // a non-ASCII name
  EXPECT_EQ(fs::status(file) & fs::file_type_mask, fs::regular_file);
  EXPECT_EQ(fs::status(u(dir.dir())) & fs::file_type_mask, fs::directory_file);
  EXPECT_EQ(fs::status(u(dir.path("missing"))), 0u);
  EXPECT_TRUE(fs::exists(file));
  EXPECT_TRUE(fs::exists(u(dir.dir())));
  EXPECT_FALSE(fs::exists(u(dir.path("missing"))));
  // A NUL cuts nothing short: the name with it is not the name before it.
  EXPECT_FALSE(fs::exists(file + std::u16string(1, u'\0') + u"x"));
}

TEST(Filesystem, AccessTellsWhetherAPathMayBeWritten) {
  const testing_support::TempDir dir;
  const auto file = dir.write("locked.xml", "<a/>");
  EXPECT_TRUE(fs::access(u(file), fs::access_write));
  EXPECT_TRUE(fs::access(u(file), fs::access_read | fs::access_write));
  EXPECT_FALSE(fs::access(u(dir.path("missing")), fs::access_exists));
  ASSERT_EQ(chmod(file.c_str(), 0444), 0);
  if (geteuid() == 0) GTEST_SKIP() << "root may write everything";
  EXPECT_FALSE(fs::access(u(file), fs::access_write));
  EXPECT_TRUE(fs::access(u(file), fs::access_read));
}
