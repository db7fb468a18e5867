#include <host/hostArrays.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>

#include <string>

HostArray* hostCreateDoubleMatrix(std::size_t rows, std::size_t columns, HostComplexity /*complexity*/) {
  return new HostArray(HostClassID::Double, rows, columns);
}

HostArray* hostCreateNumericScalar(HostClassID classID) { return new HostArray(classID, 1, 1); }

HostArray* hostCreateLogicalScalar(bool value) {
  HostArray* array = hostCreateNumericScalar(HostClassID::Logical);
  array->setWord(0, value ? 1 : 0);
  return array;
}

HostArray* hostCreateString_UTF16(const char16_t* text) {
  basis::ustring terminated = text ? basis::ustring(text) : basis::ustring();
  auto* array = new HostArray(HostClassID::Char, 1, terminated.size());
  array->string(0).setText(std::move(terminated));
  return array;
}

HostArray* hostCreateStringArray(std::size_t rows, std::size_t columns) {
  return new HostArray(HostClassID::String, rows, columns);
}

HostString* hostGetString(HostArray* array, std::size_t index) {
  if (!array || (array->classID() != HostClassID::Char && array->classID() != HostClassID::String)) {
    hostRaise(ZELMAR::vorlo::NotText(array ? array->getClassName().str() : std::string("null")));
  }
  return &array->string(array->classID() == HostClassID::Char ? 0 : index);
}

HostArray* hostCreateObjectMatrix(std::size_t rows, std::size_t columns, vorlo::InternedName className) {
  return new HostArray(HostClassID::Object, rows, columns, className);
}

void hostSetArrayElement(HostArray* array, std::size_t index, vorlo::VORInterfacePtr object) {
  array->setObject(index, object);
}

vorlo::VORInterfacePtr hostGetArrayElement(const HostArray* array, std::size_t index) {
  if (!array || array->classID() != HostClassID::Object || index >= array->size()) return nullptr;
  return array->object(index);
}

vorlo::VORInterfacePtr hostGetObjectElement(const HostArray* array, std::size_t index) {
  return hostGetArrayElement(array, index);
}

void hostSetClassOfHeterogeneousArray(HostArray* array) { array->settleHeterogeneousClass(); }

HostArray* hostCreateEnumerationMatrix(std::size_t rows, std::size_t columns, vorlo::InternedName className) {
  return new HostArray(HostClassID::Enumeration, rows, columns, className);
}

void hostSetEnumerationElement(HostArray* array, std::size_t index, vorlo::InternedName member) {
  const vorlo::VORClass* cls = array->getClassName().getClass();
  vorlo::VOREnumInfo* record = cls ? cls->findEnumerationMember(member.view()) : nullptr;
  if (!record) hostRaise(ZELMAR::vorlo::UnknownMember(array->getClassName().str(), member.str()));
  array->setWord(index, record->getValue()->word(0));
}

vorlo::InternedName hostGetClassName(const HostArray* array) { return array->getClassName(); }

bool hostIsEmpty(const HostArray* array) noexcept { return !array || array->isEmpty(); }

bool hostIsObject(const HostArray* array) noexcept { return array && array->classID() == HostClassID::Object; }

void hostDestroyArray(HostArray* array) noexcept { delete array; }
