#pragma once

// Forward declarations of the Xerces classes that public headers name.
#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMAttr;
class DOMCDATASection;
class DOMCharacterData;
class DOMComment;
class DOMConfiguration;
class DOMDocument;
class DOMDocumentFragment;
class DOMDocumentType;
class DOMElement;
class DOMEntity;
class DOMEntityReference;
class DOMImplementation;
class DOMLSParser;
class DOMNamedNodeMap;
class DOMNode;
class DOMNodeList;
class DOMNotation;
class DOMProcessingInstruction;
class DOMText;
class DOMTypeInfo;
XERCES_CPP_NAMESPACE_END
