#pragma once

#include <vorlo/factory/full/Wrappable.hpp>

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

  /// The host class name, "zelmar.io.xml.dom.Object" here.
  virtual const char* getFullyQualifiedVorloTypeName() const;

  void setNativeErrorMode(bool on) noexcept { nativeErrorMode_ = on; }
  bool getNativeErrorMode() const noexcept { return nativeErrorMode_; }

 private:
  bool nativeErrorMode_ = false;
};

}  // namespace paxorel::xml
