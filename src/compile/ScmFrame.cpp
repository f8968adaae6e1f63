#include "compile/ScmFrame.h"

#include "core/Numbers.h"

namespace landsmith {

void WriteHeader(ScmWriter& out, const GeoBox& bounds) {
  GeoBox box = bounds;
  if (box == GeoBox{}) box.Add(0, 0);
  out.Text("Header( 1 ").Integer(Floor(box.NLat + 1)).Text(" ").Integer(Floor(box.SLat));
  out.Text(" ").Integer(Floor(box.ELon + 1)).Text(" ").Integer(Floor(box.WLon)).Line(" )");
}

void WriteCellLabel(ScmWriter& out, std::int64_t number) {
  out.EmptyLine().Text(":cell").TwoDigits(number).EndLine();
}

}  // namespace landsmith
