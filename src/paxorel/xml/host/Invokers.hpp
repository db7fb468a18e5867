#pragma once

// The functions that run the records of a class: one template per shape of
// signature, instantiated once per native member type (so every row of one
// shape in a class shares it) and finding its member in the record. They
// convert, check the object, call and marshal; what the native member
// throws passes through them untouched.

#include <paxorel/xml/host/HostValue.hpp>

#include <host/hostArrays.hpp>
#include <vorlo/factory/VorloMethod.hpp>
#include <vorlo/factory/impl/PropertyImpl.hpp>
#include <vorlo/factory/impl/validateSelfPointer.hpp>

#include <cstddef>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace paxorel::xml::mi {

template <class... T>
struct TypeList {};

/// The result and parameter types of a native member function, as values.
template <class Member>
struct MemberTraits;
template <class R, class C, class... A>
struct MemberTraits<R (C::*)(A...)> {
  using Class = C;
  using Result = PlainType<R>;
  using Types = TypeList<Result, PlainType<A>...>;  ///< the result first
  using Arguments = TypeList<PlainType<A>...>;
};
template <class R, class C, class... A>
struct MemberTraits<R (C::*)(A...) const> : MemberTraits<R (C::*)(A...)> {};

/// The arguments in `slots`, each read by Value<A>, in order (a braced list is
/// evaluated left to right).
template <template <class> class Value, class... A, std::size_t... I>
auto fromSlots(TypeList<A...> /*types*/, [[maybe_unused]] const vorlo::VORValue* slots,
               std::index_sequence<I...> /*indices*/) {
  return std::tuple<decltype(Value<A>::from(slots[I]))...>{Value<A>::from(slots[I])...};
}
template <template <class> class Value, class... A>
auto fromSlots(TypeList<A...> types, const vorlo::VORValue* slots) {
  return fromSlots<Value>(types, slots, std::index_sequence_for<A...>());
}

/// Calls `member` of `object` with the converted arguments.
template <class T, class Member, class Arguments>
decltype(auto) callWith(T* object, Member member, Arguments& arguments) {
  return std::apply([object, member](auto&... argument) { return std::invoke(member, object, argument...); },
                    arguments);
}

/// One call of `member` of the object of class T in `self`, with the
/// arguments in `arguments`: the object is looked up first, then the
/// arguments are converted, and only then is a missing object refused.
template <class T, class Member>
typename MemberTraits<Member>::Result callMember(Member member, vorlo::VORValue self,
                                                 const vorlo::VORValue* arguments) {
  T* object = HostValue<T*>::from(self);
  auto converted = fromSlots<HostValue>(typename MemberTraits<Member>::Arguments(), arguments);
  vorlo::factory::impl::validateSelfPointer(object);
  return callWith(object, member, converted);
}

/// A method record: inputs[0] holds the object, the arguments follow; a
/// result goes to output slot 0.
template <class T, class Member>
void invokeMethod(const vorlo::factory::VorloMethod& method, vorlo::VORClient* /*client*/, int& outputCount,
                  vorlo::VORValue* outputs, int /*inputCount*/, const vorlo::VORValue* inputs) {
  using Result = typename MemberTraits<Member>::Result;
  if constexpr (std::is_void_v<Result>) {
    callMember<T>(method.member<Member>(), inputs[0], inputs + 1);
  } else {
    outputs[0] = HostValue<Result>::to(callMember<T>(method.member<Member>(), inputs[0], inputs + 1));
    if (outputCount == 0) outputCount = 1;
  }
}

/// A property's getter and setter: a method without arguments and one of a
/// single argument.
template <class T, class Member>
void getProperty(const vorlo::factory::impl::ClassGetter& getter, vorlo::VORValue self, vorlo::VORValue& value) {
  value = HostValue<typename MemberTraits<Member>::Result>::to(callMember<T>(getter.member<Member>(), self, nullptr));
}
template <class T, class Member>
void setProperty(const vorlo::factory::impl::ClassSetter& setter, vorlo::VORValue self, vorlo::VORValue value) {
  callMember<T>(setter.member<Member>(), self, &value);
}

/// A constant: the plain function that a constant's getter calls.
template <class T, const double& Value>
double constantValue(const T& /*object*/) {
  return Value;
}
template <class T>
void getConstant(const vorlo::factory::impl::ClassGetter& getter, vorlo::VORValue self, vorlo::VORValue& value) {
  const T* object = HostValue<T*>::from(self);
  vorlo::factory::impl::validateSelfPointer(object);
  value = vorlo::VORValue::ofDouble(getter.member<double (*)(const T&)>()(*object));
}

template <class A>
struct DirectArgument : TextPointer {
  static_assert(std::is_same_v<A, ustring>, "a direct method takes text only");
};

/// A direct method: the platform has found the object; the result is the
/// host object, or the empty double where the member gives no object.
template <class T, auto Member>
void invokeDirect(T* self, int& /*outputCount*/, vorlo::VORValue* outputs, int /*inputCount*/,
                  const vorlo::VORValue* inputs) {
  using Traits = MemberTraits<decltype(Member)>;
  auto converted = fromSlots<DirectArgument>(typename Traits::Arguments(), inputs + 1);
  vorlo::factory::impl::validateSelfPointer(self);
  const auto* result = callWith(self, Member, converted);
  outputs[0] = result ? HostValue<typename Traits::Result>::to(result)
                      : vorlo::VORValue::ofArray(hostCreateDoubleMatrix(0, 0, HostComplexity::Real));
}

/// Binds a wrapper made by a constructor record to the host object under
/// construction in output slot 0. The class records never provide storage
/// (allocateInstance gives null), so the wrapper came from its own allocator.
void bindConstructed(const XMLObject* object, int& outputCount, vorlo::VORValue* outputs);

/// A constructor record running a native constructor with the arguments.
template <class T, class... A>
void invokeConstructor(const vorlo::factory::VorloMethod& /*method*/, vorlo::VORClient* /*client*/, int& outputCount,
                       vorlo::VORValue* outputs, int /*inputCount*/, const vorlo::VORValue* inputs) {
  auto converted = fromSlots<HostValue>(TypeList<A...>(), inputs + 1);  // inputs[0] is the empty one
  bindConstructed(std::apply([](auto&... argument) { return new T(argument...); }, converted), outputCount, outputs);
}

/// The object of a class whose constructor host code isn't meant to call:
/// nothing set, no node or inner object, no owner; so no operation works on it.
template <class T>
T* bareObject() {
  if constexpr (std::is_constructible_v<T, std::nullptr_t, std::nullptr_t>) {
    return new T(nullptr, nullptr);
  } else if constexpr (std::is_constructible_v<T, std::nullptr_t>) {
    return new T(nullptr);
  } else {
    return new T();
  }
}
template <class T>
void invokeBareConstructor(const vorlo::factory::VorloMethod& /*method*/, vorlo::VORClient* /*client*/,
                           int& outputCount, vorlo::VORValue* outputs, int /*inputCount*/,
                           const vorlo::VORValue* /*inputs*/) {
  bindConstructed(bareObject<T>(), outputCount, outputs);
}

}  // namespace paxorel::xml::mi
