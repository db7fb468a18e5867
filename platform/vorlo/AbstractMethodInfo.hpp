#pragma once

#include <vorlo/VORMethodInfo.hpp>

namespace vorlo {

/// A method that host subclasses implement. The record only declares it:
/// calling the record itself does nothing.
class AbstractMethodInfo : public VORMethodInfo {
 public:
  explicit AbstractMethodInfo(VORMethodSignaturePtr signature = nullptr) : signature_(std::move(signature)) {}

  void setSignature(VORMethodSignaturePtr signature) { signature_ = std::move(signature); }
  VORMethodSignaturePtr getSignature() const override { return signature_; }
  Kind getKind() const override { return Kind::Abstract; }
  bool isStatic() const override { return false; }
  bool isAbstract() const override { return true; }
  bool isSealed() const override { return false; }
  void invoke(VORClient*, int&, VORValue*, int, const VORValue*) const override {}

 private:
  VORMethodSignaturePtr signature_;
};

}  // namespace vorlo
