// The land or water class samples: 1281 by 1281 bytes, 0 empty, 1 to 127 a place in the class table, plus 128
// when selected. Takes no room until the first sample is set.
#pragma once

#include "core/Grid.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace landsmith {

class ClassGrid {
public:
  static constexpr std::size_t SampleCount = std::size_t{ClassGridSide} * ClassGridSide;

  /// `column` and `row`: 0 to 1280, from the north-west.
  std::uint8_t At(std::int32_t column, std::int32_t row) const {
    return m_samples.empty() ? std::uint8_t{0} : m_samples[Index(column, row)];
  }
  void Set(std::int32_t column, std::int32_t row, std::uint8_t value) {
    Samples()[Index(column, row)] = value;
  }
  void Clear() { m_samples.clear(); }
  bool IsAllocated() const { return !m_samples.empty(); }
  /// Rows from the north, each from the west: index row * 1281 + column. Allocates.
  std::vector<std::uint8_t>& Samples() {
    if (m_samples.empty()) m_samples.resize(SampleCount);
    return m_samples;
  }
  /// Empty while nothing has been set.
  const std::vector<std::uint8_t>& StoredSamples() const { return m_samples; }

  /// Equal by value: a grid of zeros equals one without room.
  bool operator==(const ClassGrid& other) const {
    const auto zero = [](std::uint8_t sample) { return sample == 0; };
    if (m_samples.empty()) return std::all_of(other.m_samples.begin(), other.m_samples.end(), zero);
    if (other.m_samples.empty()) return std::all_of(m_samples.begin(), m_samples.end(), zero);
    return m_samples == other.m_samples;
  }

private:
  static std::size_t Index(std::int32_t column, std::int32_t row) {
    return static_cast<std::size_t>(row) * ClassGridSide + static_cast<std::size_t>(column);
  }
  std::vector<std::uint8_t> m_samples;
};

}  // namespace landsmith
