// One position in the four ways in which an author may know it: latitude and longitude, Point in Area, Point
// in Cell, with the Cell and the Area; as texts, because that is how it is shown and typed.
#pragma once

#include "core/CoordText.h"
#include "core/GeoTypes.h"

#include <string>

namespace landsmith {

struct PositionTexts {
  std::string Lat, Lon;
  std::string CX, CY;      ///< Cell: 0 to 767 and 0 to 511
  std::string AX, AY;      ///< Area: 0 to 31
  std::string PtAX, PtAY;  ///< Point in Area: 0 to 255
  std::string PtCX, PtCY;  ///< Point in Cell: 4080 to 12240
};

PositionTexts TextsOf(LatLon at, CoordForm form);

/// A position read from texts, or the message of the first one that is refused.
struct ReadPosition {
  LatLon At;
  std::string Refusal;
};

/// `shown`: the position whose texts the author began with. A text that still says the same stands for it,
/// since the text is less exact.
ReadPosition ReadLatLon(const PositionTexts& texts, LatLon shown, CoordForm form);
/// From Cell, Area and Point in Area.
ReadPosition ReadAreaPoint(const PositionTexts& texts);
/// From Cell and Point in Cell.
ReadPosition ReadCellPoint(const PositionTexts& texts);
/// From the way whose texts differ from those of `shown`; `shown` itself when none does.
ReadPosition ReadEdited(const PositionTexts& texts, LatLon shown, CoordForm form);

}  // namespace landsmith
