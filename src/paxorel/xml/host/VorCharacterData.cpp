#include <paxorel/xml/dom/CharacterData.hpp>
#include <paxorel/xml/host/HostClass.hpp>

namespace paxorel::xml::mi {

void VorCharacterData::initializeClass(vorlo::VORClass* cls, vorlo::VORClient* /*client*/) {
  HostClass<CharacterData>(*this, cls)
      .bareConstructor(0x102)
      .method("getData", &CharacterData::getData)
      .method("getLength", &CharacterData::getLength)
      .method("substringData", &CharacterData::substringData)
      .method("appendData", &CharacterData::appendData)
      .method("insertData", &CharacterData::insertData)
      .method("deleteData", &CharacterData::deleteData)
      .method("replaceData", &CharacterData::replaceData)
      .method("setData", &CharacterData::setData)
      .property("Length", &CharacterData::getLength, readOnly);
}

}  // namespace paxorel::xml::mi
