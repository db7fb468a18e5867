"""XML: zelmar.io.xml.dom, the document object model of paxorel-xml."""
