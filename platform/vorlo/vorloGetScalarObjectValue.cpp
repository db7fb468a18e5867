#include <vorlo/vorloGetScalarObjectValue.hpp>

#include <host/hostArrays.hpp>
#include <vorlo/VORInterface.hpp>

namespace vorlo {

factory::full::Wrappable* vorloGetScalarObjectValue(InternedName cls, VORValue value) {
  const HostArray* array = value.array();
  if (!array || hostIsEmpty(array)) return nullptr;
  const VORInterface* object = hostGetArrayElement(array, 0);
  return object ? object->getNativeInstance(cls) : nullptr;
}

}  // namespace vorlo
