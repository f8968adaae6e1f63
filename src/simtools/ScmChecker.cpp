#include "simtools/ScmChecker.h"

#include "core/Text.h"
#include "simtools/StatementCheck.h"
#include "simtools/VtpChecker.h"

#include <algorithm>
#include <map>
#include <string>

namespace landsmith::simtools {

namespace {

/// All that is known while a source is walked through.
struct SourceCheck {
  std::vector<ScmError> Errors;
  BglHeader Header;
  bool HasHeader = false;
  bool HasBounds = false;
  bool HasBuffer = false;
  std::map<std::string, std::size_t> Labels;  ///< small letters, with the line
  std::vector<ScmError> HeldPoints;
  VtpChecker Vtp{Errors, HeldPoints};

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
  if (check.Errors.size() != before) return;
  if (check.Header.North <= check.Header.South)
    check.Fail(statement.Line, "Header: the northern bound is not north of the southern one");
  if (check.Header.East <= check.Header.West)
    check.Fail(statement.Line, "Header: the eastern bound is not east of the western one");
}

void CheckVtpFileHeader(SourceCheck& check, const Statement& statement, bool complete) {
  if (!check.HasHeader) check.Fail(statement.Line, "VTPFileHeader stands in front of the Header");
  if (check.HasHeader && !check.HasBounds)
    check.Fail(statement.Line, "vector terrain wants a Header with bounds");
  check.HasHeader = true;  // a missing one is said once
  check.Vtp.FileHeader(statement, complete);
}

using Handler = void (*)(SourceCheck&, const Statement&, bool);

template <void (VtpChecker::*Operation)(const Statement&, bool)>
void ToVtp(SourceCheck& check, const Statement& statement, bool complete) {
  (check.Vtp.*Operation)(statement, complete);
}

struct StatementKind {
  std::string_view Name;
  std::size_t LeastArguments;
  std::size_t MostArguments;
  Handler Handle;
};

constexpr std::size_t AnyNumber = static_cast<std::size_t>(-1);

/// Every statement there is: a new one is a new row.
constexpr StatementKind Kinds[] = {
    {"Set", 2, 2, CheckSet},
    {"Header", 1, 5, CheckHeader},
    {"VTPFileHeader", 0, 1, CheckVtpFileHeader},
    {"VTPArea", 4, 4, ToVtp<&VtpChecker::Area>},
    {"VTPLayer", 4, 4, ToVtp<&VtpChecker::Layer>},
    {"VTPTexID", 2, 2, ToVtp<&VtpChecker::TexID>},
    {"VTPPolyCount", 1, 1, ToVtp<&VtpChecker::PolyCount>},
    {"VTPPoly", 3, 3, ToVtp<&VtpChecker::Poly>},
    {"VTPWPoint", 3, 4, ToVtp<&VtpChecker::WPoint>},
    {"VTPCPoint", 2, 3, ToVtp<&VtpChecker::CPoint>},
    {"VTPIndexList", 1, AnyNumber, ToVtp<&VtpChecker::IndexList>},
    {"VTPTextureList", 1, AnyNumber, ToVtp<&VtpChecker::TextureList>},
    {"VTPEnd", 0, 0, ToVtp<&VtpChecker::End>},
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
  if (kind.MostArguments == AnyNumber)
    wanted += " or more";
  else if (kind.MostArguments != kind.LeastArguments)
    wanted += " to " + std::to_string(kind.MostArguments);
  check.Fail(statement.Line,
             statement.Name + " takes " + wanted + " arguments, given are " + std::to_string(given));
  return false;
}

void CheckLabel(SourceCheck& check, const Statement& statement) {
  const auto [place, isNew] = check.Labels.try_emplace(ToLower(statement.Name), statement.Line);
  if (!isNew)
    check.Fail(statement.Line, "the label " + statement.Name + " is used in line " +
                                   std::to_string(place->second) + " already");
  check.Vtp.Label(statement);
}

void CheckStatement(SourceCheck& check, const Statement& statement) {
  if (statement.Name.starts_with(':')) {
    CheckLabel(check, statement);
    return;
  }
  const StatementKind* kind = FindKind(statement.Name);
  if (kind == nullptr)
    check.Fail(statement.Line, "the statement " + statement.Name + " is not known");
  else
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
  if (!check.Vtp.IsUnused()) check.Vtp.Finish(lastLine);

  CheckedSource checked;
  checked.Header = check.Header;
  if (!check.Vtp.IsUnused()) checked.Vtp = check.Vtp.File();
  std::stable_sort(check.Errors.begin(), check.Errors.end(),
                   [](const ScmError& a, const ScmError& b) { return a.Line < b.Line; });
  checked.Errors = std::move(check.Errors);
  checked.HeldPoints = std::move(check.HeldPoints);
  return checked;
}

}  // namespace landsmith::simtools
