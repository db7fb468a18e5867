#include <vorlo/builtin/UInt32Class.hpp>

#include <host/HostArray.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORClient.hpp>

namespace vorlo::builtin {

namespace {

class UInt32Constructor : public VORMethodInfo {
 public:
  UInt32Constructor() : signature_(VORMethodSignature::createMethodSignature()) {
    const InternedName uint32 = internal::makeInterned("uint32");
    signature_->addOutputType(uint32);
    signature_->addInputType(uint32);
  }

  const char* getName() const override { return "uint32"; }
  VORMethodSignaturePtr getSignature() const override { return signature_; }
  Kind getKind() const override { return Kind::ValueConstructor; }

  void invoke(VORClient* /*client*/, int& outputCount, VORValue* outputs, int inputCount,
              const VORValue* inputs) const override {
    const HostArray* value = inputCount > 0 ? inputs[0].array() : nullptr;
    outputs[0].array()->setWord(0, value && !value->isEmpty() ? static_cast<std::uint32_t>(value->word(0)) : 0);
    if (outputCount == 0) outputCount = 1;
  }

 private:
  VORMethodSignaturePtr signature_;
};

class UInt32ClassInfo : public VORClassInfo {
 public:
  const char* getName() const override { return "uint32"; }
  const char* getDescription() const override { return "Unsigned 32-bit integer"; }
  void initializeClass(VORClass* cls, VORClient* /*client*/) override { cls->addMethod(new UInt32Constructor); }
  bool isHandleClass() const override { return false; }
  bool isOkToDestroy() const override { return false; }
};

}  // namespace

std::unique_ptr<VORClass> makeUInt32Class() {
  auto cls = std::make_unique<VORClass>(nullptr, "uint32", std::make_unique<UInt32ClassInfo>(), VORGetPublicClient());
  cls->initialize();
  return cls;
}

}  // namespace vorlo::builtin
