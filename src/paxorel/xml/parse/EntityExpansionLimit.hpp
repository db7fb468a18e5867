#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>

#include <cstddef>
#include <optional>

XERCES_CPP_NAMESPACE_BEGIN
class SecurityManager;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml::detail {

/// The entity-expansion limit of one DOMLSParser, kept where Xerces looks for
/// it: in a SecurityManager installed in the parser's configuration. Xerces
/// only points to the manager and never frees it, so the manager is made and
/// freed here: by lift(), which Parser's deleter calls before it releases the
/// parser. Holds no state of its own, so any number may look at one parser.
class EntityExpansionLimit {
 public:
  explicit EntityExpansionLimit(xercesc::DOMConfiguration* configuration);

  /// The limit, or no value when no manager is installed.
  std::optional<std::size_t> get() const;
  /// Installs a manager with `limit`, or sets the limit of the one installed.
  void set(std::size_t limit);
  /// Uninstalls and frees the manager, if there is one.
  void lift();

 private:
  xercesc::SecurityManager* installed() const;

  xercesc::DOMConfiguration* configuration_;
};

}  // namespace paxorel::xml::detail
