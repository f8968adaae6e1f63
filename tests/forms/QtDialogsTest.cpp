#include "forms/QtDialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <array>

namespace landsmith {
namespace {

struct FilterRow {
  const char* name;
  const char* filter;
  bool ignoreCase;
  const char* entries;
};

TEST(FileDialogFilter, BecomesEntriesOfTheDialog) {
  const std::array rows{
      FilterRow{"the caption's pattern is not taken twice", "Landsmith (*.LSP)|*.LSP", false,
                "Landsmith (*.LSP)"},
      FilterRow{"both cases", "Landsmith (*.LSP)|*.LSP", true, "Landsmith (*.[lL][sS][pP])"},
      FilterRow{"all files means those without a point too", "Surfer File (*.BLN)|*.BLN|All Files|*.*", false,
                "Surfer File (*.BLN);;All Files (*)"},
      FilterRow{"several patterns", "Pictures|*.BMP;*.TIF", false, "Pictures (*.BMP *.TIF)"},
      FilterRow{"a caption without a pattern", "Odd", false, ""},
  };
  for (const FilterRow& row : rows)
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
      icon = box->icon();
      if (button == QMessageBox::NoButton)
        box->reject();
      else
        box->button(button)->click();
    });
  }
  std::string title, text;
  QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
};

struct QuestionRow {
  QuestionKind kind;
  QMessageBox::StandardButton pressed;
  bool agreed;
  QMessageBox::StandardButton byDefault;
};

TEST(MessageBoxes, AskWithTheRefusalAsDefault) {
  const std::array rows{
      QuestionRow{QuestionKind::YesNo, QMessageBox::Yes, true, QMessageBox::No},
      QuestionRow{QuestionKind::YesNo, QMessageBox::No, false, QMessageBox::No},
      QuestionRow{QuestionKind::YesNo, QMessageBox::NoButton, false, QMessageBox::No},  // Esc
      QuestionRow{QuestionKind::OkCancel, QMessageBox::Ok, true, QMessageBox::Cancel},
      QuestionRow{QuestionKind::OkCancel, QMessageBox::NoButton, false, QMessageBox::Cancel},
  };
  QtDialogs dialogs;
  for (const QuestionRow& row : rows) {
    AnsweredBox box(row.pressed);
    EXPECT_EQ(dialogs.Ask(row.kind, "Delete <this> Line ?"), row.agreed);
    EXPECT_EQ(box.defaultButton, row.byDefault);
    EXPECT_EQ(box.title, "Landsmith");
    EXPECT_EQ(box.text, "Delete <this> Line ?");
  }
}

TEST(MessageBoxes, ShowTheKindAsIcon) {
  QtDialogs dialogs;
  const std::array kinds{std::pair{MessageKind::Info, QMessageBox::Information},
                         std::pair{MessageKind::Warning, QMessageBox::Warning},
                         std::pair{MessageKind::Error, QMessageBox::Critical}};
  for (const auto& [kind, icon] : kinds) {
    AnsweredBox box(QMessageBox::Ok);
    dialogs.Message(kind, "text");
    EXPECT_EQ(box.icon, icon);
  }
}

}  // namespace
}  // namespace landsmith
