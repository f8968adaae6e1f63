// The land or water class samples: 1281 by 1281 bytes, 0 empty, 1 to 127 a place in the class table, plus 128
// when selected. Takes no room until the first sample is set; copies share the bands of rows that neither of
// them has changed.
#pragma once

#include "core/Grid.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace landsmith {

class ClassGrid {
public:
  static constexpr std::size_t SampleCount = std::size_t{ClassGridSide} * ClassGridSide;

  /// `column` and `row`: 0 to 1280, from the north-west.
  std::uint8_t At(std::int32_t column, std::int32_t row) const {
    const auto& band = m_bands[BandOf(row)];
    return band ? (*band)[PlaceInBand(column, row)] : std::uint8_t{0};
  }
  void Set(std::int32_t column, std::int32_t row, std::uint8_t value) {
    if (At(column, row) != value) OwnBand(BandOf(row))[PlaceInBand(column, row)] = value;
  }
  void Clear() { m_bands.fill(nullptr); }
  bool IsAllocated() const {
    return std::any_of(m_bands.begin(), m_bands.end(), [](const auto& band) { return band != nullptr; });
  }

  /// Every sample, rows from the north, each from the west: index row * 1281 + column.
  std::vector<std::uint8_t> Samples() const {
    std::vector<std::uint8_t> samples(SampleCount);
    for (std::size_t b = 0; b < BandCount; ++b) {
      if (m_bands[b])
        std::copy_n(m_bands[b]->begin(), LengthOf(b),
                    samples.begin() + static_cast<std::ptrdiff_t>(b * BandLength));
    }
    return samples;
  }
  /// Takes SampleCount samples in that order.
  void Assign(std::span<const std::uint8_t> samples) {
    Clear();
    for (std::size_t b = 0; b < BandCount; ++b) {
      const auto part = samples.subspan(b * BandLength, LengthOf(b));
      if (std::any_of(part.begin(), part.end(), [](std::uint8_t sample) { return sample != 0; }))
        std::copy(part.begin(), part.end(), OwnBand(b).begin());
    }
  }
  /// Every sample that is not 0 becomes `changed(sample)`.
  template <class Change>
  void ChangeSet(Change changed) {
    for (std::size_t b = 0; b < BandCount; ++b) {
      if (!m_bands[b]) continue;
      const auto differs = [&](std::uint8_t sample) { return sample != 0 && changed(sample) != sample; };
      if (std::none_of(m_bands[b]->begin(), m_bands[b]->end(), differs)) continue;
      for (std::uint8_t& sample : OwnBand(b))
        if (sample != 0) sample = changed(sample);
    }
  }
  /// How many samples are as `wanted(sample)` tells; empty ones are not asked for.
  template <class Predicate>
  std::int32_t CountSet(Predicate wanted) const {
    std::ptrdiff_t count = 0;
    for (const auto& band : m_bands) {
      if (band)
        count += std::count_if(band->begin(), band->end(),
                               [&](std::uint8_t sample) { return sample != 0 && wanted(sample); });
    }
    return static_cast<std::int32_t>(count);
  }

  /// By value; what both share is not looked at.
  bool operator==(const ClassGrid& other) const {
    return std::equal(m_bands.begin(), m_bands.end(), other.m_bands.begin(),
                      [](const BandPointer& a, const BandPointer& b) {
                        if (a == b) return true;
                        if (a && b) return *a == *b;
                        return IsZero(a ? *a : *b);
                      });
  }

private:
  static constexpr std::size_t RowsPerBand = 16, BandLength = RowsPerBand * ClassGridSide;
  static constexpr std::size_t BandCount = (ClassGridSide + RowsPerBand - 1) / RowsPerBand;
  using Band = std::array<std::uint8_t, BandLength>;
  using BandPointer = std::shared_ptr<Band>;

  static std::size_t BandOf(std::int32_t row) { return static_cast<std::size_t>(row) / RowsPerBand; }
  static std::size_t PlaceInBand(std::int32_t column, std::int32_t row) {
    return static_cast<std::size_t>(row) % RowsPerBand * ClassGridSide + static_cast<std::size_t>(column);
  }
  static std::size_t LengthOf(std::size_t band) {
    return std::min(BandLength, SampleCount - band * BandLength);
  }
  static bool IsZero(const Band& band) {
    return std::all_of(band.begin(), band.end(), [](std::uint8_t sample) { return sample == 0; });
  }
  Band& OwnBand(std::size_t number) {
    BandPointer& band = m_bands[number];
    if (!band)
      band = std::make_shared<Band>();
    else if (band.use_count() > 1)
      band = std::make_shared<Band>(*band);
    return *band;
  }

  std::array<BandPointer, BandCount> m_bands;
};

}  // namespace landsmith
