"""Identity and lifetime of XML objects: one wrapper, one Python object; a new
one per navigation; nodes that outlive every Python reference to their
document; interpreter exit with documents alive."""

import gc
import os
import subprocess
import sys
import textwrap
import weakref

import pytest

import zelmar
import zelmar.io.xml.dom as dom

XML = "<r><a id='1'>one</a><b/></r>"


def test_the_same_wrapper_is_the_same_object():
    doc = dom.Parser().parseString(XML)
    root = doc.getDocumentElement()
    child = doc.createElement("c")
    assert root.appendChild(child) is child  # the argument given back
    assert root.getOwnerDocument() is doc  # a document has one wrapper
    attribute = doc.createAttribute("k")
    assert root.setAttributeNode(attribute) is attribute and attribute.getOwnerElement().isSameNode(root)


def test_each_navigation_is_a_new_object_of_the_same_node():
    doc = dom.Parser().parseString(XML)
    root = doc.getDocumentElement()
    routes = [
        lambda: doc.getDocumentElement(),
        lambda: doc.getFirstChild(),
        lambda: root.getFirstChild().getParentNode(),
        lambda: root.getChildren()[0].getParentNode(),
        lambda: root.getFirstChild().getNextSibling().getParentNode(),
        lambda: doc.getElementsByTagName("r").item(0),
    ]
    objects = [route() for route in routes]
    assert len({id(o) for o in objects + [root]}) == len(objects) + 1
    assert all(o.isSameNode(root) and not o.isSameNode(root.getFirstChild()) for o in objects)


def test_nodes_keep_their_document_after_python_lets_it_go():
    doc = dom.Parser().parseString(XML)
    a = doc.getDocumentElement().getFirstChild()
    gone = weakref.ref(doc)
    del doc
    gc.collect()
    assert gone() is None
    assert (a.getTagName(), a.getAttribute("id"), a.getTextContent()) == ("a", "1", "one")
    document = a.getOwnerDocument()  # a new Python object for the same document
    assert document.getDocumentElement().getLastChild().getTagName() == "b"
    a.appendChild(document.createElement("z"))
    del document
    gc.collect()
    assert a.getLastChild().getTagName() == "z"


def test_a_document_reached_after_python_let_go_of_it_has_no_entry_until_it_is_asked_for():
    root = dom.Parser().parseString(XML).getDocumentElement()
    gc.collect()
    parent = root.getParentNode()  # the document, kept by its nodes, without a registry entry
    assert parent.getNodeName() == "#document" and parent.getNodeType() == 9
    with pytest.raises(zelmar.Error) as raised:
        parent.getDocumentElement()
    assert raised.value.identifier == "std:out_of_range"
    assert root.getOwnerDocument() is parent  # given out again, with its entry
    assert parent.getDocumentElement().isSameNode(root)


def test_objects_outlive_their_parser_and_configuration():
    parser = dom.Parser()
    config = parser.Configuration
    doc = parser.parseString(XML)
    del parser
    gc.collect()
    config.Comments = False
    assert config.Comments is False and doc.getDocumentElement().getTagName() == "r"


def test_interpreter_exit_with_documents_alive():
    program = textwrap.dedent(
        """
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
        """
    )
    environment = dict(os.environ, PYTHONPATH=os.pathsep.join(sys.path))
    finished = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, env=environment,
                              timeout=60)
    assert (finished.returncode, finished.stdout, finished.stderr) == (0, "t e\n", "")
