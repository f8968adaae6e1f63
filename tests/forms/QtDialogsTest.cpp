#include "forms/QtDialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(FileDialogFilter, BecomesEntriesOfTheDialog) {
  const struct {
    const char* name;
    const char* filter;
    bool ignoreCase;
    const char* entries;
  } rows[] = {
      {"both cases", "Landsmith (*.LSP)|*.LSP", true, "Landsmith (*.[lL][sS][pP])"},
      {"all files means those without a point too", "Surfer File (*.BLN)|*.BLN|All Files|*.*", false,
       "Surfer File (*.BLN);;All Files (*)"},
      {"several patterns", "Pictures|*.BMP;*.TIF", false, "Pictures (*.BMP *.TIF)"},
      {"a caption without a pattern", "Odd", false, ""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(NameFilters(row.filter, row.ignoreCase).join(QStringLiteral(";;")).toStdString(), row.entries)
        << row.name;
}

TEST(FileDialogFilter, GivesANameItsSuffix) {
  EXPECT_EQ(WithSuffix("/a/road", "Landsmith (*.LSP)|*.LSP|All Files|*.*"), "/a/road.LSP");
  EXPECT_EQ(WithSuffix("/a/road.lsp", "Landsmith (*.LSP)|*.LSP"), "/a/road.lsp");
  EXPECT_EQ(WithSuffix("/a/road", "All Files|*.*"), "/a/road");
}

/// Presses `key` in the message box that opens next and tells what the box said.
struct AnsweredBox {
  explicit AnsweredBox(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      title = box->windowTitle().toStdString();
      text = box->text().toStdString();
      defaultButton = box->standardButton(box->defaultButton());
      if (button == QMessageBox::NoButton)
        box->reject();
      else
        box->button(button)->click();
    });
  }
  std::string title, text;
  QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
};

TEST(MessageBoxes, AskWithTheRefusalAsDefault) {
  const struct {
    QuestionKind kind;
    QMessageBox::StandardButton pressed;
    bool agreed;
    QMessageBox::StandardButton byDefault;
  } rows[] = {
      {QuestionKind::YesNo, QMessageBox::Yes, true, QMessageBox::No},
      {QuestionKind::YesNo, QMessageBox::No, false, QMessageBox::No},
      {QuestionKind::OkCancel, QMessageBox::Ok, true, QMessageBox::Cancel},
      {QuestionKind::OkCancel, QMessageBox::NoButton, false, QMessageBox::Cancel},  // Esc
  };
  QtDialogs dialogs;
  for (const auto& row : rows) {
    AnsweredBox box(row.pressed);
    EXPECT_EQ(dialogs.Ask(row.kind, "Delete <this> Line ?"), row.agreed);
    EXPECT_EQ(box.defaultButton, row.byDefault);
    EXPECT_EQ(box.title, "Landsmith");
    EXPECT_EQ(box.text, "Delete <this> Line ?");
  }
}

}  // namespace
}  // namespace landsmith
