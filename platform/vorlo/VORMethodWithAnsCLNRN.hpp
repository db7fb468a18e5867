#pragma once

#include <vorlo/VORMethodInfo.hpp>
#include <vorlo/factory/downcast.hpp>
#include <vorlo/factory/full/Wrappable.hpp>
#include <vorlo/vorloGetScalarObjectValue.hpp>

namespace vorlo {

template <class Pointer>
class VORMethodWithAnsCLNRN;

/// A direct method: a plain function that gets the native object of class `T`
/// (null when the host object has none of that class) and the raw slots, and
/// makes its result itself.
template <class T>
class VORMethodWithAnsCLNRN<T*> : public VORMethodInfo {
 public:
  using Function = void (*)(T* self, int& outputCount, VORValue* outputs, int inputCount, const VORValue* inputs);

  VORMethodWithAnsCLNRN(InternedName className, InternedName name, VORMethodSignaturePtr signature, Function function,
                        int access)
      : className_(className), name_(name), signature_(std::move(signature)), function_(function), access_(access) {}

  const char* getName() const override { return name_.c_str(); }
  VORMethodSignaturePtr getSignature() const override { return signature_; }
  Kind getKind() const override { return Kind::Direct; }
  int getMemberAccess() const override { return access_; }

  void invoke(VORClient* /*client*/, int& outputCount, VORValue* outputs, int inputCount,
              const VORValue* inputs) const override {
    T* self = factory::downcast<T>(vorloGetScalarObjectValue(className_, inputs[0]));
    function_(self, outputCount, outputs, inputCount, inputs);
    if (outputCount == 0) outputCount = 1;
  }

 private:
  InternedName className_;
  InternedName name_;
  VORMethodSignaturePtr signature_;
  Function function_;
  int access_;
};

}  // namespace vorlo
