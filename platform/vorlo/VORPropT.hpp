#pragma once

#include <host/hostArrays.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORPropertyInfo.hpp>
#include <vorlo/VORTypeRepository.hpp>
#include <vorlo/factory/downcast.hpp>
#include <vorlo/factory/impl/validateSelfPointer.hpp>
#include <vorlo/vorloGetScalarObjectValue.hpp>

#include <cstdint>

namespace vorlo {

/// A property with a declared data type, read and written through native
/// members of its declaring class.
class VORPropT : public VORPropertyInfo {
 public:
  VORPropT(const VORDataType* type, InternedName name, InternedName description, std::uint32_t access,
           VORClass* declaringClass) noexcept
      : type_(type), name_(name), description_(description), access_(access), declaringClass_(declaringClass) {}

  const char* getName() const override { return name_.c_str(); }
  const char* getDescription() const override { return description_.c_str(); }
  InternedName getTypeName() const override { return type_ ? type_->getName() : InternedName(); }
  std::uint32_t getAttributes() const override { return access_; }
  Kind getKind() const override { return Kind::Typed; }
  bool isSettable() const override { return true; }

 protected:
  VORClass* getDeclaringClass() const noexcept { return declaringClass_; }

 private:
  const VORDataType* type_;
  InternedName name_;
  InternedName description_;
  std::uint32_t access_;
  VORClass* declaringClass_;
};

/// A typed property of the native class `K` whose value is `T`: a pointer to
/// 16-bit text ("ustringToString scalar"; read as a 1-by-1 string array,
/// missing for a null pointer, the text copied) or an unsigned 64-bit number
/// ("uint64 scalar"; read as the raw word).
template <class K, class T>
class VORPropCPPT : public VORPropT {
 public:
  using Getter = T (K::*)() const;
  using Setter = void (K::*)(T);

  VORPropCPPT(const VORDataType* type, InternedName name, InternedName description, std::uint32_t access,
              VORClass* declaringClass, Getter getter, Setter setter) noexcept
      : VORPropT(type, name, description, access, declaringClass), getter_(getter), setter_(setter) {}

  void get(VORValue self, VORValue& value) const override {
    const K* object = objectOf(self);
    value = toSlot((object->*getter_)());
  }
  void set(VORValue self, VORValue value) const override {
    K* object = objectOf(self);
    (object->*setter_)(fromSlot(value));
  }

 private:
  K* objectOf(VORValue self) const {
    K* object = factory::downcast<K>(vorloGetScalarObjectValue(getDeclaringClass()->getInternedFullName(), self));
    factory::impl::validateSelfPointer(object);
    return object;
  }
  static VORValue toSlot(const basis::ustring* text) {
    HostArray* array = hostCreateStringArray(1, 1);
    if (text) array->string(0).setText(*text);
    return VORValue::ofArray(array);
  }
  static VORValue toSlot(std::uint64_t number) { return VORValue::ofWord(number); }
  static T fromSlot(VORValue value) {
    if constexpr (std::is_pointer_v<T>) {
      return const_cast<T>(value.text());
    } else {
      return static_cast<T>(value.word());
    }
  }

  Getter getter_;
  Setter setter_;
};

}  // namespace vorlo
