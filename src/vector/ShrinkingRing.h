// A ring that loses its vertices one by one, and the order in which they are tried. What is cut off is always
// the first vertex of the ring that can be; trying all of them anew after each cut would take the cube of
// their number. Whether a vertex can be cut off changes only with its neighbours or with the vertex that
// hinders it, so each waits for one of these.
#pragma once

#include <queue>

#include <cstdint>
#include <functional>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

namespace landsmith {

/// Vertices keep their numbers, 0 to size - 1 in the ring's direction. At least one.
class ShrinkingRing {
public:
  explicit ShrinkingRing(std::int32_t size) : m_links(static_cast<std::size_t>(size)), m_size(size) {
    for (std::int32_t v = 0; v < size; ++v)
      Link(v) = {v == 0 ? size - 1 : v - 1, v + 1 == size ? 0 : v + 1};
  }

  std::int32_t Size() const { return m_size; }
  /// The lowest number left.
  std::int32_t First() const { return m_first; }
  std::int32_t Before(std::int32_t v) const { return m_links[static_cast<std::size_t>(v)].Before; }
  std::int32_t After(std::int32_t v) const { return m_links[static_cast<std::size_t>(v)].After; }
  bool Holds(std::int32_t v) const { return After(v) != Gone; }

  void Remove(std::int32_t v) {
    if (v == m_first) m_first = After(v);
    Link(Before(v)).After = After(v);
    Link(After(v)).Before = Before(v);
    Link(v) = {Gone, Gone};
    --m_size;
  }

private:
  static constexpr std::int32_t Gone = -1;
  struct Neighbours {
    std::int32_t Before, After;
  };
  Neighbours& Link(std::int32_t v) { return m_links[static_cast<std::size_t>(v)]; }

  std::vector<Neighbours> m_links;
  std::int32_t m_size;
  std::int32_t m_first = 0;
};

/// The vertices that may be possible to cut off. All wait at first.
class CutQueue {
public:
  explicit CutQueue(std::int32_t size)
      : m_states(static_cast<std::size_t>(size), State{true, None}),
        m_hindered(static_cast<std::size_t>(size), None) {
    std::vector<std::int32_t> all(static_cast<std::size_t>(size));
    std::iota(all.begin(), all.end(), 0);
    m_waiting = decltype(m_waiting)(std::greater<>{}, std::move(all));
  }

  /// To be tried again, as its neighbours have changed.
  void Add(std::int32_t v) {
    State& state = m_states[static_cast<std::size_t>(v)];
    state.HinderedBy = None;
    if (state.Waits) return;
    state.Waits = true;
    m_waiting.push(v);
  }

  /// The lowest that waits; it waits no longer.
  std::optional<std::int32_t> Take() {
    if (m_waiting.empty()) return std::nullopt;
    const std::int32_t v = m_waiting.top();
    m_waiting.pop();
    m_states[static_cast<std::size_t>(v)].Waits = false;
    return v;
  }

  /// `v` need not be tried before `by` is released or `v` is added.
  void Hinder(std::int32_t v, std::int32_t by) {
    m_states[static_cast<std::size_t>(v)].HinderedBy = by;
    m_notes.push_back({v, m_hindered[static_cast<std::size_t>(by)]});
    m_hindered[static_cast<std::size_t>(by)] = static_cast<std::int32_t>(m_notes.size()) - 1;
  }

  /// `by` hinders no more: what waited for it is to be tried again.
  void Release(std::int32_t by) {
    std::int32_t note = std::exchange(m_hindered[static_cast<std::size_t>(by)], None);
    for (; note != None; note = m_notes[static_cast<std::size_t>(note)].Next)
      if (const std::int32_t v = m_notes[static_cast<std::size_t>(note)].Vertex;
          m_states[static_cast<std::size_t>(v)].HinderedBy == by)
        Add(v);
  }

private:
  static constexpr std::int32_t None = -1;
  struct State {
    bool Waits;
    std::int32_t HinderedBy;
  };
  struct Note {
    std::int32_t Vertex, Next;
  };

  std::priority_queue<std::int32_t, std::vector<std::int32_t>, std::greater<>> m_waiting;
  std::vector<State> m_states;
  std::vector<Note> m_notes;             ///< who is hindered, in a chain for each vertex that hinders
  std::vector<std::int32_t> m_hindered;  ///< the head of each vertex's chain
};

}  // namespace landsmith
