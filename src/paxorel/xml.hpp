#pragma once

// Everything a native client of paxorel-xml needs: the document model, the
// parser, the error types and the exception bases they are thrown as.

#include <paxorel/xml/core/Exception.hpp>
#include <paxorel/xml/core/errors.hpp>
#include <paxorel/xml/core/ustring.hpp>

#include <paxorel/xml/dom/Attr.hpp>
#include <paxorel/xml/dom/CDATASection.hpp>
#include <paxorel/xml/dom/CharacterData.hpp>
#include <paxorel/xml/dom/Comment.hpp>
#include <paxorel/xml/dom/Document.hpp>
#include <paxorel/xml/dom/DocumentConfiguration.hpp>
#include <paxorel/xml/dom/DocumentFragment.hpp>
#include <paxorel/xml/dom/DocumentRegistry.hpp>
#include <paxorel/xml/dom/DocumentType.hpp>
#include <paxorel/xml/dom/Element.hpp>
#include <paxorel/xml/dom/Entity.hpp>
#include <paxorel/xml/dom/EntityReference.hpp>
#include <paxorel/xml/dom/NamedNodeMap.hpp>
#include <paxorel/xml/dom/Node.hpp>
#include <paxorel/xml/dom/NodeList.hpp>
#include <paxorel/xml/dom/Notation.hpp>
#include <paxorel/xml/dom/ProcessingInstruction.hpp>
#include <paxorel/xml/dom/Text.hpp>
#include <paxorel/xml/dom/TypeInfo.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <paxorel/xml/parse/Parser.hpp>
#include <paxorel/xml/parse/ParserConfiguration.hpp>

#include <paxorel/xml/serialize/DOMWriter.hpp>
#include <paxorel/xml/serialize/FileWriter.hpp>
#include <paxorel/xml/serialize/WriterConfiguration.hpp>

#include <paxorel/xml/xpath/XPathEvaluator.hpp>
#include <paxorel/xml/xpath/XPathExpression.hpp>
#include <paxorel/xml/xpath/XPathNSResolver.hpp>
#include <paxorel/xml/xpath/XPathResult.hpp>

#include <basis/except/Exception.hpp>
#include <basis/except/IMsgIDException.hpp>

// Where the library lets a refusal of Xerces through as it stands, it
// arrives as this exception.
#include <xercesc/dom/DOMException.hpp>
