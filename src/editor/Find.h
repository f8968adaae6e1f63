// Looks lines, polygons and objects up by their texts and selects what it finds.
#pragma once

#include "core/Project.h"
#include "editor/ViewState.h"
#include "vector/Selection.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace landsmith {

struct FindRequest {
  std::string Text;  ///< upper and lower case alike, blanks at the ends ignored; empty finds empty fields
  /// The fields to look in: names of lines and polygons, descriptions of objects; and the types of all three.
  /// The type of an object is its number or, where the text is none, the name of its kind.
  bool Lines = false, LineTypes = false, Polys = false, PolyTypes = false, Objects = false,
       ObjectTypes = false;
};

enum class FindScope {
  Next,  ///< the first item behind the last hit, of the first kind that is asked for
  All,   ///< every item
};

struct FindOutcome {
  bool Found = false;
  LatLon Target;              ///< the middle of what was found last
  std::string Refusal;        ///< the message for the kind of which nothing was found; it ended the search
  std::vector<LayerKind> In;  ///< the kinds of what was found
};

/// Selects what is found, in a project without a selection: lines, then polygons, then objects, of each kind
/// the names before the types. `lastHit` is the 1-based number of the item found last, 0 at first, whatever
/// its kind. The search for the next begins behind it and wraps round before it comes to the last item.
FindOutcome FindItems(ProjectState& project, const FindRequest& request, FindScope scope,
                      std::size_t& lastHit, Selection& selection);

}  // namespace landsmith
