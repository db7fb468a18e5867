#pragma once

// One Python thread at a time inside the library.

#include <Python.h>

namespace zelmar {

/// The library takes no locks and expects one thread at a time. Every call
/// into it holds the interpreter lock, yet Python code that the library runs
/// on the way (a method it calls back, a finaliser of an object it lets go)
/// may release that lock and let another thread run. A thread that then
/// calls into the library waits, with the interpreter lock released, until
/// the first one has left the library; the first one may call in again
/// meanwhile. A callback must therefore not wait for another thread that
/// uses the library.
class Gate {
 public:
  /// One stay inside the library: entered on construction, waiting while
  /// another thread is inside, and left on destruction.
  class Entry {
   public:
    Entry() noexcept;
    ~Entry();
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
  };

  /// Whether a thread other than the calling one is inside the library.
  static bool busyElsewhere() noexcept;

  /// Runs `end(object)` inside the library once the thread that is inside
  /// now has left it (the object's last reference has gone already).
  static void defer(PyObject* object, void (*end)(PyObject*)) noexcept;
};

}  // namespace zelmar
