#pragma once

// The class records of the handle classes of the package zelmar.io.xml.dom:
// one per host class, each filling its class from its own table
// (Vor<Class>.cpp).

#include <paxorel/xml/dom/XMLObject.hpp>

#include <vorlo/factory/VorloFactoryClassInfo.hpp>

#include <string>
#include <vector>

namespace paxorel::xml::mi {

/// The common base of the records of the handle classes: a short name, a
/// description and the bases, and how a host object of the class ends.
class VorXMLObjectClassInfo : public vorlo::factory::HandleClassInfo<XMLObject, false> {
 public:
  /// `bases` are full class names.
  VorXMLObjectClassInfo(std::string shortName, std::string description, std::vector<const char*> bases)
      : HandleClassInfo(std::move(shortName), std::move(description)), bases_(std::move(bases)) {}

  /// The string data types and the bases only: the frame of a class whose
  /// records have still to be written.
  void initializeClass(vorlo::VORClass* cls, vorlo::VORClient* client) override;
  /// Gives no storage: constructors allocate their objects themselves.
  vorlo::factory::full::Wrappable* allocateInstance(vorlo::VORInterface* object) override;
  /// The host object of `instance` goes: the binding is forgotten, and the
  /// wrapper is deleted; a Document instead loses its registry entry, which
  /// the host object stood for (nothing happens when it has none).
  void deallocateInstance(vorlo::VORInterface* object, vorlo::factory::full::Wrappable* instance) override;
  bool isOkToDestroy() const override;
  bool isHandleClass() const override;
  bool isAbstract() const override;

  /// The first steps of every class's initialisation: the string data types
  /// made known, then the bases added.
  void startClass(vorlo::VORClass* cls) const;

 private:
  std::vector<const char*> bases_;
};

/// Declares the class record of a host class whose table is written in its
/// own source.
#define PAXOREL_XML_CLASS_RECORD(Class)                                            \
  class Vor##Class final : public VorXMLObjectClassInfo {                          \
   public:                                                                         \
    using VorXMLObjectClassInfo::VorXMLObjectClassInfo;                            \
    void initializeClass(vorlo::VORClass* cls, vorlo::VORClient* client) override; \
  }

/// Declares the class record of a host class whose records are still to come:
/// it has the frame only.
#define PAXOREL_XML_FRAME_RECORD(Class)                   \
  class Vor##Class final : public VorXMLObjectClassInfo { \
   public:                                                \
    using VorXMLObjectClassInfo::VorXMLObjectClassInfo;   \
  }

PAXOREL_XML_CLASS_RECORD(Attr);
PAXOREL_XML_FRAME_RECORD(CDATASection);
PAXOREL_XML_CLASS_RECORD(CharacterData);
PAXOREL_XML_FRAME_RECORD(Comment);
PAXOREL_XML_CLASS_RECORD(Document);
PAXOREL_XML_FRAME_RECORD(DocumentConfiguration);
PAXOREL_XML_FRAME_RECORD(DocumentFragment);
PAXOREL_XML_FRAME_RECORD(DocumentType);
PAXOREL_XML_FRAME_RECORD(DOMWriter);
PAXOREL_XML_CLASS_RECORD(Element);
PAXOREL_XML_FRAME_RECORD(FileWriter);
PAXOREL_XML_FRAME_RECORD(Entity);
PAXOREL_XML_FRAME_RECORD(EntityReference);
PAXOREL_XML_FRAME_RECORD(Locator);
PAXOREL_XML_CLASS_RECORD(NamedNodeMap);
PAXOREL_XML_CLASS_RECORD(Node);
PAXOREL_XML_CLASS_RECORD(NodeList);
PAXOREL_XML_FRAME_RECORD(Notation);
PAXOREL_XML_FRAME_RECORD(ParseError);
PAXOREL_XML_FRAME_RECORD(ParseErrorLocator);
PAXOREL_XML_CLASS_RECORD(Parser);
PAXOREL_XML_CLASS_RECORD(ParserConfiguration);
PAXOREL_XML_FRAME_RECORD(ProcessingInstruction);
PAXOREL_XML_FRAME_RECORD(ResourceIdentifier);
PAXOREL_XML_CLASS_RECORD(Text);
PAXOREL_XML_FRAME_RECORD(TypeInfo);
PAXOREL_XML_FRAME_RECORD(WriterConfiguration);
PAXOREL_XML_CLASS_RECORD(Object);
PAXOREL_XML_FRAME_RECORD(XPathEvaluator);
PAXOREL_XML_FRAME_RECORD(XPathExpression);
PAXOREL_XML_FRAME_RECORD(XPathNSResolver);
PAXOREL_XML_FRAME_RECORD(XPathResult);

#undef PAXOREL_XML_CLASS_RECORD
#undef PAXOREL_XML_FRAME_RECORD

}  // namespace paxorel::xml::mi
