#include <vorlo/factory/extractString.hpp>

#include <ZELMAR/string/MissingNotSupported.hpp>
#include <host/hostArrays.hpp>
#include <host/hostRaiseError.hpp>

namespace vorlo::factory {

basis::ustring extractString(HostArray* array) {
  const HostString* text = hostGetString(array);
  if (text->isMissing()) hostRaise(ZELMAR::string::MissingNotSupported());
  return text->text();
}

}  // namespace vorlo::factory
