#include "samplePackage.hpp"

#include <host/hostArrays.hpp>
#include <host/hostCalls.hpp>
#include <vorlo/AbstractMethodInfo.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/VORPropT.hpp>
#include <vorlo/factory/Marshaler.hpp>
#include <vorlo/factory/VorloFactoryClassInfo.hpp>
#include <vorlo/factory/VorloMethod.hpp>
#include <vorlo/factory/detail/initStringDataTypes.hpp>
#include <vorlo/factory/extractString.hpp>
#include <vorlo/factory/impl/PropertyImpl.hpp>
#include <vorlo/factory/impl/validateSelfPointer.hpp>

namespace sample {

namespace {

using namespace vorlo;
using factory::impl::MemberSlot;

constexpr const char* kThing = "sample.pkg.Thing";

// What the sample's objects report as their class, for the Marshaler.
struct SamplePolicy {
  static std::string_view typeName(const Thing& thing) {
    return dynamic_cast<const BigThing*>(&thing) ? "sample.pkg.BigThing" : kThing;
  }
};
using Marshal = factory::Marshaler<SamplePolicy>;

Thing* selfOf(const VORValue* inputs) {
  Thing* self = Marshal::FromM<Thing>(inputs[0], internal::makeInterned(kThing));
  factory::impl::validateSelfPointer(self);
  return self;
}

VORMethodSignaturePtr signature(std::initializer_list<const char*> types) {
  VORMethodSignaturePtr made;
  factory::impl::Invoker::createSignature("", types, made);
  return made;
}

void addMethod(VORClass* cls, const char* name, std::uint32_t word, std::initializer_list<const char*> types,
               factory::InvokerFunction invoker) {
  cls->addMethod(new factory::impl::MethodImpl(name, word, signature(types), invoker, MemberSlot()));
}

class ThingClass : public factory::HandleClassInfo<factory::full::Wrappable, false> {
 public:
  ThingClass() : HandleClassInfo("Thing", "A thing with a name and a size") {}
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    factory::detail::initStringDataTypes();
    cls->addMethod(new factory::impl::VorloConstructor(
        cls->getShortName(), 0, "", signature({kThing, nullptr}),
        [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue*) {
          Marshal::toMForConstructor(new Thing, outputs[0].array());
          if (outputCount == 0) outputCount = 1;
        }));
    cls->addMethod(new factory::impl::VorloConstructor(
        cls->getShortName(), 0x102, "", signature({kThing, nullptr, "VorloFactoryString scalar"}),
        [](const factory::VorloMethod&, VORClient*, int&, VORValue*, int, const VORValue*) {}));
    addMethod(cls, "getName", 0, {"VorloFactoryString scalar", kThing},
              [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue* inputs) {
                outputs[0] = VORValue::ofArray(hostCreateString_UTF16(selfOf(inputs)->name.c_str()));
                outputCount = 1;
              });
    addMethod(cls, "rename", 0, {"void", kThing, "VorloFactoryString scalar"},
              [](const factory::VorloMethod&, VORClient*, int&, VORValue*, int, const VORValue* inputs) {
                basis::ustring name = factory::extractString(inputs[1].array());
                selfOf(inputs)->name = std::move(name);
              });
    addMethod(cls, "grow", 0, {"double scalar", kThing, "double scalar"},
              [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue* inputs) {
                Thing* self = selfOf(inputs);
                outputs[0] = VORValue::ofDouble(self->size += inputs[1].real());
                outputCount = 1;
              });
    addMethod(cls, "grow", 0x2, {"double scalar", kThing, "logical scalar"},
              [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue* inputs) {
                Thing* self = selfOf(inputs);
                if (inputs[1].logical()) self->size *= 2;
                outputs[0] = VORValue::ofDouble(self->size);
                outputCount = 1;
              });
    addMethod(cls, "labelOf", 0, {"VorloFactoryString scalar", kThing, "ustringToString scalar"},
              [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue* inputs) {
                selfOf(inputs);
                const basis::ustring* text = inputs[1].text();
                outputs[0] = VORValue::ofArray(hostCreateString_UTF16(text ? text->c_str() : u"(missing)"));
                outputCount = 1;
              });
    addMethod(cls, "unit", 0, {"double scalar", nullptr},
              [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue*) {
                outputs[0] = VORValue::ofDouble(1);
                outputCount = 1;
              });
    const char* any[] = {"any"};
    const char* selfScalar[] = {"sample.pkg.Thing scalar"};
    cls->addMethod<Thing*>("bigger", 0, 1, any, 1, selfScalar,
                           [](Thing* self, int&, VORValue* outputs, int, const VORValue*) {
                             outputs[0] = VORValue::ofArray(
                                 self && self->size > 0 ? Marshal::toMForPtr(new BigThing(self->name + u"+"), {})
                                                        : hostCreateDoubleMatrix(0, 0, HostComplexity::Real));
                           },
                           true);
    cls->addProperty(new factory::impl::PropertyImpl(
        "Size", "", 0,
        std::make_unique<factory::impl::ClassGetter>(
            internal::makeInterned("double scalar"), MemberSlot(),
            [](const factory::impl::ClassGetter&, VORValue self, VORValue& value) {
              value = VORValue::ofDouble(selfOf(&self)->size);
            }),
        std::make_unique<factory::impl::ClassSetter>(
            MemberSlot(), [](const factory::impl::ClassSetter&, VORValue self, VORValue value) {
              selfOf(&self)->size = value.real();
            })));
    cls->addProperty(new factory::impl::PropertyImpl(
        "Secret", "", 0x800,
        std::make_unique<factory::impl::AdaptedClassGetter>(
            internal::makeInterned("double scalar"), MemberSlot(),
            [](const factory::impl::ClassGetter&, VORValue, VORValue& value) { value = VORValue::ofDouble(7); }),
        nullptr));
    const VORDataType* text = VORTypeRepository::getType(internal::makeInterned("ustringToString scalar"));
    cls->addProperty(new VORPropCPPT<Thing, basis::ustring*>(text, internal::makeInterned("Label"),
                                                             internal::makeInterned("A label"), 2, cls,
                                                             &Thing::getLabel, &Thing::setLabel));
    const VORDataType* uint64 = VORTypeRepository::getType(internal::makeInterned("uint64 scalar"));
    cls->addProperty(new VORPropCPPT<Thing, unsigned long>(uint64, internal::makeInterned("Count"),
                                                           internal::makeInterned("A count"), 2, cls,
                                                           &Thing::getCount, &Thing::setCount));
  }
  void deallocateInstance(VORInterface* /*object*/, factory::full::Wrappable* instance) override {
    factory::basic::BindingRegistry::instance().remove(instance);
    delete instance;
  }
};

class BigThingClass : public factory::HandleClassInfo<factory::full::Wrappable, false> {
 public:
  BigThingClass() : HandleClassInfo("BigThing", "A bigger thing") {}
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    cls->addSuperclass(internal::makeInterned(kThing), 1, 0, 1);
    addMethod(cls, "getName", 0, {"VorloFactoryString scalar", "sample.pkg.BigThing"},
              [](const factory::VorloMethod&, VORClient*, int& outputCount, VORValue* outputs, int, const VORValue* inputs) {
                outputs[0] = VORValue::ofArray(hostCreateString_UTF16((u"big " + selfOf(inputs)->name).c_str()));
                outputCount = 1;
              });
  }
  void deallocateInstance(VORInterface* /*object*/, factory::full::Wrappable* instance) override { delete instance; }
};

class VisitMethod : public AbstractMethodInfo {
 public:
  using AbstractMethodInfo::AbstractMethodInfo;
  const char* getName() const override { return "visit"; }
};

class VisitorClass : public VORClassInfo {
 public:
  const char* getName() const override { return "Visitor"; }
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    cls->addSuperclass(internal::makeInterned("sample.other.Base"), 1, 0, 1);
    auto* visit = new VisitMethod(signature({"logical scalar", "sample.pkg.Visitor", kThing}));
    cls->addMethod(visit);
  }
};

class ColorMember : public VOREnumInfo {
 public:
  ColorMember(const char* name, std::uint32_t value, VORClass* cls) : name_(name), value_(value), class_(cls) {}
  ~ColorMember() override { hostDestroyArray(cached_); }
  const char* getName() const override { return name_; }
  HostArray* getValue() override {
    if (cached_) return cached_;
    HostArray* scalar = hostCreateNumericScalar(HostClassID::UInt32);
    scalar->setWord(0, value_);
    cached_ = hostConstructObjectWithClient(class_->getInternedFullName(), 1, &scalar, class_->getClient());
    hostDestroyArray(scalar);
    return cached_;
  }

 private:
  const char* name_;
  std::uint32_t value_;
  VORClass* class_;
  HostArray* cached_ = nullptr;
};

class ColorConstructor : public VORMethodInfo {
 public:
  explicit ColorConstructor(VORClass* cls) : class_(cls) {}
  const char* getName() const override { return "Color"; }
  VORMethodSignaturePtr getSignature() const override {
    return signature({class_->getInternedFullName().c_str(), "uint32"});
  }
  Kind getKind() const override { return Kind::ValueConstructor; }
  void invoke(VORClient* /*client*/, int& outputCount, VORValue* outputs, int inputCount,
              const VORValue* inputs) const override {
    VORIterator constructors = VORClass::getClass("uint32")->getMethods("uint32");
    const VORMethodInfo* uint32 = voriToMethod(constructors.nextElement());
    class_->constructSuperclass({outputs[0].array(), internal::makeInterned("uint32"), uint32, outputCount, outputs,
                                 inputCount, inputs});
  }

 private:
  VORClass* class_;
};

class ColorClass : public VORClassInfo {
 public:
  const char* getName() const override { return "Color"; }
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    cls->addSuperclass(internal::makeInterned("uint32"), 0, 0, 1);
    for (const auto& [name, value] : {std::pair{"Red", 0u}, {"Green", 1u}, {"Blue", 7u}}) {
      cls->addEnumerationMember(new ColorMember(name, value, cls));
    }
    cls->addMethod(new ColorConstructor(cls));
  }
  bool isHandleClass() const override { return false; }
  bool isEnumeration() const override { return true; }
  bool isOkToDestroy() const override { return false; }
};

}  // namespace

void registerPackage() {
  static const bool registered = [] {
    factory::registerVorloPackage("sample.pkg", [](VORPackage* package) {
      package->addClass(new ThingClass, 2);
      package->addClass(new BigThingClass, 2);
      package->addClass(new VisitorClass, 2);
      package->addClass(new ColorClass, 2);
    });
    VORPackage::find("sample.pkg")->getClasses();
    return true;
  }();
  (void)registered;
}

}  // namespace sample
