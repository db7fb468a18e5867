#include <vorlo/dispatch.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/hostArrays.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORClient.hpp>
#include <vorlo/hostObjects.hpp>

#include <cmath>
#include <deque>
#include <memory>

namespace vorlo::dispatch {

namespace {

using ArrayPtr = std::unique_ptr<HostArray, decltype(&hostDestroyArray)>;

bool isNumericScalar(const HostArray& array) noexcept {
  switch (array.classID()) {
    case HostClassID::Double:
    case HostClassID::Logical:
    case HostClassID::UInt32:
    case HostClassID::UInt64: return array.size() == 1;
    default: return false;
  }
}

// An unsigned scalar, or a double that holds an integer of the range.
bool isUnsignedScalar(const HostArray& array, double limit) noexcept {
  if (!isNumericScalar(array)) return false;
  if (array.classID() != HostClassID::Double) return array.classID() != HostClassID::Logical;
  const double value = array.real(0);
  return value >= 0 && value <= limit && std::floor(value) == value;
}

std::uint64_t unsignedValue(const HostArray& array) {
  return array.classID() == HostClassID::Double ? static_cast<std::uint64_t>(array.real(0)) : array.word(0);
}

// Where the arguments begin among a record's input types: after the object
// (or a constructor's empty first input), except for a value constructor.
std::size_t firstArgument(const VORMethodInfo& method) {
  return method.getKind() == VORMethodInfo::Kind::ValueConstructor ? 0 : 1;
}

// The slots of one call, and the texts that its text-pointer slots point to.
class CallSlots {
 public:
  void add(VORValue slot) { slots_.push_back(slot); }
  void addArgument(HostArray* argument, const TypeSpec& type) {
    switch (type.kind) {
      case TypeSpec::TextPointer: {
        const HostString* text = hostGetString(argument);
        if (text->isMissing()) {
          add(VORValue::ofText(nullptr));
        } else {
          texts_.push_back(text->text());
          add(VORValue::ofText(&texts_.back()));
        }
        break;
      }
      case TypeSpec::Logical: add(VORValue::ofLogical(argument->real(0) != 0)); break;
      case TypeSpec::Double: add(VORValue::ofDouble(argument->real(0))); break;
      case TypeSpec::UInt64: add(VORValue::ofWord(unsignedValue(*argument))); break;
      default: add(VORValue::ofArray(argument)); break;
    }
  }
  void addArguments(const VORMethodInfo& method, int count, HostArray* const* arguments) {
    const auto& types = method.getSignature()->getInputTypes();
    const std::size_t first = firstArgument(method);
    for (int i = 0; i < count; ++i) addArgument(arguments[i], types[first + i].typeSpec());
  }
  int count() const noexcept { return static_cast<int>(slots_.size()); }
  const VORValue* data() const noexcept { return slots_.data(); }

 private:
  std::vector<VORValue> slots_;
  std::deque<basis::ustring> texts_;  // a deque keeps each text where it is
};

HostArray* resultArray(VORValue slot, const TypeSpec& type) {
  switch (type.kind) {
    case TypeSpec::Void: return nullptr;
    case TypeSpec::Logical: return hostCreateLogicalScalar(slot.logical());
    case TypeSpec::Double: {
      HostArray* result = hostCreateNumericScalar(HostClassID::Double);
      result->setReal(0, slot.real());
      return result;
    }
    case TypeSpec::UInt64: {
      HostArray* result = hostCreateNumericScalar(HostClassID::UInt64);
      result->setWord(0, slot.word());
      return result;
    }
    default: return slot.array();
  }
}

void run(const VORMethodInfo& method, const CallSlots& inputs, int outputCount, HostArray** outputs) {
  VORValue output;
  int produced = 0;
  method.invoke(VORGetPublicClient(), produced, &output, inputs.count(), inputs.data());
  ArrayPtr result(produced > 0 ? resultArray(output, method.getSignature()->getOutputType().typeSpec()) : nullptr,
                  &hostDestroyArray);
  if (outputCount > 0) outputs[0] = result.release();
}

const VORClass& classOf(const HostArray* self) {
  const VORInterface* object = hostGetArrayElement(self, 0);
  const VORClass* cls = object ? object->getClass() : hostGetClassName(self).getClass();
  if (!cls) hostRaise(ZELMAR::vorlo::UnknownClass(hostGetClassName(self).str()));
  return *cls;
}

const VORMethodInfo& chooseOrRaise(const VORClass& cls, std::string_view name,
                                   const std::vector<const VORMethodInfo*>& candidates, int count,
                                   HostArray* const* arguments) {
  const VORMethodInfo* chosen = choose(candidates, count, arguments);
  if (!chosen) hostRaise(ZELMAR::vorlo::NoSuchMethod(cls.getInternedFullName().str(), std::string(name)));
  return *chosen;
}

std::vector<const VORMethodInfo*> staticOrNot(const std::vector<const VORMethodInfo*>& methods, bool statics) {
  std::vector<const VORMethodInfo*> kept;
  for (const VORMethodInfo* method : methods) {
    if (method->isStatic() == statics) kept.push_back(method);
  }
  return kept;
}

}  // namespace

bool accepts(const HostArray* argument, const TypeSpec& type) noexcept {
  switch (type.kind) {
    case TypeSpec::Any: return true;
    case TypeSpec::Object:
    case TypeSpec::ObjectVector:
    case TypeSpec::Self: return hostIsEmpty(argument) || hostIsObject(argument);
    case TypeSpec::Void: return false;
    default: break;
  }
  if (!argument) return false;
  switch (type.kind) {
    case TypeSpec::Text:
    case TypeSpec::TextPointer:
      return argument->classID() == HostClassID::Char ||
             (argument->classID() == HostClassID::String && argument->size() == 1);
    case TypeSpec::Logical:
    case TypeSpec::Double: return isNumericScalar(*argument);
    case TypeSpec::UInt64: return isUnsignedScalar(*argument, 18446744073709549568.0);  // the largest double below 2^64
    case TypeSpec::UInt32: return isUnsignedScalar(*argument, 4294967295.0);
    default: return false;
  }
}

std::vector<const VORMethodInfo*> methodsOf(const VORClass& cls, std::string_view name) {
  std::vector<const VORMethodInfo*> named;
  for (const auto& method : cls.getMethodRecords()) {
    if (name == method->getName() && !method->isAbstract()) named.push_back(method.get());
  }
  if (!named.empty()) return named;
  for (const auto& base : cls.getSuperclasses()) {
    if (const VORClass* baseClass = base.name.getClass()) {
      named = methodsOf(*baseClass, name);
      if (!named.empty()) return named;
    }
  }
  return named;
}

const VORPropertyInfo* propertyOf(const VORClass& cls, std::string_view name) {
  for (const auto& property : cls.getProperties()) {
    if (name == property->getName()) return property.get();
  }
  for (const auto& base : cls.getSuperclasses()) {
    const VORClass* baseClass = base.name.getClass();
    if (const VORPropertyInfo* found = baseClass ? propertyOf(*baseClass, name) : nullptr) return found;
  }
  return nullptr;
}

const VORMethodInfo* choose(const std::vector<const VORMethodInfo*>& candidates, int count,
                            HostArray* const* arguments) {
  for (const VORMethodInfo* candidate : candidates) {
    const auto& types = candidate->getSignature()->getInputTypes();
    const std::size_t first = firstArgument(*candidate);
    if (types.size() < first || types.size() - first != static_cast<std::size_t>(count)) continue;
    bool fits = true;
    for (int i = 0; i < count && fits; ++i) fits = accepts(arguments[i], types[first + i].typeSpec());
    if (fits) return candidate;
  }
  return nullptr;
}

void callMethod(HostArray* self, std::string_view name, int outputCount, HostArray** outputs, int count,
                HostArray* const* arguments) {
  const VORClass& cls = classOf(self);
  const VORMethodInfo& method =
      chooseOrRaise(cls, name, staticOrNot(methodsOf(cls, name), false), count, arguments);
  CallSlots inputs;
  inputs.add(VORValue::ofArray(self));
  inputs.addArguments(method, count, arguments);
  run(method, inputs, outputCount, outputs);
}

void callStatic(const VORClass& cls, std::string_view name, int outputCount, HostArray** outputs, int count,
                HostArray* const* arguments) {
  const VORMethodInfo& method = chooseOrRaise(cls, name, staticOrNot(methodsOf(cls, name), true), count, arguments);
  CallSlots inputs;
  inputs.add(VORValue());  // the empty first input of a method without an object
  inputs.addArguments(method, count, arguments);
  run(method, inputs, outputCount, outputs);
}

HostArray* construct(VORClass& cls, int count, HostArray* const* arguments) {
  const std::string className = cls.getInternedFullName().str();
  std::vector<const VORMethodInfo*> constructors;
  for (const auto& method : cls.getMethodRecords()) {
    if (method->getKind() == VORMethodInfo::Kind::Constructor) constructors.push_back(method.get());
  }
  if (constructors.empty() || cls.getInfo().isAbstract()) hostRaise(ZELMAR::vorlo::NotConstructible(className));
  const VORMethodInfo& constructor = chooseOrRaise(cls, cls.getShortName(), constructors, count, arguments);
  if (constructor.getAttributes() & VORMethodInfo::NotPublic) hostRaise(ZELMAR::vorlo::NotConstructible(className));

  ArrayPtr object(hostCreateObjectMatrix(1, 1, cls.getInternedFullName()), &hostDestroyArray);
  object->adoptObject(0, newHostObject(cls));
  CallSlots inputs;
  inputs.add(VORValue());
  inputs.addArguments(constructor, count, arguments);
  VORValue output = VORValue::ofArray(object.get());
  int produced = 0;
  constructor.invoke(VORGetPublicClient(), produced, &output, inputs.count(), inputs.data());
  return object.release();
}

HostArray* getProperty(HostArray* self, std::string_view name) {
  const VORClass& cls = classOf(self);
  const VORPropertyInfo* property = propertyOf(cls, name);
  if (!property) hostRaise(ZELMAR::vorlo::NoSuchProperty(cls.getInternedFullName().str(), std::string(name)));
  VORValue value;
  property->get(VORValue::ofArray(self), value);
  return resultArray(value, property->getTypeName().typeSpec());
}

void setProperty(HostArray* self, std::string_view name, HostArray* value) {
  const VORClass& cls = classOf(self);
  const VORPropertyInfo* property = propertyOf(cls, name);
  if (!property) hostRaise(ZELMAR::vorlo::NoSuchProperty(cls.getInternedFullName().str(), std::string(name)));
  if (!property->isSettable()) hostRaise(ZELMAR::vorlo::ReadOnlyProperty(std::string(name)));
  const TypeSpec& type = property->getTypeName().typeSpec();
  if (!accepts(value, type)) {
    hostRaise(ZELMAR::vorlo::BadPropertyValue(cls.getInternedFullName().str(), std::string(name),
                                              value ? hostGetClassName(value).str() : std::string("null")));
  }
  CallSlots slots;
  slots.addArgument(value, type);
  property->set(VORValue::ofArray(self), slots.data()[0]);
}

}  // namespace vorlo::dispatch
