"""Identity and lifetime of XML objects: one wrapper, one Python object; a new
one per navigation; nodes that outlive every Python reference to their
document; interpreter exit with documents alive."""

import gc
import weakref

import pytest

import zelmar
import zelmar.io.xml.dom as dom
from conftest import run_python

XML = "<r><a id='1'>one</a><b/></r>"


def test_one_wrapper_is_one_object_and_each_navigation_a_new_one():
    doc = dom.Parser().parseString(XML)
    root = doc.getDocumentElement()
    child, attribute = doc.createElement("c"), doc.createAttribute("k")
    assert root.appendChild(child) is child  # the argument given back
    assert root.setAttributeNode(attribute) is attribute and attribute.getOwnerElement().isSameNode(root)
    assert root.getOwnerDocument() is doc  # a document has one wrapper
    routes = [  # by a direct method, a Node vector, a method
        doc.getFirstChild(), root.getFirstChild().getParentNode(), root.getChildren()[0].getParentNode(),
        doc.getElementsByTagName("r").item(0),
    ]
    assert len({id(o) for o in routes + [root]}) == len(routes) + 1
    assert all(o.isSameNode(root) and not o.isSameNode(child) for o in routes)


def test_nodes_and_options_outlive_their_document_and_parser_in_python():
    parser = dom.Parser()
    config, doc = parser.Configuration, parser.parseString(XML)
    a = doc.getDocumentElement().getFirstChild()
    gone = weakref.ref(doc)
    del doc, parser
    gc.collect()
    assert gone() is None
    config.Comments = False
    assert config.Comments is False
    assert (a.getTagName(), a.getAttribute("id"), a.getTextContent()) == ("a", "1", "one")
    # Reached by navigation, the document has no registry entry until
    # getOwnerDocument gives it out again.
    parent = a.getParentNode().getParentNode()
    assert parent.getNodeName() == "#document" and parent.getNodeType() == 9
    with pytest.raises(zelmar.Error) as raised:
        parent.getDocumentElement()
    assert raised.value.identifier == "std:out_of_range"
    assert a.getOwnerDocument() is parent
    a.appendChild(parent.createElement("z"))
    del parent
    gc.collect()
    assert a.getLastChild().getTagName() == "z" and a.getOwnerDocument().getDocumentElement().getTagName() == "r"


def test_interpreter_exit_with_documents_alive():
    assert run_python("""
        import zelmar.io.xml.dom as dom
        parser = dom.Parser()
        doc = parser.parseString("<r><a>t</a></r>")
        text = doc.getDocumentElement().getFirstChild().getFirstChild()
        orphan = dom.Document("o").createElement("e")
        del parser
        config = dom.Parser().Configuration

        class Holder:  # a cycle that only the collector at exit ends
            pass

        holder = Holder()
        holder.self, holder.nodes = holder, [doc, text, orphan, dom.Document("x", "y", "p", "s")]
        import gc
        gc.disable()
        print(text.getData(), orphan.getTagName())
        """) == (0, "t e\n", "")
