// What can be done to polygons alone; PathOperations.h has what lines share. Indexes are 0-based; vertex
// numbers inside a Type text are 1-based.
#pragma once

#include "core/Project.h"
#include "vector/PathOperations.h"

#include <cstddef>
#include <cstdint>

namespace landsmith {

/// The two ends are the remembered first point and the second click; a polygon under way has two vertices,
/// one that is kept has three.
PolyRec NewPoly(LatLon first, LatLon second, float altitudeMetres, std::int32_t color);

/// The ring as a closed line without name and type: the first vertex stands again at the end. The caller
/// appends it.
LineRec MakeLineFromPoly(const PolyRec& poly, float widthMetres, std::int32_t color);

/// Every vertex gets the altitude.
void SetPolyAltitude(PolyRec& poly, float altitudeMetres);
/// A plane whose altitude changes only along the line from vertex `point1` to vertex `point2` (0-based), with
/// `altitude1` and `altitude2` there; equal ones give every vertex that altitude. Does not touch the Type.
void SetPolyPlane(PolyRec& poly, std::size_t point1, std::size_t point2, float altitude1, float altitude2);
/// Lays the plane again through the two vertices that the Type of a sloped LWM polygon names, after a vertex
/// has moved. Nothing for other polygons, nor when the two altitudes differ by less than 0.01 metres.
void ApplyPlaneAltitudes(PolyRec& poly);
/// Brings the altitude fields of an LWM polygon's Type up to date with its vertices; nothing for others. A
/// level polygon whose two fields agree keeps their altitude: whoever gives all vertices another one writes
/// the fields too.
void UpdateLWMType(PolyRec& poly);
/// Makes the texture coordinates of a textured polygon anew from its bounding box; with `force` false only
/// when there are not as many pairs as vertices. Nothing for others.
void SetTexCoords(PolyRec& poly, bool force);

/// Moves each vertex to its Point of the grid and drops those that meet the one before, the last one when it
/// meets the first. The number dropped; or, with the polygon unchanged, -3 minus the number dropped so far
/// when fewer than 3 would be left: it is then to be deleted.
int SnapPolyToGrid(PolyRec& poly);

}  // namespace landsmith
