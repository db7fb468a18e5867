#pragma once

#include <host/ForeignError.hpp>

namespace paxorel::xml::mi {

/// What a host shows of a Xerces exception that some operation lets pass
/// untranslated: "xercesc:" and its type (DOMException, DOMXPathException,
/// DOMLSException, or the type an XMLException names, such as
/// MalformedURLException), its message in UTF-8 and, for the DOM ones, the
/// DOM code. Nothing for any other exception.
std::optional<host::ForeignError> describeXercesException(const std::exception_ptr& exception);

}  // namespace paxorel::xml::mi
