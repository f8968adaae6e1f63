// The copy of a changed project that outlives a crash.
//
// Every running program has a slot of its own in a folder beside the settings: "copy1.lock", which it holds
// while it runs, "copy1.LSP", its project, and "copy1.txt", what the project file does not tell of itself. A
// copy whose lock is free was left by a program that did not come to its end.
#pragma once

#include "core/Project.h"
#include "platform/FileLock.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace landsmith {

/// A copy that lies in a slot.
struct RecoveryCopy {
  std::filesystem::path File;               ///< a project file like any other
  std::string Name;                         ///< of the project
  std::string ProjectFile;                  ///< where the project belongs; empty when it was never saved
  std::filesystem::file_time_type Written;  ///< as the file system tells it
};

class RecoverySlot {
public:
  /// The first slot that holds a copy and that no program holds. It may be written over, as one's own.
  static std::optional<RecoverySlot> TakeLeft(const std::filesystem::path& folder);
  /// A slot that holds nothing; the folder is made when it is missing. Nothing where no file can be made.
  static std::optional<RecoverySlot> TakeEmpty(const std::filesystem::path& folder);

  /// The copy that lies here, if any.
  std::optional<RecoveryCopy> Copy() const;
  /// Writes the project in place of what lies here; throws RuntimeError, and what lay here is then whole.
  /// `project` belongs to the call: it is prepared for its file as a save prepares it.
  void Write(ProjectState project, const std::filesystem::path& appPath) const;
  void Remove() const;
  /// Takes the copy out of the slot without deleting it: it becomes "declined.LSP" in place of the one that
  /// was declined before. A hasty answer must not cost the work of an afternoon.
  void SetAside() const;

private:
  RecoverySlot(const std::filesystem::path& folder, std::size_t number, FileLock lock);
  static std::optional<RecoverySlot> Take(const std::filesystem::path& folder, bool holdingCopy);

  std::filesystem::path m_project, m_about;
  FileLock m_lock;
};

/// The question at the start after a crash; it names the project and the time, in the machine's time zone.
std::string RecoveryQuestion(const RecoveryCopy& copy);

}  // namespace landsmith
