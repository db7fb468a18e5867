#include <paxorel/xml/core/WrapperCache.hpp>

#include <basis/memory/checkers.hpp>

#include <new>

namespace paxorel::xml::detail {

namespace {

// Trivially destructible, so it stays usable until the very end of the
// process. Each kept block ends with the address of the next one, which stays
// unpoisoned for LeakSanitizer to follow; the rest of the block, where a
// wrapper's virtual table pointer and most of its members lived, is poisoned.
struct FreeLists {
  void* heads[WrapperCache::sizes];
  std::size_t counts[WrapperCache::sizes];
  bool closed;  // blocks go straight back to the heap
};

FreeLists lists;

constexpr std::size_t sizeIndex(std::size_t size) { return (size - 1) / WrapperCache::grain; }

constexpr std::size_t blockSize(std::size_t index) { return (index + 1) * WrapperCache::grain; }

void*& next(void* block, std::size_t index) {
  return *reinterpret_cast<void**>(static_cast<char*>(block) + blockSize(index) - sizeof(void*));
}

// Keeps the cache closed in a process that runs under valgrind, whose leak
// check and reports of use after free need every wrapper in a block of its
// own; and hands the kept blocks back to the heap at exit, so that a leak
// check sees nothing of them.
const struct CacheLifetime {
  CacheLifetime() { lists.closed = basis::memory::underValgrind(); }
  CacheLifetime(const CacheLifetime&) = delete;
  CacheLifetime& operator=(const CacheLifetime&) = delete;
  ~CacheLifetime() {
    lists.closed = true;
    for (std::size_t index = 0; index < WrapperCache::sizes; ++index) {
      while (void* block = lists.heads[index]) {
        ASAN_UNPOISON_MEMORY_REGION(block, blockSize(index));
        lists.heads[index] = next(block, index);
        ::operator delete(block);
      }
    }
  }
} cacheLifetime;

}  // namespace

void* WrapperCache::allocate(std::size_t size) {
  const std::size_t index = sizeIndex(size);
  if (index >= sizes) return ::operator new(size);
  void* block = lists.heads[index];
  if (!block) return ::operator new(blockSize(index));
  ASAN_UNPOISON_MEMORY_REGION(block, blockSize(index));
  lists.heads[index] = next(block, index);
  --lists.counts[index];
  return block;
}

void WrapperCache::release(void* block, std::size_t size) noexcept {
  const std::size_t index = sizeIndex(size);
  if (index >= sizes || lists.counts[index] == kept || lists.closed) return ::operator delete(block);
  next(block, index) = lists.heads[index];
  lists.heads[index] = block;
  ++lists.counts[index];
  ASAN_POISON_MEMORY_REGION(block, blockSize(index) - sizeof(void*));
}

}  // namespace paxorel::xml::detail
