#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <cstdint>
#include <string>

/// How the doubles of the public interface become the indices, sizes and
/// codes of Xerces, and back. Nothing is checked or rounded: values that do
/// not fit become very large indices, which Xerces treats as past the end.
namespace paxorel::xml {

/// Truncation toward zero to a signed 32-bit integer; a value outside that
/// range, and NaN, give the smallest 32-bit integer. Used for codes and names
/// carried by a double.
std::int32_t truncateS(double value) noexcept;

/// Conversion S: truncateS, widened with its sign to an unsigned 64-bit index,
/// so that -1 and the values truncateS cannot hold are huge.
XMLSize_t conversionS(double value) noexcept;

/// Conversion U: truncation toward zero to an unsigned 64-bit index. Negative
/// values wrap around; 2^64 and above, and +infinity, wrap to 0; NaN gives
/// 2^63.
XMLSize_t conversionU(double value) noexcept;

/// An unsigned count of Xerces as a double.
inline double toDouble(XMLSize_t count) noexcept { return static_cast<double>(count); }

/// An offset as it stands in a message: printf's "%f" (12 gives "12.000000").
std::string formatOffset(double offset);

}  // namespace paxorel::xml
