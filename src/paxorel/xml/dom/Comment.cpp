#include <paxorel/xml/dom/Comment.hpp>

#include <xercesc/dom/DOMComment.hpp>

namespace paxorel::xml {

Comment::Comment(xercesc::DOMComment* impl, std::shared_ptr<Document> owner) : CharacterData(impl, std::move(owner)) {}

const char* Comment::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.Comment"; }

}  // namespace paxorel::xml
