#include "compile/CompileStep.h"

#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace landsmith {
namespace {

constexpr int Cancelled = -1;

std::filesystem::path Utf8Path(const std::string& text) {
  return std::u8string(text.begin(), text.end());
}

/// A separator, wildcard or quote in a project name would lead the files out of the work folder or break the
/// tool's command line.
void RequireFileName(const std::string& baseName) {
  const auto isForbidden = [](char c) {
    return static_cast<unsigned char>(c) < 32 ||
           std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
  };
  if (std::any_of(baseName.begin(), baseName.end(), isForbidden))
    throw RuntimeError::At(
        "compiling", "", "",
        "\"" + baseName +
            "\" cannot be a file name: please take \\ / : * ? \" < > | out of the project's name");
}

void DeleteOutput(const std::filesystem::path& folder, const std::string& name) {
  while (const auto old = FindInFolder(folder, name)) {
    std::error_code failure;
    if (!std::filesystem::remove(*old, failure))
      throw RuntimeError::At("deleting the old output", PathText(*old), "", failure.message());
  }
}

/// Nothing when the folder is missing.
std::optional<std::filesystem::path> CopyToProjectFolder(const CompileContext& context,
                                                         const std::filesystem::path& output,
                                                         const std::string& name) {
  const std::string& stored = context.project.BGL1ProjectFolder;
  if (stored.empty() || NamesForeignDrive(stored)) return std::nullopt;
  const auto folder = FindExisting(stored);
  if (!folder) return std::nullopt;
  const auto target = FindInFolder(*folder, name).value_or(*folder / Utf8Path(name));
  WriteWholeFile(target, ReadWholeFile(output));
  return target;
}

bool CopyOutput(const CompileContext& context, const std::filesystem::path& output, const std::string& name) {
  try {
    if (auto target = CopyToProjectFolder(context, output, name)) {
      context.report.Written.push_back(std::move(*target));
      return true;
    }
  } catch (const RuntimeError&) {
    // the message below is all that an author can act on
  }
  context.dialogs.Message(MessageKind::Error, "Copying BGL files failed! Please exit FS2004!");
  return false;
}

void OfferReport(const CompileContext& context, std::string_view failureLine) {
  const std::string question = std::string(failureLine) + "\nDo you want to read a SCASM report?";
  if (context.dialogs.Ask(QuestionKind::OkCancel, question))
    context.tools.RunAndWait("notepad SCAERROR.LOG", context.folders.Tools(), context.progress);
}

bool RunTool(const CompileContext& context, const CompileStepRequest& request,
             const std::string& outputName) {
  const std::string command = "scasm work\\" + request.BaseName + ".scm" + std::string(request.ToolOptions);
  const int code = context.tools.RunAndWait(command, context.folders.Tools(), context.progress);
  if (code == Cancelled) {
    DeleteOutput(context.folders.Work(), outputName);
    return false;
  }
  if (code == ToolMissing) return false;
  if (code > 0) {
    OfferReport(context, request.FailureLine);
    DeleteOutput(context.folders.Work(), outputName);  // what the tool had written so far
    return false;
  }
  const auto output = FindInFolder(context.folders.Work(), outputName);
  if (!output) {
    context.dialogs.Message(MessageKind::Error,
                            "SCASM reported success but made no file " + outputName + "!");
    return false;
  }
  context.report.Written.push_back(*output);
  return !context.options.CopyBGL || CopyOutput(context, *output, outputName);
}

}  // namespace

std::string ProjectFileName(std::string_view projectName) {
  return ReplaceAll(std::string(projectName), " ", "_");
}

bool CompileStep(const CompileContext& context, const CompileStepRequest& request) {
  RequireFileName(request.BaseName);
  const std::filesystem::path work = context.folders.Work();
  const std::string outputName = request.BaseName + ".BGL";
  std::error_code failure;
  std::filesystem::create_directories(work, failure);
  if (failure) throw RuntimeError::At("making the work folder", PathText(work), "", failure.message());
  DeleteOutput(work, outputName);

  const std::filesystem::path source = work / Utf8Path(request.BaseName + ".scm");
  WriteWholeFile(source, ToWindows1252(request.Source));
  context.report.Written.push_back(source);
  context.report.LastSource = source;
  if (context.options.Mode == CompileMode::SourceOnly) return true;

  const bool succeeded = RunTool(context, request, outputName);
  if (!succeeded) context.report.Failed = true;
  return succeeded;
}

}  // namespace landsmith
