#pragma once

#include <xercesc/dom/DOMLSSerializerFilter.hpp>

namespace paxorel::xml {

/// A serializer filter that leaves document type declarations out and lets
/// every other node through. It has no state, so the whole library shares
/// one instance, made when the library is loaded and gone at exit.
class SkipDTD : public xercesc::DOMLSSerializerFilter {
 public:
  /// FILTER_SKIP for a document type, FILTER_ACCEPT for anything else.
  FilterAction acceptNode(const xercesc::DOMNode* node) const override;
  /// SHOW_DOCUMENT_TYPE: the serializer asks about document types only.
  ShowType getWhatToShow() const override;

  /// The library's one instance.
  static SkipDTD& instance() noexcept;
};

}  // namespace paxorel::xml
