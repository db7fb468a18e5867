#include <paxorel/xml/core/XercesString.hpp>

#include <xercesc/dom/DOMException.hpp>

namespace paxorel::xml {

ustring exceptionMessage(const xercesc::DOMException& e) { return XercesString::toUstring(e.getMessage()); }

}  // namespace paxorel::xml
