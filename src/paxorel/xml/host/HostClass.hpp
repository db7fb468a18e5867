#pragma once

// The record table of a host class, written row by row in registration
// order. A row names the host name, the native member and the attribute
// word; the type strings of its signature come from the member's type.
//
//   HostClass<Element>(*this, cls)
//       .bareConstructor(0x102)
//       .method("getTagName", &Element::getTagName)
//       .direct<&Element::getAttributeNode>("getAttributeNode")
//       .property("TagName", &Element::getTagName, readOnly);

#include <paxorel/xml/host/ClassRecords.hpp>
#include <paxorel/xml/host/Invokers.hpp>

#include <vorlo/VORClass.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

namespace paxorel::xml::mi {

/// The setter of a property that host code can only read.
struct ReadOnly {};
inline constexpr ReadOnly readOnly{};

/// Picks one overload of a native member by its parameter types.
template <class... A>
struct Overload {
  template <class R, class C>
  constexpr auto operator()(R (C::*member)(A...)) const noexcept {
    return member;
  }
  template <class R, class C>
  constexpr auto operator()(R (C::*member)(A...) const) const noexcept {
    return member;
  }
};
template <class... A>
inline constexpr Overload<A...> overload{};

/// Adds the records of the host class of T to `cls`, one row per call.
template <class T>
class HostClass {
 public:
  using Word = vorlo::factory::MethodAttributes;

  /// Starts the class: the string data types, then the record's bases.
  HostClass(const VorXMLObjectClassInfo& record, vorlo::VORClass* cls) : cls_(cls) { record.startClass(cls); }

  /// A constructor that runs T's native constructor with the given arguments
  /// (a row naming a constructor that T lacks does not compile).
  template <class... A>
  HostClass& constructor(Word word) {
    return addConstructor(word, &invokeConstructor<T, A...>, {self(), nullptr, HostValue<A>::type...});
  }
  /// A constructor that host code isn't meant to call: it makes an object
  /// with nothing set.
  HostClass& bareConstructor(Word word) { return addConstructor(word, &invokeBareConstructor<T>, {self(), nullptr}); }

  template <class Member>
  HostClass& method(const char* name, Member member, Word word = 0) {
    static_assert(std::is_base_of_v<typename MemberTraits<Member>::Class, T>, "a member of T");
    addMethod(name, word, &invokeMethod<T, Member>, vorlo::factory::impl::MemberSlot(member),
              typename MemberTraits<Member>::Types());
    return *this;
  }

  /// A direct method: the platform calls it through a plain function with
  /// nothing of the record, so the member is a template argument.
  template <auto Member>
  HostClass& direct(const char* name) {
    addDirect<Member>(name, typename MemberTraits<decltype(Member)>::Arguments());
    return *this;
  }

  template <class Getter, class Setter>
  HostClass& property(const char* name, Getter getter, Setter setter, std::uint32_t word = 0) {
    static_assert(
        std::is_same_v<typename MemberTraits<Setter>::Arguments, TypeList<typename MemberTraits<Getter>::Result>>,
        "the setter takes what the getter gives");
    return addProperty(name, word, getter,
                       std::make_unique<vorlo::factory::impl::ClassSetter>(vorlo::factory::impl::MemberSlot(setter),
                                                                           &setProperty<T, Setter>));
  }
  template <class Getter>
  HostClass& property(const char* name, Getter getter, ReadOnly /*setter*/, std::uint32_t word = 0) {
    return addProperty(name, word, getter, nullptr);
  }

  /// A read-only property giving a constant of the native class.
  template <const double& Value>
  HostClass& constant(const char* name, std::uint32_t word) {
    cls_->addProperty(new vorlo::factory::impl::PropertyImpl(
        name, std::string(), word,
        std::make_unique<vorlo::factory::impl::AdaptedClassGetter>(
            vorlo::internal::makeInterned(HostValue<double>::type),
            vorlo::factory::impl::MemberSlot(&constantValue<T, Value>), &getConstant<T>),
        nullptr));
    return *this;
  }

 private:
  const char* self() const noexcept { return cls_->getInternedFullName().c_str(); }

  /// The signature of the type strings `types`: the output, then the inputs.
  static vorlo::VORMethodSignaturePtr signatureOf(std::initializer_list<const char*> types) {
    vorlo::VORMethodSignaturePtr signature;
    vorlo::factory::impl::Invoker::createSignature("", types, signature);
    return signature;
  }

  /// `types`: the class made, then the null name of a record without an
  /// object, then the arguments.
  HostClass& addConstructor(Word word, vorlo::factory::InvokerFunction invoker,
                            std::initializer_list<const char*> types) {
    cls_->addMethod(new vorlo::factory::impl::VorloConstructor(cls_->getShortName(), word, std::string(),
                                                               signatureOf(types), invoker));
    return *this;
  }

  template <class R, class... A>
  void addMethod(const char* name, Word word, vorlo::factory::InvokerFunction invoker,
                 vorlo::factory::impl::MemberSlot member, TypeList<R, A...> /*types*/) {
    cls_->addMethod(new vorlo::factory::impl::MethodImpl(
        name, word, signatureOf({HostValue<R>::type, self(), HostValue<A>::type...}), invoker, member));
  }

  template <auto Member, class... A>
  void addDirect(const char* name, TypeList<A...> /*arguments*/) {
    static_assert(std::is_base_of_v<typename MemberTraits<decltype(Member)>::Class, T>, "a member of T");
    static_assert(std::is_pointer_v<typename MemberTraits<decltype(Member)>::Result>, "it gives an object");
    const std::string object = cls_->getInternedFullName().str() + " scalar";
    const char* outputs[] = {"any"};
    const char* inputs[] = {object.c_str(), DirectArgument<A>::type...};
    cls_->template addMethod<T*>(name, 0, 1, outputs, 1 + sizeof...(A), inputs, &invokeDirect<T, Member>, true);
  }

  template <class Getter>
  HostClass& addProperty(const char* name, std::uint32_t word, Getter getter,
                         std::unique_ptr<vorlo::factory::impl::ClassSetter> setter) {
    static_assert(std::is_base_of_v<typename MemberTraits<Getter>::Class, T>, "a member of T");
    cls_->addProperty(new vorlo::factory::impl::PropertyImpl(
        name, std::string(), word,
        std::make_unique<vorlo::factory::impl::ClassGetter>(
            vorlo::internal::makeInterned(HostValue<typename MemberTraits<Getter>::Result>::type),
            vorlo::factory::impl::MemberSlot(getter), &getProperty<T, Getter>),
        std::move(setter)));
    return *this;
  }

  vorlo::VORClass* cls_;
};

}  // namespace paxorel::xml::mi
