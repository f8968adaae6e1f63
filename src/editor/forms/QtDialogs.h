// The program's messages, questions and pickers as windows.
#pragma once

#include "platform/Dialogs.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace landsmith {

class QtDialogs final : public Dialogs {
public:
  /// The boxes belong to the window that is active, or else to `parent`; the program makes its dialogs before
  /// its main window, because the start-up already speaks.
  void SetParent(QWidget* parent) { m_parent = parent; }

  void Message(MessageKind kind, std::string_view text) override;
  bool Ask(QuestionKind kind, std::string_view question) override;
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileRequest& request) override;
  std::optional<std::filesystem::path> ChooseFileToSave(const FileRequest& request) override;
  std::optional<std::filesystem::path> ChooseFolder(const std::filesystem::path& start) override;
  std::optional<std::int32_t> ChooseColor(std::int32_t color) override;
  std::optional<std::string> InputText(std::string_view prompt, std::string_view initial) override;
  void ShowText(std::string_view title, std::string_view text) override;
  void Beep() override;

  /// What the latest message box said: the border of the program does not say it again.
  const std::string& LastMessage() const { return m_lastMessage; }

private:
  QWidget* Owner() const;

  QPointer<QWidget> m_parent;
  std::string m_lastMessage;
};

/// "Landsmith (*.LSP)|*.LSP|All Files|*.*" as the entries of a file dialog, "Landsmith (*.LSP)" and so on,
/// each with its patterns behind it; `ignoreCase` makes letters match in both cases.
QStringList NameFilters(std::string_view filter, bool ignoreCase);

/// A name without a suffix gets that of the chosen entry's first pattern, when it names one.
std::filesystem::path WithSuffix(const std::filesystem::path& path, std::string_view filter);

}  // namespace landsmith
