#include <host/ForeignError.hpp>

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <typeinfo>
#include <vector>

namespace host {

namespace {

std::vector<ExceptionTranslator>& translators() {
  static std::vector<ExceptionTranslator> added;
  return added;
}

// "std::out_of_range" becomes "std:out_of_range"; other names stay whole.
std::string identifierOf(const std::type_info& type) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> demangled(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status),
                                                               &std::free);
  std::string name = status == 0 && demangled ? demangled.get() : type.name();
  if (name.rfind("std::", 0) == 0) return "std:" + name.substr(5);
  return "native:" + name;
}

}  // namespace

void addExceptionTranslator(ExceptionTranslator translator) { translators().push_back(translator); }

ForeignError describeException(const std::exception_ptr& exception) {
  for (auto translator = translators().rbegin(); translator != translators().rend(); ++translator) {
    if (std::optional<ForeignError> known = (*translator)(exception)) return *std::move(known);
  }
  try {
    std::rethrow_exception(exception);
  } catch (const std::exception& error) {
    return {identifierOf(typeid(error)), error.what(), std::nullopt};
  } catch (...) {
    return {"unknown:exception", "an exception of an unknown type", std::nullopt};
  }
}

}  // namespace host
