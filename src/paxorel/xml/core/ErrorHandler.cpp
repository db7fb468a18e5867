#include <paxorel/xml/core/ErrorHandler.hpp>

#include <paxorel/xml/core/XercesString.hpp>

#include <basis/text/utf.hpp>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMError.hpp>
#include <xercesc/dom/DOMLocator.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <string>

namespace paxorel::xml::detail {

bool ErrorHandler::handleError(const xercesc::DOMError& error) {
  failed = true;
  message = XercesString::toUstring(error.getMessage());
  if (const xercesc::DOMLocator* location = error.getLocation()) {
    line = basis::text::from_utf8(std::to_string(location->getLineNumber()));
    column = basis::text::from_utf8(std::to_string(location->getColumnNumber()));
  }
  return false;  // stop at the first report
}

ErrorHandlerScope::ErrorHandlerScope(xercesc::DOMConfiguration* configuration) : configuration_(configuration) {
  if (configuration_->getParameter(xercesc::XMLUni::fgDOMErrorHandler)) return;
  handler_ = std::make_shared<ErrorHandler>();
  const xercesc::DOMErrorHandler* handler = handler_.get();
  configuration_->setParameter(xercesc::XMLUni::fgDOMErrorHandler, static_cast<const void*>(handler));
}

ErrorHandlerScope::~ErrorHandlerScope() {
  if (handler_) configuration_->setParameter(xercesc::XMLUni::fgDOMErrorHandler, static_cast<const void*>(nullptr));
}

}  // namespace paxorel::xml::detail
