#include "table.hpp"

#include <gtest/gtest.h>

namespace bench {
namespace {

TEST(Table, MediansAndRatiosToXerces) {
  Table table;
  for (double seconds : {0.001, 0.003, 0.002}) table.addSample("walk/xerces/1MB", seconds);
  for (double seconds : {0.004, 0.006, 0.005, 0.1}) table.addSample("walk/paxorel/1MB", seconds);
  table.addSample("walk/pugixml/1MB", 0.0001);
  table.addSample("walk/libxml2/1MB", 1.23456);
  EXPECT_EQ(table.render({"walk"}, {"1MB"}),
            "task  input  Xerces  paxorel  paxorel/Xerces  pugixml/Xerces  libxml2/Xerces  note\n"
            "walk  1MB      2 ms   5.5 ms            2.75            0.05             617\n");
}

TEST(Table, FailuresShowAsNotAvailableWithTheirReasonOnce) {
  Table table;
  table.addFailure("walk/xerces/wide", "quadratic in Xerces");
  table.addFailure("walk/paxorel/wide", "quadratic in Xerces");
  table.addSample("walk/libxml2/wide", 1);
  EXPECT_EQ(table.render({"walk"}, {"wide"}),
            "task  input  Xerces  paxorel  paxorel/Xerces  pugixml/Xerces  libxml2/Xerces  note\n"
            "walk  wide      n/a      n/a             n/a                             n/a  quadratic in Xerces\n");
}

TEST(Table, RowsInTheGivenOrderAndMemoryInKilobytes) {
  Table table;
  table.addSample("parse/xerces/deep", 2.5);
  table.addSample("parse/xerces/1MB", 0.0000025);
  table.addSample(std::string(memoryTask) + "/xerces/1MB", 2048);
  table.addSample(std::string(memoryTask) + "/paxorel/1MB", 3072);
  table.addSample("unlisted/xerces/1MB", 1);
  EXPECT_EQ(table.render({"parse", memoryTask}, {"1MB", "10MB", "deep"}),
            "task    input   Xerces  paxorel  paxorel/Xerces  pugixml/Xerces  libxml2/Xerces  note\n"
            "parse   1MB     2.5 us\n"
            "parse   deep     2.5 s\n"
            "memory  1MB    2048 KB  3072 KB             1.5\n");
}

}  // namespace
}  // namespace bench
