// The class-object system: names, packages and classes, records, calls by
// name among overloads, the binding of native objects to host objects.

#include "platform/samplePackage.hpp"
#include "support/CppHost.hpp"

#include <host/HostArrayProxy.hpp>
#include <host/hostArrays.hpp>
#include <host/hostCalls.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/dispatch.hpp>
#include <vorlo/factory/basic/BindingRegistry.hpp>
#include <vorlo/factory/VorloFactoryClassInfo.hpp>
#include <vorlo/factory/VorloMethod.hpp>
#include <vorlo/factory/downcast.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace vorlo;
using testing_support::CppHost;
using testing_support::HostError;

namespace {

using Array = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;
Array own(HostArray* array) { return Array(array, &hostDestroyArray); }

InternedName name(const char* text) { return internal::makeInterned(text); }

struct EmptyClass : factory::VorloFactoryClassInfo {
  using VorloFactoryClassInfo::VorloFactoryClassInfo;
  void initializeClass(VORClass* /*cls*/, VORClient* /*client*/) override {}
};

class Sample : public testing::Test {
 protected:
  void SetUp() override { sample::registerPackage(); }
  ~Sample() override { EXPECT_EQ(host.liveObjects(), 0) << "every host object let go"; }

  Array construct(std::vector<HostArray*> arguments = {}) {
    return own(dispatch::construct(*VORClass::getClass("sample.pkg.Thing"), static_cast<int>(arguments.size()),
                                   arguments.data()));
  }
  Array call(HostArray* self, const char* method, std::vector<HostArray*> arguments = {}) {
    HostArray* result = nullptr;
    dispatch::callMethod(self, method, 1, &result, static_cast<int>(arguments.size()), arguments.data());
    return own(result);
  }
  static basis::ustring text(const Array& array) { return hostGetString(array.get())->text(); }

  CppHost host;
};

}  // namespace

TEST(InternedName, EqualTextsAreOneNameAndTypeStringsAreParsedOnce) {
  EXPECT_EQ(name("a.B"), internal::makeInterned(std::string("a.B")));
  EXPECT_NE(name("a.B"), name("a.C"));
  EXPECT_TRUE(InternedName().isNull());
  EXPECT_FALSE(name("").isNull());
  EXPECT_STREQ(InternedName().c_str(), "");

  const struct {
    const char* type;
    TypeSpec::Kind kind;
    const char* className;
  } cases[] = {
      {"void", TypeSpec::Void, ""},
      {"any", TypeSpec::Any, ""},
      {"VorloFactoryString scalar", TypeSpec::Text, ""},
      {"ustringToString scalar", TypeSpec::TextPointer, ""},
      {"logical scalar", TypeSpec::Logical, ""},
      {"double scalar", TypeSpec::Double, ""},
      {"uint64 scalar", TypeSpec::UInt64, ""},
      {"uint32", TypeSpec::UInt32, ""},
      {"a.b.Node", TypeSpec::Object, "a.b.Node"},
      {"a.b.Node vector", TypeSpec::ObjectVector, "a.b.Node"},
      {"a.b.Node scalar", TypeSpec::Self, "a.b.Node"},
  };
  for (const auto& c : cases) {
    const TypeSpec& spec = name(c.type).typeSpec();
    EXPECT_EQ(spec.kind, c.kind) << c.type;
    EXPECT_STREQ(spec.className.c_str(), c.className) << c.type;
    EXPECT_EQ(&spec, &name(c.type).typeSpec());
  }
}

TEST(Downcast, AnswersAsDynamicCastDoesForEveryClassSeenAgain) {
  sample::Thing thing;
  sample::BigThing big;
  sample::Other other;
  for (int round = 0; round < 2; ++round) {  // the second round answers from what the first kept
    EXPECT_EQ(factory::downcast<sample::Thing>(static_cast<factory::full::Wrappable*>(&thing)), &thing);
    EXPECT_EQ(factory::downcast<sample::Thing>(static_cast<factory::full::Wrappable*>(&big)), &big);
    EXPECT_EQ(factory::downcast<sample::BigThing>(static_cast<factory::full::Wrappable*>(&thing)), nullptr);
    EXPECT_EQ(factory::downcast<const sample::Thing>(static_cast<const factory::full::Wrappable*>(&other)), nullptr);
    EXPECT_EQ(factory::downcast<sample::Thing>(static_cast<factory::full::Wrappable*>(nullptr)), nullptr);
  }
}

TEST_F(Sample, APackageRunsItsCallbackOnceAndKeepsItsClassesInOrder) {
  int runs = 0;
  EXPECT_TRUE(factory::registerVorloPackage("sample.once", [&runs](VORPackage*) { ++runs; }));
  EXPECT_FALSE(factory::registerVorloPackage("sample.once", [&runs](VORPackage*) { runs += 10; }));
  VORPackage::find("sample.once")->getClasses();
  VORPackage::find("sample.once")->getClasses();
  EXPECT_EQ(runs, 1);

  std::vector<std::string> names;
  for (const VORClass* cls : VORPackage::find("sample.pkg")->getClasses()) names.push_back(cls->getShortName());
  EXPECT_EQ(names, (std::vector<std::string>{"Thing", "BigThing", "Visitor", "Color"}));
  EXPECT_EQ(VORClass::getClass("sample.pkg.BigThing")->getInternedFullName(), name("sample.pkg.BigThing"));
  EXPECT_EQ(VORClass::getClass("sample.pkg.Nothing"), nullptr);

  std::vector<std::string> packages;
  for (const VORPackage* package : VORPackage::all()) packages.push_back(package->getName());
  EXPECT_LT(std::find(packages.begin(), packages.end(), "sample.pkg"),
            std::find(packages.begin(), packages.end(), "sample.once"));

  // A second class of a taken name is refused, and the record is not leaked.
  factory::registerVorloPackage("sample.twice", [](VORPackage* package) {
    package->addClass(new EmptyClass("Thing", ""), 2);
    package->addClass(new EmptyClass("Thing", ""), 2);
  });
  try {
    VORPackage::find("sample.twice")->getClasses();
    FAIL() << "a taken name";
  } catch (const HostError& error) {
    EXPECT_EQ(error.identifier(), "ZELMAR:vorlo:ClassExists");
  }
}

TEST_F(Sample, ClassesKnowTheirBasesAbstractnessAndRecords) {
  const VORClass& big = *VORClass::getClass("sample.pkg.BigThing");
  EXPECT_TRUE(big.isA(name("sample.pkg.Thing")));
  EXPECT_TRUE(big.isA(name("sample.pkg.BigThing")));
  EXPECT_FALSE(VORClass::getClass("sample.pkg.Thing")->isA(name("sample.pkg.BigThing")));
  const VORClass& visitor = *VORClass::getClass("sample.pkg.Visitor");
  EXPECT_TRUE(visitor.isA(name("sample.other.Base"))) << "a base that is only a name";
  EXPECT_TRUE(visitor.getInfo().isAbstract());
  EXPECT_FALSE(big.getInfo().isAbstract());
  const VORClass& color = *VORClass::getClass("sample.pkg.Color");
  EXPECT_EQ(color.getSuperclasses().at(0).words, (std::array<int, 3>{0, 0, 1}));

  // The static flag stays on constructors and statics only.
  for (const auto& record : VORClass::getClass("sample.pkg.Thing")->getMethodRecords()) {
    const auto* method = dynamic_cast<const factory::VorloMethod*>(record.get());
    if (!method) continue;
    const bool noObject = method->getKind() == VORMethodInfo::Kind::Constructor || std::string(method->getName()) == "unit";
    EXPECT_EQ((method->getFlags() & factory::VorloMethod::StaticFlag) != 0, noObject) << method->getName();
    EXPECT_EQ(method->isStatic(), noObject) << method->getName();
  }
}

TEST_F(Sample, CallsChooseAmongOverloadsByCountAndType) {
  const Array thing = construct();
  const Array two = own(hostCreateDoubleMatrix(1, 1, HostComplexity::Real));
  two->setReal(0, 2);
  EXPECT_EQ(call(thing.get(), "grow", {two.get()})->real(0), 2);
  const Array yes = own(hostCreateLogicalScalar(true));
  EXPECT_EQ(call(thing.get(), "grow", {yes.get()})->real(0), 3) << "a logical is a number too: the first fit wins";
  const Array word = own(hostCreateString_UTF16(u"x"));
  EXPECT_THROW(call(thing.get(), "grow", {word.get()}), HostError);
  EXPECT_THROW(call(thing.get(), "grow"), HostError);
  EXPECT_THROW(call(thing.get(), "shrink"), HostError);

  call(thing.get(), "rename", {word.get()});
  EXPECT_EQ(text(call(thing.get(), "getName")), u"x");
  HostArray* result = nullptr;
  dispatch::callStatic(*VORClass::getClass("sample.pkg.Thing"), "unit", 1, &result, 0, nullptr);
  EXPECT_EQ(own(result)->real(0), 1);

  // Text for a text pointer: converted for the call, missing stays missing.
  const Array missing = own(hostCreateStringArray(1, 1));
  EXPECT_EQ(text(call(thing.get(), "labelOf", {word.get()})), u"x");
  EXPECT_EQ(text(call(thing.get(), "labelOf", {missing.get()})), u"(missing)");
}

TEST_F(Sample, AnEmptyOrForeignObjectFailsTheSelfCheck) {
  const Array empty = own(hostCreateObjectMatrix(0, 0, name("sample.pkg.Thing")));
  try {
    call(empty.get(), "getName");
    FAIL() << "no object";
  } catch (const HostError& error) {
    EXPECT_EQ(error.identifier(), "ZELMAR:vorlo:InvalidObject");
  }
}

TEST_F(Sample, ADirectMethodGivesItsObjectOrTheEmptyDouble) {
  const Array thing = construct();
  const Array none = call(thing.get(), "bigger");
  EXPECT_EQ(none->classID(), HostClassID::Double);
  EXPECT_TRUE(none->isEmpty());

  HostArray* size = hostCreateDoubleMatrix(1, 1, HostComplexity::Real);
  size->setReal(0, 3);
  dispatch::setProperty(thing.get(), "Size", own(size).get());
  const Array big = call(thing.get(), "bigger");
  EXPECT_EQ(hostGetClassName(big.get()), name("sample.pkg.BigThing")) << "the class the object reports";
  EXPECT_EQ(hostGetArrayElement(big.get(), 0)->getClass(), VORClass::getClass("sample.pkg.BigThing"));
  EXPECT_EQ(text(call(big.get(), "getName")), u"big thing+") << "the nearest class's record";
  EXPECT_EQ(text(call(big.get(), "labelOf", {own(hostCreateString_UTF16(u"y")).get()})), u"y") << "inherited";
}

TEST_F(Sample, PropertiesReadAndWriteByTheirTypes) {
  const Array thing = construct();
  EXPECT_EQ(own(dispatch::getProperty(thing.get(), "Size"))->real(0), 0);
  EXPECT_EQ(own(dispatch::getProperty(thing.get(), "Secret"))->real(0), 7);
  EXPECT_EQ(hostGetString(own(dispatch::getProperty(thing.get(), "Label")).get())->text(), u"plain");
  EXPECT_EQ(own(dispatch::getProperty(thing.get(), "Count"))->word(0), 42u);

  const Array text = own(hostCreateString_UTF16(u"new"));
  dispatch::setProperty(thing.get(), "Label", text.get());  // a typed property ignores what it is given
  EXPECT_EQ(hostGetString(own(dispatch::getProperty(thing.get(), "Label")).get())->text(), u"plain");
  const struct {
    const char* property;
    HostArray* value;
    const char* identifier;
  } refusals[] = {
      {"Secret", text.get(), "ZELMAR:vorlo:ReadOnlyProperty"},
      {"Size", text.get(), "ZELMAR:vorlo:BadPropertyValue"},
      {"Colour", text.get(), "ZELMAR:vorlo:NoSuchProperty"},
  };
  for (const auto& refusal : refusals) {
    try {
      dispatch::setProperty(thing.get(), refusal.property, refusal.value);
      ADD_FAILURE() << refusal.property;
    } catch (const HostError& error) {
      EXPECT_EQ(error.identifier(), refusal.identifier);
    }
  }
}

TEST_F(Sample, ConstructionRefusesHiddenConstructorsAndAbstractClasses) {
  const Array word = own(hostCreateString_UTF16(u"x"));
  const struct {
    const char* cls;
    std::vector<HostArray*> arguments;
  } refusals[] = {{"sample.pkg.Thing", {word.get()}}, {"sample.pkg.Visitor", {}}, {"sample.pkg.BigThing", {}}};
  for (const auto& refusal : refusals) {
    try {
      dispatch::construct(*VORClass::getClass(refusal.cls), static_cast<int>(refusal.arguments.size()),
                          const_cast<HostArray* const*>(refusal.arguments.data()));
      ADD_FAILURE() << refusal.cls;
    } catch (const HostError& error) {
      EXPECT_EQ(error.identifier(), "ZELMAR:vorlo:NotConstructible") << refusal.cls;
    }
  }
}

TEST_F(Sample, OneNativeObjectIsOneHostObjectWhileBothLive) {
  auto& registry = factory::basic::BindingRegistry::instance();
  const InternedName thingClass = name("sample.pkg.Thing");
  const int alive = sample::Thing::alive;

  const Array none = own(registry.announce(nullptr, thingClass));
  EXPECT_TRUE(none->isEmpty());
  EXPECT_EQ(hostGetClassName(none.get()), thingClass);

  auto* thing = new sample::Thing;
  Array first = own(registry.announce(thing, thingClass));
  const Array second = own(registry.announce(thing, thingClass));
  EXPECT_EQ(hostGetArrayElement(first.get(), 0), hostGetArrayElement(second.get(), 0));
  EXPECT_EQ(CppHost::referencesOf(first.get()), 2);
  const sample::Other other;
  EXPECT_THROW(registry.announce(&other, name("sample.pkg.Unknown")), HostError);

  // The host object owns the native object: when it goes, so does the native one.
  first.reset();
  EXPECT_EQ(sample::Thing::alive, alive + 1);
  const_cast<Array&>(second).reset();
  EXPECT_EQ(sample::Thing::alive, alive);

  // A native object that goes first leaves its host object without one.
  auto* doomed = new sample::Thing;
  const Array orphan = own(registry.announce(doomed, thingClass));
  delete doomed;
  EXPECT_EQ(hostGetArrayElement(orphan.get(), 0)->getNativeInstance(thingClass), nullptr);
  EXPECT_THROW(call(orphan.get(), "getName"), HostError);
}

TEST_F(Sample, EnumerationMembersAreValuesOfTheUInt32Constructor) {
  VORClass& color = *VORClass::getClass("sample.pkg.Color");
  VOREnumInfo* blue = color.findEnumerationMember("Blue");
  ASSERT_NE(blue, nullptr);
  HostArray* value = blue->getValue();
  EXPECT_EQ(value->classID(), HostClassID::Enumeration);
  EXPECT_EQ(value->word(0), 7u);
  EXPECT_EQ(blue->getValue(), value) << "made once, kept by the record";

  const Array members = own(hostCreateEnumerationMatrix(1, 2, color.getInternedFullName()));
  hostSetEnumerationElement(members.get(), 1, name("Green"));
  EXPECT_EQ(members->word(0), 0u);
  EXPECT_EQ(members->word(1), 1u);
  EXPECT_THROW(hostSetEnumerationElement(members.get(), 0, name("Purple")), HostError);
  EXPECT_FALSE(hostIsObject(members.get()));
}
