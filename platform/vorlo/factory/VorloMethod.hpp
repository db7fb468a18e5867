#pragma once

#include <vorlo/VORMethodInfo.hpp>
#include <vorlo/factory/impl/MemberSlot.hpp>

#include <cstdint>
#include <string>

namespace vorlo::factory {

/// The attribute word of a method record.
using MethodAttributes = std::uint32_t;

class VorloMethod;

/// The function that runs a record: one per shape of signature, shared by
/// every record of that shape. It finds the native member in the record.
using InvokerFunction = void (*)(const VorloMethod& method, VORClient* client, int& outputCount, VORValue* outputs,
                                 int inputCount, const VORValue* inputs);

/// A method record of a native class: name, attribute word, description,
/// signature, the invoker that runs it and the native member it calls.
class VorloMethod : public VORMethodInfo {
 public:
  /// The flag that marks a record without an object: set on every record,
  /// cleared on an instance method once it is made.
  static constexpr std::uint32_t StaticFlag = 0x1000;

  VorloMethod(std::string name, MethodAttributes attributes, std::string description,
              VORMethodSignaturePtr signature, InvokerFunction invoker, impl::MemberSlot member, Kind kind)
      : name_(std::move(name)),
        attributes_(attributes),
        description_(std::move(description)),
        signature_(std::move(signature)),
        invoker_(invoker),
        member_(member),
        kind_(kind) {}

  const char* getName() const override { return name_.c_str(); }
  const char* getDescription() const override { return description_.c_str(); }
  VORMethodSignaturePtr getSignature() const override { return signature_; }
  MethodAttributes getAttributes() const override { return attributes_; }
  Kind getKind() const override { return kind_; }
  bool isStatic() const override { return (flags_ & StaticFlag) != 0; }
  std::uint32_t getFlags() const noexcept { return flags_; }

  void invoke(VORClient* client, int& outputCount, VORValue* outputs, int inputCount,
              const VORValue* inputs) const override {
    invoker_(*this, client, outputCount, outputs, inputCount, inputs);
  }

  /// The native member, as the type that the invoker knows it by.
  template <class Member>
  Member member() const noexcept {
    return member_.get<Member>();
  }

 protected:
  void clearFlags(std::uint32_t flags) noexcept { flags_ &= ~flags; }

 private:
  std::string name_;
  MethodAttributes attributes_;
  std::string description_;
  VORMethodSignaturePtr signature_;
  InvokerFunction invoker_;
  impl::MemberSlot member_;
  Kind kind_;
  std::uint32_t flags_ = StaticFlag;
};

namespace impl {

/// An ordinary method; an instance method (one whose signature has an
/// object) loses the static flag.
class MethodImpl : public VorloMethod {
 public:
  MethodImpl(std::string name, MethodAttributes attributes, VORMethodSignaturePtr signature, InvokerFunction invoker,
             MemberSlot member)
      : VorloMethod(std::move(name), attributes, std::string(), std::move(signature), invoker, member, Kind::Method) {
    if (getSignature() && getSignature()->hasSelf()) clearFlags(StaticFlag);
  }
};

/// A constructor overload, named after its class; it calls no member.
class VorloConstructor : public VorloMethod {
 public:
  VorloConstructor(std::string className, MethodAttributes attributes, std::string description,
                   VORMethodSignaturePtr signature, InvokerFunction invoker)
      : VorloMethod(std::move(className), attributes, std::move(description), std::move(signature), invoker,
                    MemberSlot(), Kind::Constructor) {}
};

/// Builds signatures.
struct Invoker {
  /// Fills `signature` with `description`, the output type types[0] and the
  /// input types, the rest (a null input is the null name: no object).
  static void createSignature(const char* description, std::initializer_list<const char*> types,
                              VORMethodSignaturePtr& signature);
};

}  // namespace impl
}  // namespace vorlo::factory
