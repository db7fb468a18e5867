#include <paxorel/xml/serialize/SkipDTD.hpp>

#include <paxorel/xml/dom/Node.hpp>

#include <xercesc/dom/DOMNode.hpp>

namespace paxorel::xml {

namespace {
SkipDTD theSkipDTD;  // made during static initialisation, destroyed at exit
}  // namespace

SkipDTD::FilterAction SkipDTD::acceptNode(const xercesc::DOMNode* node) const {
  return node->getNodeType() == static_cast<int>(Node::DOCUMENT_TYPE_NODE) ? FILTER_SKIP : FILTER_ACCEPT;
}

SkipDTD::ShowType SkipDTD::getWhatToShow() const { return SHOW_DOCUMENT_TYPE; }

SkipDTD& SkipDTD::instance() noexcept { return theSkipDTD; }

}  // namespace paxorel::xml
