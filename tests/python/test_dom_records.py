"""The package as Python finds it: the 37 classes in registration order with
their descriptions, bases and kinds, and every record each holds, compared
with the tables of the classes."""

import zelmar
import zelmar.io.xml.dom  # noqa: F401 (registers the package)

# A class or type word as the tables write it: a short class name stands for
# "zelmar.io.xml.dom." and the name; a dotted name is whole.
SCALARS = {"string": "VorloFactoryString scalar", "string*": "ustringToString scalar", "logical": "logical scalar",
           "double": "double scalar", "void": "void", "any": "any", "uint32": "uint32"}


def full(word):
    return SCALARS.get(word, word if "." in word else "zelmar.io.xml.dom." + word)


# (short name, description, bases, kind)
CLASSES = [
    ("Attr", "Defines a comment in a document", ("Node",), "handle"),
    ("CDATASection", "Defines character data in a document", ("Text",), "handle"),
    ("CharacterData", "Defines character data in a document", ("Node",), "handle"),
    ("Comment", "Defines a comment in a document", ("CharacterData",), "handle"),
    ("Document", "Class of XML documents", ("Node",), "handle"),
    ("DocumentConfiguration", "Represent a parser configuration", ("Object",), "handle"),
    ("DocumentFragment", "Defines a block of document content", ("Node",), "handle"),
    ("DocumentType", "Defines an XML document type", ("Node",), "handle"),
    ("DOMWriter", "Parse XML files and strings", ("Object",), "handle"),
    ("Element", "Defines an XML document element", ("Node",), "handle"),
    ("FileWriter", "Parse XML files and strings", ("Object",), "handle"),
    ("Entity", "Defines an entity", ("Node",), "handle"),
    ("EntityReference", "Defines a reference to an entity in a document", ("CharacterData",), "handle"),
    ("EntityResolver", "", ("zelmar.io.xml.transform.Object",), "abstract"),
    ("Locator", "Defines an XML file element locator", ("Object",), "handle"),
    ("NamedNodeMap", "Defines a map of nodes with names", ("Object",), "handle"),
    ("Node", "Defines a node of an XML document", ("Object", "zelmar.mixin.Heterogeneous"), "handle"),
    ("NodeList", "Defines a list of XML nodes", ("Object",), "handle"),
    ("Notation", "Declares an entity in a document type", ("CharacterData",), "handle"),
    ("ParseError", "Defines a document parse error", ("Object",), "handle"),
    ("ParseErrorHandler", "", ("Object",), "abstract"),
    ("ParseErrorLocator", "Defines location of a parse error in an XML file.", ("Object",), "handle"),
    ("ParseErrorSeverity", "Parse error severity", ("uint32",), "enumeration"),
    ("Parser", "Parse XML files and strings", ("Object",), "handle"),
    ("ParserConfiguration", "Represent a parser configuration", ("Object",), "handle"),
    ("ProcessingInstruction", "Defines a processing instruction in a document", ("Node",), "handle"),
    ("ResourceIdentifier", "Defines an XML resource identifier", ("Object",), "handle"),
    ("ResourceIdentifierType", "Resource identifier type", ("uint32",), "enumeration"),
    ("ResourceResolver", "", ("zelmar.io.xml.transform.Object",), "abstract"),
    ("Text", "Defines text in document elements", ("CharacterData",), "handle"),
    ("TypeInfo", "Defines an XML document type", ("Object",), "handle"),
    ("WriterConfiguration", "Represent a parser configuration", ("Object",), "handle"),
    ("Object", "Base class for XML objects", (), "handle"),
    ("XPathEvaluator", "Defines an XPath evaluator", ("Object",), "handle"),
    ("XPathExpression", "Defines an XPath expression", ("Object",), "handle"),
    ("XPathNSResolver", "Defines an XPath expression", ("Object",), "handle"),
    ("XPathResult", "Defines an XPath search result", ("Object",), "handle"),
]

# (class, kind, attribute word, type, inputs, names): a row per run of
# records of one shape, its names in registration order. Kinds: C
# constructor, M method, D direct method, P property, A abstract method, V
# value constructor of an enumeration. The object input of a method is left
# out, and a constructor's type is its class; a property's inputs are what
# assigning takes (nothing for a read-only one). A class without rows has no
# records yet.
RECORDS = [
    ("Object", "C", 0x102, "", (), "Object"),
    ("Node", "C", 0x102, "", (), "Node"),
    ("Node", "M", 0, "NodeList", (), "getChildNodes"),
    ("Node", "M", 0, "Node vector", (), "getChildren"),
    ("Node", "M", 0, "NamedNodeMap", (), "getAttributes"),
    ("Node", "M", 0, "string", (), "getLocalName getNodeName getNamespaceURI"),
    ("Node", "M", 0, "double", (), "getNodeType"),
    ("Node", "M", 0, "string", (), "getNodeValue getTextContent"),
    ("Node", "M", 0, "logical", (), "hasAttributes hasChildNodes"),
    ("Node", "M", 0, "string", (), "getPrefix"),
    ("Node", "M", 0, "void", ("string",), "setPrefix"),
    ("Node", "M", 0, "Node", ("Node",), "appendChild"),
    ("Node", "M", 0, "Node", ("logical",), "cloneNode"),
    ("Node", "M", 0, "Node", ("Node", "Node"), "insertBefore replaceChild"),
    ("Node", "M", 0, "Node", ("Node",), "removeChild"),
    ("Node", "M", 0, "void", ("string",), "setNodeValue"),
    ("Node", "M", 0, "void", (), "normalize"),
    ("Node", "M", 0, "logical", ("Node",), "isSameNode isEqualNode eq"),
    ("Node", "M", 0, "string", (), "getBaseURI"),
    ("Node", "M", 0, "double", ("Node",), "compareDocumentPosition"),
    ("Node", "M", 0, "void", ("string",), "setTextContent"),
    ("Node", "M", 0, "string", ("string",), "lookupPrefix"),
    ("Node", "M", 0, "logical", ("string",), "isDefaultNamespace"),
    ("Node", "M", 0, "string", ("string",), "lookupNamespaceURI"),
    ("Node", "P", 0x800, "double", (),
        "ELEMENT_NODE ATTRIBUTE_NODE TEXT_NODE CDATA_SECTION_NODE ENTITY_REFERENCE_NODE ENTITY_NODE "
        "PROCESSING_INSTRUCTION_NODE COMMENT_NODE DOCUMENT_NODE DOCUMENT_TYPE_NODE DOCUMENT_FRAGMENT_NODE "
        "NOTATION_NODE DOCUMENT_POSITION_DISCONNECTED DOCUMENT_POSITION_PRECEDING "
        "DOCUMENT_POSITION_FOLLOWING DOCUMENT_POSITION_CONTAINS DOCUMENT_POSITION_CONTAINED_BY "
        "DOCUMENT_POSITION_IMPLEMENTATION_SPECIFIC"),
    ("Node", "M", 0, "string", (), "getNodeTypeName"),
    ("Node", "M", 0, "string", ("double",), "getPositionTypeName"),
    ("Node", "M", 0, "double", (), "getLength"),
    ("Node", "M", 0, "Node", ("double",), "item child node"),
    ("Node", "D", 0, "any", (),
        "getParentNode getFirstChild getLastChild getNextSibling getPreviousSibling getOwnerDocument"),
    ("Node", "P", 0, "string", ("string",), "TextContent"),
    ("Node", "P", 0x800, "logical", (), "HasChildNodes"),
    ("Node", "P", 0, "Node vector", (), "Children"),
    ("Document", "C", 0, "", (), "Document"),
    ("Document", "C", 0, "", ("string",), "Document"),
    ("Document", "C", 0, "", ("string", "string", "string", "string"), "Document"),
    ("Document", "C", 0, "", ("string", "string"), "Document"),
    ("Document", "C", 0, "", ("string", "string", "string", "string", "string"), "Document"),
    ("Document", "M", 0, "NodeList", ("string",), "getElementsByTagName"),
    ("Document", "M", 0, "NodeList", ("string", "string"), "getElementsByTagNameNS"),
    ("Document", "M", 0, "Element", ("string",), "createElement"),
    ("Document", "M", 0, "Notation", ("string",), "createNotation"),
    ("Document", "M", 0, "Entity", ("string",), "createEntity"),
    ("Document", "M", 0, "EntityReference", ("string",), "createEntityReference"),
    ("Document", "M", 0, "Element", ("string", "string"), "createElementNS"),
    ("Document", "M", 0, "Text", ("string",), "createTextNode"),
    ("Document", "M", 0, "Attr", ("string",), "createAttribute"),
    ("Document", "M", 0, "Attr", ("string", "string"), "createAttributeNS"),
    ("Document", "M", 0, "Comment", ("string",), "createComment"),
    ("Document", "M", 0, "ProcessingInstruction", ("string", "string"), "createProcessingInstruction"),
    ("Document", "M", 0, "CDATASection", ("string",), "createCDATASection"),
    ("Document", "M", 0, "DocumentFragment", (), "createDocumentFragment"),
    ("Document", "M", 0, "DocumentType", ("string",), "createDocumentType"),
    ("Document", "M", 0, "DocumentType", ("string", "string", "string"), "createDocumentType"),
    ("Document", "M", 0, "XPathNSResolver", ("Node",), "createNSResolver"),
    ("Document", "M", 0, "XPathResult", ("string", "double"), "evaluate"),
    ("Document", "M", 0, "XPathResult", ("string", "Node", "double"), "evaluate"),
    ("Document", "M", 0, "XPathResult", ("string", "Node", "XPathNSResolver", "double"), "evaluate"),
    ("Document", "M", 0, "string", (), "getInputEncoding getXmlEncoding getXMLEncoding"),
    ("Document", "M", 0, "logical", (), "getXmlStandalone getXMLStandalone"),
    ("Document", "M", 0, "void", ("logical",), "setXmlStandalone setXMLStandalone"),
    ("Document", "M", 0, "string", (), "getXmlVersion getXMLVersion"),
    ("Document", "M", 0, "void", ("string",), "setXmlVersion setXMLVersion"),
    ("Document", "M", 0, "string", (), "getDocumentURI"),
    ("Document", "M", 0, "void", ("string",), "setDocumentURI"),
    ("Document", "M", 0, "Node", ("Node", "string", "string"), "renameNode"),
    ("Document", "M", 0, "Node", ("Node",), "importNode"),
    ("Document", "M", 0, "Node", ("Node", "logical"), "importNode"),
    ("Document", "M", 0, "void", (), "normalizeDocument"),
    ("Document", "M", 0, "DocumentConfiguration", (), "getDOMConfig"),
    ("Document", "M", 0, "void", ("string",), "xmlwrite"),
    ("Document", "D", 0, "any", (), "getDocumentElement getDoctype"),
    ("Document", "D", 0, "any", ("string*",), "getElementById getElementByID"),
    ("Document", "P", 0, "string", (), "InputEncoding XMLEncoding"),
    ("Document", "P", 0, "logical", ("logical",), "XMLStandalone"),
    ("Document", "P", 0, "string", ("string",), "XMLVersion DocumentURI"),
    ("Document", "P", 0, "DocumentConfiguration", (), "Configuration"),
    ("Element", "C", 0x102, "", (), "Element"),
    ("Element", "M", 0, "string", (), "getTagName char"),
    ("Element", "M", 0, "NodeList", ("string",), "getElementsByTagName"),
    ("Element", "M", 0, "NodeList", ("string", "string"), "getElementsByTagNameNS"),
    ("Element", "M", 0, "string", ("string",), "getAttribute"),
    ("Element", "M", 0, "string", ("string", "string"), "getAttributeNS"),
    ("Element", "M", 0, "logical", ("string",), "hasAttribute"),
    ("Element", "M", 0, "logical", ("string", "string"), "hasAttributeNS"),
    ("Element", "M", 0, "double", (), "getChildElementCount getNodeIndex"),
    ("Element", "M", 0, "TypeInfo", (), "getSchemaTypeInfo"),
    ("Element", "M", 0, "void", ("string", "string"), "setAttribute"),
    ("Element", "M", 0, "void", ("string", "string", "string"), "setAttributeNS"),
    ("Element", "M", 0, "Attr", ("Attr",), "setAttributeNode setAttributeNodeNS removeAttributeNode"),
    ("Element", "M", 0, "void", ("string",), "removeAttribute"),
    ("Element", "M", 0, "void", ("string", "string"), "removeAttributeNS"),
    ("Element", "M", 0, "void", ("string", "logical"), "setIdAttribute"),
    ("Element", "M", 0, "void", ("string", "string", "logical"), "setIdAttributeNS"),
    ("Element", "M", 0, "void", ("Attr", "logical"), "setIdAttributeNode"),
    ("Element", "M", 0, "void", ("string", "logical"), "setIDAttribute"),
    ("Element", "M", 0, "void", ("string", "string", "logical"), "setIDAttributeNS"),
    ("Element", "M", 0, "void", ("Attr", "logical"), "setIDAttributeNode"),
    ("Element", "D", 0, "any", ("string*",), "getAttributeNode"),
    ("Element", "D", 0, "any", ("string*", "string*"), "getAttributeNodeNS"),
    ("Element", "D", 0, "any", (),
        "getFirstElementChild getLastElementChild getNextElementSibling getPreviousElementSibling"),
    ("Element", "P", 0, "string", (), "TagName"),
    ("Element", "P", 0, "logical", (), "HasAttributes"),
    ("Attr", "C", 0x102, "", (), "Attr"),
    ("Attr", "M", 0, "string", (), "getName"),
    ("Attr", "M", 0, "logical", (), "getSpecified"),
    ("Attr", "M", 0, "string", (), "getValue char"),
    ("Attr", "M", 0, "void", ("string",), "setValue"),
    ("Attr", "M", 0, "logical", (), "isID isId"),
    ("Attr", "M", 0, "TypeInfo", (), "getSchemaTypeInfo"),
    ("Attr", "D", 0, "any", (), "getOwnerElement"),
    ("Attr", "P", 0, "string", (), "Name"),
    ("Attr", "P", 0, "string", ("string",), "Value"),
    ("Attr", "P", 0, "logical", (), "IsID"),
    ("CharacterData", "C", 0x102, "", (), "CharacterData"),
    ("CharacterData", "M", 0, "string", (), "getData"),
    ("CharacterData", "M", 0, "double", (), "getLength"),
    ("CharacterData", "M", 0, "string", ("double", "double"), "substringData"),
    ("CharacterData", "M", 0, "void", ("string",), "appendData"),
    ("CharacterData", "M", 0, "void", ("double", "string"), "insertData"),
    ("CharacterData", "M", 0, "void", ("double", "double"), "deleteData"),
    ("CharacterData", "M", 0, "void", ("double", "double", "string"), "replaceData"),
    ("CharacterData", "M", 0, "void", ("string",), "setData"),
    ("CharacterData", "P", 0, "double", (), "Length"),
    ("Text", "C", 0x102, "", (), "Text"),
    ("Text", "M", 0, "Text", ("double",), "splitText"),
    ("Text", "M", 0, "logical", (), "getIsElementContentWhitespace"),
    ("NodeList", "C", 0x102, "", (), "NodeList"),
    ("NodeList", "M", 0, "double", (), "getLength"),
    ("NodeList", "M", 0, "Node", ("double",), "item node"),
    ("NodeList", "M", 0, "string", (), "getTextContent"),
    ("NodeList", "P", 0, "double", (), "Length"),
    ("NodeList", "P", 0, "string", (), "TextContent"),
    ("NamedNodeMap", "C", 0x102, "", (), "NamedNodeMap"),
    ("NamedNodeMap", "M", 0, "double", (), "getLength"),
    ("NamedNodeMap", "M", 0, "Node", ("string",), "getNamedItem"),
    ("NamedNodeMap", "M", 0, "Node", ("string", "string"), "getNamedItemNS"),
    ("NamedNodeMap", "M", 0, "Node", ("double",), "item"),
    ("NamedNodeMap", "M", 0, "Node", ("string", "string"), "removeNamedItemNS"),
    ("NamedNodeMap", "M", 0, "Node", ("Node",), "setNamedItem setNamedItemNS"),
    ("NamedNodeMap", "P", 0, "double", (), "Length"),
    ("Parser", "C", 0, "", (), "Parser"),
    ("Parser", "M", 0, "Document", ("string",), "parseURI parseFile parseString"),
    ("Parser", "P", 0, "ParserConfiguration", (), "Configuration"),
    ("ParserConfiguration", "C", 0x102, "", (), "ParserConfiguration"),
    ("ParserConfiguration", "P", 0, "logical", ("logical",), "Namespaces ElementContentWhitespace LoadExternalDTD"),
    ("ParserConfiguration", "P", 0x800, "logical", ("logical",), "DisableDefaultEntityResolution"),
    ("ParserConfiguration", "P", 0, "logical", ("logical",),
        "DisableEntityResolution DisallowDoctype Entities StandardURIConformant Validate SkipDTDValidation "
        "ValidationErrorAsFatal ContinueAfterFatalError Comments DoXInclude"),
    ("ParserConfiguration", "P", 0, "string", ("string",), "ExternalSchemaLocation ExternalNoNamespaceSchemaLocation"),
    ("ParserConfiguration", "P", 0, "logical", ("logical",),
        "LoadSchema Schema ValidateIfSchema SchemaFullChecking DatatypeNormalization IgnoreAnnotations "
        "ValidateAnnotations GenerateSyntheticAnnotations CacheGrammarFromParse UseCachedGrammarInParse "
        "HandleMultipleImports"),
    ("ParserConfiguration", "P", 0x800, "logical", ("logical",), "HasPSVIInfo"),
    ("ParserConfiguration", "P", 0, "logical", ("logical",), "HasPSVI IdentityConstraintChecking"),
    ("EntityResolver", "A", 0, "string*", ("zelmar.io.xml.transform.EntityResolver", "zelmar.io.xml.ResourceIdentifier"),
        "resolveEntity"),
    ("ParseErrorHandler", "A", 0, "logical", ("ParseErrorHandler", "ParseError"), "handleError"),
    ("ResourceResolver", "A", 0, "string*", ("zelmar.io.xml.transform.ResourceResolver", "zelmar.io.xml.ResourceIdentifier"),
        "resolveResource"),
    ("ParseErrorSeverity", "V", 0, "", ("uint32",), "ParseErrorSeverity"),
    ("ResourceIdentifierType", "V", 0, "", ("uint32",), "ResourceIdentifierType"),
]
KINDS = {"C": "constructor", "M": "method", "D": "direct", "P": "property", "A": "abstract", "V": "value-constructor"}


def expected(cls, kind, word, type_, inputs, name):
    first = {"C": [None], "M": [full(cls)], "D": [full(cls) + " scalar"]}.get(kind, [])
    return KINDS[kind], name, word, full(cls if kind in "CV" else type_), tuple(first + [full(i) for i in inputs])


def held(info):
    """The records of a class as introspection shows them: constructors and
    methods, then properties, each in registration order."""
    return ([(m.kind, m.name, m.attributes, m.output, m.inputs) for m in info.constructors + info.methods] +
            [(p.kind, p.name, p.attributes, p.type, (p.type,) if p.settable else ()) for p in info.properties])


def test_the_classes_and_their_records_are_the_tables_in_registration_order():
    classes = zelmar.package("zelmar.io.xml.dom").classes
    assert [(c.name, c.full_name, c.description, c.detailed_description, c.superclasses, c.kind) for c in classes] == [
        (name, full(name), description, "" if kind == "abstract" else description,
         tuple((full(base), (0, 0, 1) if kind == "enumeration" else (1, 0, 1)) for base in bases), kind)
        for name, description, bases, kind in CLASSES]
    for c in classes:
        enumeration = c.kind == "enumeration"
        assert (c.is_ok_to_destroy, c.is_handle_class, c.is_constructed_on_load) == (not enumeration, not enumeration,
                                                                                      False), c.name
        rows = sorted((row[:5] + (name,) for row in RECORDS if row[0] == c.name for name in row[5].split()),
                      key=lambda row: row[1] == "P")
        assert held(c) == [expected(*row) for row in rows], c.name
