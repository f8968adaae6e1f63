// Keeps the copy for a crash while the window is open: every two minutes, if the project has changed, and off
// the window's thread.
#pragma once

#include "editor/Editor.h"
#include "editor/Recovery.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace landsmith {

class RecoveryKeeper final : public QObject {
  Q_OBJECT

public:
  explicit RecoveryKeeper(Session& session, QObject* parent = nullptr);
  /// Leaves the copy where it lies; End takes it away.
  ~RecoveryKeeper() override;

  /// The question about a copy that a crash has left. True: its project is open now, not saved yet.
  bool Offer(Editor& editor);
  /// A saved or dropped project needs no copy.
  void ProjectMayBeSaved();
  /// The program ends as it should. With `keepChanges` it had no time to ask: what is not saved is kept for
  /// the next start.
  void End(bool keepChanges);

private:
  void Keep();
  void Write(std::shared_ptr<ProjectState> copy);
  void WriteDone();
  void WaitForWriter();
  void Warn(const std::string& failure);
  void Drop();
  bool HaveSlot();
  std::filesystem::path Folder() const;

  Session& m_session;
  QTimer m_timer;
  std::optional<RecoverySlot> m_slot;
  /// What the copy holds. It stays here while the thread writes, so that no record that the thread reads is
  /// ever the project's own alone and changed in place.
  std::optional<ProjectState> m_kept;
  std::unique_ptr<QThread> m_writer;
  std::string m_failure;  ///< of the writer; empty when it went well
  bool m_copyThere = false;
  bool m_warned = false;
  bool m_dropWhenDone = false;
};

}  // namespace landsmith
