#include "implementations.hpp"

#include <gtest/gtest.h>

namespace bench {
namespace {

// Each raw Xerces twin must do the work its paxorel task does: from the same
// input, it counts the same nodes, names, values and characters written.
TEST(Twins, CountWhatPaxorelCounts) {
  const Implementation library = paxorel(), raw = xerces();
  for (const Input& input :
       {Input(Input::Shape::catalogue, 20'000), Input(Input::Shape::deep, 50), Input(Input::Shape::wide, 100)}) {
    for (const auto& [task, prepare] : library.tasks) {
      SCOPED_TRACE(task + " on " + input.name());
      ASSERT_EQ(raw.tasks.count(task), 1U);
      EXPECT_EQ(raw.tasks.at(task)(input)(), prepare(input)());
    }
    EXPECT_EQ(raw.parseAndWalk(input.path()), library.parseAndWalk(input.path())) << input.name();
  }
  EXPECT_EQ(raw.setAttributeLoop(1000), library.setAttributeLoop(1000));
}

// The three ways through the children reach the same nodes.
TEST(Twins, EveryWalkVisitsEveryNode) {
  const Input input(Input::Shape::catalogue, 20'000);
  for (const Implementation& implementation : {paxorel(), xerces()}) {
    const std::size_t seen = implementation.tasks.at("walkSiblings")(input)();
    EXPECT_EQ(implementation.tasks.at("walkItem")(input)(), seen) << implementation.name;
    EXPECT_EQ(implementation.tasks.at("walkChildren")(input)(), seen) << implementation.name;
  }
}

}  // namespace
}  // namespace bench
