// Undo and redo: whole states of the project. A state shares with its neighbours what did not change, so it
// costs what a change touched, not what the project holds.
//
// Nothing but Edit takes undo points, and nothing but the editor's two commands restores them.
#pragma once

#include "core/Project.h"
#include "vector/Selection.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace landsmith {

/// What undo brings back: the project but for its file, its folders' zoom and whether it is saved; where the
/// canvas was centred; what was selected.
struct UndoSnapshot {
  ProjectState Project;
  LatLon DisplayCenter;
  Selection Selected;
};

class UndoRing {
public:
  /// Forgets everything, for a new project or a loaded one.
  void Reset();
  /// Keeps `before` as the state to go back to; what could be redone is gone. At most `depth` states are
  /// kept, the oldest falls out.
  void Take(UndoSnapshot before, std::size_t depth);

  /// Forgets the state taken last when `present` is that state again: there is nothing to undo then.
  /// `present` gets its mark of being unsaved back.
  void Withdraw(ProjectState& present);

  bool CanUndo() const { return m_place > 0; }
  bool CanRedo() const { return m_place + 1 < m_states.size(); }
  std::size_t UndoCount() const { return m_place; }

  /// The state before the last change; `present` is kept for Redo. Nothing when there is none.
  std::optional<UndoSnapshot> Undo(UndoSnapshot present);
  std::optional<UndoSnapshot> Redo();

private:
  /// The states before `m_place` can be undone to; the one at `m_place`, there after an undo, is the present,
  /// and those behind it can be redone.
  std::deque<UndoSnapshot> m_states;
  std::size_t m_place = 0;
};

}  // namespace landsmith
