#include "gate.hpp"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <utility>
#include <vector>

namespace zelmar {

namespace {

// Changed only by a thread that holds the interpreter lock; `depth` is also
// read by waiting threads that have released it.
struct State {
  std::atomic<int> depth{0};
  PyThreadState* owner = nullptr;  // the thread inside while depth > 0
  int waiting = 0;
  std::mutex mutex;
  std::condition_variable left;
  std::vector<std::pair<PyObject*, void (*)(PyObject*)>> deferred;
};

// Never destroyed: a thread may still wait on it while the process exits.
State* const state = new State;

void waitForTheLibrary() {
  ++state->waiting;
  PyThreadState* const saved = PyEval_SaveThread();
  {
    std::unique_lock<std::mutex> lock(state->mutex);
    state->left.wait(lock, [] { return state->depth.load() == 0; });
  }
  PyEval_RestoreThread(saved);
  --state->waiting;
}

}  // namespace

Gate::Entry::Entry() noexcept {
  PyThreadState* const self = PyThreadState_Get();
  while (state->depth.load(std::memory_order_relaxed) > 0 && state->owner != self) waitForTheLibrary();
  state->owner = self;
  state->depth.store(state->depth.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
}

Gate::Entry::~Entry() {
  const int depth = state->depth.load(std::memory_order_relaxed);
  if (depth > 1) {
    state->depth.store(depth - 1, std::memory_order_relaxed);
    return;
  }
  // The last to leave ends what other threads let go meanwhile; the ends
  // enter again, one level deeper.
  while (!state->deferred.empty()) {
    const auto [object, end] = state->deferred.back();
    state->deferred.pop_back();
    end(object);
  }
  state->owner = nullptr;
  state->depth.store(0, std::memory_order_relaxed);  // a waiter reads it under the mutex locked below
  if (state->waiting > 0) {
    const std::lock_guard<std::mutex> lock(state->mutex);
    state->left.notify_all();
  }
}

bool Gate::busyElsewhere() noexcept {
  return state->depth.load(std::memory_order_relaxed) > 0 && state->owner != PyThreadState_Get();
}

void Gate::defer(PyObject* object, void (*end)(PyObject*)) noexcept {
  try {
    state->deferred.emplace_back(object, end);
  } catch (...) {
    // Without memory to remember it, the object stays: a leak, not a crash.
  }
}

}  // namespace zelmar
