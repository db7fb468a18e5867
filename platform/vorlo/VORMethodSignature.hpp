#pragma once

#include <vorlo/InternedName.hpp>

#include <memory>
#include <string>
#include <vector>

namespace vorlo {

class VORMethodSignature;
using VORMethodSignaturePtr = std::shared_ptr<VORMethodSignature>;

/// The types of a method: a description, its output types and its input
/// types, each an interned type string. The first input is the class's full
/// name for the object of an instance method, or the null name for a
/// constructor or a static method.
class VORMethodSignature {
 public:
  static VORMethodSignaturePtr createMethodSignature();

  void setDescription(std::string description) { description_ = std::move(description); }
  void addInputType(InternedName type) { inputs_.push_back(type); }
  void addOutputType(InternedName type) { outputs_.push_back(type); }

  const std::string& getDescription() const noexcept { return description_; }
  const std::vector<InternedName>& getInputTypes() const noexcept { return inputs_; }
  const std::vector<InternedName>& getOutputTypes() const noexcept { return outputs_; }
  /// The first output type; "void" when there is none.
  InternedName getOutputType() const;
  /// Whether the first input is an object (an instance method), not null.
  bool hasSelf() const noexcept { return !inputs_.empty() && !inputs_.front().isNull(); }

 private:
  std::string description_;
  std::vector<InternedName> inputs_;
  std::vector<InternedName> outputs_;
};

}  // namespace vorlo
