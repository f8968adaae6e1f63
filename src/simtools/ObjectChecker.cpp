#include "simtools/ObjectChecker.h"

#include "core/Text.h"
#include "simtools/BglLayout.h"

namespace landsmith::simtools {

namespace {

constexpr std::int64_t LargestDistance = 0x7FFFFFFF;  // metres
constexpr std::int64_t WideReach = 255;               // the last number of an Area is a byte

}  // namespace

void ObjectChecker::LatRange(const Statement& statement, bool complete) {
  if (m_hasLatRange || InArea()) Fail(statement, " stands in an Area, or twice");
  m_hasLatRange = true;
  if (!complete) return;
  const auto south = NumberArgument(statement, 0, {"the southern bound", -91, 91}, m_errors);
  const auto north = NumberArgument(statement, 1, {"the northern bound", -91, 91}, m_errors);
  if (!south || !north || !m_header.HasBounds()) return;
  if (*south != m_header.South || *north != m_header.North)
    Fail(statement, " has other bounds than the Header");
}

void ObjectChecker::Area(const Statement& statement, bool complete) {
  if (m_area) {
    Fail(statement, " stands in the Area of line " + std::to_string(m_area->Line) + ", which has no EndA");
    CloseArea();
  }
  m_area = OpenArea{statement.Line};
  if (!complete) return;
  FixedArgument(statement, 0, "the first number", 5, m_errors);
  CheckPlace(statement, 1);
  NumberArgument(statement, 3, {"the reach", 1, WideReach}, m_errors);
}

/// Latitude and longitude from argument `first` on. What lies outside of the bounds is never looked for.
void ObjectChecker::CheckPlace(const Statement& statement, std::size_t first) {
  const auto lat = RealArgument(statement, first, {"the latitude", -90, 90}, m_errors);
  const auto lon = RealArgument(statement, first + 1, {"the longitude", -180, 180}, m_errors);
  if (!lat || !lon || !m_header.HasBounds()) return;
  if (*lat > m_header.North || *lat < m_header.South || *lon > m_header.East || *lon < m_header.West)
    Fail(statement, ": the place lies outside of the Header's bounds");
}

bool ObjectChecker::ExpectArea(const Statement& statement) {
  if (!m_area) Fail(statement, " stands outside of an Area");
  return m_area.has_value();
}

/// For what calls, places and ends an Area.
bool ObjectChecker::ExpectOutsideVersion(const Statement& statement) {
  if (!ExpectArea(statement)) return false;
  if (m_version) Fail(statement, " stands in front of EndVersion");
  return true;
}

void ObjectChecker::LayerCall(const Statement& statement, bool complete) {
  if (!ExpectOutsideVersion(statement)) return;
  m_area->HasCall = true;
  if (!complete) return;
  m_labels.Refer(statement, 0);
  NumberArgument(statement, 1, {"the layer", 0, 255}, m_errors);
}

/// A lone colon is the end of the Area.
void ObjectChecker::Jump(const Statement& statement, bool complete) {
  if (!ExpectOutsideVersion(statement) || !complete || statement.Arguments[0] == ":") return;
  m_labels.Refer(statement, 0);
}

void ObjectChecker::RefPoint(const Statement& statement, bool complete) {
  if (!ExpectOutsideVersion(statement)) return;
  if (m_area->HasRefPoint) Fail(statement, " stands twice in its Area");
  m_area->HasRefPoint = true;
  if (!complete) return;
  FixedArgument(statement, 0, "the first number", 2, m_errors);
  m_labels.Refer(statement, 1);
  FixedArgument(statement, 2, "the scale", 1, m_errors);
  CheckPlace(statement, 3);
  WordArgument(statement, 5, "E=", m_errors);
  RealArgument(statement, 6, {"the altitude", bgl::LowestAltitude, bgl::HighestAltitude}, m_errors);
  WordArgument(statement, 7, "v1=", m_errors);
  NumberArgument(statement, 8, {"the visibility", 0, LargestDistance}, m_errors);
  WordArgument(statement, 9, "v2=", m_errors);
  NumberArgument(statement, 10, {"the radius", 0, LargestDistance}, m_errors);
}

void ObjectChecker::Version(const Statement& statement, bool complete) {
  if (!ExpectArea(statement)) return;
  if (!m_area->HasRefPoint) Fail(statement, " stands in front of the RefPoint");
  CloseVersion(statement.Line, statement.Name);
  m_version = OpenVersion{statement.Line, {}, {}, {}, false, false};
  if (complete) FixedArgument(statement, 0, "the version", 800, m_errors);
}

/// A version that another block cuts off; `by`: the name of the statement.
void ObjectChecker::CloseVersion(std::size_t line, const std::string& by) {
  if (m_version) m_errors.push_back({line, by + " stands in front of EndVersion"});
  m_version.reset();
}

void ObjectChecker::EndVersion(const Statement& statement, bool) {
  if (!ExpectVersion(statement)) return;
  if (m_version->Textures && !m_version->HasTexture)
    Fail(statement, ": no SetMaterial uses the TextureList of this version");
  m_version.reset();
}

void ObjectChecker::Return(const Statement& statement, bool) {
  if (ExpectOutsideVersion(statement)) m_area->HasReturn = true;
}

void ObjectChecker::EndA(const Statement& statement, bool) {
  if (!ExpectArea(statement)) return;
  CloseVersion(statement.Line, statement.Name);
  if (m_area->HasCall && !m_area->HasReturn) Fail(statement, ": the Area is called, but has no Return");
  CloseArea();
}

void ObjectChecker::CloseArea() {
  if (m_area->HasTriangles) ++m_texturedAreas;
  m_version.reset();
  m_area.reset();
  m_labels.Close();
}

void ObjectChecker::Finish() {
  if (!m_area) return;
  m_errors.push_back({m_area->Line, "Area has no EndA"});
  CloseArea();
}

}  // namespace landsmith::simtools
