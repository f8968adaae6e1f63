#include "forms/QtDialogs.h"

#include "forms/QtSurface.h"
#include "forms/QtText.h"
#include "forms/TextWindow.h"
#include "forms/frmBrowse.h"
#include "platform/Paths.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QRegularExpression>

namespace landsmith {

namespace {

const QString BoxTitle = QStringLiteral("Landsmith");

#ifdef Q_OS_WIN
constexpr bool NamesHaveCase = false;
#else
constexpr bool NamesHaveCase = true;
#endif

/// "*.LSP" as "*.[lL][sS][pP]".
QString InBothCases(const QString& pattern) {
  QString result;
  for (const QChar letter : pattern) {
    if (letter.toLower() == letter.toUpper())
      result += letter;
    else
      result += QStringLiteral("[%1%2]").arg(letter.toLower()).arg(letter.toUpper());
  }
  return result;
}

QStringList Parts(std::string_view filter) {
  return ToQString(filter).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

QMessageBox::Icon IconOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::Info:
      return QMessageBox::Information;
    case MessageKind::Warning:
      return QMessageBox::Warning;
    case MessageKind::Error:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

/// `name` may be a full path, as the project file's is.
QString StartOf(const FileRequest& request) {
  const std::filesystem::path name = request.FileName.empty() ? "" : MapPath(request.FileName);
  return PathToQString(request.Folder.empty() || name.is_absolute() ? name : request.Folder / name);
}

}  // namespace

QStringList NameFilters(std::string_view filter, bool ignoreCase) {
  const QStringList parts = Parts(filter);
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // The caption's own pattern would count as the entry's patterns if it stood last.
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    if (patterns == QLatin1String("*.*")) patterns = QStringLiteral("*");
    QString caption = parts[i];
    caption.remove(QRegularExpression(QStringLiteral("\\s*\\([^)]*\\)\\s*$")));
    entries +=
        caption + QStringLiteral(" (") + (ignoreCase ? InBothCases(patterns) : patterns) + QLatin1Char(')');
  }
  return entries;
}

std::filesystem::path WithSuffix(const std::filesystem::path& path, std::string_view filter) {
  if (path.has_extension()) return path;
  const QStringList parts = Parts(filter);
  if (parts.size() < 2 || parts[1].contains(QLatin1String(".*"))) return path;
  const QString suffix = parts[1].section(QLatin1Char(';'), 0, 0).section(QLatin1Char('.'), -1);
  return path.parent_path() / (path.filename().string() + "." + suffix.toStdString());
}

QWidget* QtDialogs::Owner() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  // A form beside the canvas too: the keyboard goes back to where it came from.
  QWidget* active = QApplication::activeWindow();
  return active ? active : m_parent.data();
}

void QtDialogs::Message(MessageKind kind, std::string_view text) {
  m_lastMessage = text;
  QMessageBox box(IconOf(kind), BoxTitle, ToQString(text), QMessageBox::Ok, Owner());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool QtDialogs::Ask(QuestionKind kind, std::string_view question) {
  const bool yesNo = kind == QuestionKind::YesNo;
  const auto accept = yesNo ? QMessageBox::Yes : QMessageBox::Ok;
  const auto refuse = yesNo ? QMessageBox::No : QMessageBox::Cancel;
  QMessageBox box(QMessageBox::Question, BoxTitle, ToQString(question), accept | refuse, Owner());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(refuse);
  box.setEscapeButton(refuse);
  return box.exec() == accept;
}

std::optional<std::filesystem::path> QtDialogs::ChooseFileToOpen(const FileRequest& request) {
  QFileDialog dialog(Owner(), ToQString(request.Title), StartOf(request));
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(request.Filter, NamesHaveCase));
  dialog.setOption(QFileDialog::HideNameFilterDetails, NamesHaveCase);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return ToPath(dialog.selectedFiles().constFirst());
}

std::optional<std::filesystem::path> QtDialogs::ChooseFileToSave(const FileRequest& request) {
  QFileDialog dialog(Owner(), ToQString(request.Title));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  if (!request.Folder.empty()) dialog.setDirectory(PathToQString(request.Folder));
  dialog.setNameFilters(NameFilters(request.Filter, NamesHaveCase));
  dialog.setOption(QFileDialog::HideNameFilterDetails, NamesHaveCase);
  // With the suffix known the dialog itself asks before it takes a name that exists.
  dialog.setDefaultSuffix(
      PathToQString(WithSuffix("x", request.Filter).extension()).remove(QLatin1Char('.')));
  if (!request.FileName.empty()) dialog.selectFile(StartOf(request));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return WithSuffix(ToPath(dialog.selectedFiles().constFirst()), request.Filter);
}

std::optional<std::filesystem::path> QtDialogs::ChooseFolder(const std::filesystem::path& start) {
  return frmBrowse::ChooseFolder(Owner(), start);
}

std::optional<std::int32_t> QtDialogs::ChooseColor(std::int32_t color) {
  const QColor chosen = QColorDialog::getColor(ToQColor(color), Owner(), BoxTitle);
  if (!chosen.isValid()) return {};
  return FromQColor(chosen);
}

std::optional<std::string> QtDialogs::InputText(std::string_view prompt, std::string_view initial) {
  bool accepted = false;
  const QString text = QInputDialog::getText(Owner(), BoxTitle, ToQString(prompt), QLineEdit::Normal,
                                             ToQString(initial), &accepted);
  if (!accepted) return {};
  return text.toStdString();
}

void QtDialogs::ShowText(std::string_view title, std::string_view text) {
  TextWindow(ToQString(title), ToQString(text), Owner()).exec();
}

void QtDialogs::Beep() {
  QApplication::beep();
}

}  // namespace landsmith
