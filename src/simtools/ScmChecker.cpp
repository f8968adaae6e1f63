#include "simtools/ScmChecker.h"

#include "core/Text.h"
#include "simtools/LabelScope.h"
#include "simtools/LwmChecker.h"
#include "simtools/ObjectChecker.h"
#include "simtools/StatementCheck.h"
#include "simtools/VtpChecker.h"

#include <algorithm>
#include <string>

namespace landsmith::simtools {

namespace {

/// What a source is about; one file holds one kind.
enum class Scenery { Any, Masks, VectorTerrain, Objects };

/// All that is known while a source is walked through.
struct SourceCheck {
  std::vector<ScmError> Errors;
  BglHeader Header;
  bool HasHeader = false;
  bool HasBounds = false;
  bool HasBuffer = false;
  Scenery Subject = Scenery::Any;
  bool IsMixed = false;
  LabelScope Labels{Errors};
  std::size_t BoundsLine = 0;  ///< of bounds that could be read
  std::vector<ScmError> Warnings;
  std::vector<ScmError> HeldPoints;
  LwmChecker Lwm{Errors};
  VtpChecker Vtp{Errors, HeldPoints};
  ObjectChecker Objects{Header, Errors};

  void Fail(std::size_t line, std::string reason) { Errors.push_back({line, std::move(reason)}); }
};

void CheckSet(SourceCheck& check, const Statement& statement, bool complete) {
  if (check.HasHeader || check.HasBuffer)
    check.Fail(statement.Line, "Set stands behind the header, or twice");
  check.HasBuffer = true;
  if (!complete) return;
  if (!EqualsIgnoringCase(statement.Arguments[0], "BUF"))
    check.Fail(statement.Line, "Set: " + statement.Arguments[0] + " is not known, BUF is");
  NumberArgument(statement, 1, {"the buffer", 1, 0x7FFFFFFF}, check.Errors);
}

void CheckHeader(SourceCheck& check, const Statement& statement, bool complete) {
  if (check.HasHeader) check.Fail(statement.Line, "a second Header");
  check.HasHeader = true;
  if (!complete) return;
  const auto read = [&](std::size_t index, NumberRange range) {
    return static_cast<std::int32_t>(NumberArgument(statement, index, range, check.Errors).value_or(0));
  };
  const std::size_t before = check.Errors.size();
  check.Header.World = static_cast<std::uint16_t>(read(0, {"the first number", 0, 0xFFFF}));
  if (statement.Arguments.size() == 1) return;
  if (statement.Arguments.size() != 5) {
    check.Fail(statement.Line,
               "Header takes 1 or 5 numbers, " + std::to_string(statement.Arguments.size()) + " are given");
    return;
  }
  check.HasBounds = true;
  // Bounds are rounded outward, so they may lie a degree outside of the world.
  check.Header.North = read(1, {"the northern bound", -91, 91});
  check.Header.South = read(2, {"the southern bound", -91, 91});
  check.Header.East = read(3, {"the eastern bound", -181, 181});
  check.Header.West = read(4, {"the western bound", -181, 181});
  if (check.Errors.size() == before) check.BoundsLine = statement.Line;
}

/// Masks of a single fill come with bounds the wrong way round, and readers take only their middle. Terrain
/// without Cells, an exclusion of nothing, has no bounds at all.
void CheckOrderOfBounds(SourceCheck& check) {
  if (check.BoundsLine == 0) return;
  const bool isEmptyTerrain = check.Subject == Scenery::VectorTerrain && check.Vtp.File().Cells.empty();
  auto& list = check.Subject == Scenery::Masks || isEmptyTerrain ? check.Warnings : check.Errors;
  if (check.Header.North <= check.Header.South)
    list.push_back({check.BoundsLine, "Header: the northern bound is not north of the southern one"});
  if (check.Header.East <= check.Header.West)
    list.push_back({check.BoundsLine, "Header: the eastern bound is not east of the western one"});
}

/// What stands on the Header's bounds.
void CheckBounds(SourceCheck& check, const Statement& statement) {
  if (!check.HasHeader) check.Fail(statement.Line, statement.Name + " stands in front of the Header");
  if (check.HasHeader && !check.HasBounds)
    check.Fail(statement.Line, statement.Name + " wants a Header with bounds");
  check.HasHeader = check.HasBounds = true;  // said once
}

using Handler = void (*)(SourceCheck&, const Statement&, bool);

/// Hands a statement to an operation of one of the checkers, which is a member of SourceCheck.
template <auto Checker, auto Operation>
void To(SourceCheck& check, const Statement& statement, bool complete) {
  ((check.*Checker).*Operation)(statement, complete);
}

template <auto Checker, auto Operation>
void ToBounded(SourceCheck& check, const Statement& statement, bool complete) {
  CheckBounds(check, statement);
  To<Checker, Operation>(check, statement, complete);
}

template <void (LwmChecker::*Operation)(const Statement&, bool)>
constexpr Handler ToLwm = To<&SourceCheck::Lwm, Operation>;
template <void (VtpChecker::*Operation)(const Statement&, bool)>
constexpr Handler ToVtp = To<&SourceCheck::Vtp, Operation>;
template <void (ObjectChecker::*Operation)(const Statement&, bool)>
constexpr Handler ToObjects = To<&SourceCheck::Objects, Operation>;

struct StatementKind {
  std::string_view Name;
  std::size_t LeastArguments;
  std::size_t MostArguments;
  Scenery Subject;
  Handler Handle;
};

constexpr std::size_t Many = static_cast<std::size_t>(-1);
constexpr Scenery Any = Scenery::Any, Masks = Scenery::Masks, Terrain = Scenery::VectorTerrain,
                  Objects = Scenery::Objects;

/// Every statement there is: a new one is a new row.
constexpr StatementKind Kinds[] = {
    {"Set", 2, 2, Any, CheckSet},
    {"Header", 1, 5, Any, CheckHeader},

    {"LWMFileHeader", 0, 1, Masks, ToBounded<&SourceCheck::Lwm, &LwmChecker::FileHeader>},
    {"LWMAreaFill", 4, 5, Masks, ToLwm<&LwmChecker::AreaFill>},
    {"macro", 5, 5, Masks, ToLwm<&LwmChecker::Macro>},
    {"LWMAreaDrawPoly", 4, 4, Masks, ToLwm<&LwmChecker::AreaDrawPoly>},
    {"LWMPoly", 3, Many, Masks, ToLwm<&LwmChecker::Poly>},
    {"LWMPoly3", 4, Many, Masks, ToLwm<&LwmChecker::Poly3>},
    {"LWMIndexList", 1, Many, Masks, ToLwm<&LwmChecker::IndexList>},
    {"LWMEnd", 0, 0, Masks, ToLwm<&LwmChecker::End>},

    {"VTPFileHeader", 0, 1, Terrain, ToBounded<&SourceCheck::Vtp, &VtpChecker::FileHeader>},
    {"VTPArea", 4, 4, Terrain, ToVtp<&VtpChecker::Area>},
    {"VTPLayer", 4, 4, Terrain, ToVtp<&VtpChecker::Layer>},
    {"VTPTexID", 2, 2, Terrain, ToVtp<&VtpChecker::TexID>},
    {"VTPPolyCount", 1, 1, Terrain, ToVtp<&VtpChecker::PolyCount>},
    {"VTPPoly", 3, 3, Terrain, ToVtp<&VtpChecker::Poly>},
    {"VTPWPoint", 3, 4, Terrain, ToVtp<&VtpChecker::WPoint>},
    {"VTPCPoint", 2, 3, Terrain, ToVtp<&VtpChecker::CPoint>},
    {"VTPPointXY", 2, 2, Terrain, ToVtp<&VtpChecker::PointXY>},
    {"VTPIndexList", 1, Many, Terrain, ToVtp<&VtpChecker::IndexList>},
    {"VTPTextureList", 1, Many, Terrain, ToVtp<&VtpChecker::TextureList>},
    {"VTPEnd", 0, 0, Terrain, ToVtp<&VtpChecker::End>},

    {"LatRange", 2, 2, Objects, ToBounded<&SourceCheck::Objects, &ObjectChecker::LatRange>},
    {"Area", 4, 4, Objects, ToBounded<&SourceCheck::Objects, &ObjectChecker::Area>},
    {"LayerCall", 2, 2, Objects, ToObjects<&ObjectChecker::LayerCall>},
    {"Jump", 1, 1, Objects, ToObjects<&ObjectChecker::Jump>},
    {"RefPoint", 11, 11, Objects, ToObjects<&ObjectChecker::RefPoint>},
    {"BGLVersion", 1, 1, Objects, ToObjects<&ObjectChecker::Version>},
    {"TextureList", 1, Many, Objects, ToObjects<&ObjectChecker::TextureList>},
    {"MaterialList", 1, Many, Objects, ToObjects<&ObjectChecker::MaterialList>},
    {"VertexList", 1, Many, Objects, ToObjects<&ObjectChecker::VertexList>},
    {"SetMaterial", 2, 2, Objects, ToObjects<&ObjectChecker::SetMaterial>},
    {"DrawTriList", 1, Many, Objects, ToObjects<&ObjectChecker::DrawTriList>},
    {"EndVersion", 0, 0, Objects, ToObjects<&ObjectChecker::EndVersion>},
    {"Return", 0, 0, Objects, ToObjects<&ObjectChecker::Return>},
    {"EndA", 0, 0, Objects, ToObjects<&ObjectChecker::EndA>},
};

const StatementKind* FindKind(std::string_view name) {
  const auto* found = std::find_if(std::begin(Kinds), std::end(Kinds), [&](const StatementKind& kind) {
    return EqualsIgnoringCase(kind.Name, name);
  });
  return found == std::end(Kinds) ? nullptr : found;
}

bool ArgumentsFit(SourceCheck& check, const StatementKind& kind, const Statement& statement) {
  const std::size_t given = statement.Arguments.size();
  if (given >= kind.LeastArguments && given <= kind.MostArguments) return true;
  std::string wanted = std::to_string(kind.LeastArguments);
  if (kind.MostArguments == Many)
    wanted += " or more";
  else if (kind.MostArguments != kind.LeastArguments)
    wanted += " to " + std::to_string(kind.MostArguments);
  check.Fail(statement.Line,
             statement.Name + " takes " + wanted + " arguments, given are " + std::to_string(given));
  return false;
}

void CheckLabel(SourceCheck& check, const Statement& statement) {
  if (check.Objects.InArea()) {
    check.Objects.Label(statement);
    return;
  }
  check.Labels.Define(statement);
  if (check.Subject == Scenery::Masks) check.Lwm.Label(statement);
  if (check.Subject == Scenery::VectorTerrain) check.Vtp.Label(statement);
}

/// False for a statement of another kind of scenery than those before it, which is said once.
bool FitsSubject(SourceCheck& check, const StatementKind& kind, const Statement& statement) {
  if (kind.Subject == Scenery::Any || kind.Subject == check.Subject) return true;
  if (check.Subject == Scenery::Any) {
    check.Subject = kind.Subject;
    return true;
  }
  if (!check.IsMixed)
    check.Fail(statement.Line, statement.Name + " belongs to another kind of scenery than what stands above");
  check.IsMixed = true;
  return false;
}

void CheckStatement(SourceCheck& check, const Statement& statement) {
  if (statement.Name.starts_with(':')) {
    CheckLabel(check, statement);
    return;
  }
  const StatementKind* kind = FindKind(statement.Name);
  if (kind == nullptr)
    check.Fail(statement.Line, "the statement " + statement.Name + " is not known");
  else if (FitsSubject(check, *kind, statement))
    kind->Handle(check, statement, ArgumentsFit(check, *kind, statement));
}

}  // namespace

CheckedSource CheckScm(const ScmSource& source) {
  SourceCheck check;
  check.Errors = source.Errors;
  for (const Statement& statement : source.Statements)
    CheckStatement(check, statement);
  const std::size_t lastLine = source.Statements.empty() ? 1 : source.Statements.back().Line;
  if (!check.HasHeader) check.Fail(lastLine, "there is no Header");
  if (check.Subject == Scenery::Masks) check.Lwm.Finish(lastLine);
  if (check.Subject == Scenery::VectorTerrain) check.Vtp.Finish(lastLine);
  check.Objects.Finish();
  CheckOrderOfBounds(check);

  CheckedSource checked;
  checked.Header = check.Header;
  if (check.Subject == Scenery::Masks) checked.Lwm = check.Lwm.File();
  if (check.Subject == Scenery::VectorTerrain) checked.Vtp = check.Vtp.File();
  checked.TexturedAreas = check.Objects.TexturedAreas();
  std::stable_sort(check.Errors.begin(), check.Errors.end(),
                   [](const ScmError& a, const ScmError& b) { return a.Line < b.Line; });
  checked.Errors = std::move(check.Errors);
  checked.Warnings = std::move(check.Warnings);
  checked.HeldPoints = std::move(check.HeldPoints);
  return checked;
}

}  // namespace landsmith::simtools
