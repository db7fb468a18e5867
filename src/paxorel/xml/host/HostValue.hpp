#pragma once

// How native values cross the slots of a host call: for each native type its
// type string and its two conversions, slot to argument and result to slot.
// The record tables deduce their type strings from these, so a record always
// says what its native member takes and gives.

#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <vorlo/InternedName.hpp>
#include <vorlo/VORValue.hpp>
#include <vorlo/factory/Marshaler.hpp>
#include <vorlo/factory/TypedXMLObjectPolicy.hpp>

#include <string_view>
#include <type_traits>
#include <vector>

namespace paxorel::xml {
class Attr;
class CDATASection;
class CharacterData;
class Comment;
class Document;
class DocumentConfiguration;
class DocumentFragment;
class DocumentType;
class Element;
class Entity;
class EntityReference;
class NamedNodeMap;
class Node;
class NodeList;
class Notation;
class Parser;
class ParserConfiguration;
class ProcessingInstruction;
class Text;
class TypeInfo;
class XPathNSResolver;
class XPathResult;
}  // namespace paxorel::xml

namespace paxorel::xml::mi {

/// The full name of the host class of each native class that a record names.
template <class T>
inline constexpr const char* hostClass = nullptr;
// clang-format off
template <> inline constexpr const char* hostClass<XMLObject> = "zelmar.io.xml.dom.Object";
template <> inline constexpr const char* hostClass<Node> = "zelmar.io.xml.dom.Node";
template <> inline constexpr const char* hostClass<Document> = "zelmar.io.xml.dom.Document";
template <> inline constexpr const char* hostClass<Element> = "zelmar.io.xml.dom.Element";
template <> inline constexpr const char* hostClass<Attr> = "zelmar.io.xml.dom.Attr";
template <> inline constexpr const char* hostClass<CharacterData> = "zelmar.io.xml.dom.CharacterData";
template <> inline constexpr const char* hostClass<Text> = "zelmar.io.xml.dom.Text";
template <> inline constexpr const char* hostClass<CDATASection> = "zelmar.io.xml.dom.CDATASection";
template <> inline constexpr const char* hostClass<Comment> = "zelmar.io.xml.dom.Comment";
template <> inline constexpr const char* hostClass<ProcessingInstruction> = "zelmar.io.xml.dom.ProcessingInstruction";
template <> inline constexpr const char* hostClass<DocumentFragment> = "zelmar.io.xml.dom.DocumentFragment";
template <> inline constexpr const char* hostClass<DocumentType> = "zelmar.io.xml.dom.DocumentType";
template <> inline constexpr const char* hostClass<Entity> = "zelmar.io.xml.dom.Entity";
template <> inline constexpr const char* hostClass<EntityReference> = "zelmar.io.xml.dom.EntityReference";
template <> inline constexpr const char* hostClass<Notation> = "zelmar.io.xml.dom.Notation";
template <> inline constexpr const char* hostClass<NodeList> = "zelmar.io.xml.dom.NodeList";
template <> inline constexpr const char* hostClass<NamedNodeMap> = "zelmar.io.xml.dom.NamedNodeMap";
template <> inline constexpr const char* hostClass<TypeInfo> = "zelmar.io.xml.dom.TypeInfo";
template <> inline constexpr const char* hostClass<DocumentConfiguration> = "zelmar.io.xml.dom.DocumentConfiguration";
template <> inline constexpr const char* hostClass<Parser> = "zelmar.io.xml.dom.Parser";
template <> inline constexpr const char* hostClass<ParserConfiguration> = "zelmar.io.xml.dom.ParserConfiguration";
template <> inline constexpr const char* hostClass<XPathNSResolver> = "zelmar.io.xml.dom.XPathNSResolver";
template <> inline constexpr const char* hostClass<XPathResult> = "zelmar.io.xml.dom.XPathResult";
// clang-format on

/// The interned full name of T's host class. Interned on first use and kept:
/// every call that needs it would otherwise look the text up again.
template <class T>
vorlo::InternedName hostClassName() {
  static_assert(hostClass<T> != nullptr, "a class of the package");
  static const vorlo::InternedName name = vorlo::internal::makeInterned(std::string_view(hostClass<T>));
  return name;
}

using Marshal = vorlo::factory::Marshaler<vorlo::factory::TypedXMLObjectPolicy<vorlo::factory::full::Wrappable>>;

/// A native parameter or result type as a value: `const ustring&` is a
/// ustring, `const Node*` a Node*.
template <class T>
struct Plain {
  using type = std::decay_t<T>;
};
template <class T>
struct Plain<const T*> {
  using type = T*;
};
template <class T>
using PlainType = typename Plain<T>::type;

/// How a value of the native type T crosses a slot: `type` is its type
/// string, `from` reads an argument slot, `to` makes a result slot (a host
/// array made there belongs to the caller).
template <class T>
struct HostValue;

template <>
struct HostValue<void> {
  static constexpr const char* type = "void";
};

template <>
struct HostValue<ustring> {
  static constexpr const char* type = "VorloFactoryString scalar";
  static ustring from(vorlo::VORValue slot);
  /// The text up to its first zero unit: the host takes terminated text.
  static vorlo::VORValue to(const ustring& text);
};

template <>
struct HostValue<bool> {
  static constexpr const char* type = "logical scalar";
  static bool from(vorlo::VORValue slot) noexcept { return slot.logical(); }
  static vorlo::VORValue to(bool value) noexcept { return vorlo::VORValue::ofLogical(value); }
};

template <>
struct HostValue<double> {
  static constexpr const char* type = "double scalar";
  static double from(vorlo::VORValue slot) noexcept { return slot.real(); }
  static vorlo::VORValue to(double value) noexcept { return vorlo::VORValue::ofDouble(value); }
};

/// A wrapper. An argument is the native object of element 0 of the array,
/// null for an empty array or an object of another class. A result is the
/// host object of the wrapper, of the class it reports itself; null gives
/// what announce gives for null and the declared class.
template <class W>
struct HostValue<W*> {
  static constexpr const char* type = hostClass<W>;
  static W* from(vorlo::VORValue slot) { return Marshal::FromM<W>(slot, hostClassName<W>()); }
  static vorlo::VORValue to(const W* object) {
    return vorlo::VORValue::ofArray(Marshal::toMForPtr(object, hostClassName<W>()));
  }
};

/// The nodes as one 1-by-n array of their host objects, each of its own
/// class; the array's class is settled from them, also when there are none.
template <>
struct HostValue<std::vector<Node*>> {
  static constexpr const char* type = "zelmar.io.xml.dom.Node vector";
  static vorlo::VORValue to(const std::vector<Node*>& nodes);
};

/// A text argument of a direct method: the slot holds text that the platform
/// has converted already.
struct TextPointer {
  static constexpr const char* type = "ustringToString scalar";
  /// A missing string (a null pointer) is ZELMAR:string:MissingNotSupported,
  /// as for any other text argument.
  static const ustring& from(vorlo::VORValue slot);
};

}  // namespace paxorel::xml::mi
