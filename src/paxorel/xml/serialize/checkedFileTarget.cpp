#include <paxorel/xml/serialize/checkedFileTarget.hpp>

#include <paxorel/xml/core/XercesString.hpp>
#include <paxorel/xml/core/raiseXmlError.hpp>
#include <paxorel/xml/dom/XMLObject.hpp>

#include <basis/filesystem/filesystem.hpp>

#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/util/IOException.hpp>

namespace paxorel::xml::detail {

xercesc::LocalFileFormatTarget* checkedFileTarget(const XMLObject& caller, const ustring& path) {
  namespace fs = basis::filesystem;
  ustring native;
  if (!path.empty()) native = fs::make_native_form(path, true);
  const ustring parent = fs::extract_parent_path(native);
  if (!parent.empty()) {
    if (!fs::exists(parent)) raiseXmlError(caller, xml_error::outputFileNonexistentDirectoryError(path, parent));
    if (!fs::access(parent, fs::access_write)) {
      raiseXmlError(caller, xml_error::outputFileReadOnlyDirectoryError(path, parent));
    }
  }
  if ((fs::status(path) & fs::file_type_mask) == fs::directory_file) {
    raiseXmlError(caller, xml_error::outputFileIsDirectoryError(path));
  }
  if (fs::exists(native) && !fs::access(native, fs::access_write)) {
    raiseXmlError(caller, xml_error::outputFileReadOnlyError(path));
  }
  // Xerces gets the path as the caller wrote it, not the native form.
  try {
    return new xercesc::LocalFileFormatTarget(XercesString(path), xercesc::XMLPlatformUtils::fgMemoryManager);
  } catch (const xercesc::IOException& e) {
    raiseXmlError(caller, xml_error::fileWriteError(path, e.getMessage()));
  }
}

}  // namespace paxorel::xml::detail
