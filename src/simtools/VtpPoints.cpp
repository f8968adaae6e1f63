#include "simtools/BglLayout.h"
#include "simtools/StatementCheck.h"
#include "simtools/VtpChecker.h"

#include <algorithm>
#include <limits>

namespace landsmith::simtools {

namespace {

std::uint8_t Byte(std::optional<std::int64_t> value) {
  return static_cast<std::uint8_t>(value.value_or(0));
}

}  // namespace

void VtpChecker::WPoint(const Statement& statement, bool complete) {
  OpenBlock& block = OpenPlace(statement, bgl::LineFeature);
  if (!complete) return;
  VtpPoint point;
  SetPlace(point, statement);
  block.Announced = NumberArgument(statement, 2, {"the number of steps", 0, bgl::MostSteps}, m_errors);
  point.Steps = Byte(block.Announced);
  if (statement.Arguments.size() > 3)
    point.Width = Byte(NumberArgument(statement, 3, {"the width", 1, 255}, m_errors));
  m_feature.Points.push_back(point);
}

void VtpChecker::PointXY(const Statement& statement, bool complete) {
  OpenPlace(statement, bgl::PolyFeature);
  if (!complete) return;
  VtpPoint point;
  point.X = static_cast<std::int32_t>(
      NumberArgument(statement, 0, {"x", 0, bgl::LargestPolyPoint}, m_errors).value_or(0));
  point.Y = static_cast<std::int32_t>(
      NumberArgument(statement, 1, {"y", 0, bgl::LargestPolyPoint}, m_errors).value_or(0));
  m_feature.Points.push_back(point);
}

/// Opens a place of a poly that must be of `kind`.
VtpChecker::OpenBlock& VtpChecker::OpenPlace(const Statement& statement, std::uint32_t kind) {
  OpenBlock& block = Open(Block::Place, statement);
  const bool inPoly = m_open.size() >= 2 && m_open[m_open.size() - 2].Kind == Block::Poly;
  if (inPoly && m_polyKind && *m_polyKind != kind)
    Fail(statement.Line, statement.Name + " stands in a VTPPoly of kind " + std::to_string(*m_polyKind));
  return block;
}

/// Lines may have vertices far from the Cell, so only what is no place at all is an error.
void VtpChecker::SetPlace(VtpPoint& point, const Statement& statement) {
  using Limits = std::numeric_limits<std::int32_t>;
  const auto x = NumberArgument(statement, 0, {"x", Limits::min(), Limits::max()}, m_errors);
  const auto y = NumberArgument(statement, 1, {"y", Limits::min(), Limits::max()}, m_errors);
  if (!x || !y) return;
  const auto held = [](std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, bgl::LargestPoint));
  };
  point.X = held(*x);
  point.Y = held(*y);
  if (point.X != *x || point.Y != *y)
    m_heldPoints.push_back({statement.Line, statement.Name + ": the point " + std::to_string(*x) + " " +
                                                std::to_string(*y) + " is held to " +
                                                std::to_string(point.X) + " " + std::to_string(point.Y)});
}

void VtpChecker::CPoint(const Statement& statement, bool complete) {
  Open(Block::Step, statement);
  // A step counts behind its place, and as one of the points of the poly.
  if (m_open.size() >= 3 && m_open[m_open.size() - 3].Kind == Block::Poly) ++m_open[m_open.size() - 3].Seen;
  if (!complete) return;
  VtpPoint point;
  point.IsStep = true;
  point.X = static_cast<std::int32_t>(
      NumberArgument(statement, 0, {"the step in x", -bgl::LargestStep, bgl::LargestStep}, m_errors)
          .value_or(0));
  point.Y = static_cast<std::int32_t>(
      NumberArgument(statement, 1, {"the step in y", -bgl::LargestStep, bgl::LargestStep}, m_errors)
          .value_or(0));
  if (statement.Arguments.size() > 2)
    point.Width = Byte(NumberArgument(statement, 2, {"the width", 1, 255}, m_errors));
  m_feature.Points.push_back(point);
}

}  // namespace landsmith::simtools
