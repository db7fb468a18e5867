#pragma once

#include <paxorel/xml/core/ustring.hpp>

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class LocalFileFormatTarget;
XERCES_CPP_NAMESPACE_END

namespace paxorel::xml {
class XMLObject;
}

namespace paxorel::xml::detail {

/// A new file target on `path`, owned by the caller, once the path has passed
/// the output file checks. Every check runs before the file is touched, so a
/// refused path leaves an existing file as it was. Failures are raised by
/// `caller`: outputFileNonexistentDirectoryError, outputFileReadOnlyDirectoryError,
/// outputFileIsDirectoryError, outputFileReadOnlyError, and fileWriteError
/// when Xerces cannot open the file.
xercesc::LocalFileFormatTarget* checkedFileTarget(const XMLObject& caller, const ustring& path);

}  // namespace paxorel::xml::detail
