// Fewer vertices where they crowd, more where a line turns sharply.
#pragma once

#include "core/Records.h"

#include <cstddef>

namespace landsmith {

/// Distances are metres, measured with the metres of a degree of longitude at `centerLat`, the latitude of
/// the view's centre.
struct TidyScale {
  float DistanceMetres = 15;
  double CenterLat = 0;
};

/// Drops each inner vertex whose follower lies within the distance of the last vertex kept. Returns how many
/// went.
std::size_t SimplifyLine(LineRec& line, const TidyScale& scale);
/// The same for a ring. False when fewer than 3 vertices would remain: the polygon is then to be deleted, and
/// stands unchanged.
bool SimplifyPoly(PolyRec& poly, const TidyScale& scale);

struct SmoothOptions {
  bool KeepEnds = false;     ///< no new vertex in the first and the last segment
  bool SmoothSharp = false;  ///< very sharp corners stay as they are
};
/// Puts new vertices beside each corner, a third along its two segments where these are long enough.
void SmoothLine(LineRec& line, const TidyScale& scale, const SmoothOptions& options);
void SmoothPoly(PolyRec& poly, const TidyScale& scale, const SmoothOptions& options);

}  // namespace landsmith
