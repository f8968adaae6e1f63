// What the dialogs of lines and of polygons have in common.
#pragma once

#include "core/RecordList.h"
#include "vector/PathOperations.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace landsmith {

/// The order that is chosen in the box of drawing orders.
template <class Ui>
DrawingOrder ChosenOrder(const Ui& ui) {
  if (ui.opBottom->isChecked()) return DrawingOrder::Bottom;
  if (ui.opUp->isChecked()) return DrawingOrder::Up;
  if (ui.opDown->isChecked()) return DrawingOrder::Down;
  return DrawingOrder::Top;
}

/// "Line = 5 out of 12"; `item` is 0-based.
inline QString OrderText(const char* kind, std::size_t item, std::size_t count) {
  return QStringLiteral("%1 = %2 out of %3").arg(QLatin1String(kind)).arg(item + 1).arg(count);
}

/// The places of the selected records, ascending.
template <class Path>
std::vector<std::size_t> SelectedItems(const RecordList<Path>& paths) {
  std::vector<std::size_t> selected;
  for (std::size_t i = 0; i < paths.size(); ++i)
    if (paths[i].Selected) selected.push_back(i);
  return selected;
}

}  // namespace landsmith
