#pragma once

#include <paxorel/xml/core/XercesFwd.hpp>

namespace paxorel::xml {

/// Keeps the XML library initialised while it lives.
///
/// The first guard (or the first lookup of the DOM implementation) starts
/// Xerces; it then stays up until the process ends, so that no parser,
/// writer or document that outlives the last guard ever meets a stopped
/// library. Any number of guards may live at once.
class XercesGuard {
 public:
  XercesGuard();
  ~XercesGuard() = default;
  XercesGuard(const XercesGuard&) = delete;
  XercesGuard& operator=(const XercesGuard&) = delete;
};

/// The DOM implementation with the feature "LS", looked up anew at each call;
/// the XML library is started first if it is not running yet.
xercesc::DOMImplementation* lsImplementation();

}  // namespace paxorel::xml
