#pragma once

#include <vorlo/CallocRecord.hpp>

namespace vorlo {

class VORClass;
class VORClient;
class VORInterface;

namespace factory::full {
class Wrappable;
}

/// Base of the class records that a package hands to the platform. The
/// platform owns a record once it is added, makes a VORClass of it and later
/// asks it to fill that class (initializeClass). Its virtual operations tell
/// the platform how instances of the class live and die.
class VORClassInfo : public CallocRecord {
 public:
  VORClassInfo() = default;
  VORClassInfo(const VORClassInfo&) = delete;
  VORClassInfo& operator=(const VORClassInfo&) = delete;
  virtual ~VORClassInfo();

  /// The short class name.
  virtual const char* getName() const = 0;
  virtual const char* getDescription() const;
  virtual const char* getDetailedDescription() const;
  virtual int getAccess() const;
  /// Adds the class's superclasses, methods, properties and members to `cls`.
  virtual void initializeClass(VORClass* cls, VORClient* client) = 0;
  /// Native storage for a new host object of the class; null (the usual
  /// answer) lets the constructor allocate its object itself.
  virtual factory::full::Wrappable* allocateInstance(VORInterface* object);
  /// The host object `object` of the class goes; `instance` is the native
  /// object it stood for, or null.
  virtual void deallocateInstance(VORInterface* object, factory::full::Wrappable* instance);
  virtual void updateInstance(VORInterface* object);
  virtual bool isOkToDestroy() const;
  virtual bool isHandleClass() const;
  virtual bool isEnumeration() const;
  /// By default: whether the class declares an abstract method.
  virtual bool isAbstract() const;
  virtual bool isConstructedOnLoad() const;

  /// The class made of this record, once it was added to a package.
  VORClass* getClass() const noexcept { return class_; }

 private:
  friend class VORClass;
  VORClass* class_ = nullptr;
};

}  // namespace vorlo
