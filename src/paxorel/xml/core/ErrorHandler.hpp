#pragma once

#include <paxorel/xml/core/ustring.hpp>

#include <xercesc/dom/DOMErrorHandler.hpp>

#include <memory>

XERCES_CPP_NAMESPACE_BEGIN
class DOMConfiguration;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml::detail {

/// The library's own error handler for one parse or one write, used when no
/// other is configured: it keeps the last report and stops Xerces at the
/// first one, whatever its severity.
class ErrorHandler : public xercesc::DOMErrorHandler {
 public:
  bool handleError(const xercesc::DOMError& error) override;

  bool failed = false;
  ustring message;
  ustring line;    ///< of the last report with a location, in decimal digits
  ustring column;  ///< likewise
};

/// Attaches an ErrorHandler to a configuration of Xerces for one operation,
/// unless a handler is configured already, and takes it away again on every
/// path, so that Xerces is never left pointing at a handler that is gone.
class ErrorHandlerScope {
 public:
  explicit ErrorHandlerScope(xercesc::DOMConfiguration* configuration);
  ~ErrorHandlerScope();
  ErrorHandlerScope(const ErrorHandlerScope&) = delete;
  ErrorHandlerScope& operator=(const ErrorHandlerScope&) = delete;

  /// The attached handler, or null when one was configured beforehand; it
  /// may be kept to be read after the scope.
  std::shared_ptr<const ErrorHandler> handler() const noexcept { return handler_; }

 private:
  xercesc::DOMConfiguration* configuration_;
  std::shared_ptr<ErrorHandler> handler_;
};

}  // namespace paxorel::xml::detail
