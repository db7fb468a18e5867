#pragma once

#include <vorlo/factory/full/Wrappable.hpp>

#include <cstddef>

namespace paxorel::xml {

/// Base of every wrapper object of the library.
///
/// Each object chooses how its own operations fail: by default the failure
/// leaves with its identifier and arguments (an exception derived from
/// basis::except::IMsgIDException); in native error mode it leaves as a
/// paxorel::xml::Exception that holds the finished text only. Objects that
/// the library makes always start in the default mode.
class XMLObject : public vorlo::factory::full::Wrappable {
 public:
  XMLObject() = default;
  ~XMLObject() override;

  /// Wrappers come and go by the thousand: their memory is recycled
  /// (detail::WrapperCache). Only the sized delete is declared, so that it is
  /// the one called and knows the block's size.
  static void* operator new(std::size_t size);  // NOLINT(cert-dcl54-cpp,misc-new-delete-overloads)
  static void operator delete(void* object, std::size_t size) noexcept;

  /// The host class name, "zelmar.io.xml.dom.Object" here.
  virtual const char* getFullyQualifiedVorloTypeName() const;

  void setNativeErrorMode(bool on) noexcept { nativeErrorMode_ = on; }
  bool getNativeErrorMode() const noexcept { return nativeErrorMode_; }

 private:
  bool nativeErrorMode_ = false;
};

}  // namespace paxorel::xml
