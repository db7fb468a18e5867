#pragma once

#include <paxorel/xml/core/ustring.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>
#include <paxorel/xml/xpath/XPathResult.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMXPathNSResolver;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {

class Document;

/// Answers which namespace a prefix of an XPath expression stands for: by
/// the declarations in scope at the node it was made for, and by bindings
/// added to it. It keeps its document alive. None of its operations
/// translates Xerces's exceptions; on a resolver without its Xerces object
/// they fail with emptyObjectArgument.
class XPathNSResolver : public XMLObject {
 public:
  /// A resolver without a Xerces object, as the host's constructor makes it.
  XPathNSResolver();
  /// Takes over `resolver` (null allowed): it is released when this wrapper
  /// goes, before the hold on `owner` ends.
  XPathNSResolver(xercesc::DOMXPathNSResolver* resolver, std::shared_ptr<Document> owner);
  ~XPathNSResolver() override;

  const char* getFullyQualifiedVorloTypeName() const override;
  /// The Xerces resolver, or null.
  xercesc::DOMXPathNSResolver* getImpl() const noexcept { return resolver_.get(); }

  /// Binds `prefix` to `namespaceURI` in this resolver, ahead of the
  /// declarations in the document.
  void addNamespaceBinding(const ustring& prefix, const ustring& namespaceURI);
  /// The namespace of `prefix`; empty when unbound (or bound to nothing).
  ustring lookupNamespaceURI(const ustring& prefix) const;
  /// A prefix bound to `namespaceURI`; empty when there is none.
  ustring lookupPrefix(const ustring& namespaceURI) const;

 private:
  xercesc::DOMXPathNSResolver* resolver() const;  // emptyObjectArgument when missing

  std::unique_ptr<xercesc::DOMXPathNSResolver, detail::Release> resolver_;
  std::shared_ptr<Document> owner_;
};

}  // namespace paxorel::xml
