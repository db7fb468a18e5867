#include "frame.hpp"

#include "classes.hpp"

#include <host/hostArrays.hpp>

#include <algorithm>


namespace zelmar {

namespace {

// Kept for the life of the process: a frame still in use at exit is never
// ended under the interpreter's feet.
std::vector<Frame*>* const frames = new std::vector<Frame*>;
std::size_t depth = 0;

}  // namespace

Frame& Frame::acquire() {
  if (depth == frames->size()) {
    frames->reserve(depth + 1);  // so that the push cannot fail after the frame is made
    frames->push_back(new Frame);
  }
  return *(*frames)[depth++];
}

void Frame::release() noexcept {
  // Letting go of a Python object may run Python code that calls in again:
  // the frame stays taken until it is clean.
  for (HostArray* array : holding_) {
    if (array->object(0)) array->adoptObject(0, nullptr);
  }
  for (HostArray* array : kept_) hostDestroyArray(array);
  kept_.clear();
  --depth;
}

vorlo::VORValue* Frame::slots(std::size_t count) {
  if (slots_.size() < count) slots_.resize(count);
  std::fill_n(slots_.begin(), count, vorlo::VORValue());
  return slots_.data();
}

HostArray* Frame::holding(std::size_t index, PyObject* instance) {
  while (holding_.size() <= index) {
    holding_.reserve(holding_.size() + 1);
    holding_.push_back(hostCreateObjectMatrix(1, 1, {}));
  }
  HostArray* array = holding_[index];
  Interface& object = interfaceOf(instance);
  array->setClassName(object.getClass()->getInternedFullName());
  Py_INCREF(instance);
  array->adoptObject(0, &object);
  return array;
}

std::u16string& Frame::text(std::size_t index) {
  if (texts_.size() <= index) texts_.resize(index + 1);
  return texts_[index];
}

HostArray* Frame::keep(HostArray* array) {
  try {
    kept_.push_back(array);
  } catch (...) {
    hostDestroyArray(array);
    throw;
  }
  return array;
}

}  // namespace zelmar
