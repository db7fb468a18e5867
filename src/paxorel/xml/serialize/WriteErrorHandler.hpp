#pragma once

#include <paxorel/xml/core/ustring.hpp>

#include <xercesc/dom/DOMErrorHandler.hpp>

namespace paxorel::xml {

/// The error handler of one write: it keeps the first report of the
/// serializer, whatever its severity, and stops the write there.
class WriteErrorHandler : public xercesc::DOMErrorHandler {
 public:
  /// Records the report and answers false, so that the serializer stops.
  bool handleError(const xercesc::DOMError& error) override;

  bool failed = false;
  ustring message;
  ustring line;    ///< of a report with a location, in decimal digits
  ustring column;  ///< likewise
};

}  // namespace paxorel::xml
