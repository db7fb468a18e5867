#include <basis/except/IException.hpp>

namespace basis::except {

IException::IException() : site_(std::make_shared<const ThrowSite>()) {}

IException::~IException() = default;

}  // namespace basis::except
