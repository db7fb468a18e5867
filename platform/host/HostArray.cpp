#include <host/HostArray.hpp>

#include <host/Language.hpp>
#include <vorlo/VORClass.hpp>
#include <vorlo/VORInterface.hpp>

#include <algorithm>
#include <cstring>
#include <stdexcept>

using vorlo::InternedName;
using vorlo::VORInterface;

namespace {

// Objects come from the attached language; once it is gone (a host shutting
// down), references are left alone.
void retain(VORInterface* object) noexcept {
  host::Language* language = host::currentLanguage();
  if (object && language) language->retain(*object);
}
void release(VORInterface* object) noexcept {
  host::Language* language = host::currentLanguage();
  if (object && language) language->release(*object);
}

// The classes that `cls` is or derives from, nearest first.
std::vector<const vorlo::VORClass*> lineage(const vorlo::VORClass* cls) {
  std::vector<const vorlo::VORClass*> found{cls};
  for (std::size_t next = 0; next < found.size(); ++next) {
    for (const auto& base : found[next]->getSuperclasses()) {
      const vorlo::VORClass* baseClass = base.name.getClass();
      if (baseClass && std::find(found.begin(), found.end(), baseClass) == found.end()) found.push_back(baseClass);
    }
  }
  return found;
}

}  // namespace

HostArray::HostArray(HostClassID classID, std::size_t rows, std::size_t columns, InternedName className)
    : classID_(classID), rows_(rows), columns_(columns), className_(className) {
  reset(classID, rows, columns, className);
}

void HostArray::reset(HostClassID classID, std::size_t rows, std::size_t columns, InternedName className) {
  classID_ = classID;
  rows_ = rows;
  columns_ = columns;
  className_ = className;
  heterogeneous_ = false;
  words_.clear();
  objects_.clear();
  switch (classID) {
    case HostClassID::Char:
      strings_.resize(1);
      strings_[0].setText(u"", 0);
      break;
    case HostClassID::String:
      strings_.resize(size());
      for (HostString& text : strings_) text.setMissing();
      break;
    case HostClassID::Object: objects_.assign(size(), nullptr); break;
    default: words_.assign(size(), 0); break;
  }
  if (classID != HostClassID::Char && classID != HostClassID::String) strings_.clear();
}

bool HostArray::clearForReuse() noexcept {
  for (VORInterface*& object : objects_) {
    release(object);
    object = nullptr;
  }
  constexpr std::size_t small = 16;
  constexpr std::size_t shortText = 256;
  return words_.capacity() <= small && objects_.capacity() <= small && strings_.capacity() <= 1 &&
         (strings_.empty() || strings_[0].text().capacity() <= shortText);
}

HostArray::HostArray(const HostArray& other)
    : classID_(other.classID_),
      rows_(other.rows_),
      columns_(other.columns_),
      className_(other.className_),
      heterogeneous_(other.heterogeneous_),
      words_(other.words_),
      strings_(other.strings_),
      objects_(other.objects_) {
  for (VORInterface* object : objects_) retain(object);
}

HostArray::~HostArray() {
  for (VORInterface* object : objects_) release(object);
}

InternedName HostArray::getClassName() const {
  switch (classID_) {
    case HostClassID::Object:
    case HostClassID::Enumeration: return className_;
    case HostClassID::Double: return vorlo::internal::makeInterned("double");
    case HostClassID::Logical: return vorlo::internal::makeInterned("logical");
    case HostClassID::Char: return vorlo::internal::makeInterned("char");
    case HostClassID::String: return vorlo::internal::makeInterned("string");
    case HostClassID::UInt32: return vorlo::internal::makeInterned("uint32");
    case HostClassID::UInt64: return vorlo::internal::makeInterned("uint64");
  }
  return className_;
}

double HostArray::real(std::size_t index) const {
  const std::uint64_t bits = word(index);
  if (classID_ != HostClassID::Double) return static_cast<double>(bits);
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

void HostArray::setReal(std::size_t index, double value) {
  if (classID_ != HostClassID::Double) throw std::invalid_argument("HostArray::setReal: not a double array");
  std::uint64_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  setWord(index, bits);
}

void HostArray::setObject(std::size_t index, VORInterface* object) {
  VORInterface*& slot = objects_.at(index);
  retain(object);
  release(slot);
  slot = object;
}

void HostArray::adoptObject(std::size_t index, VORInterface* object) {
  VORInterface*& slot = objects_.at(index);
  release(slot);
  slot = object;
}

void HostArray::settleHeterogeneousClass() {
  heterogeneous_ = true;
  std::vector<const vorlo::VORClass*> classes;
  for (const VORInterface* object : objects_) {
    if (object && object->getClass()) classes.push_back(object->getClass());
  }
  if (classes.empty()) return;
  for (const vorlo::VORClass* candidate : lineage(classes.front())) {
    const InternedName name = candidate->getInternedFullName();
    if (std::all_of(classes.begin(), classes.end(), [name](const vorlo::VORClass* cls) { return cls->isA(name); })) {
      className_ = name;
      return;
    }
  }
}
