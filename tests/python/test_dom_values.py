"""The value table on the XML classes: what each type string takes and gives,
text with zero units and lone surrogates, results that stand for no object,
and the records that listings leave out."""

import enum

import pytest

import zelmar
import zelmar.io.xml.dom as dom

SAMPLE = "<r a='1' b='2'><x id='i'/>text<!--c--></r>"


@pytest.fixture
def doc():
    return dom.Parser().parseString(SAMPLE)


@pytest.fixture
def root(doc):
    return doc.getDocumentElement()


# (what, call, the result's type or the result) per row of the value table.
@pytest.mark.parametrize(
    "what, call, expected",
    [
        ("text both ways", lambda d, r: (r.setAttribute("k", "é\U0001F600"), r.getAttribute("k"))[1], "é\U0001F600"),
        ("text, property", lambda d, r: r.TagName, "r"),
        ("text pointer argument", lambda d, r: d.getElementById("nowhere"), None),
        ("logical result", lambda d, r: r.hasAttributes(), True),
        ("logical from int", lambda d, r: r.cloneNode(0).hasChildNodes(), False),
        ("logical property", lambda d, r: (setattr(d, "XMLStandalone", 1), d.XMLStandalone)[1], True),
        ("double result", lambda d, r: r.getAttributes().getLength(), 2.0),
        ("double from int", lambda d, r: r.item(1).getNodeValue(), "text"),
        ("double from float", lambda d, r: r.item(1.9).getNodeValue(), "text"),  # the library truncates
        ("double from bool", lambda d, r: r.item(True).getNodeValue(), "text"),
        ("object result of its own class", lambda d, r: type(r.item(2)), dom.Comment),
        ("object result, declared Node", lambda d, r: type(r.getAttributes().item(0)), dom.Attr),
        ("object result, null", lambda d, r: r.item(3), None),
        ("object argument", lambda d, r: r.appendChild(d.createElement("y")).getTagName(), "y"),
        ("object in a list: the first", lambda d, r: r.appendChild([d.createComment("c2"), None]).getData(), "c2"),
        ("object in a tuple", lambda d, r: r.appendChild((d.createTextNode("t2"),)).getData(), "t2"),
        ("Node vector", lambda d, r: [type(n) for n in r.getChildren()], [dom.Element, dom.Text, dom.Comment]),
        ("Node vector of a leaf", lambda d, r: r.getLastChild().Children, []),
        ("any: an object", lambda d, r: type(r.getFirstChild()), dom.Element),
        ("any: none", lambda d, r: r.getLastChild().getFirstChild(), None),
    ],
)
def test_value_table(doc, root, what, call, expected):
    assert call(doc, root) == expected
    if isinstance(expected, (bool, float)):
        assert type(call(doc, root)) is type(expected)


@pytest.mark.parametrize(
    "value",
    [None, [], [None], dom.Parser(), [dom.Parser()]],
    ids=["None", "empty list", "list of None", "unrelated class", "list of one"],
)
def test_objects_that_stand_for_no_node_arrive_as_null(root, value):
    with pytest.raises(zelmar.Error) as raised:
        root.appendChild(value)
    assert raised.value.identifier == "paxorel:xml_error:emptyNodeArgument"


@pytest.mark.parametrize(
    "call",
    [
        lambda d, r: r.getAttribute(1),  # text takes str only
        lambda d, r: r.getAttributeNode(None),  # so does a text pointer
        lambda d, r: r.item("0"),
        lambda d, r: r.appendChild("x"),
        lambda d, r: r.appendChild([d.createElement("y"), "x"]),
    ],
)
def test_arguments_of_other_types_fit_no_signature(doc, root, call):
    with pytest.raises(TypeError, match="no signature of"):
        call(doc, root)


# Direct methods give None where the member gives no object.
@pytest.mark.parametrize(
    "call",
    [
        lambda d, r: dom.Document().getDocumentElement(),
        lambda d, r: d.getDoctype(),
        lambda d, r: d.getParentNode(),
        lambda d, r: d.getElementById("i"),  # no attribute is of type ID without a DTD
        lambda d, r: r.getAttributeNode("missing"),
        lambda d, r: r.getFirstChild().getFirstElementChild(),
        lambda d, r: d.createAttribute("a").getOwnerElement(),
        lambda d, r: r.getNextSibling(),
    ],
)
def test_direct_methods_give_none_for_no_object(doc, root, call):
    assert call(doc, root) is None


def test_text_with_zero_units_goes_in_whole_and_comes_out_cut(root):
    parser = dom.Parser()
    with pytest.raises(zelmar.Error) as raised:
        parser.parseString("<a>x\0y</a>")  # the parser sees the zero unit itself
    assert raised.value.arguments == ("<a>x\0y</a>", "invalid character 0x0")
    root.setAttribute("k", "a\0b")
    assert root.getAttribute("k") == "a"


@pytest.mark.parametrize("text", ["\ud800", "x\udfffy", "\udc00\ud800", "\U0001F600\ud83d"])
def test_lone_surrogates_cross_both_ways(doc, root, text):
    root.setAttribute("k", text)
    assert root.getAttribute("k") == text
    node = doc.createTextNode(text)
    assert node.getData() == text and node.getLength() == len(text.encode("utf-16-le", "surrogatepass")) // 2
    with pytest.raises(zelmar.Error) as raised:
        dom.Parser().parseString(f"<a>{text}</a>")  # not UTF-8: the parser refuses it
    assert raised.value.arguments[0] == f"<a>{text}</a>"


# (class, name, how it is read) of records with words that keep them out of listings.
@pytest.mark.parametrize(
    "cls, name, read",
    [
        (dom.Node, "HasChildNodes", lambda d, r, c: r.HasChildNodes),
        (dom.Node, "ELEMENT_NODE", lambda d, r, c: r.ELEMENT_NODE == 1 and d.DOCUMENT_NODE == 9),
        (dom.Node, "DOCUMENT_POSITION_CONTAINED_BY", lambda d, r, c: r.DOCUMENT_POSITION_CONTAINED_BY == 16),
        (dom.ParserConfiguration, "DisableDefaultEntityResolution", lambda d, r, c: c.DisableDefaultEntityResolution is False),
        (dom.ParserConfiguration, "HasPSVIInfo", lambda d, r, c: c.HasPSVIInfo is False),
    ],
)
def test_hidden_records_stay_out_of_listings_and_work(doc, root, cls, name, read):
    config = dom.Parser().Configuration
    assert name not in dir(cls) and name not in dir(config if cls is dom.ParserConfiguration else root)
    assert read(doc, root, config)
    assert [p.attributes for p in zelmar.classinfo(cls).properties if p.name == name] == [0x800]


@pytest.mark.parametrize("hidden, twin", [("DisableDefaultEntityResolution", "DisableEntityResolution"), ("HasPSVIInfo", "HasPSVI")])
def test_hidden_properties_set_what_their_listed_twins_read(hidden, twin):
    config = dom.Parser().Configuration
    setattr(config, hidden, True)
    assert getattr(config, twin) is True


def test_identity_constraint_checking_reads_schema_full_checking():
    config = dom.Parser().Configuration
    config.SchemaFullChecking = True
    config.IdentityConstraintChecking = False  # sets its own option ...
    assert config.IdentityConstraintChecking is True  # ... and reads the other one
    config.SchemaFullChecking = False
    assert config.IdentityConstraintChecking is False


def test_enumerations_are_int_enums_of_the_host_values():
    assert issubclass(dom.ParseErrorSeverity, enum.IntEnum)
    assert [(m.name, int(m)) for m in dom.ParseErrorSeverity] == [
        ("Warning", 0), ("Error", 1), ("FatalError", 2), ("UnknownError", 3)]
