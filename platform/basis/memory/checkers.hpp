#pragma once

// What the pools that keep freed memory for reuse must know of the tools that
// check memory: whether AddressSanitizer is built in and whether valgrind
// runs the process, and AddressSanitizer's poisoning macros (doing nothing
// without it).

#if defined(__SANITIZE_ADDRESS__)
#define BASIS_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define BASIS_ADDRESS_SANITIZER 1
#endif
#endif

#ifdef BASIS_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

#if __has_include(<valgrind/valgrind.h>)
#include <valgrind/valgrind.h>
#else
#define RUNNING_ON_VALGRIND 0
#endif

namespace basis::memory {

constexpr bool underAddressSanitizer() {
#ifdef BASIS_ADDRESS_SANITIZER
  return true;
#else
  return false;
#endif
}

inline bool underValgrind() { return RUNNING_ON_VALGRIND != 0; }

}  // namespace basis::memory
