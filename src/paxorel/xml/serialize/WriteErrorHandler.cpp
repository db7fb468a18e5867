#include <paxorel/xml/serialize/WriteErrorHandler.hpp>

#include <paxorel/xml/core/XercesString.hpp>

#include <xercesc/dom/DOMError.hpp>
#include <xercesc/dom/DOMLocator.hpp>

#include <cwchar>
#include <iterator>

namespace paxorel::xml {

namespace {

// A location number in decimal digits, by way of a wide "%lu".
ustring decimal(XMLFileLoc number) {
  wchar_t buffer[32];
  const int length = std::swprintf(buffer, std::size(buffer), L"%lu", static_cast<unsigned long>(number));
  ustring digits;
  for (int i = 0; i < length; ++i) digits += static_cast<char16_t>(buffer[i]);
  return digits;
}

}  // namespace

bool WriteErrorHandler::handleError(const xercesc::DOMError& error) {
  failed = true;
  message = XercesString::toUstring(error.getMessage());
  const xercesc::DOMLocator* location = error.getLocation();
  if (!location) return false;
  line = decimal(location->getLineNumber());
  column = decimal(location->getColumnNumber());
  return false;
}

}  // namespace paxorel::xml
