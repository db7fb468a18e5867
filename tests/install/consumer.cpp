// Parses the file named on the command line with the installed library and
// shows that failures arrive with their identifiers.
#include <paxorel/xml.hpp>

#include <iostream>

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const std::string path = argv[1];
  const auto document = paxorel::xml::parseFile(paxorel::xml::ustring(path.begin(), path.end()));
  const std::unique_ptr<paxorel::xml::Node> root(document->getLastChild());
  std::cout << "installed package: root element has " << root->getLength() << " children\n";
  try {
    paxorel::xml::parseString(u"<unclosed>");
  } catch (const basis::except::IMsgIDException& e) {
    std::cout << "installed package: " << e.GetID() << "\n";
    return e.GetID() == "paxorel:xml_error:parseStringError" ? 0 : 1;
  }
  return 1;
}
