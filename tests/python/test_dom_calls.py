"""Calls on the XML classes: the choice among overloads by count and type,
and failures with their identifiers, arguments and codes."""

import pytest

import zelmar
import zelmar.io.xml.dom as dom


def names(document):
    """Namespace and tag of the root element, and the doctype's name."""
    root, doctype = document.getDocumentElement(), document.getDoctype()
    return (
        root and root.getNamespaceURI(),
        root and root.getTagName(),
        doctype and doctype.getNodeName(),
    )


@pytest.mark.parametrize(
    "arguments, expected",
    [
        ((), (None, None, None)),
        (("r",), ("", "r", None)),
        (("urn:x", "p:r"), ("urn:x", "p:r", None)),
        (("r", "dt", "-//P//EN", "r.dtd"), ("", "r", "dt")),
        (("urn:x", "r", "dt", "-//P//EN", "r.dtd"), ("urn:x", "r", "dt")),
    ],
)
def test_document_constructors_by_count(arguments, expected):
    assert names(dom.Document(*arguments)) == expected


@pytest.mark.parametrize("arguments", [("a", "b", "c"), tuple("abcdef"), (1,), ("r", None)])
def test_other_document_constructions_list_the_signatures(arguments):
    with pytest.raises(TypeError) as raised:
        dom.Document(*arguments)
    message = str(raised.value)
    for signature in ["Document()", "Document(str)", "Document(str, str)", "Document(str, str, str, str)",
                      "Document(str, str, str, str, str)"]:
        assert f"  {signature}\n" in message


@pytest.fixture
def doc():
    return dom.Parser().parseString("<r xmlns:p='urn:p'><s/><p:s/><t/></r>")


ORDERED = 7  # ORDERED_NODE_SNAPSHOT_TYPE


def resolver(d, r):
    return d.createNSResolver(r)


# What each record does with its arguments shows which one ran.
@pytest.mark.parametrize(
    "call, expected",
    [
        (lambda d, r: d.evaluate("s", ORDERED), dom.XPathResult),  # from the root element
        (lambda d, r: d.evaluate("s", r.getFirstChild(), ORDERED), dom.XPathResult),
        (lambda d, r: d.evaluate("s", r.getFirstChild().getFirstChild(), ORDERED), "xpathUnsupportedError"),
        (lambda d, r: d.evaluate("s", dom.Document("o").getDocumentElement(), ORDERED), "xpathWrongDocumentError"),
        (lambda d, r: d.evaluate("p:s", r, ORDERED), "xpathNamespaceError"),
        (lambda d, r: d.evaluate("p:s", r, resolver(d, r), ORDERED), dom.XPathResult),
        (lambda d, r: d.evaluate("p:s", [r], (resolver(d, r),), ORDERED), dom.XPathResult),
        (lambda d, r: d.evaluate("p:s", r, None, ORDERED), "emptyObjectArgument"),
        (lambda d, r: dom.Document("o").importNode(r).hasChildNodes(), True),  # deep
        (lambda d, r: dom.Document("o").importNode(r, False).hasChildNodes(), False),
        (lambda d, r: dom.Document("o").importNode(r, True).getChildren()[1].getPrefix(), "p"),
        (lambda d, r: d.createDocumentType("q").getNodeName(), "q"),
        (lambda d, r: d.createDocumentType("q", "-//P", "q.dtd").isEqualNode(d.createDocumentType("q")), False),
        (lambda d, r: d.createDocumentType("q", "-//P", "q.dtd").isEqualNode(d.createDocumentType("q", "-//P", "q.dtd")), True),
    ],
)
def test_overloads_chosen_by_count_and_type(call, expected):
    doc = dom.Parser().parseString("<r xmlns:p='urn:p'><s>t</s><p:s/><t/></r>")
    try:
        result = call(doc, doc.getDocumentElement())
    except zelmar.Error as error:
        result = error.identifier.rpartition(":")[2]
    assert type(result) is expected if isinstance(expected, type) else result == expected


@pytest.fixture
def doc():
    return dom.Parser().parseString("<r/>")


@pytest.mark.parametrize(
    "call",
    [
        lambda d: d.evaluate("s"),
        lambda d: d.evaluate("s", d.getDocumentElement(), None, ORDERED, 0),
        lambda d: d.importNode(),
        lambda d: d.createDocumentType("q", "p"),
        lambda d: d.getDocumentElement().getTagName("extra"),
    ],
)
def test_calls_that_fit_no_record_list_the_signatures(doc, call):
    with pytest.raises(TypeError, match=r"no signature of zelmar\.io\.xml\.dom\.\w+\.\w+ takes"):
        call(doc)


def raised_by(call):
    with pytest.raises(zelmar.Error) as raised:
        call()
    return raised.value


@pytest.mark.parametrize(
    "call, identifier, arguments",
    [
        (lambda: dom.Parser().parseString("<a>"), "paxorel:xml_error:parseStringError",
         ("<a>", "input ended before all started tags were ended; last tag started is 'a'")),
        (lambda: dom.Parser().parseFile("/no/such.xml"), "paxorel:xml_error:inputFileNonexistentError",
         ("/no/such.xml",)),
        (lambda: dom.Document("r").createElement("1x"), "paxorel:xml_error:docCreateElemInvalidCharError", ("1x",)),
        (lambda: dom.Document("r").getDocumentElement().appendChild(dom.Document("s").createElement("x")),
         "paxorel:xml_error:nodeAppendChildWrongDocumentError", ("x",)),
        (lambda: dom.Document("r").evaluate("@id", ORDERED), "paxorel:xml_error:xpathInvalidPathError", ("@id",)),
        (lambda: dom.Element(), "ZELMAR:vorlo:NotConstructible", ("zelmar.io.xml.dom.Element",)),
        (lambda: dom.NodeList(), "ZELMAR:vorlo:NotConstructible", ("zelmar.io.xml.dom.NodeList",)),
        # A CharacterData method of an object whose wrapper is of no CharacterData class: the object is null.
        (lambda: dom.CharacterData.getData(dom.Document("r").createNotation("n")), "ZELMAR:vorlo:InvalidObject", ()),
        (lambda: dom.CharacterData.getLength(dom.Document("r").createEntityReference("e")),
         "ZELMAR:vorlo:InvalidObject", ()),
    ],
)
def test_errors_carry_their_identifier_and_arguments(call, identifier, arguments):
    error = raised_by(call)
    assert (error.identifier, error.arguments) == (identifier, arguments)
    assert isinstance(error, Exception) and str(error) and error.code is None


@pytest.mark.parametrize(
    "call, code",
    [
        (lambda d: d.createTextNode("ab").splitText(5), 1),  # INDEX_SIZE_ERR
        (lambda d: d.getDocumentElement().getAttributes().removeNamedItemNS("", "zz"), 8),  # NOT_FOUND_ERR
    ],
)
def test_dom_exceptions_pass_untranslated_with_their_code(call, code):
    error = raised_by(lambda: call(dom.Document("r")))
    assert (error.identifier, error.code, error.arguments) == ("xercesc:DOMException", code, ())
    assert str(error)  # Xerces's message


def test_properties_without_a_setter_refuse_assignment():
    root = dom.Document("r").getDocumentElement()
    with pytest.raises(AttributeError, match="no setter"):
        root.TagName = "s"
    with pytest.raises(TypeError):
        root.TextContent = 5
    root.TextContent = "five"
    assert root.getTextContent() == "five"
