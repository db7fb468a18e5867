#pragma once

#include <vorlo/CallocRecord.hpp>
#include <vorlo/VORMethodSignature.hpp>
#include <vorlo/VORValue.hpp>

#include <cstdint>

namespace vorlo {

class VORClient;

/// Base of every method record of a class: constructors, methods, direct
/// methods, abstract methods and the value constructors of enumerations.
/// The class owns its records.
class VORMethodInfo : public CallocRecord {
 public:
  enum class Kind { Constructor, Method, Direct, Abstract, ValueConstructor };

  /// Attribute bits as this platform reads them.
  static constexpr std::uint32_t Hidden = 0x2;       ///< kept out of listings, still callable
  static constexpr std::uint32_t NotPublic = 0x100;  ///< a constructor host code may not call

  VORMethodInfo() = default;
  VORMethodInfo(const VORMethodInfo&) = delete;
  VORMethodInfo& operator=(const VORMethodInfo&) = delete;
  virtual ~VORMethodInfo();

  virtual const char* getName() const = 0;
  virtual const char* getDescription() const;
  virtual VORMethodSignaturePtr getSignature() const = 0;
  virtual std::uint32_t getAttributes() const;
  virtual Kind getKind() const = 0;
  /// Whether the record takes no object: constructors of both kinds, and
  /// methods whose signature has no object first.
  virtual bool isStatic() const;
  virtual bool isAbstract() const;
  virtual bool isSealed() const;
  virtual int getMemberAccess() const;
  /// Whether the class of the first argument chooses the method.
  virtual bool isFirstArgDispatch() const;
  /// Runs the method. Slot 0 of `inputs` holds the object for an instance
  /// method; for a constructor, output slot 0 holds the object under
  /// construction. A result goes to output slot 0, and `outputCount` becomes
  /// at least 1. What the method throws passes through.
  virtual void invoke(VORClient* client, int& outputCount, VORValue* outputs, int inputCount,
                      const VORValue* inputs) const = 0;
};

}  // namespace vorlo
