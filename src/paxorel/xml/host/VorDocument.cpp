#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/CDATASection.hpp>
#include <paxorel/xml/dom/Comment.hpp>
#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/dom/DocumentConfiguration.hpp>
#include <paxorel/xml/dom/DocumentFragment.hpp>
#include <paxorel/xml/dom/DocumentType.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/Entity.hpp>
#include <paxorel/xml/dom/EntityReference.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/dom/Notation.hpp>
#include <paxorel/xml/dom/ProcessingInstruction.hpp>
#include <paxorel/xml/dom/Text.hpp>
#include <paxorel/xml/host/HostClass.hpp>
#include <paxorel/xml/xpath/XPathNSResolver.hpp>
#include <paxorel/xml/xpath/XPathResult.hpp>

namespace paxorel::xml::mi {

void VorDocument::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  using S = const ustring&;
  HostClass<Document>(*this, cls)
      .constructor<>(0)
      .constructor<ustring>(0)
      .constructor<ustring, ustring, ustring, ustring>(0)
      .constructor<ustring, ustring>(0)
      .constructor<ustring, ustring, ustring, ustring, ustring>(0)
      .method("getElementsByTagName", &Document::getElementsByTagName)
      .method("getElementsByTagNameNS", &Document::getElementsByTagNameNS)
      .method("createElement", &Document::createElement)
      .method("createNotation", &Document::createNotation)
      .method("createEntity", &Document::createEntity)
      .method("createEntityReference", &Document::createEntityReference)
      .method("createElementNS", &Document::createElementNS)
      .method("createTextNode", &Document::createTextNode)
      .method("createAttribute", &Document::createAttribute)
      .method("createAttributeNS", &Document::createAttributeNS)
      .method("createComment", &Document::createComment)
      .method("createProcessingInstruction", &Document::createProcessingInstruction)
      .method("createCDATASection", &Document::createCDATASection)
      .method("createDocumentFragment", &Document::createDocumentFragment)
      .method("createDocumentType", overload<S>(&Document::createDocumentType))
      .method("createDocumentType", overload<S, S, S>(&Document::createDocumentType))
      .method("createNSResolver", &Document::createNSResolver)
      .method("evaluate", overload<S, double>(&Document::evaluate))
      .method("evaluate", overload<S, const Node*, double>(&Document::evaluate))
      .method("evaluate", overload<S, const Node*, const XPathNSResolver*, double>(&Document::evaluate))
      .method("getInputEncoding", &Document::getInputEncoding)
      .method("getXmlEncoding", &Document::getXmlEncoding)
      .method("getXMLEncoding", &Document::getXmlEncoding)
      .method("getXmlStandalone", &Document::getXmlStandalone)
      .method("getXMLStandalone", &Document::getXmlStandalone)
      .method("setXmlStandalone", &Document::setXmlStandalone)
      .method("setXMLStandalone", &Document::setXmlStandalone)
      .method("getXmlVersion", &Document::getXmlVersion)
      .method("getXMLVersion", &Document::getXmlVersion)
      .method("setXmlVersion", &Document::setXmlVersion)
      .method("setXMLVersion", &Document::setXmlVersion)
      .method("getDocumentURI", &Document::getDocumentURI)
      .method("setDocumentURI", &Document::setDocumentURI)
      .method("renameNode", &Document::renameNode)
      .method("importNode", &Document::importNode)
      .method("importNode", &Document::importNodeBase)
      .method("normalizeDocument", &Document::normalizeDocument)
      .method("getDOMConfig", &Document::getDOMConfig)
      .method("xmlwrite", &Document::xmlwrite)
      .direct<&Document::getDocumentElement>("getDocumentElement")
      .direct<&Document::getDoctype>("getDoctype")
      .direct<&Document::getElementById>("getElementById")
      .direct<&Document::getElementById>("getElementByID")
      .property("InputEncoding", &Document::getInputEncoding, readOnly)
      .property("XMLEncoding", &Document::getXmlEncoding, readOnly)
      .property("XMLStandalone", &Document::getXmlStandalone, &Document::setXmlStandalone)
      .property("XMLVersion", &Document::getXmlVersion, &Document::setXmlVersion)
      .property("DocumentURI", &Document::getDocumentURI, &Document::setDocumentURI)
      .property("Configuration", &Document::getDOMConfig, readOnly);
}

}  // namespace paxorel::xml::mi
