"""Calls on the XML classes: the choice among overloads by count and type,
calls that fit no record, and failures with their identifiers, arguments and
codes."""

import pytest

import zelmar
import zelmar.io.xml.dom as dom

ORDERED = 7  # ORDERED_NODE_SNAPSHOT_TYPE


def test_document_constructors_by_count():
    def names(document):  # namespace and tag of the root element, the doctype's name
        root, doctype = document.getDocumentElement(), document.getDoctype()
        return root and root.getNamespaceURI(), root and root.getTagName(), doctype and doctype.getNodeName()

    assert [names(dom.Document(*arguments)) for arguments in
            [(), ("r",), ("urn:x", "p:r"), ("r", "dt", "-//P//EN", "r.dtd"), ("urn:x", "r", "dt", "-//P//EN", "r.dtd")]
            ] == [(None, None, None), ("", "r", None), ("urn:x", "p:r", None), ("", "r", "dt"), ("urn:x", "r", "dt")]
    for arguments in [("a", "b", "c"), tuple("abcdef"), (1,), ("r", None)]:
        with pytest.raises(TypeError) as raised:
            dom.Document(*arguments)
        for signature in ["()", "(str)", "(str, str)", "(str, str, str, str)", "(str, str, str, str, str)"]:
            assert f"  Document{signature}\n" in str(raised.value)


def resolver(d, r):
    return d.createNSResolver(r)


# What each record does with its arguments shows which one ran.
@pytest.mark.parametrize(
    "call, expected",
    [
        (lambda d, r: d.evaluate("s", ORDERED), dom.XPathResult),  # from the root element
        (lambda d, r: d.evaluate("s", r.getFirstChild().getFirstChild(), ORDERED), "xpathUnsupportedError"),
        (lambda d, r: d.evaluate("p:s", r, ORDERED), "xpathNamespaceError"),
        (lambda d, r: d.evaluate("p:s", [r], (resolver(d, r),), ORDERED), dom.XPathResult),
        (lambda d, r: d.evaluate("p:s", r, None, ORDERED), "emptyObjectArgument"),
        (lambda d, r: dom.Document("o").importNode(r).hasChildNodes(), True),  # deep
        (lambda d, r: dom.Document("o").importNode(r, False).hasChildNodes(), False),
        (lambda d, r: d.createDocumentType("q").getNodeName(), "q"),
        (lambda d, r: d.createDocumentType("q", "-//P", "q.dtd").isEqualNode(d.createDocumentType("q")), False),
    ],
)
def test_overloads_chosen_by_count_and_type(call, expected):
    doc = dom.Parser().parseString("<r xmlns:p='urn:p'><s>t</s><p:s/><t/></r>")
    try:
        result = call(doc, doc.getDocumentElement())
    except zelmar.Error as error:
        result = error.identifier.rpartition(":")[2]
    assert type(result) is expected if isinstance(expected, type) else result == expected


@pytest.mark.parametrize(
    "call",
    [
        lambda d, r: d.evaluate("s"),
        lambda d, r: d.importNode(),
        lambda d, r: d.createDocumentType("q", "p"),
        lambda d, r: r.getTagName("extra"),
        lambda d, r: r.getAttribute(1),  # text takes str only
        lambda d, r: r.getAttributeNode(None),  # so does a text pointer
        lambda d, r: r.item("0"),
        lambda d, r: r.appendChild("x"),
    ],
)
def test_calls_that_fit_no_record_list_the_signatures(call):
    doc = dom.Document("r")
    with pytest.raises(TypeError, match=r"no signature of zelmar\.io\.xml\.dom\.\w+\.\w+ takes"):
        call(doc, doc.getDocumentElement())


@pytest.mark.parametrize(
    "call, identifier, arguments, code",
    [
        (lambda: dom.Parser().parseString("<a>"), "paxorel:xml_error:parseStringError",
         ("<a>", "input ended before all started tags were ended; last tag started is 'a'"), None),
        (lambda: dom.Document("a b"), "paxorel:xml_error:docInvalidCharError", ("a b",), None),  # a constructor's
        (lambda: dom.Element(), "ZELMAR:vorlo:NotConstructible", ("zelmar.io.xml.dom.Element",), None),
        # A CharacterData method of an object whose wrapper is of no CharacterData class: the object is null.
        (lambda: dom.CharacterData.getData(dom.Document("r").createNotation("n")), "ZELMAR:vorlo:InvalidObject", (),
         None),
        # A DOM exception that the library passes on untranslated, with its code.
        (lambda: dom.Document("r").getDocumentElement().getAttributes().removeNamedItemNS("", "zz"),
         "xercesc:DOMException", (), 8),
    ],
)
def test_errors_carry_their_identifier_arguments_and_code(call, identifier, arguments, code):
    with pytest.raises(zelmar.Error) as raised:
        call()
    error = raised.value
    assert (error.identifier, error.arguments, error.code) == (identifier, arguments, code)
    assert isinstance(error, Exception) and str(error)


def test_properties_without_a_setter_refuse_assignment():
    root = dom.Document("r").getDocumentElement()
    with pytest.raises(AttributeError, match="no setter"):
        root.TagName = "s"
    with pytest.raises(TypeError):
        root.TextContent = 5
    root.TextContent = "five"
    assert root.getTextContent() == "five"
