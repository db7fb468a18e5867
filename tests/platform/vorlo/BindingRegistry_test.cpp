#include <vorlo/factory/basic/BindingRegistry.hpp>
#include <vorlo/factory/full/Wrappable.hpp>

#include <gtest/gtest.h>

#include <memory>

using vorlo::factory::basic::BindingRegistry;
using vorlo::factory::full::Wrappable;

TEST(BindingRegistry, ANativeObjectThatDiesLeavesNoBindingBehind) {
  int hostObject = 0;
  auto object = std::make_unique<Wrappable>();
  const Wrappable* address = object.get();
  BindingRegistry::instance().bind(address, &hostObject);
  EXPECT_EQ(BindingRegistry::instance().find(address), &hostObject);
  object.reset();
  EXPECT_EQ(BindingRegistry::instance().find(address), nullptr);
}

TEST(BindingRegistry, RetractOfAnUnboundObjectChangesNothing) {
  int hostObject = 0;
  const Wrappable bound, other;
  BindingRegistry::instance().bind(&bound, &hostObject);
  BindingRegistry::instance().retract(&other);
  EXPECT_EQ(BindingRegistry::instance().find(&bound), &hostObject);
  BindingRegistry::instance().retract(&bound);
  EXPECT_EQ(BindingRegistry::instance().find(&bound), nullptr);
}
