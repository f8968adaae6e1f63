// Latitude and longitude as text, both forms: degrees, minutes, seconds with a hemisphere letter, or decimal
// degrees.
#pragma once

#include <string>
#include <string_view>

namespace landsmith {

enum class CoordForm { DegreesMinutesSeconds, DecimalDegrees };

inline constexpr double FailedLat = 100.0;  ///< what a latitude that is none parses to
inline constexpr double FailedLon = 200.0;

/// Degrees, or `FailedLat`, `FailedLon`; never throws. Sign and hemisphere letter may stand anywhere; "40:30
/// 30,33 N", "E40 30 30.33", "40" all parse. A comma is a decimal sign too. UTF-8.
double ParseLatText(std::string_view text, CoordForm form);
double ParseLonText(std::string_view text, CoordForm form);

/// "40° 30' 29.9999'' N", or "40.5083333" with at least two integer digits and seven decimals. Seconds that
/// round up print as 60.0000; there is no carry.
std::string FormatLatText(double degrees, CoordForm form);
std::string FormatLonText(double degrees, CoordForm form);

/// Both parse and lie within -90..90 and -180..180, borders included.
bool CheckLatLon(std::string_view latText, std::string_view lonText, CoordForm form);

}  // namespace landsmith
