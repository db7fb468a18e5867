"""The XML document object model of paxorel-xml: one class per class record
of the host package zelmar.io.xml.dom, by its short name."""

import zelmar

zelmar._load("libpaxorel_xml.so", __name__, globals())
