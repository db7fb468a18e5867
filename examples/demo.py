"""The greenhouse sample from Python: parse it, walk it, change it, and see
a failure by its identifier.

    ./dev demo                      (after the native demo)
    ./dev python examples/demo.py [FILE]
"""

import os
import sys

import zelmar
import zelmar.io.xml.dom as dom

path = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "sample.xml")
document = dom.Parser().parseFile(path)
greenhouse = document.getDocumentElement()


def outline(element, depth=0):
    """Each element with its attributes, and the text of those without element children."""
    attributes = element.getAttributes()
    shown = [f"{a.getName()}={a.getValue()}" for a in (attributes.item(i) for i in range(int(attributes.getLength())))]
    text = element.getTextContent().strip()
    if text and element.getChildElementCount() == 0:
        shown.append(repr(text))
    print("  " * depth + " ".join([element.getTagName()] + shown))
    child = element.getFirstElementChild()
    while child is not None:
        outline(child, depth + 1)
        child = child.getNextElementSibling()


outline(greenhouse)

plants = document.getElementsByTagName("plant")
total = sum(float(plants.item(i).getAttribute("count")) for i in range(int(plants.getLength())))
print(f"{int(plants.getLength())} kinds of plant, {total:.0f} plants in all")

# A new plant in the second bed, in the greenhouse's namespace.
bed = greenhouse.getElementsByTagName("bed").item(1)
sage = document.createElementNS(greenhouse.getNamespaceURI(), "plant")
for name, value in [("genus", "Salvia"), ("species", "officinalis"), ("count", "5")]:
    sage.setAttribute(name, value)
sage.TextContent = "Sage"
bed.insertBefore(sage, bed.getElementsByTagName("note").item(0))
grown = bed.getElementsByTagName("plant")
print(f"bed {bed.getAttribute('id')} now grows", " and ".join(grown.item(i).getTextContent() for i in range(int(grown.getLength()))))

# Failures are zelmar.Error, named by their identifier.
try:
    document.createElement("2nd-bed")
except zelmar.Error as error:
    print(f"refused, {error.identifier} {error.arguments}:\n  {error}")
