#include <paxorel/xml/host/XercesExceptions.hpp>

#include <basis/text/utf.hpp>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMLSException.hpp>
#include <xercesc/dom/DOMXPathException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <string>

namespace paxorel::xml::mi {

namespace {

std::string utf8(const XMLCh* text) { return text ? basis::text::to_utf8(text) : std::string(); }

host::ForeignError domError(const char* type, const xercesc::DOMException& error) {
  return {std::string("xercesc:") + type, utf8(error.getMessage()), error.code};
}

}  // namespace

std::optional<host::ForeignError> describeXercesException(const std::exception_ptr& exception) {
  try {
    std::rethrow_exception(exception);
  } catch (const xercesc::DOMXPathException& error) {  // the two kinds of DOMException first
    return domError("DOMXPathException", error);
  } catch (const xercesc::DOMLSException& error) {
    return domError("DOMLSException", error);
  } catch (const xercesc::DOMException& error) {
    return domError("DOMException", error);
  } catch (const xercesc::XMLException& error) {
    return host::ForeignError{"xercesc:" + utf8(error.getType()), utf8(error.getMessage()), std::nullopt};
  } catch (...) {
    return std::nullopt;
  }
}

}  // namespace paxorel::xml::mi
