// The program's path from end to end, by mouse and buttons alone: draw a road, give it a type, compile it.
#include "Controls.h"
#include "WindowRig.h"
#include "core/Text.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace landsmith {
namespace {

using test::Find;
using test::WindowRig;

/// Works on the dialog that opens next; what goes wrong there must not leave it open for ever.
class InDialog {
public:
  InDialog(const char* name, std::function<void(QWidget&)> work) {
    QTimer::singleShot(0, [this, name, work = std::move(work)] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (!dialog) return;
      EXPECT_EQ(dialog->objectName().toStdString(), name);
      try {
        work(*dialog);
        Done = true;
      } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
      }
      if (dialog->isVisible()) dialog->close();
    });
  }
  bool Done = false;
};

TEST(Road, IsDrawnTypedAndCompiled) {
  WindowRig rig(WindowRig::Tools::StandIns);
  rig.ShowProject("Line");
  for (const int x : {-60, 0, 60})
    rig.Click(x, 0);
  rig.Click(80, 0, Qt::RightButton);
  ASSERT_EQ(rig.session.project.Lines.size(), 1U);

  rig.Click(30, 0, Qt::RightButton);
  ASSERT_TRUE(rig.canvas->findChild<QMenu*>("mnuPUObjects")->isVisible());
  rig.canvas->findChild<QMenu*>("mnuPUObjects")->close();
  InDialog properties("frmLinesP", [](QWidget& form) {
    Find<QLineEdit>(form, "txtName").setText("Coast road");
    QTest::mouseClick(&Find<QRadioButton>(form, "optVTP"), Qt::LeftButton);
    Find<QLineEdit>(form, "txtLayer").setText("8");
    QTest::mouseClick(&Find<QPushButton>(form, "cmdOK"), Qt::LeftButton);
  });
  rig.window->findChild<QAction*>("mnuPUObjectsProperties")->trigger();
  ASSERT_TRUE(properties.Done);
  const RecordList<LineRec>& lines = rig.session.project.Lines;
  EXPECT_EQ(lines[0].Name, "Coast road");
  EXPECT_EQ(lines[0].Type.substr(0, 8), "VTP//8//");

  rig.Button("Pointer").click();
  rig.Click(30, 0);
  ASSERT_TRUE(lines[0].Selected);
  std::string shownSource;
  InDialog compilation("frmBGL", [&](QWidget& form) {
    EXPECT_TRUE(Find<QCheckBox>(form, "ckVTPLines").isChecked());
    EXPECT_FALSE(Find<QCheckBox>(form, "ckObjects").isEnabled());
    Find<QCheckBox>(form, "ckCopyBGLs").setChecked(true);
    QTest::mouseClick(&Find<QPushButton>(form, "cmdCompile"), Qt::LeftButton);
    shownSource = Find<QPlainTextEdit>(form, "txtSource").toPlainText().toStdString();
    EXPECT_GE(Find<QListWidget>(form, "lstFiles").count(), 1);
  });
  rig.Button("BGL").click();
  ASSERT_TRUE(compilation.Done);
  for (const auto& said : rig.dialogs.messages)
    EXPECT_NE(said.kind, MessageKind::Error) << said.text;

  const std::filesystem::path work = rig.session.folders.Work();
  const std::string source = ReadWholeFile(work / "Trial_VTPL.scm");
  EXPECT_EQ(ReplaceAll(source, "\r\n", "\n"), shownSource);
  // The road lies at 40 north, 10 west: whole degrees 40 to 41 and -10 to -9 or -11 to -10, in Cell 362 142
  // of the world, which is 10 14 of its LOD5 square of 32.
  EXPECT_NE(source.find("VTPArea( 1 1 10 14 )"), std::string::npos) << source;
  EXPECT_NE(source.find("VTPLayer( 8 1 1 0 )"), std::string::npos);
  EXPECT_NE(source.find(";Coast road"), std::string::npos);
  EXPECT_NE(source.find("        362 142 0"), std::string::npos);
  EXPECT_TRUE(FindInFolder(rig.folder / "scenery", "Trial_VTPL.BGL").has_value());
}

}  // namespace
}  // namespace landsmith
