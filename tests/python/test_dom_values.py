"""The value table on the XML classes: what each type string takes and gives,
text with zero units and lone surrogates, results that stand for no object,
records that listings leave out, and enumerations."""

import enum

import pytest

import zelmar
import zelmar.io.xml.dom as dom


@pytest.fixture
def doc():
    return dom.Parser().parseString("<r a='1' b='2'><x id='i'/>text<!--c--></r>")


# (what, call, the result) per row of the value table.
@pytest.mark.parametrize(
    "what, call, expected",
    [
        ("text both ways", lambda d, r: (r.setAttribute("k", "é\U0001F600"), r.getAttribute("k"))[1], "é\U0001F600"),
        ("text, property", lambda d, r: r.TagName, "r"),
        ("text pointer argument", lambda d, r: d.getElementById("nowhere"), None),
        ("logical both ways", lambda d, r: r.cloneNode(False).hasChildNodes(), False),
        ("logical property", lambda d, r: (setattr(d, "XMLStandalone", 1), d.XMLStandalone)[1], True),
        ("double result", lambda d, r: r.getAttributes().getLength(), 2.0),
        ("double argument", lambda d, r: r.item(1.9).getNodeValue(), "text"),  # the library truncates
        ("object of its own class", lambda d, r: type(r.item(2)), dom.Comment),
        ("object declared Node", lambda d, r: type(r.getAttributes().item(0)), dom.Attr),
        ("object, none", lambda d, r: r.item(3), None),
        ("object argument", lambda d, r: r.appendChild(d.createElement("y")).getTagName(), "y"),
        ("object in a list: the first", lambda d, r: r.appendChild([d.createComment("c2"), None]).getData(), "c2"),
        ("Node vector", lambda d, r: [type(n) for n in r.getChildren()], [dom.Element, dom.Text, dom.Comment]),
        ("Node vector of a leaf", lambda d, r: r.getLastChild().Children, []),
        ("any: an object", lambda d, r: type(r.getFirstChild()), dom.Element),
        # Direct methods give None where the member gives no object.
        ("any: no child", lambda d, r: r.getLastChild().getFirstChild(), None),
        ("any: no root", lambda d, r: dom.Document().getDocumentElement(), None),
        ("any: no parent", lambda d, r: d.getParentNode(), None),
        ("any: no attribute", lambda d, r: r.getAttributeNode("missing"), None),
        ("any: no owner", lambda d, r: d.createAttribute("a").getOwnerElement(), None),
    ],
)
def test_value_table(doc, what, call, expected):
    result = call(doc, doc.getDocumentElement())
    assert result == expected and type(result) is type(expected)


@pytest.mark.parametrize(
    "value",
    [None, [], [None], dom.Parser(), [dom.Parser()]],
    ids=["None", "empty list", "list of None", "unrelated class", "list of one"],
)
@pytest.mark.parametrize("method", ["appendChild", "setAttributeNode"])  # a Node, an Attr parameter
def test_objects_that_stand_for_no_node_arrive_as_null(doc, value, method):
    with pytest.raises(zelmar.Error) as raised:
        getattr(doc.getDocumentElement(), method)(value)
    assert raised.value.identifier == "paxorel:xml_error:emptyNodeArgument"


def test_text_with_zero_units_goes_in_whole_and_comes_out_cut(doc):
    with pytest.raises(zelmar.Error) as raised:
        dom.Parser().parseString("<a>x\0y</a>")  # the parser sees the zero unit itself
    assert raised.value.arguments == ("<a>x\0y</a>", "invalid character 0x0")
    doc.getDocumentElement().setAttribute("k", "a\0b")
    assert doc.getDocumentElement().getAttribute("k") == "a"


@pytest.mark.parametrize("text", ["\ud800", "x\udfffy", "\udc00\ud800", "\U0001F600\ud83d"])
def test_lone_surrogates_cross_both_ways(doc, text):
    node = doc.createTextNode(text)
    assert node.getData() == text and node.getLength() == len(text.encode("utf-16-le", "surrogatepass")) // 2
    with pytest.raises(zelmar.Error) as raised:
        dom.Parser().parseString(f"<a>{text}</a>")  # not UTF-8: the parser refuses it
    assert raised.value.arguments[0] == f"<a>{text}</a>"


def test_hidden_records_stay_out_of_listings_and_work(doc):
    root, config = doc.getDocumentElement(), dom.Parser().Configuration
    kinds = "ELEMENT ATTRIBUTE TEXT CDATA_SECTION ENTITY_REFERENCE ENTITY PROCESSING_INSTRUCTION COMMENT DOCUMENT"
    constants = [f"{kind}_NODE" for kind in (kinds + " DOCUMENT_TYPE DOCUMENT_FRAGMENT NOTATION").split()]
    positions = "DISCONNECTED PRECEDING FOLLOWING CONTAINS CONTAINED_BY IMPLEMENTATION_SPECIFIC".split()
    constants += [f"DOCUMENT_POSITION_{position}" for position in positions]
    assert [getattr(root, name) for name in constants] == list(range(1, 13)) + [1, 2, 4, 8, 16, 32]
    assert root.HasChildNodes is True
    hidden = {dom.Node: constants + ["HasChildNodes"],
              dom.ParserConfiguration: ["DisableDefaultEntityResolution", "HasPSVIInfo"]}
    for cls, names in hidden.items():
        assert not set(names) & (set(dir(cls)) | set(dir(root if cls is dom.Node else config)))
    # The hidden older names set what their listed twins read.
    config.DisableDefaultEntityResolution, config.HasPSVIInfo = True, True
    assert config.DisableEntityResolution is True and config.HasPSVI is True
    # IdentityConstraintChecking sets its own option and reads SchemaFullChecking's.
    config.SchemaFullChecking, config.IdentityConstraintChecking = True, False
    assert config.IdentityConstraintChecking is True
    config.SchemaFullChecking = False
    assert config.IdentityConstraintChecking is False


def test_enumerations_are_int_enums_of_the_host_values():
    members = {cls: [(m.name, int(m)) for m in cls] for cls in (dom.ParseErrorSeverity, dom.ResourceIdentifierType)}
    assert all(issubclass(cls, enum.IntEnum) for cls in members) and members == {
        dom.ParseErrorSeverity: [("Warning", 0), ("Error", 1), ("FatalError", 2), ("UnknownError", 3)],
        dom.ResourceIdentifierType: [("SchemaGrammar", 0), ("SchemaImport", 1), ("SchemaInclude", 2),
                                     ("SchemaRedefine", 3), ("ExternalEntity", 4), ("Unknown", 255)],
    }
