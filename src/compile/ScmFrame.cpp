#include "compile/ScmFrame.h"

#include "core/Numbers.h"

namespace landsmith {

void WriteHeader(ScmWriter& out, const GeoBox& bounds) {
  out.Text("Header( 1 ").Integer(Floor(bounds.NLat + 1)).Text(" ").Integer(Floor(bounds.SLat));
  out.Text(" ").Integer(Floor(bounds.ELon + 1)).Text(" ").Integer(Floor(bounds.WLon)).Line(" )");
}

void WriteCellLabel(ScmWriter& out, std::int64_t number) {
  out.EmptyLine().Text(":cell").TwoDigits(number).EndLine();
}

}  // namespace landsmith
