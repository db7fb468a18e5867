// The package "zelmar.testing" for the platform's tests (through the C++ host)
// and the Python host's: shapes on canvases, with every kind of record and
// value a package can have. Item (the base, counting live and ended objects), Shape
// (overloads, direct, hidden, typed properties), Circle (constructors),
// Square (a 0x102 constructor only), Canvas (object, vector and "any" results,
// statics, errors, calls into the host), Painter (abstract), Color (an
// enumeration over uint32: Red 0, Green 1, Blue 255).

#include <basis/except/Exception.hpp>
#include <host/HostArrayProxy.hpp>
#include <host/hostArrays.hpp>
#include <host/hostCalls.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/AbstractMethodInfo.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORClient.hpp>
#include <vorlo/VORPackage.hpp>
#include <vorlo/VORPropT.hpp>
#include <vorlo/VORTypeRepository.hpp>
#include <vorlo/factory/VorloFactoryClassInfo.hpp>
#include <vorlo/factory/VorloMethod.hpp>
#include <vorlo/factory/basic/BindingRegistry.hpp>
#include <vorlo/factory/detail/initStringDataTypes.hpp>
#include <vorlo/factory/extractString.hpp>
#include <vorlo/factory/impl/PropertyImpl.hpp>
#include <vorlo/factory/impl/validateSelfPointer.hpp>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace vorlo;
using factory::extractString;
using factory::impl::MemberSlot;
using internal::makeInterned;

// ---- the native objects -----------------------------------------------------

int live = 0;   // native objects alive
int ended = 0;  // host objects that went with a native object

struct Item : factory::full::Wrappable {
  Item() { ++live; }
  ~Item() override { --live; }
  virtual const char* typeName() const { return "zelmar.testing.Item"; }
  bool pinned = false;  // owned by its canvas, not by its host object
};

struct Canvas;

struct ShapeData {
  double width = 1;
  double height = 1;
  std::uint32_t color = 0;
  bool secret = false;
  std::unique_ptr<basis::ustring> label;
  std::uint64_t serial = 0;
  Canvas* canvas = nullptr;
  bool round = false;
};

// A wrapper of shape data: each navigation makes a new one, as in the library.
struct Shape : Item {
  explicit Shape(std::shared_ptr<ShapeData> shapeData) : data(std::move(shapeData)) {}
  const char* typeName() const override { return data->round ? "zelmar.testing.Circle" : "zelmar.testing.Square"; }
  const basis::ustring* label() const { return data->label.get(); }
  void setLabel(const basis::ustring* text) { data->label.reset(text ? new basis::ustring(*text) : nullptr); }
  std::uint64_t serial() const { return data->serial; }
  void setSerial(std::uint64_t value) { data->serial = value; }
  std::shared_ptr<ShapeData> data;
};

struct Canvas : Item {
  ~Canvas() override {
    for (const auto& shape : shapes) shape->canvas = nullptr;
  }
  const char* typeName() const override { return "zelmar.testing.Canvas"; }
  basis::ustring title;
  std::vector<std::shared_ptr<ShapeData>> shapes;
  std::unique_ptr<Shape> first;  // one wrapper, given out again and again
  HostArrayProxy kept;
};

// ---- marshalling ------------------------------------------------------------

template <class T>
T* nativeOf(VORValue slot) {
  return dynamic_cast<T*>(vorloGetScalarObjectValue({}, slot));
}

template <class T>
T& self(VORValue slot) {
  T* object = nativeOf<T>(slot);
  factory::impl::validateSelfPointer(object);
  return *object;
}
ShapeData& shape(VORValue slot) { return *self<Shape>(slot).data; }
void resize(ShapeData& data, double across, double down) {
  data.width *= across;
  data.height *= down;
}
VORValue area(VORValue slot) { return VORValue::ofDouble(shape(slot).width * shape(slot).height); }

VORValue announce(const Item* item, const char* declared) {
  auto& registry = factory::basic::BindingRegistry::instance();
  return VORValue::ofArray(item ? registry.announce(item, makeInterned(item->typeName()))
                                : registry.announce(nullptr, makeInterned(declared)));
}

VORValue text(const basis::ustring& value) { return VORValue::ofArray(hostCreateString_UTF16(value.c_str())); }

VORValue color(std::uint32_t value) {
  HostArray* array = hostCreateEnumerationMatrix(1, 1, makeInterned("zelmar.testing.Color"));
  hostSetEnumerationElement(array, 0, makeInterned(value == 0 ? "Red" : value == 1 ? "Green" : "Blue"));
  return VORValue::ofArray(array);
}

using ArrayPtr = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;

// Calls `method` of the host object in element 0 of `target`, with `argument`
// after it when given; the result belongs to the caller.
ArrayPtr callBack(HostArray* target, const char* method, HostArray* argument) {
  VORInterface* object = hostGetArrayElement(target, 0);
  factory::impl::validateSelfPointer(object);
  ArrayPtr self(hostCreateObjectMatrix(1, 1, hostGetClassName(target)), &hostDestroyArray);
  hostSetArrayElement(self.get(), 0, object);
  HostArray* inputs[] = {self.get(), argument};
  HostArray* output = nullptr;
  hostCallMethod(makeInterned(hostGetClassName(self.get()).view()), makeInterned(method), VORGetPublicClient(), 1,
                 &output, argument ? 2 : 1, inputs, false);
  return {output, &hostDestroyArray};
}

struct Failure : basis::i18n::BaseMsgID {
  Failure(const basis::ustring& what, std::int64_t number) : BaseMsgID("zelmar:testing", "failure", {what, number}) {}
};

// ---- records ----------------------------------------------------------------

using Body = void (*)(VORValue* outputs, const VORValue* inputs);

void runBody(const factory::VorloMethod& method, VORClient* /*client*/, int& outputCount, VORValue* outputs,
             int /*inputCount*/, const VORValue* inputs) {
  method.member<Body>()(outputs, inputs);
  if (outputCount == 0) outputCount = 1;
}

// Types are {output, object type or null, arguments...}.
VORMethodSignaturePtr signature(std::initializer_list<const char*> types, const char* description = "") {
  VORMethodSignaturePtr made;
  factory::impl::Invoker::createSignature(description, types, made);
  return made;
}

void method(VORClass* cls, const char* name, std::uint32_t attributes, std::initializer_list<const char*> types,
            Body body) {
  cls->addMethod(new factory::impl::MethodImpl(name, attributes, signature(types), runBody, MemberSlot(body)));
}

void constructor(VORClass* cls, std::uint32_t attributes, std::initializer_list<const char*> types, Body body) {
  cls->addMethod(new factory::VorloMethod(cls->getShortName(), attributes, "Makes one.", signature(types), runBody,
                                          MemberSlot(body), VORMethodInfo::Kind::Constructor));
}

// Binds a new native object to the host object under construction.
void bindNew(Item* item, VORValue* outputs) {
  factory::basic::BindingRegistry::instance().announceForConstructor(item, makeInterned(item->typeName()),
                                                                     outputs[0].array(), true);
}

using Getter = VORValue (*)(VORValue self);
using Setter = void (*)(VORValue self, VORValue value);

void property(VORClass* cls, const char* name, std::uint32_t attributes, const char* type, Getter get,
              Setter set = nullptr) {
  using factory::impl::ClassGetter;
  using factory::impl::ClassSetter;
  auto getter = std::make_unique<ClassGetter>(
      makeInterned(type), MemberSlot(get),
      [](const ClassGetter& record, VORValue self, VORValue& value) { value = record.member<Getter>()(self); });
  std::unique_ptr<ClassSetter> setter;
  if (set) {
    setter = std::make_unique<ClassSetter>(
        MemberSlot(set),
        [](const ClassSetter& record, VORValue self, VORValue value) { record.member<Setter>()(self, value); });
  }
  cls->addProperty(new factory::impl::PropertyImpl(name, "", attributes, std::move(getter), std::move(setter)));
}

struct HandleClass : factory::VorloFactoryClassInfo {
  using Initialize = void (*)(VORClass* cls);
  HandleClass(const char* name, const char* description, Initialize body, const char* detail = nullptr)
      : VorloFactoryClassInfo(name, description), initialize(body), detailed(detail) {}
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    factory::detail::initStringDataTypes();
    initialize(cls);
  }
  void deallocateInstance(VORInterface* /*object*/, factory::full::Wrappable* instance) override {
    auto* item = dynamic_cast<Item*>(instance);
    if (!item) return;
    ++ended;
    if (!item->pinned) delete item;
  }
  const char* getDetailedDescription() const override {
    return detailed ? detailed : VorloFactoryClassInfo::getDetailedDescription();
  }
  Initialize initialize;
  const char* detailed;
};

void initializeItem(VORClass* cls) {
  method(cls, "live", 0, {"double scalar", nullptr},
         [](VORValue* out, const VORValue*) { out[0] = VORValue::ofDouble(live); });
  method(cls, "ended", 0, {"double scalar", nullptr},
         [](VORValue* out, const VORValue*) { out[0] = VORValue::ofDouble(ended); });
}

void initializeShape(VORClass* cls) {
  cls->addSuperclass(makeInterned("zelmar.testing.Item"), 1, 0, 1);
  cls->addSuperclass(makeInterned("zelmar.testing.mixin.Tagged"), 1, 0, 1);
  const char* S = "zelmar.testing.Shape";
  method(cls, "getArea", 0, {"double scalar", S}, [](VORValue* out, const VORValue* in) { out[0] = area(in[0]); });
  // Overloads: by count, and by type at the same count.
  method(cls, "scale", 0, {"void", S, "double scalar"},
         [](VORValue*, const VORValue* in) { resize(shape(in[0]), in[1].real(), in[1].real()); });
  method(cls, "scale", 0, {"void", S, S}, [](VORValue*, const VORValue* in) {
    const Shape* other = nativeOf<Shape>(in[1]);
    shape(in[0]).width = other ? other->data->width : 0;
    shape(in[0]).height = other ? other->data->height : 0;
  });
  method(cls, "scale", 0, {"void", S, "double scalar", "double scalar"},
         [](VORValue*, const VORValue* in) { resize(shape(in[0]), in[1].real(), in[2].real()); });
  method(cls, "isSame", 0, {"logical scalar", S, S}, [](VORValue* out, const VORValue* in) {
    const Shape* other = nativeOf<Shape>(in[1]);
    out[0] = VORValue::ofLogical(other && other->data == self<Shape>(in[0]).data);
  });
  method(cls, "getColor", 0, {"zelmar.testing.Color", S},
         [](VORValue* out, const VORValue* in) { out[0] = color(shape(in[0]).color); });
  method(cls, "describe", 0, {"VorloFactoryString scalar", S, "logical scalar"}, [](VORValue* out, const VORValue* in) {
    out[0] = text(in[1].logical() ? (shape(in[0]).round ? u"a round shape" : u"a square shape") : u"a shape");
  });
  method(cls, "secretName", VORMethodInfo::Hidden, {"VorloFactoryString scalar", S},
         [](VORValue* out, const VORValue* in) {
           self<Shape>(in[0]);
           out[0] = text(u"hidden");
         });
  // A direct method: the canvas, or the empty double for none.
  const char* directInputs[] = {"zelmar.testing.Shape scalar"};
  const char* directOutputs[] = {"any"};
  cls->addMethod<Shape*>(
      "getCanvas", 0, 1, directOutputs, 1, directInputs,
      [](Shape* shape, int&, VORValue* out, int, const VORValue*) {
        factory::impl::validateSelfPointer(shape);
        out[0] = shape->data->canvas ? announce(shape->data->canvas, "zelmar.testing.Canvas")
                                     : VORValue::ofArray(hostCreateDoubleMatrix(0, 0, HostComplexity::Real));
      },
      true);
  property(cls, "Area", 0, "double scalar", area);
  property(
      cls, "Color", 0, "zelmar.testing.Color", [](VORValue s) { return color(shape(s).color); },
      [](VORValue s, VORValue value) { shape(s).color = static_cast<std::uint32_t>(value.array()->word(0)); });
  property(
      cls, "Secret", VORPropertyInfo::Hidden, "logical scalar",
      [](VORValue s) { return VORValue::ofLogical(shape(s).secret); },
      [](VORValue s, VORValue value) { shape(s).secret = value.logical(); });
  const auto typed = [cls](const char* type, const char* name, auto get, auto set) {
    cls->addProperty(new VORPropCPPT(VORTypeRepository::getType(makeInterned(type)), makeInterned(name),
                                     makeInterned(""), 2, cls, get, set));
  };
  typed("ustringToString scalar", "Label", &Shape::label, &Shape::setLabel);
  typed("uint64 scalar", "Serial", &Shape::serial, &Shape::setSerial);
}

// A new wrapper of new shape data of the given size.
Shape* newShape(bool round, double size, Canvas* canvas = nullptr) {
  auto data = std::make_shared<ShapeData>();
  data->round = round;
  data->width = data->height = size;
  data->canvas = canvas;
  return new Shape(data);
}

void initializeCircle(VORClass* cls) {
  cls->addSuperclass(makeInterned("zelmar.testing.Shape"), 1, 0, 1);
  constructor(cls, 0, {"zelmar.testing.Circle", nullptr},
              [](VORValue* out, const VORValue*) { bindNew(newShape(true, 1), out); });
  constructor(cls, 0, {"zelmar.testing.Circle", nullptr, "double scalar"},
              [](VORValue* out, const VORValue* in) { bindNew(newShape(true, in[1].real()), out); });
  method(cls, "getArea", 0, {"double scalar", "zelmar.testing.Circle"}, [](VORValue* out, const VORValue* in) {
    out[0] = VORValue::ofDouble(M_PI * shape(in[0]).width * shape(in[0]).width / 4);
  });
}

void initializeSquare(VORClass* cls) {
  cls->addSuperclass(makeInterned("zelmar.testing.Shape"), 1, 0, 1);
  constructor(cls, 0x102, {"zelmar.testing.Square", nullptr},
              [](VORValue* out, const VORValue*) { bindNew(newShape(false, 1), out); });
}

// A new wrapper for each shape, in a 1-by-n array of their common class.
VORValue shapesOf(const Canvas& canvas) {
  ArrayPtr array(hostCreateObjectMatrix(1, canvas.shapes.size(), makeInterned("zelmar.testing.Shape")),
                 &hostDestroyArray);
  for (std::size_t i = 0; i < canvas.shapes.size(); ++i) {
    const ArrayPtr one(announce(new Shape(canvas.shapes[i]), "zelmar.testing.Shape").array(), &hostDestroyArray);
    hostSetArrayElement(array.get(), i, hostGetArrayElement(one.get(), 0));
  }
  hostSetClassOfHeterogeneousArray(array.get());
  return VORValue::ofArray(array.release());
}

void initializeCanvas(VORClass* cls) {
  cls->addSuperclass(makeInterned("zelmar.testing.Item"), 1, 0, 1);
  const char* C = "zelmar.testing.Canvas";
  const char* S = "zelmar.testing.Shape";
  const char* string = "VorloFactoryString scalar";
  const char* pointer = "ustringToString scalar";
  constructor(cls, 0, {C, nullptr}, [](VORValue* out, const VORValue*) { bindNew(new Canvas, out); });
  constructor(cls, 0, {C, nullptr, string}, [](VORValue* out, const VORValue* in) {
    auto canvas = std::make_unique<Canvas>();
    canvas->title = extractString(in[1].array());  // kept whole, zero units included
    bindNew(canvas.release(), out);
  });
  method(cls, "add", 0, {S, C, S}, [](VORValue* out, const VORValue* in) {
    Canvas& canvas = self<Canvas>(in[0]);
    Shape* shape = nativeOf<Shape>(in[1]);
    if (shape) {
      shape->data->canvas = &canvas;
      canvas.shapes.push_back(shape->data);
    }
    out[0] = announce(shape, "zelmar.testing.Shape");  // its argument, as the library's setters do
  });
  method(cls, "addSquare", 0, {"zelmar.testing.Square", C, "double scalar"}, [](VORValue* out, const VORValue* in) {
    Canvas& canvas = self<Canvas>(in[0]);
    Shape* square = newShape(false, in[1].real(), &canvas);
    canvas.shapes.push_back(square->data);
    out[0] = announce(square, "zelmar.testing.Square");
  });
  method(cls, "first", 0, {S, C}, [](VORValue* out, const VORValue* in) {
    Canvas& canvas = self<Canvas>(in[0]);
    if (!canvas.first && !canvas.shapes.empty()) {
      canvas.first = std::make_unique<Shape>(canvas.shapes.front());
      canvas.first->pinned = true;
    }
    out[0] = announce(canvas.first.get(), "zelmar.testing.Shape");
  });
  method(cls, "dropFirst", 0, {"void", C}, [](VORValue*, const VORValue* in) { self<Canvas>(in[0]).first.reset(); });
  method(cls, "shapes", 0, {"zelmar.testing.Shape vector", C},
         [](VORValue* out, const VORValue* in) { out[0] = shapesOf(self<Canvas>(in[0])); });
  method(cls, "keep", 0, {"void", C, "any"}, [](VORValue*, const VORValue* in) {
    self<Canvas>(in[0]).kept = HostArrayProxy(in[1].array() ? new HostArray(*in[1].array()) : nullptr);
  });
  method(cls, "kept", 0, {"any", C}, [](VORValue* out, const VORValue* in) {
    const HostArrayProxy& kept = self<Canvas>(in[0]).kept;
    out[0] = VORValue::ofArray(kept.isNull() ? nullptr : new HostArray(*kept.get()));
  });
  // Statics: value conversions, errors.
  method(cls, "length", 0, {"double scalar", nullptr, pointer}, [](VORValue* out, const VORValue* in) {
    out[0] = VORValue::ofDouble(in[1].text() ? static_cast<double>(in[1].text()->size()) : -1);
  });
  method(cls, "join", 0, {string, nullptr, pointer, pointer},
         [](VORValue* out, const VORValue* in) { out[0] = text(*in[1].text() + u"+" + *in[2].text()); });
  method(cls, "next", 0, {"uint64 scalar", nullptr, "uint64 scalar"},
         [](VORValue* out, const VORValue* in) { out[0] = VORValue::ofWord(in[1].word() + 1); });
  method(cls, "wrap", 0, {"uint32", nullptr, "uint32"},
         [](VORValue* out, const VORValue* in) { out[0] = VORValue::ofArray(new HostArray(*in[1].array())); });
  method(cls, "half", 0, {"double scalar", nullptr, "double scalar"},
         [](VORValue* out, const VORValue* in) { out[0] = VORValue::ofDouble(in[1].real() / 2); });
  method(cls, "fail", 0, {"void", nullptr, string, "double scalar"}, [](VORValue*, const VORValue* in) {
    hostRaise(Failure(extractString(in[1].array()), static_cast<std::int64_t>(in[2].real())));
  });
  method(cls, "crash", 0, {"void", nullptr, string}, [](VORValue*, const VORValue* in) {
    const basis::ustring what = extractString(in[1].array());
    throw std::out_of_range(std::string(what.begin(), what.end()));
  });
  // Calls back into the host: paint each shape, count the shapes painted.
  method(cls, "render", 0, {"double scalar", C, "zelmar.testing.Painter"}, [](VORValue* out, const VORValue* in) {
    int painted = 0;
    for (const auto& data : self<Canvas>(in[0]).shapes) {
      ArrayPtr shape(announce(new Shape(data), "zelmar.testing.Shape").array(), &hostDestroyArray);
      const ArrayPtr result = callBack(in[1].array(), "paint", shape.get());
      painted += result && result->word(0) != 0 ? 1 : 0;
    }
    out[0] = VORValue::ofDouble(painted);
  });
  method(cls, "titleOf", 0, {string, C, "zelmar.testing.Painter"}, [](VORValue* out, const VORValue* in) {
    self<Canvas>(in[0]);
    out[0] = text(extractString(callBack(in[1].array(), "title", nullptr).get()));
  });
  method(cls, "origin", 0, {"double scalar", nullptr},
         [](VORValue* out, const VORValue*) { out[0] = VORValue::ofDouble(0); });
  method(cls, "origin", 0, {"double scalar", nullptr, "double scalar"},
         [](VORValue* out, const VORValue* in) { out[0] = VORValue::ofDouble(-in[1].real()); });
  property(
      cls, "Title", 0, string, [](VORValue s) { return text(self<Canvas>(s).title); },
      [](VORValue s, VORValue value) { self<Canvas>(s).title = extractString(value.array()); });
  property(cls, "Count", 0, "double scalar",
           [](VORValue s) { return VORValue::ofDouble(static_cast<double>(self<Canvas>(s).shapes.size())); });
  property(cls, "Shapes", 0, "zelmar.testing.Shape vector", [](VORValue s) { return shapesOf(self<Canvas>(s)); });
}

struct Abstract final : AbstractMethodInfo {
  Abstract(const char* method, VORMethodSignaturePtr signature)
      : AbstractMethodInfo(std::move(signature)), name(method) {}
  const char* getName() const override { return name; }
  const char* name;
};

struct PainterClass final : VORClassInfo {
  const char* getName() const override { return "Painter"; }
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    cls->addSuperclass(makeInterned("zelmar.testing.mixin.Surface"), 1, 0, 1);
    cls->addMethod(new Abstract("paint", signature({"logical scalar", "zelmar.testing.Painter", "zelmar.testing.Shape"},
                                                   "Paints the shape; whether it did.")));
    cls->addMethod(new Abstract("title", signature({"ustringToString scalar", "zelmar.testing.Painter"})));
  }
};

struct ColorMember final : VOREnumInfo {
  ColorMember(const char* member, std::uint32_t number) : name(member), value(number) {}
  ~ColorMember() override { hostDestroyArray(cached); }
  const char* getName() const override { return name; }
  HostArray* getValue() override {
    if (!cached) {
      ArrayPtr scalar(hostCreateNumericScalar(HostClassID::UInt32), &hostDestroyArray);
      scalar->setWord(0, value);
      HostArray* inputs[] = {scalar.get()};
      cached = hostConstructObjectWithClient(makeInterned("zelmar.testing.Color"), 1, inputs, VORGetPublicClient());
    }
    return cached;
  }
  const char* name;
  std::uint32_t value;
  HostArray* cached = nullptr;
};

// The value constructor: the uint32 class's own constructor sets the value.
struct ColorConstructor final : VORMethodInfo {
  explicit ColorConstructor(VORClass* enumeration) : cls(enumeration) {}
  const char* getName() const override { return "Color"; }
  VORMethodSignaturePtr getSignature() const override { return made; }
  Kind getKind() const override { return Kind::ValueConstructor; }
  void invoke(VORClient*, int& outputCount, VORValue* outputs, int inputCount, const VORValue* inputs) const override {
    VORIterator methods = VORClass::getClass("uint32")->getMethods("uint32");
    const VORMethodInfo* uint32 = voriToMethod(methods.nextElement());
    cls->constructSuperclass({outputs[0].array(), makeInterned("uint32"), uint32, 1, outputs, inputCount, inputs});
    if (outputCount == 0) outputCount = 1;
  }
  VORClass* cls;
  VORMethodSignaturePtr made = signature({"zelmar.testing.Color", "uint32"});
};

struct ColorClass final : VORClassInfo {
  const char* getName() const override { return "Color"; }
  const char* getDescription() const override { return "Colours of shapes"; }
  void initializeClass(VORClass* cls, VORClient* /*client*/) override {
    cls->addSuperclass(makeInterned("uint32"), 0, 0, 1);
    for (const auto& [name, value] : {std::pair{"Red", 0u}, {"Green", 1u}, {"Blue", 255u}}) {
      cls->addEnumerationMember(new ColorMember(name, value));
    }
    cls->addMethod(new ColorConstructor(cls));
  }
  bool isEnumeration() const override { return true; }
  bool isHandleClass() const override { return false; }
  bool isOkToDestroy() const override { return false; }
};

}  // namespace

/// Registers the package "zelmar.testing", once. Its classes come in an
/// order where derived classes precede their bases.
extern "C" __attribute__((visibility("default"))) void ModuleInitialize_zelmar_testpackage() {
  factory::registerVorloPackage("zelmar.testing", [](VORPackage* added) {
    added->addClass(new PainterClass, 2);
    added->addClass(new HandleClass("Circle", "A round shape", initializeCircle), 2);
    added->addClass(new HandleClass("Canvas", "Holds shapes", initializeCanvas), 2);
    added->addClass(new ColorClass, 2);
    added->addClass(new HandleClass("Shape", "A shape on a canvas", initializeShape), 2);
    added->addClass(new HandleClass("Square", "A square shape", initializeSquare), 2);
    added->addClass(new HandleClass("Item", "Base of the test package's objects", initializeItem,
                                    "Everything on a canvas is an item."),
                    2);
  });
}
