#pragma once

#include <paxorel/xml/core/ustring.hpp>

#include <basis/i18n/BaseMsgID.hpp>

#include <cstddef>
#include <string>

/// One type per distinct failure of the library. The full identifier of an
/// error is "paxorel:xml_error:" and the type's name; the constructor takes
/// the message's arguments in the order of the catalogue's placeholders.
namespace paxorel::xml_error {

using xml::ustring;
/// A narrow (UTF-8) argument, such as a formatted offset.
using narrow = std::string;
/// A terminated 16-bit text from Xerces, copied into a ustring (null is empty).
using xmlText = const char16_t*;

/// The parameter types of an error, in argument order.
template <class... Params>
struct Args {};

namespace detail {

inline basis::i18n::MsgArg toMsgArg(const ustring& text) { return text; }
inline basis::i18n::MsgArg toMsgArg(const narrow& text) { return text; }
inline basis::i18n::MsgArg toMsgArg(xmlText text) { return ustring(text ? text : u""); }

template <class Self, class Arguments>
class Error;

template <class Self, class... Params>
class Error<Self, Args<Params...>> : public basis::i18n::BaseMsgID {
 public:
  static constexpr std::size_t arity = sizeof...(Params);
  explicit Error(const Params&... values) : BaseMsgID("paxorel:xml_error", Self::name, {toMsgArg(values)...}) {}
};

}  // namespace detail

// clang-format off
/// Every error of the library: X(name, Args<parameter types...>); X takes the
/// Args part as its variadic arguments, since it may hold commas.
#define PAXOREL_XML_ERRORS(X)                                                      \
  /* null arguments; objects without their Xerces object */                        \
  X(emptyNodeArgument, Args<>)                                                     \
  X(emptyObjectArgument, Args<narrow>)                                             \
  /* character data */                                                             \
  X(cdataSubstringDataNegativeCountError, Args<>)                                  \
  X(cdataSubstringDataNegativeOffsetError, Args<>)                                 \
  X(cdataSubstringDataExcessiveOffsetError, Args<narrow>)                          \
  X(cdataAppendDataReadOnlyError, Args<ustring>)                                   \
  X(cdataInsertDataNegativeOffsetError, Args<ustring>)                             \
  X(cdataInsertDataExcessiveOffsetError, Args<ustring, narrow>)                    \
  X(cdataInsertDataReadOnlyError, Args<ustring>)                                   \
  X(cdataDeleteDataNegativeCountError, Args<>)                                     \
  X(cdataDeleteDataNegativeOffsetError, Args<>)                                    \
  X(cdataDeleteDataExcessiveOffsetError, Args<narrow>)                             \
  X(cdataDeleteDataReadOnlyError, Args<>)                                          \
  X(cdataReplaceDataNegativeCountError, Args<ustring>)                             \
  X(cdataReplaceDataNegativeOffsetError, Args<ustring>)                            \
  X(cdataReplaceDataExcessiveOffsetError, Args<ustring, narrow>)                   \
  X(cdataReplaceDataReadOnlyError, Args<ustring>)                                  \
  /* element */                                                                    \
  X(elemSetAttrReadOnlyError, Args<ustring, ustring>)                              \
  X(elemSetAttrInvalidCharError, Args<ustring, ustring>)                           \
  X(elemSetAttrNSNamespaceError, Args<ustring, ustring, ustring>)                  \
  X(elemSetAttrNodeWrongDocError, Args<ustring, ustring>)                          \
  X(elemSetAttrNodeInUseError, Args<ustring, ustring>)                             \
  X(elemRemoveAttrNodeReadOnlyError, Args<ustring, ustring>)                       \
  X(elemRemoveAttrNodeNotFoundError, Args<ustring, ustring>)                       \
  X(elemRemoveAttrError, Args<ustring, ustring>)                                   \
  X(elemSetIdAttrReadOnlyError, Args<ustring, ustring>)                            \
  X(elemSetIdAttrNotFoundError, Args<ustring, ustring>)                            \
  /* node */                                                                       \
  X(nodeSetPrefixInvalidCharError, Args<ustring>)                                  \
  X(nodeSetPrefixNoModError, Args<ustring>)                                        \
  X(nodeSetPrefixNamespaceError, Args<ustring>)                                    \
  X(nodeSetTextContentNoModError, Args<ustring>)                                   \
  X(nodeAppendChildHierarchyError, Args<ustring, ustring, ustring>)                \
  X(nodeAppendChildWrongDocumentError, Args<ustring>)                              \
  X(nodeAppendChildReadOnlyError, Args<ustring>)                                   \
  X(nodeAppendChildError, Args<ustring, ustring>)                                  \
  X(nodeAppendChildUnknownError, Args<ustring>)                                    \
  X(nodeInsertBeforeSelfError, Args<ustring>)                                      \
  X(nodeInsertBeforeHierarchyError, Args<ustring, ustring, ustring>)               \
  X(nodeInsertBeforeWrongDocumentError, Args<ustring>)                             \
  X(nodeInsertBeforeReadOnlyError, Args<ustring>)                                  \
  X(nodeInsertBeforeNotFoundError, Args<ustring, ustring>)                         \
  X(nodeInsertBeforeError, Args<ustring, ustring>)                                 \
  X(nodeReplaceChildHierarchyError, Args<ustring, ustring, ustring>)               \
  X(nodeReplaceChildWrongDocumentError, Args<ustring>)                             \
  X(nodeReplaceChildReadOnlyError, Args<ustring>)                                  \
  X(nodeReplaceChildNotFoundError, Args<ustring, ustring>)                         \
  X(nodeReplaceChildError, Args<ustring, ustring>)                                 \
  X(nodeRemoveChildReadOnlyError, Args<ustring>)                                   \
  X(nodeRemoveChildNotFoundError, Args<ustring, ustring>)                          \
  X(nodeRemoveChildError, Args<ustring, ustring>)                                  \
  /* document construction and factories */                                       \
  X(docInvalidCharError, Args<ustring>)                                            \
  X(docElemNameError, Args<ustring>)                                               \
  X(docInvalidNSCharError, Args<ustring, ustring>)                                 \
  X(docElemNameNSError, Args<ustring, ustring>)                                    \
  X(docDoctypeError, Args<ustring>)                                                \
  X(docCreationError, Args<ustring>)                                               \
  X(docCreationUnknownError, Args<>)                                               \
  X(docTypeInvalidCharError, Args<ustring>)                                        \
  X(docTypeNameError, Args<ustring>)                                               \
  X(docTypeCreationError, Args<ustring>)                                           \
  X(docTypeCreationUnknownError, Args<>)                                           \
  X(docCreateElemInvalidCharError, Args<ustring>)                                  \
  X(docCreateElemNSNamespaceError, Args<ustring, ustring>)                         \
  X(docCreateAttrInvalidCharError, Args<ustring>)                                  \
  X(docCreateAttrNSNamespaceError, Args<ustring, ustring>)                         \
  X(docCreateNotationInvalidCharError, Args<ustring>)                              \
  X(docCreateEntityInvalidCharError, Args<ustring>)                                \
  X(docCreateEntityRefInvalidCharError, Args<ustring>)                             \
  X(docCreateProcessingInstructionInvalidCharError, Args<ustring>)                 \
  /* document-level operations */                                                  \
  X(importNodeUnsupportedError, Args<ustring, ustring>)                            \
  X(importNodeError, Args<ustring, ustring>)                                       \
  X(importNodeUnknownError, Args<ustring>)                                         \
  X(renameNodeUnsupportedError, Args<ustring, ustring>)                            \
  X(renameNodeWrongDocumentError, Args<ustring>)                                   \
  X(renameNodeMissingNamespaceError, Args<ustring, ustring>)                       \
  X(renameNodeNotXMLNamespaceError, Args<ustring, ustring>)                        \
  X(renameNodeInvalidAttrNamespaceError, Args<ustring, ustring>)                   \
  X(renameNodeError, Args<ustring, ustring>)                                       \
  X(renameNodeUnknownError, Args<ustring>)                                         \
  X(normalizeDocumentError, Args<ustring>)                                         \
  X(normalizeDocumentUnknownError, Args<>)                                         \
  /* XPath */                                                                      \
  X(xpathInvalidPathError, Args<ustring>)                                          \
  X(xpathUnsupportedError, Args<ustring>)                                          \
  X(xpathNamespaceError, Args<ustring>)                                            \
  X(xpathWrongDocumentError, Args<ustring>)                                        \
  X(xpathResultGetSnapshotLengthTypeError, Args<>)                                 \
  X(xpathResultGetNodeValueEmptyNodeError, Args<>)                                 \
  /* parsing */                                                                    \
  X(malformedURL, Args<ustring, xmlText>)                                          \
  X(inputFileNonexistentError, Args<ustring>)                                      \
  X(inputFileIsDirectoryError, Args<ustring>)                                      \
  X(parseFileError, Args<ustring, ustring>)                                        \
  X(parseStringError, Args<ustring, ustring>)                                      \
  X(docValidationError, Args<ustring, ustring, ustring, ustring>)                  \
  X(invalidEntityResolver, Args<>)                                                 \
  X(invalidResourceResolver, Args<>)                                               \
  X(invalidErrorHandler, Args<>)                                                   \
  /* writing */                                                                    \
  X(outputFileNonexistentDirectoryError, Args<ustring, ustring>)                   \
  X(outputFileReadOnlyDirectoryError, Args<ustring, ustring>)                      \
  X(outputFileIsDirectoryError, Args<ustring>)                                     \
  X(outputFileReadOnlyError, Args<ustring>)                                        \
  X(fileWriteError, Args<ustring, xmlText>)                                        \
  X(writeError, Args<ustring>)
// clang-format on

#define PAXOREL_XML_DECLARE_ERROR(errorName, ...)            \
  struct errorName : detail::Error<errorName, __VA_ARGS__> { \
    static constexpr const char* name = #errorName;          \
    using Error::Error;                                      \
  };
PAXOREL_XML_ERRORS(PAXOREL_XML_DECLARE_ERROR)
#undef PAXOREL_XML_DECLARE_ERROR

}  // namespace paxorel::xml_error
