#include "forms/RecoveryKeeper.h"

#include "platform/Paths.h"

#include <chrono>
#include <exception>
#include <utility>

namespace landsmith {

namespace {

constexpr std::chrono::minutes Interval{2};

}  // namespace

RecoveryKeeper::RecoveryKeeper(Session& session, QObject* parent)
    : QObject(parent), m_session(session), m_timer(this) {
  m_timer.setObjectName(QStringLiteral("recoveryTimer"));
  connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::Keep);
  m_timer.start(Interval);
}

RecoveryKeeper::~RecoveryKeeper() {
  WaitForWriter();
}

std::filesystem::path RecoveryKeeper::Folder() const {
  return m_session.folders.AppPath / "recovery";
}

bool RecoveryKeeper::Offer(Editor& editor) {
  while (auto left = RecoverySlot::TakeLeft(Folder())) {
    const auto copy = left->Copy();
    if (copy && m_session.dialogs.Ask(QuestionKind::YesNo, RecoveryQuestion(*copy))) {
      if (!editor.OpenRecovered(copy->File, copy->ProjectFile)) return false;
      m_slot = std::move(left);
      m_copyThere = true;
      return true;
    }
    left->SetAside();
  }
  return false;
}

bool RecoveryKeeper::HaveSlot() {
  if (!m_slot) m_slot = RecoverySlot::TakeEmpty(Folder());
  if (!m_slot) Warn("no file can be made in " + PathText(Folder()));
  return m_slot.has_value();
}

void RecoveryKeeper::Keep() {
  const ProjectState& project = m_session.project;
  if (!project.Dirty) return Drop();
  // Half an edit is no project.
  if (m_writer || m_session.editsOpen > 0 || m_kept == project || !HaveSlot()) return;
  m_kept = project;
  auto copy = std::make_shared<ProjectState>(project);
  StoreView(m_session.view, *copy);
  Write(std::move(copy));
}

void RecoveryKeeper::Write(std::shared_ptr<ProjectState> copy) {
  m_copyThere = true;
  m_dropWhenDone = false;
  m_writer.reset(QThread::create([this, copy = std::move(copy), appPath = m_session.folders.AppPath] {
    try {
      m_slot->Write(std::move(*copy), appPath);
      m_failure.clear();
    } catch (const std::exception& failure) {
      m_failure = failure.what();
    }
  }));
  connect(m_writer.get(), &QThread::finished, this, &RecoveryKeeper::WriteDone);
  m_writer->start(QThread::LowPriority);
}

void RecoveryKeeper::WriteDone() {
  if (!m_writer) return;  // it has been waited for already
  m_writer->wait();
  m_writer.release()->deleteLater();
  if (m_dropWhenDone) return Drop();
  if (m_failure.empty()) return;
  m_kept.reset();  // tried again the next time
  Warn(m_failure);
}

void RecoveryKeeper::Warn(const std::string& failure) {
  if (std::exchange(m_warned, true)) return;
  m_session.dialogs.Message(MessageKind::Warning, "No copy for a crash can be kept: " + failure);
}

void RecoveryKeeper::ProjectMayBeSaved() {
  if (m_copyThere && !m_session.project.Dirty) Drop();
}

void RecoveryKeeper::Drop() {
  m_dropWhenDone = m_writer != nullptr;
  if (m_dropWhenDone || !m_copyThere) return;
  m_copyThere = false;
  m_kept.reset();
  m_slot->Remove();
}

void RecoveryKeeper::End(bool keepChanges) {
  m_timer.stop();
  WaitForWriter();
  if (!keepChanges) return Drop();
  Keep();
  WaitForWriter();
}

void RecoveryKeeper::WaitForWriter() {
  if (m_writer) m_writer->wait();
  m_writer.reset();
}

}  // namespace landsmith
