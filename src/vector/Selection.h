// The count of what is selected, kept beside the records' own flags.
#pragma once

#include <cstdint>

namespace landsmith {

struct Selection {
  std::int32_t SelectedCount = 0;  ///< items and points
  bool SelectionActive = false;
  bool MapSelected = false;

  void Add() {
    ++SelectedCount;
    SelectionActive = true;
  }
  void Remove() {
    if (SelectedCount > 0) --SelectedCount;
    if (SelectedCount == 0) SelectionActive = false;
  }
  bool operator==(const Selection&) const = default;
};

}  // namespace landsmith
