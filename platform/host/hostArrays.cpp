#include <host/hostArrays.hpp>

#include <ZELMAR/vorlo/errors.hpp>
#include <basis/memory/checkers.hpp>
#include <host/hostRaiseError.hpp>
#include <vorlo/VORClass.hpp>

#include <string>

namespace {

// Nearly every call between a host and the library makes an array or two and
// drops them at once; a few dropped arrays are kept and made anew, with the
// room their elements had, instead of going back to the heap. The state is
// trivially destructible, so it stays usable until the very end of the
// process. Under AddressSanitizer and valgrind nothing is kept, so that an
// array used after it was destroyed is still reported.
struct KeptArrays {
  static constexpr std::size_t most = 64;
  HostArray* arrays[most];
  std::size_t count;
  bool closed;
};

KeptArrays kept;

const struct KeptArraysLifetime {
  KeptArraysLifetime() {
    kept.closed = basis::memory::underAddressSanitizer() || basis::memory::underValgrind();
  }
  KeptArraysLifetime(const KeptArraysLifetime&) = delete;
  KeptArraysLifetime& operator=(const KeptArraysLifetime&) = delete;
  ~KeptArraysLifetime() {
    kept.closed = true;
    while (kept.count > 0) delete kept.arrays[--kept.count];
  }
} keptArraysLifetime;

HostArray* makeArray(HostClassID classID, std::size_t rows, std::size_t columns, vorlo::InternedName className = {}) {
  if (kept.count == 0) return new HostArray(classID, rows, columns, className);
  HostArray* array = kept.arrays[--kept.count];
  array->reset(classID, rows, columns, className);
  return array;
}

}  // namespace

HostArray* hostCreateDoubleMatrix(std::size_t rows, std::size_t columns, HostComplexity /*complexity*/) {
  return makeArray(HostClassID::Double, rows, columns);
}

HostArray* hostCreateNumericScalar(HostClassID classID) { return makeArray(classID, 1, 1); }

HostArray* hostCreateLogicalScalar(bool value) {
  HostArray* array = hostCreateNumericScalar(HostClassID::Logical);
  array->setWord(0, value ? 1 : 0);
  return array;
}

HostArray* hostCreateString_UTF16(const char16_t* text) {
  const std::size_t length = text ? std::char_traits<char16_t>::length(text) : 0;
  HostArray* array = makeArray(HostClassID::Char, 1, length);
  array->string(0).setText(text ? text : u"", length);
  return array;
}

HostArray* hostCreateStringArray(std::size_t rows, std::size_t columns) {
  return makeArray(HostClassID::String, rows, columns);
}

HostString* hostGetString(HostArray* array, std::size_t index) {
  if (!array || (array->classID() != HostClassID::Char && array->classID() != HostClassID::String)) {
    hostRaise(ZELMAR::vorlo::NotText(array ? array->getClassName().str() : std::string("null")));
  }
  return &array->string(array->classID() == HostClassID::Char ? 0 : index);
}

HostArray* hostCreateObjectMatrix(std::size_t rows, std::size_t columns, vorlo::InternedName className) {
  return makeArray(HostClassID::Object, rows, columns, className);
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
  return makeArray(HostClassID::Enumeration, rows, columns, className);
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

void hostDestroyArray(HostArray* array) noexcept {
  if (!array) return;
  if (array->clearForReuse() && !kept.closed && kept.count < KeptArrays::most) {
    kept.arrays[kept.count++] = array;
  } else {
    delete array;
  }
}
