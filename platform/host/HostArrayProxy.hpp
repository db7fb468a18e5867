#pragma once

#include <host/HostArray.hpp>
#include <host/hostArrays.hpp>

#include <utility>

/// A host array that native code hands around without looking inside: it
/// owns the array (null for none) and copies it whole.
class HostArrayProxy {
 public:
  HostArrayProxy() = default;
  /// Takes ownership of `array`.
  explicit HostArrayProxy(HostArray* array) noexcept : array_(array) {}
  HostArrayProxy(const HostArrayProxy& other) : array_(other.array_ ? new HostArray(*other.array_) : nullptr) {}
  HostArrayProxy(HostArrayProxy&& other) noexcept : array_(std::exchange(other.array_, nullptr)) {}
  HostArrayProxy& operator=(HostArrayProxy other) noexcept {
    std::swap(array_, other.array_);
    return *this;
  }
  ~HostArrayProxy() { hostDestroyArray(array_); }

  bool isNull() const noexcept { return array_ == nullptr; }
  HostArray* get() const noexcept { return array_; }
  /// Gives the array up to the caller.
  HostArray* release() noexcept { return std::exchange(array_, nullptr); }

 private:
  HostArray* array_ = nullptr;
};
