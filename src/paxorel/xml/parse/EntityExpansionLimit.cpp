#include <paxorel/xml/parse/EntityExpansionLimit.hpp>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <memory>

namespace paxorel::xml::detail {

using xercesc::SecurityManager;
using xercesc::XMLUni;

EntityExpansionLimit::EntityExpansionLimit(xercesc::DOMConfiguration* configuration)
    : configuration_(configuration) {}

SecurityManager* EntityExpansionLimit::installed() const {
  // Only set() puts a manager there: it is ours to change and to free.
  const void* manager = configuration_->getParameter(XMLUni::fgXercesSecurityManager);
  return static_cast<SecurityManager*>(const_cast<void*>(manager));
}

std::optional<std::size_t> EntityExpansionLimit::get() const {
  if (const SecurityManager* manager = installed()) return manager->getEntityExpansionLimit();
  return std::nullopt;
}

void EntityExpansionLimit::set(std::size_t limit) {
  if (SecurityManager* manager = installed()) {
    manager->setEntityExpansionLimit(limit);
    return;
  }
  auto manager = std::make_unique<SecurityManager>();
  manager->setEntityExpansionLimit(limit);
  configuration_->setParameter(XMLUni::fgXercesSecurityManager, static_cast<const void*>(manager.get()));
  static_cast<void>(manager.release());  // the parser's now, until lift()
}

void EntityExpansionLimit::lift() {
  const std::unique_ptr<SecurityManager> manager(installed());
  if (manager) configuration_->setParameter(XMLUni::fgXercesSecurityManager, static_cast<const void*>(nullptr));
}

}  // namespace paxorel::xml::detail
