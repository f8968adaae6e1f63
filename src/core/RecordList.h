// The records of one kind, in drawing order, as a list whose copies share what neither of them has changed.
//
// An undo point is a copy of the whole project. Here a copy takes a pointer for each 256 records, whatever
// the records hold, and a change then copies the one record that it touches. So reading and changing look
// different: `list[i]` and loops only read, `list.Edit(i)` is the way to a record that may be changed.
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace landsmith {

template <class Record>
class RecordList {
public:
  using value_type = Record;

  class const_iterator {
  public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = Record;
    using difference_type = std::ptrdiff_t;
    using pointer = const Record*;
    using reference = const Record&;

    const_iterator() = default;
    const_iterator(const RecordList* list, std::size_t at) : m_list(list), m_at(at) {}
    reference operator*() const { return (*m_list)[m_at]; }
    pointer operator->() const { return &(*m_list)[m_at]; }
    reference operator[](difference_type n) const { return *(*this + n); }
    const_iterator& operator++() { return *this += 1; }
    const_iterator& operator--() { return *this += -1; }
    const_iterator operator++(int) { return std::exchange(*this, *this + 1); }
    const_iterator operator--(int) { return std::exchange(*this, *this - 1); }
    const_iterator& operator+=(difference_type n) {
      m_at = static_cast<std::size_t>(static_cast<difference_type>(m_at) + n);
      return *this;
    }
    const_iterator& operator-=(difference_type n) { return *this += -n; }
    friend const_iterator operator+(const_iterator i, difference_type n) { return i += n; }
    friend const_iterator operator+(difference_type n, const_iterator i) { return i += n; }
    friend const_iterator operator-(const_iterator i, difference_type n) { return i -= n; }
    friend difference_type operator-(const const_iterator& a, const const_iterator& b) {
      return static_cast<difference_type>(a.m_at) - static_cast<difference_type>(b.m_at);
    }
    friend bool operator==(const const_iterator& a, const const_iterator& b) { return a.m_at == b.m_at; }
    friend auto operator<=>(const const_iterator& a, const const_iterator& b) { return a.m_at <=> b.m_at; }

  private:
    const RecordList* m_list = nullptr;
    std::size_t m_at = 0;
  };
  using iterator = const_iterator;

  RecordList() = default;
  RecordList(std::initializer_list<Record> records) {
    for (const Record& record : records)
      push_back(record);
  }

  std::size_t size() const { return m_size; }
  bool empty() const { return m_size == 0; }
  const Record& operator[](std::size_t i) const { return *(*m_chunks[i / ChunkSize])[i % ChunkSize]; }
  const Record& front() const { return (*this)[0]; }
  const Record& back() const { return (*this)[m_size - 1]; }
  const_iterator begin() const { return {this, 0}; }
  const_iterator end() const { return {this, m_size}; }

  /// The record, no longer shared with any copy of the list. The reference holds until the list is copied,
  /// shrinks, or another record takes its place.
  Record& Edit(std::size_t i) {
    Slot& slot = OwnChunk(i / ChunkSize)[i % ChunkSize];
    if (slot.use_count() > 1) slot = std::make_shared<Record>(*slot);
    return *slot;
  }
  Record& EditBack() { return Edit(m_size - 1); }

  void push_back(Record record) { Append(std::make_shared<Record>(std::move(record))); }
  Record& emplace_back() {
    push_back(Record{});
    return EditBack();
  }
  void clear() {
    m_chunks.clear();
    m_size = 0;
  }
  void Erase(std::size_t i) {
    Move(i, m_size - 1);
    Truncate(m_size - 1);
  }
  /// Keeps the first `size` records.
  void Truncate(std::size_t size) {
    m_chunks.resize((size + ChunkSize - 1) / ChunkSize);
    if (const std::size_t rest = size % ChunkSize; rest != 0) OwnChunk(m_chunks.size() - 1).resize(rest);
    m_size = size;
  }
  /// Takes out the records for which `goes(const Record&)` is true, asked once each in order. Their number.
  template <class Predicate>
  std::size_t EraseIf(Predicate goes) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_size; ++i) {
      if (goes((*this)[i])) continue;
      if (kept != i) PutSlot(kept, (*m_chunks[i / ChunkSize])[i % ChunkSize]);
      ++kept;
    }
    const std::size_t gone = m_size - kept;
    if (gone > 0) Truncate(kept);
    return gone;
  }
  /// The record at `from` comes to stand at `to`; those between move up by one.
  void Move(std::size_t from, std::size_t to) {
    const Slot moved = (*m_chunks[from / ChunkSize])[from % ChunkSize];
    const auto slotAt = [this](std::size_t i) { return (*m_chunks[i / ChunkSize])[i % ChunkSize]; };
    for (; from < to; ++from)
      PutSlot(from, slotAt(from + 1));
    for (; from > to; --from)
      PutSlot(from, slotAt(from - 1));
    PutSlot(to, moved);
  }

  /// By value; what both share is not looked at.
  friend bool operator==(const RecordList& a, const RecordList& b) {
    if (a.m_size != b.m_size) return false;
    bool equal = true;
    ForEachDifference(a, b, [&](std::size_t i) { equal = equal && a[i] == b[i]; });
    return equal;
  }

  /// Calls `visit(i)` for the places, up to the shorter list's end, where the two lists do not share their
  /// record. Takes a step for each 256 shared records.
  template <class Visit>
  friend void ForEachDifference(const RecordList& a, const RecordList& b, Visit visit) {
    const std::size_t size = std::min(a.m_size, b.m_size);
    for (std::size_t first = 0; first < size; first += ChunkSize) {
      if (a.m_chunks[first / ChunkSize] == b.m_chunks[first / ChunkSize]) continue;
      for (std::size_t i = first; i < std::min(first + ChunkSize, size); ++i) {
        if (&a[i] != &b[i]) visit(i);
      }
    }
  }

private:
  static constexpr std::size_t ChunkSize = 256;
  using Slot = std::shared_ptr<Record>;
  using Chunk = std::vector<Slot>;

  Chunk& OwnChunk(std::size_t number) {
    std::shared_ptr<Chunk>& chunk = m_chunks[number];
    if (chunk.use_count() > 1) chunk = std::make_shared<Chunk>(*chunk);
    return *chunk;
  }
  void PutSlot(std::size_t i, Slot slot) { OwnChunk(i / ChunkSize)[i % ChunkSize] = std::move(slot); }
  void Append(Slot slot) {
    if (m_size % ChunkSize == 0) m_chunks.push_back(std::make_shared<Chunk>());
    OwnChunk(m_chunks.size() - 1).push_back(std::move(slot));
    ++m_size;
  }

  std::vector<std::shared_ptr<Chunk>> m_chunks;
  std::size_t m_size = 0;
};

}  // namespace landsmith
