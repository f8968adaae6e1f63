#include "editor/UndoRing.h"

#include <utility>

namespace landsmith {

void UndoRing::Reset() {
  m_states.clear();
  m_place = 0;
}

void UndoRing::Take(UndoSnapshot before, std::size_t depth) {
  m_states.resize(m_place);
  m_states.push_back(std::move(before));
  while (m_states.size() > depth)
    m_states.pop_front();
  m_place = m_states.size();
}

void UndoRing::Withdraw(ProjectState& present) {
  if (!CanUndo() || CanRedo()) return;
  const ProjectState& before = m_states.back().Project;
  const bool dirty = std::exchange(present.Dirty, before.Dirty);
  if (present == before) {
    m_states.pop_back();
    --m_place;
  } else {
    present.Dirty = dirty;
  }
}

std::optional<UndoSnapshot> UndoRing::Undo(UndoSnapshot present) {
  if (!CanUndo()) return {};
  if (m_place == m_states.size()) m_states.emplace_back();
  m_states[m_place] = std::move(present);
  return m_states[--m_place];
}

std::optional<UndoSnapshot> UndoRing::Redo() {
  if (!CanRedo()) return {};
  return m_states[++m_place];
}

}  // namespace landsmith
