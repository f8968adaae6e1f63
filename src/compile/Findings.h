// What an author should know before compiling. Findings never keep anything from being compiled.
//
// Each selected line, polygon and fill that a compiler takes is looked at by itself, as that compiler will
// see it: its fields as the compiler reads them, its vertices on the Points that they snap to. An item has
// one finding of a kind at most, however many places show it.
#pragma once

#include "core/Project.h"
#include "core/Settings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// An error makes the compiler or its tool fail; a warning gives scenery that is not what was drawn.
enum class FindingSeverity { Warning, Error };

struct Finding {
  FindingSeverity Severity = FindingSeverity::Warning;
  std::string_view Kind;  ///< LineFinding, PolyFinding or FillFinding
  std::size_t Item = 0;   ///< 0-based place in its collection
  LatLon At;              ///< where to look: always a place of the world
  std::string Text;       ///< one sentence, without the item's number
};

inline constexpr std::string_view LineFinding = "Line", PolyFinding = "Poly", FillFinding = "Fill";

/// The check in steps of one item, for a window that goes on living meanwhile. Project and settings must not
/// change before it is done.
class ItemCheck {
public:
  ItemCheck(const ProjectState& project, const AppSettings& settings);
  /// Looks at the next selected item, lines first and fills last, and adds what it finds. False when there
  /// was none left.
  bool Next(std::vector<Finding>& findings);

private:
  template <class Record>
  bool NextOf(const RecordList<Record>& records, std::size_t first, std::string_view kind,
              std::vector<Finding>& findings);

  const ProjectState& m_project;
  LatLon m_shift;          ///< of vector terrain
  std::size_t m_next = 0;  ///< counts the lines, then the polygons, then the fills
};

/// All findings of the selected lines, polygons and fills: in this order, by item.
std::vector<Finding> CheckSelectedItems(const ProjectState& project, const AppSettings& settings);

}  // namespace landsmith
