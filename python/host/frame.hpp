#pragma once

// The scratch of one call into the platform.

#include <Python.h>

#include <vorlo/VORValue.hpp>

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

class HostArray;

namespace zelmar {

/// The slots of a call and the host arrays that carry its arguments. One
/// frame per depth of nested calls is made and kept for reuse, so that a call
/// whose arguments are numbers and host objects allocates nothing. Frames are
/// used inside the library's gate only.
class Frame {
 public:
  /// The frame of a call one level deeper than the current one.
  static Frame& acquire();
  /// Lets go of what the call held and gives the frame back.
  void release() noexcept;

  /// Room for `count` slots, all empty.
  vorlo::VORValue* slots(std::size_t count);
  /// A 1-by-1 array of the host object `instance` for slot `index`.
  HostArray* holding(std::size_t index, PyObject* instance);
  /// Text kept for the text-pointer slot `index`.
  std::u16string& text(std::size_t index);
  /// Keeps `array`, made for this call, until the call has returned.
  HostArray* keep(HostArray* array);

 private:
  Frame() = default;

  std::vector<vorlo::VORValue> slots_;
  std::vector<HostArray*> holding_;  // made once each, cleared after each call
  std::deque<std::u16string> texts_;  // growing keeps the texts where they are: slots point to them
  std::vector<HostArray*> kept_;
};

}  // namespace zelmar
