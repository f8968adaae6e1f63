#include "editor/Recovery.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "wiring/ProjectStore.h"

#include <chrono>
#include <ctime>
#include <system_error>
#include <utility>

namespace landsmith {

namespace {

constexpr std::string_view DeclinedName = "declined.LSP";
constexpr std::size_t SlotCount = 64;  ///< more programs than anyone runs at a time

std::filesystem::path SlotFile(const std::filesystem::path& folder, std::size_t number,
                               std::string_view suffix) {
  return folder / ("copy" + std::to_string(number) + std::string(suffix));
}

bool Exists(const std::filesystem::path& file) {
  std::error_code unreadable;
  return std::filesystem::exists(file, unreadable);
}

/// "2026-11-23 01:05".
std::string LocalTimeText(std::filesystem::file_time_type time) {
  const auto system = std::chrono::file_clock::to_sys(time);
  const std::time_t seconds = std::chrono::system_clock::to_time_t(
      std::chrono::time_point_cast<std::chrono::system_clock::duration>(system));
  const std::tm* parts = std::localtime(&seconds);
  char text[32] = "";
  if (parts) std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", parts);
  return text;
}

}  // namespace

RecoverySlot::RecoverySlot(const std::filesystem::path& folder, std::size_t number, FileLock lock)
    : m_project(SlotFile(folder, number, ".LSP")),
      m_about(SlotFile(folder, number, ".txt")),
      m_lock(std::move(lock)) {}

std::optional<RecoverySlot> RecoverySlot::Take(const std::filesystem::path& folder, bool holdingCopy) {
  for (std::size_t number = 1; number <= SlotCount; ++number) {
    const std::filesystem::path project = SlotFile(folder, number, ".LSP");
    if (Exists(project) != holdingCopy) continue;
    auto lock = FileLock::Take(SlotFile(folder, number, ".lock"));
    // Looked at again under the lock: its former holder may have been at work.
    if (lock && Exists(project) == holdingCopy) return RecoverySlot(folder, number, std::move(*lock));
  }
  return {};
}

std::optional<RecoverySlot> RecoverySlot::TakeLeft(const std::filesystem::path& folder) {
  return Exists(folder) ? Take(folder, true) : std::nullopt;
}

std::optional<RecoverySlot> RecoverySlot::TakeEmpty(const std::filesystem::path& folder) {
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  return Take(folder, false);
}

std::optional<RecoveryCopy> RecoverySlot::Copy() const {
  std::error_code missing;
  RecoveryCopy copy;
  copy.File = m_project;
  copy.Written = std::filesystem::last_write_time(m_project, missing);
  if (missing) return {};
  try {
    const std::string about = ReadWholeFile(m_about);
    const std::size_t lineEnd = about.find('\n');
    copy.Name = about.substr(0, lineEnd);
    if (lineEnd != std::string::npos) copy.ProjectFile = about.substr(lineEnd + 1);
  } catch (const RuntimeError&) {
    // The drawing counts; it then has no file yet.
  }
  return copy;
}

void RecoverySlot::Write(ProjectState project, const std::filesystem::path& appPath) const {
  WriteWholeFile(m_about, project.Name + "\n" + project.ProjectFile);
  SaveProjectFile(project, m_project, appPath);
}

void RecoverySlot::Remove() const {
  std::error_code failure;
  std::filesystem::remove(m_project, failure);
  std::filesystem::remove(m_about, failure);
}

void RecoverySlot::SetAside() const {
  std::error_code failure;
  std::filesystem::rename(m_project, m_project.parent_path() / DeclinedName, failure);
  Remove();
}

std::string RecoveryQuestion(const RecoveryCopy& copy) {
  std::string text =
      "Landsmith did not come to its end the last time, and this project had changes that were "
      "not saved:\n\n" +
      copy.Name;
  if (!copy.ProjectFile.empty()) text += "\n" + copy.ProjectFile;
  return text + "\n\nA copy was kept at " + LocalTimeText(copy.Written) +
         ". Open it ?\nWith No the copy is set aside as " + PathText(copy.File.parent_path() / DeclinedName) +
         ".";
}

}  // namespace landsmith
