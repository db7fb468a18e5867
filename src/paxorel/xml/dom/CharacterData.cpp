#include <paxorel/xml/dom/CharacterData.hpp>

#include <paxorel/xml/core/Conversions.hpp>
#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>

#include <xercesc/dom/DOMCharacterData.hpp>
#include <xercesc/dom/DOMException.hpp>

#include <algorithm>

namespace paxorel::xml {

using xercesc::DOMCharacterData;
using xercesc::DOMException;

namespace {

// Xerces's substringData writes its terminator at `count` past the start,
// whatever the length of the data: a count that runs past the end (a negative
// one is huge) writes outside its buffer. After a valid offset the count is cut
// to what remains, which the DOM prescribes anyway; an offset past the end is
// left for Xerces to refuse.
XMLSize_t countWithinData(const DOMCharacterData& data, XMLSize_t offset, XMLSize_t count) {
  const XMLSize_t length = data.getLength();
  return offset <= length ? std::min(count, length - offset) : count;
}

}  // namespace

CharacterData::CharacterData(DOMCharacterData* impl, std::shared_ptr<Document> owner) : Node(impl, std::move(owner)) {}

const char* CharacterData::getFullyQualifiedVorloTypeName() const { return "zelmar.io.xml.dom.CharacterData"; }

DOMCharacterData* CharacterData::getImpl() const noexcept { return static_cast<DOMCharacterData*>(Node::getImpl()); }

ustring CharacterData::getData() const { return XercesString::toUstring(implAs<DOMCharacterData>()->getData()); }

double CharacterData::getLength() const { return toDouble(implAs<DOMCharacterData>()->getLength()); }

void CharacterData::setData(const ustring& data) { implAs<DOMCharacterData>()->setData(XercesString(data)); }

ustring CharacterData::substringData(double offset, double count) const {
  const DOMCharacterData* node = implAs<DOMCharacterData>();
  try {
    const XMLSize_t start = conversionU(offset);
    return XercesString::toUstring(node->substringData(start, countWithinData(*node, start, conversionU(count))));
  } catch (const DOMException& e) {
    if (e.code == DOMException::INDEX_SIZE_ERR) {
      if (0.0 > count) raiseXmlError(*this, xml_error::cdataSubstringDataNegativeCountError());
      if (0.0 > offset) raiseXmlError(*this, xml_error::cdataSubstringDataNegativeOffsetError());
      raiseXmlError(*this, xml_error::cdataSubstringDataExcessiveOffsetError(formatOffset(offset)));
    }
  }
  return ustring();
}

void CharacterData::appendData(const ustring& data) {
  DOMCharacterData* node = implAs<DOMCharacterData>();
  try {
    node->appendData(XercesString(data));
  } catch (const DOMException& e) {
    if (e.code == DOMException::NO_MODIFICATION_ALLOWED_ERR) {
      raiseXmlError(*this, xml_error::cdataAppendDataReadOnlyError(data));
    }
  }
}

void CharacterData::insertData(double offset, const ustring& data) {
  DOMCharacterData* node = implAs<DOMCharacterData>();
  try {
    node->insertData(conversionU(offset), XercesString(data));
  } catch (const DOMException& e) {
    if (e.code == DOMException::INDEX_SIZE_ERR) {
      if (0.0 > offset) raiseXmlError(*this, xml_error::cdataInsertDataNegativeOffsetError(data));
      raiseXmlError(*this, xml_error::cdataInsertDataExcessiveOffsetError(data, formatOffset(offset)));
    }
    if (e.code == DOMException::NO_MODIFICATION_ALLOWED_ERR) {
      raiseXmlError(*this, xml_error::cdataInsertDataReadOnlyError(data));
    }
  }
}

void CharacterData::deleteData(double offset, double count) {
  DOMCharacterData* node = implAs<DOMCharacterData>();
  try {
    node->deleteData(conversionU(offset), conversionU(count));
  } catch (const DOMException& e) {
    if (e.code == DOMException::INDEX_SIZE_ERR) {
      if (0.0 > count) raiseXmlError(*this, xml_error::cdataDeleteDataNegativeCountError());
      if (0.0 > offset) raiseXmlError(*this, xml_error::cdataDeleteDataNegativeOffsetError());
      raiseXmlError(*this, xml_error::cdataDeleteDataExcessiveOffsetError(formatOffset(offset)));
    }
    if (e.code == DOMException::NO_MODIFICATION_ALLOWED_ERR) {
      raiseXmlError(*this, xml_error::cdataDeleteDataReadOnlyError());
    }
  }
}

void CharacterData::replaceData(double offset, double count, const ustring& data) {
  DOMCharacterData* node = implAs<DOMCharacterData>();
  try {
    node->replaceData(conversionU(offset), conversionU(count), XercesString(data));
  } catch (const DOMException& e) {
    if (e.code == DOMException::INDEX_SIZE_ERR) {
      if (0.0 > count) raiseXmlError(*this, xml_error::cdataReplaceDataNegativeCountError(data));
      if (0.0 > offset) raiseXmlError(*this, xml_error::cdataReplaceDataNegativeOffsetError(data));
      raiseXmlError(*this, xml_error::cdataReplaceDataExcessiveOffsetError(data, formatOffset(offset)));
    }
    if (e.code == DOMException::NO_MODIFICATION_ALLOWED_ERR) {
      raiseXmlError(*this, xml_error::cdataReplaceDataReadOnlyError(data));
    }
  }
}

}  // namespace paxorel::xml
