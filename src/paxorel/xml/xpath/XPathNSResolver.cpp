#include <paxorel/xml/xpath/XPathNSResolver.hpp>

#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/Document.hpp>

#include <xercesc/dom/DOMXPathNSResolver.hpp>

namespace paxorel::xml {

XPathNSResolver::XPathNSResolver() = default;

XPathNSResolver::XPathNSResolver(xercesc::DOMXPathNSResolver* resolver, std::shared_ptr<Document> owner)
    : resolver_(resolver), owner_(std::move(owner)) {}

// The Xerces resolver points into the document: it goes first.
XPathNSResolver::~XPathNSResolver() { resolver_.reset(); }

const char* XPathNSResolver::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.XPathNSResolver"; }

xercesc::DOMXPathNSResolver* XPathNSResolver::resolver() const {
  if (!resolver_) raiseXmlError(*this, xml_error::emptyObjectArgument("XPathNSResolver"));
  return resolver_.get();
}

void XPathNSResolver::addNamespaceBinding(const ustring& prefix, const ustring& namespaceURI) {
  resolver()->addNamespaceBinding(XercesString(prefix), XercesString(namespaceURI));
}

ustring XPathNSResolver::lookupNamespaceURI(const ustring& prefix) const {
  return XercesString::toUstring(resolver()->lookupNamespaceURI(XercesString(prefix)));
}

ustring XPathNSResolver::lookupPrefix(const ustring& namespaceURI) const {
  return XercesString::toUstring(resolver()->lookupPrefix(XercesString(namespaceURI)));
}

}  // namespace paxorel::xml
