#include "calls.hpp"

#include "classes.hpp"
#include "errors.hpp"
#include "frame.hpp"
#include "gate.hpp"
#include "overloads.hpp"

#include <vorlo/VORClient.hpp>
#include <vorlo/VORPropertyInfo.hpp>

namespace zelmar {

namespace {

vorlo::VORClient* const client = VORGetPublicClient();

// One call's stay in the library with its frame, in that order.
class CallScope {
 public:
  CallScope() : frame_(Frame::acquire()) {}
  ~CallScope() { frame_.release(); }
  CallScope(const CallScope&) = delete;
  CallScope& operator=(const CallScope&) = delete;

  Frame& frame() noexcept { return frame_; }

 private:
  Gate::Entry entry_;
  Frame& frame_;
};

// The slots of a call: the object or the empty slot, then the arguments.
vorlo::VORValue* inputSlots(const Overload& overload, Frame& frame, PyObject* self, PyObject* const* arguments,
                            Py_ssize_t count) {
  vorlo::VORValue* slots = frame.slots(overload.first + static_cast<std::size_t>(count));
  if (overload.first == 1 && self) slots[0] = vorlo::VORValue::ofArray(frame.holding(0, self));
  for (std::size_t i = 0; i < overload.inputs.size(); ++i) {
    const std::size_t slot = overload.first + i;
    slots[slot] = overload.inputs[i].toSlot(arguments[i], frame, slot);
  }
  return slots;
}

}  // namespace

PyObject* call(const Overload& overload, PyObject* self, PyObject* const* arguments, Py_ssize_t count) noexcept {
  try {
    CallScope scope;
    const vorlo::VORValue* slots = inputSlots(overload, scope.frame(), self, arguments, count);
    vorlo::VORValue output;
    int produced = 0;
    overload.record->invoke(client, produced, &output, static_cast<int>(overload.first) + static_cast<int>(count),
                            slots);
    return produced > 0 ? overload.output.fromSlot(output) : Py_NewRef(Py_None);
  } catch (...) {
    setErrorFromCurrentException();
    return nullptr;
  }
}

PyObject* construct(PyTypeObject* type, vorlo::VORClass& cls, const Overload& overload, PyObject* const* arguments,
                    Py_ssize_t count) {
  CallScope scope;
  PyObject* object = newInstance(type, cls);
  try {
    const vorlo::VORValue* slots = inputSlots(overload, scope.frame(), nullptr, arguments, count);
    // The host object under construction is element 0 of output slot 0.
    vorlo::VORValue output = vorlo::VORValue::ofArray(scope.frame().holding(0, object));
    int produced = 0;
    overload.record->invoke(client, produced, &output, 1 + static_cast<int>(count), slots);
  } catch (...) {
    Py_DECREF(object);
    throw;
  }
  return object;
}

PyObject* getProperty(const vorlo::VORPropertyInfo& property, const ValueType& type, PyObject* self) noexcept {
  try {
    CallScope scope;
    vorlo::VORValue value;
    property.get(vorlo::VORValue::ofArray(scope.frame().holding(0, self)), value);
    return type.fromSlot(value);
  } catch (...) {
    setErrorFromCurrentException();
    return nullptr;
  }
}

int setProperty(const vorlo::VORPropertyInfo& property, const ValueType& type, PyObject* self,
                PyObject* value) noexcept {
  try {
    CallScope scope;
    const vorlo::VORValue slot = type.toSlot(value, scope.frame(), 1);
    property.set(vorlo::VORValue::ofArray(scope.frame().holding(0, self)), slot);
    return 0;
  } catch (...) {
    setErrorFromCurrentException();
    return -1;
  }
}

}  // namespace zelmar
