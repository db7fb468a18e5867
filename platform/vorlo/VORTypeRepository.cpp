#include <vorlo/VORTypeRepository.hpp>

#include <vorlo/detail/Platform.hpp>

namespace vorlo {

VORTypeRepository::VORTypeRepository() = default;

VORTypeRepository& VORTypeRepository::instance() {
  VORTypeRepository& repository = detail::platform().types;
  if (!repository.scalarsKnown_) {
    repository.scalarsKnown_ = true;
    for (const char* scalar : {"logical scalar", "double scalar", "uint64 scalar", "uint32", "void", "any"}) {
      repository.types_.emplace(internal::makeInterned(scalar), nullptr);
    }
    for (auto& [name, type] : repository.types_) type = std::make_unique<VORDataType>(name);
  }
  return repository;
}

const VORDataType* VORTypeRepository::getType(InternedName name) {
  auto& types = instance().types_;
  if (const auto found = types.find(name); found != types.end()) return found->second.get();
  if (!name.getClass()) return nullptr;
  addType(name);
  return types.at(name).get();
}

void VORTypeRepository::addType(InternedName name) {
  auto& types = instance().types_;
  if (!types.count(name)) types.emplace(name, std::make_unique<VORDataType>(name));
}

namespace factory::detail {

void initStringDataTypes() {
  VORTypeRepository::addType(internal::makeInterned("VorloFactoryString scalar"));
  VORTypeRepository::addType(internal::makeInterned("ustringToString scalar"));
}

}  // namespace factory::detail

}  // namespace vorlo
