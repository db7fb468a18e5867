// The class-object system through the C++ host, on the test package
// "zelmar.testing": names, packages, overloads, properties, identity, host
// arrays and native code calling host objects.

#include "support/CppHost.hpp"

#include <host/HostArrayProxy.hpp>
#include <host/hostArrays.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/dispatch.hpp>
#include <vorlo/factory/VorloFactoryClassInfo.hpp>
#include <vorlo/factory/basic/BindingRegistry.hpp>
#include <vorlo/factory/downcast.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

extern "C" void ModuleInitialize_zelmar_testpackage();

using namespace vorlo;
using namespace testing_support;

namespace {

VORClass& cls(const std::string& shortName) { return *VORClass::getClass("zelmar.testing." + shortName); }
VORInterface* objectOf(const Array& array) { return hostGetArrayElement(array.get(), 0); }

Array number(double value) {
  Array array = adopt(hostCreateNumericScalar(HostClassID::Double));
  array->setReal(0, value);
  return array;
}
Array text(const char16_t* value) { return adopt(hostCreateString_UTF16(value)); }

struct EmptyClass : factory::VorloFactoryClassInfo {
  using VorloFactoryClassInfo::VorloFactoryClassInfo;
  void initializeClass(VORClass* /*cls*/, VORClient* /*client*/) override {}
};

class TestPackage : public testing::Test {
 protected:
  void SetUp() override {
    ModuleInitialize_zelmar_testpackage();
    VORPackage::find("zelmar.testing")->getClasses();
  }
  ~TestPackage() override { EXPECT_EQ(host.liveObjects(), 0) << "every host object let go"; }

  static Array construct(const std::string& shortName, std::vector<HostArray*> arguments = {}) {
    return adopt(dispatch::construct(cls(shortName), static_cast<int>(arguments.size()), arguments.data()));
  }
  static Array call(const Array& self, const char* method, std::vector<HostArray*> arguments = {}) {
    HostArray* result = nullptr;
    dispatch::callMethod(self.get(), method, 1, &result, static_cast<int>(arguments.size()), arguments.data());
    return adopt(result);
  }
  static Array callStatic(const char* shortName, const char* method, std::vector<HostArray*> arguments = {}) {
    HostArray* result = nullptr;
    dispatch::callStatic(cls(shortName), method, 1, &result, static_cast<int>(arguments.size()), arguments.data());
    return adopt(result);
  }
  static double area(const Array& shape) { return call(shape, "getArea")->real(0); }
  static double live() { return callStatic("Item", "live")->real(0); }

  CppHost host;
};

}  // namespace

TEST(InternedName, EqualTextsAreOneNameAndTypeStringsAreParsedOnce) {
  EXPECT_EQ(name("a.B"), internal::makeInterned(std::string("a.B")));
  EXPECT_NE(name("a.B"), name("a.C"));
  EXPECT_TRUE(InternedName().isNull() && !name("").isNull());

  const struct { const char* type; TypeSpec::Kind kind; const char* className; } cases[] = {
      {"void", TypeSpec::Void, ""}, {"any", TypeSpec::Any, ""}, {"uint32", TypeSpec::UInt32, ""},
      {"VorloFactoryString scalar", TypeSpec::Text, ""}, {"ustringToString scalar", TypeSpec::TextPointer, ""},
      {"logical scalar", TypeSpec::Logical, ""}, {"double scalar", TypeSpec::Double, ""},
      {"uint64 scalar", TypeSpec::UInt64, ""}, {"a.b.Node", TypeSpec::Object, "a.b.Node"},
      {"a.b.Node vector", TypeSpec::ObjectVector, "a.b.Node"}, {"a.b.Node scalar", TypeSpec::Self, "a.b.Node"},
  };
  for (const auto& c : cases) {
    const TypeSpec& parsed = name(c.type).typeSpec();
    EXPECT_EQ(parsed.kind, c.kind) << c.type;
    EXPECT_STREQ(parsed.className.c_str(), c.className) << c.type;
    EXPECT_EQ(&parsed, &name(c.type).typeSpec());
  }
}

TEST(Downcast, AnswersAsDynamicCastDoesForEveryClassSeenAgain) {
  struct Thing : factory::full::Wrappable {};
  struct Named {
    virtual ~Named() = default;
    int number = 0;
  };
  struct NamedThing : Named, Thing {};  // its Wrappable is not at its start
  struct Other : factory::full::Wrappable {};
  Thing thing;
  NamedThing named;
  Other other;
  using W = factory::full::Wrappable;
  for (int round = 0; round < 2; ++round) {  // the second round answers from what the first kept
    EXPECT_EQ(factory::downcast<Thing>(static_cast<W*>(&named)), &named);
    EXPECT_EQ(factory::downcast<NamedThing>(static_cast<W*>(&named)), &named);
    EXPECT_EQ(factory::downcast<NamedThing>(static_cast<W*>(&thing)), nullptr);
    EXPECT_EQ(factory::downcast<const Thing>(static_cast<const W*>(&other)), nullptr);
    EXPECT_EQ(factory::downcast<Thing>(static_cast<W*>(nullptr)), nullptr);
  }
}

TEST_F(TestPackage, APackageRunsItsCallbackOnceAndKeepsItsClassesInOrderWithTheirBases) {
  int runs = 0;
  EXPECT_TRUE(factory::registerVorloPackage("test.once", [&runs](VORPackage*) { ++runs; }));
  EXPECT_FALSE(factory::registerVorloPackage("test.once", [&runs](VORPackage*) { runs += 10; }));
  VORPackage::find("test.once")->getClasses();
  VORPackage::find("test.once")->getClasses();
  EXPECT_EQ(runs, 1);

  std::vector<std::string> names;
  for (const VORClass* c : VORPackage::find("zelmar.testing")->getClasses()) names.push_back(c->getShortName());
  EXPECT_EQ(names, (std::vector<std::string>{"Painter", "Circle", "Canvas", "Color", "Shape", "Square", "Item"}));
  EXPECT_EQ(VORClass::getClass("zelmar.testing.Nothing"), nullptr);

  // A second class of a taken name is refused, and the record is not leaked.
  factory::registerVorloPackage("test.twice", [](VORPackage* package) {
    package->addClass(new EmptyClass("Thing", ""), 2);
    package->addClass(new EmptyClass("Thing", ""), 2);
  });
  EXPECT_EQ(raised([] { VORPackage::find("test.twice")->getClasses(); }), "ZELMAR:vorlo:ClassExists");

  EXPECT_TRUE(cls("Circle").isA(name("zelmar.testing.Item")));
  EXPECT_TRUE(cls("Circle").isA(name("zelmar.testing.mixin.Tagged"))) << "a base that is only a name";
  EXPECT_FALSE(cls("Shape").isA(name("zelmar.testing.Circle")));
  EXPECT_TRUE(cls("Painter").getInfo().isAbstract());
}

TEST_F(TestPackage, CallsAndConstructionChooseAmongOverloadsByCountAndTypeInTheNearestClass) {
  const Array canvas = construct("Canvas");
  const Array square = call(canvas, "addSquare", {number(2).get()});
  const Array circle = construct("Circle", {number(3).get()});
  call(square, "scale", {number(2).get()});
  call(square, "scale", {adopt(hostCreateLogicalScalar(true)).get()});  // a logical is a number too
  call(square, "scale", {number(0.5).get(), number(2).get()});
  EXPECT_EQ(area(square), 16);
  call(square, "scale", {circle.get()});  // the same count as scale(double): the type decides
  EXPECT_EQ(area(square), 9);
  EXPECT_DOUBLE_EQ(area(circle), M_PI * 9 / 4) << "the circle's own getArea; the square's is the shape's";
  EXPECT_EQ(raised([&] { call(square, "scale", {text(u"x").get()}); }), "ZELMAR:vorlo:NoSuchMethod");
  EXPECT_EQ(raised([&] { call(square, "shrink"); }), "ZELMAR:vorlo:NoSuchMethod");

  EXPECT_EQ(callStatic("Canvas", "origin", {number(2).get()})->real(0), -2);
  // Text for a text pointer: missing stays missing.
  EXPECT_EQ(callStatic("Canvas", "length", {adopt(hostCreateStringArray(1, 1)).get()})->real(0), -1);

  for (const char* refused : {"Square", "Item", "Painter"}) {  // hidden constructor, none, abstract
    EXPECT_EQ(raised([&] { construct(refused); }), "ZELMAR:vorlo:NotConstructible") << refused;
  }
  EXPECT_EQ(raised([] { construct("Circle", {text(u"x").get()}); }), "ZELMAR:vorlo:NoSuchMethod");
}

TEST_F(TestPackage, PropertiesReadAndWriteByTheirTypes) {
  const Array circle = construct("Circle", {number(2).get()});
  const auto get = [&circle](const char* property) { return adopt(dispatch::getProperty(circle.get(), property)); };
  const auto set = [&circle](const char* property, const Array& value) {
    dispatch::setProperty(circle.get(), property, value.get());
  };
  EXPECT_EQ(get("Area")->real(0), 4);
  set("Secret", adopt(hostCreateLogicalScalar(true)));
  EXPECT_EQ(get("Secret")->word(0), 1u) << "a hidden property stays usable";
  EXPECT_TRUE(hostGetString(get("Label").get())->isMissing()) << "a typed text property of a null pointer";
  set("Label", text(u"new"));
  EXPECT_EQ(hostGetString(get("Label").get())->text(), u"new");
  const Array word = adopt(hostCreateNumericScalar(HostClassID::UInt64));
  word->setWord(0, std::numeric_limits<std::uint64_t>::max());
  set("Serial", word);
  EXPECT_EQ(get("Serial")->word(0), std::numeric_limits<std::uint64_t>::max());

  for (const auto& [property, identifier] : {std::pair{"Area", "ZELMAR:vorlo:ReadOnlyProperty"},
                                             {"Secret", "ZELMAR:vorlo:BadPropertyValue"},
                                             {"Colour", "ZELMAR:vorlo:NoSuchProperty"}}) {
    EXPECT_EQ(raised([&, property = property] { set(property, text(u"x")); }), identifier) << property;
  }
  EXPECT_EQ(raised([&] { get("Colour"); }), "ZELMAR:vorlo:NoSuchProperty");
}

TEST_F(TestPackage, OneNativeObjectIsOneHostObjectWhileBothLive) {
  struct Unknown : factory::full::Wrappable {
  } unknown;
  EXPECT_EQ(raised([&] { adopt(factory::basic::BindingRegistry::instance().announce(&unknown, name("x.Unknown"))); }),
            "ZELMAR:vorlo:UnknownClass");

  const double before = live();
  const Array canvas = construct("Canvas");
  Array circle = construct("Circle");
  // A direct method gives the empty double for no object.
  EXPECT_EQ(shapeOf(call(circle, "getCanvas")), "double 0x0");
  Array back = call(canvas, "add", {circle.get()});  // its argument, announced again
  EXPECT_EQ(objectOf(back), objectOf(circle));
  EXPECT_EQ(objectOf(call(circle, "getCanvas")), objectOf(canvas));
  // The host object owns the native object: when it goes, so does the native one.
  circle.reset();
  EXPECT_EQ(live(), before + 2);
  back.reset();
  EXPECT_EQ(live(), before + 1);

  // A wrapper that the canvas keeps, given out twice: one host object, of the class it reports.
  const Array first = call(canvas, "first");
  EXPECT_EQ(objectOf(call(canvas, "first")), objectOf(first));
  EXPECT_EQ(hostGetClassName(first.get()), name("zelmar.testing.Circle"));
  EXPECT_EQ(objectOf(first)->getClass(), &cls("Circle"));
  // A native object that goes first leaves its host object without one.
  call(canvas, "dropFirst");
  EXPECT_EQ(objectOf(first)->getNativeInstance(name("zelmar.testing.Circle")), nullptr);
  EXPECT_EQ(raised([&] { area(first); }), "ZELMAR:vorlo:InvalidObject");
  EXPECT_EQ(raised([] { area(adopt(hostCreateObjectMatrix(0, 0, name("zelmar.testing.Shape")))); }),
            "ZELMAR:vorlo:InvalidObject")
      << "no object at all";
}

TEST_F(TestPackage, EnumerationMembersAreValuesOfTheUInt32Constructor) {
  VORClass& color = cls("Color");
  VOREnumInfo* blue = color.findEnumerationMember("Blue");
  ASSERT_NE(blue, nullptr);
  HostArray* value = blue->getValue();
  EXPECT_EQ(value->word(0), 255u);
  EXPECT_EQ(blue->getValue(), value) << "made once, kept by the record";

  const Array members = adopt(hostCreateEnumerationMatrix(1, 2, color.getInternedFullName()));
  hostSetEnumerationElement(members.get(), 1, name("Green"));
  EXPECT_EQ(members->word(0), 0u);
  EXPECT_EQ(members->word(1), 1u);
  EXPECT_EQ(raised([&] { hostSetEnumerationElement(members.get(), 0, name("Purple")); }), "ZELMAR:vorlo:UnknownMember");
  EXPECT_FALSE(hostIsObject(members.get()));
}

TEST_F(TestPackage, ObjectArraysCountTheirObjectsAndSettleTheirClass) {
  const Array canvas = construct("Canvas");
  const Array circle = construct("Circle");
  const Array square = call(canvas, "addSquare", {number(1).get()});
  const Array pair = adopt(hostCreateObjectMatrix(1, 2, name("zelmar.testing.Nothing")));
  hostSetArrayElement(pair.get(), 0, objectOf(circle));
  EXPECT_EQ(CppHost::referencesOf(circle.get()), 2);
  EXPECT_EQ(hostGetArrayElement(pair.get(), 1), nullptr);
  EXPECT_EQ(hostGetArrayElement(pair.get(), 2), nullptr) << "past the end";
  {
    const HostArrayProxy proxy(new HostArray(*pair));
    const HostArrayProxy copy = proxy;  // NOLINT(performance-unnecessary-copy-initialization): the copy is the test
    EXPECT_EQ(CppHost::referencesOf(circle.get()), 4) << "a copy counts its objects again";
  }
  EXPECT_EQ(CppHost::referencesOf(circle.get()), 2);

  // The class of a heterogeneous array is the nearest one that all share.
  hostSetClassOfHeterogeneousArray(pair.get());
  EXPECT_EQ(shapeOf(pair), "zelmar.testing.Circle 1x2 mixed");
  hostSetArrayElement(pair.get(), 1, objectOf(square));
  hostSetClassOfHeterogeneousArray(pair.get());
  EXPECT_EQ(shapeOf(pair), "zelmar.testing.Shape 1x2 mixed");
  const Array none = adopt(hostCreateObjectMatrix(1, 0, name("zelmar.testing.Item")));
  hostSetClassOfHeterogeneousArray(none.get());
  EXPECT_EQ(shapeOf(none), "zelmar.testing.Item 1x0 mixed") << "no element: the class stays";
}

TEST_F(TestPackage, NativeCodeCallsMethodsOfHostObjects) {
  std::vector<std::string> painted;
  const Array painter =
      adopt(host.makeDerived("zelmar.testing.Painter", "tests.Painter",
                           {{"paint",
                             [&painted](int, HostArray** outputs, int inputCount, HostArray* const* inputs) {
                               EXPECT_EQ(inputCount, 2);
                               painted.push_back(hostGetClassName(inputs[1]).str());
                               outputs[0] = hostCreateLogicalScalar(painted.size() == 1);
                             }},
                            {"title", [](int, HostArray** outputs, int, HostArray* const*) {
                               outputs[0] = hostCreateString_UTF16(u"P");
                             }}}));
  const Array canvas = construct("Canvas");
  call(canvas, "add", {construct("Circle").get()});
  call(canvas, "addSquare", {number(1).get()});
  EXPECT_EQ(call(canvas, "render", {painter.get()})->real(0), 1);
  EXPECT_EQ(painted, (std::vector<std::string>{"zelmar.testing.Circle", "zelmar.testing.Square"}));
  EXPECT_EQ(hostGetString(call(canvas, "titleOf", {painter.get()}).get())->text(), u"P");
}
