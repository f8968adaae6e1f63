#include "simtools/Scasm.h"

#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "simtools/BglLayout.h"
#include "simtools/SourceBgl.h"

#include <optional>
#include <ostream>

namespace landsmith::simtools {

namespace {

constexpr std::string_view WhoWeAre = "This is scasm, the Landsmith stand-in compiler.";
constexpr std::string_view LogName = "SCAERROR.LOG";

/// The file `name` inside `folder` in whatever case it is there, else as it is called here.
std::filesystem::path PlaceIn(const std::filesystem::path& folder, std::string_view name) {
  return FindInFolder(folder, name).value_or(folder / name);
}

std::optional<std::string> SourceArgument(const std::vector<std::string>& arguments) {
  std::optional<std::string> source;
  for (const std::string& argument : arguments) {
    if (argument == "-s" || argument == "-l") continue;
    if (source || argument.starts_with('-')) return std::nullopt;
    source = argument;
  }
  return source;
}

std::string ErrorLines(const std::string& file, const std::vector<ScmError>& errors) {
  std::string text;
  for (const ScmError& error : errors)
    text += file + "(" + std::to_string(error.Line) + "): " + error.Reason + "\r\n";
  return text;
}

/// What an author should know about a file that is written all the same.
void TellHeldPoints(const std::string& file, const std::vector<ScmError>& points, std::ostream& out) {
  for (const ScmError& point : points)
    out << file << "(" << point.Line << "): warning: " << point.Reason << "\n";
  if (!points.empty())
    out << points.size() << (points.size() == 1 ? " point lies" : " points lie") << " outside of 0 to "
        << bgl::LargestPoint
        << " and cannot stand in the file so: each is held to that range, and the steps behind it move "
           "along\n";
}

int Refuse(const std::filesystem::path& log, const std::string& lines, std::ostream& out) {
  WriteWholeFile(log, std::string(WhoWeAre) + "\r\n\r\n" + lines);
  out << ReplaceAll(lines, "\r\n", "\n");
  return 1;
}

int Compile(const std::string& source, const std::filesystem::path& folder, std::ostream& out) {
  const std::filesystem::path sourceFile = MapPathIn(folder, source);
  const std::filesystem::path bgl = PlaceIn(sourceFile.parent_path(), PathText(sourceFile.stem()) + ".BGL");
  const std::filesystem::path log = PlaceIn(folder, LogName);
  std::error_code ignored;
  std::filesystem::remove(bgl, ignored);
  std::filesystem::remove(log, ignored);

  std::string bytes;
  try {
    bytes = ReadWholeFile(sourceFile);
  } catch (const RuntimeError& error) {
    return Refuse(log, error.what() + std::string("\r\n"), out);
  }
  const CheckedSource checked = CheckScm(ParseScm(bytes));
  if (!checked.Errors.empty()) return Refuse(log, ErrorLines(source, checked.Errors), out);
  WriteWholeFile(bgl, BglOf(checked));
  TellHeldPoints(source, checked.HeldPoints, out);
  out << PathText(bgl) << ": " << ContentOf(checked) << "\n";
  return 0;
}

}  // namespace

int RunScasm(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
             std::ostream& out) {
  out << WhoWeAre << "\n";
  const auto source = SourceArgument(arguments);
  if (!source) {
    out << "Usage: scasm SOURCE.scm [-s] [-l]\n";
    return ScasmUsageError;
  }
  try {
    return Compile(*source, folder, out);
  } catch (const RuntimeError& error) {
    out << error.what() << "\n";
    return 1;
  }
}

}  // namespace landsmith::simtools
