// The tie points of textured polygons: by mouse, by keys and boxes, and on their way into the polygon.
#include "DialogRig.h"
#include "forms/frmPolysP.h"
#include "forms/frmTexPoly.h"

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QTest>
#include <QTimer>

namespace landsmith::test {
namespace {

constexpr const char* Whole = "0,0//0,256//256,256//256,0//";

PolyRec Square(const std::string& pairs) {
  PolyRec poly;
  poly.Type = "TEX//a.bmp//4//1//1//5000//0//" + pairs;
  poly.Points = {{1, 1}, {1, 2}, {2, 2}, {2, 1}};
  SetPathBounds(poly);
  return poly;
}

std::string Caption(QWidget& form) {
  return Find<QGroupBox>(form, "frPoint").title().toStdString();
}
std::string Shown(QWidget& form) {
  return TextOf(form, "txtPX") + "," + TextOf(form, "txtPY");
}

TEST(TexPolyDialog, MouseChoosesAndDragsBoxesAndArrowsMoveTheChosenPoint) {
  DialogRig rig;
  frmTexPoly form(rig.session, Square(Whole), "", Whole, nullptr);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  auto& picture = Find<QWidget>(form, "picTex");
  EXPECT_EQ(Caption(form), "Point # 1");

  QTest::mousePress(&picture, Qt::LeftButton, {}, QPoint(525, 14));
  EXPECT_EQ(Caption(form), "Point # 3");
  QTest::mouseMove(&picture, QPoint(425, 114));
  EXPECT_EQ(Shown(form), "206,206");
  QTest::mouseRelease(&picture, Qt::LeftButton, {}, QPoint(425, 114));
  QTest::mouseMove(&picture, QPoint(300, 300));
  QTest::mouseClick(&picture, Qt::LeftButton, {}, QPoint(250, 250));
  EXPECT_EQ(form.Pairs(), "0,0//0,256//206,206//256,0//");

  auto& x = Find<QLineEdit>(form, "txtPX");
  x.selectAll();
  QTest::keyClicks(&x, "300");
  EXPECT_EQ(Shown(form), "256,206");
  x.selectAll();
  QTest::keyClicks(&x, "-");
  EXPECT_EQ(form.Pairs(), "0,0//0,256//256,206//256,0//") << "a number under way moves nothing";
  QTest::keyClicks(&x, "5");
  EXPECT_EQ(Shown(form), "0,206");

  auto& right = Find<QWidget>(form, "cmdRR");
  QTest::mousePress(&right, Qt::LeftButton);
  EXPECT_EQ(Shown(form), "1,206");
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::stoi(TextOf(form, "txtPX")) >= 3; }))
      << "again while it is held";
  QTest::mouseRelease(&right, Qt::LeftButton);
  picture.setFocus();
  QTest::keyClick(&picture, Qt::Key_PageDown);
  QTest::keyClick(&picture, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(&picture, Qt::Key_Left);
  EXPECT_EQ(Caption(form), "Point # 4");
  EXPECT_EQ(Shown(form), "255,10");
  Press(form, "cmdReset");
  EXPECT_EQ(form.Pairs(), Whole);
  QTest::keyClick(&picture, Qt::Key_Return);
  EXPECT_EQ(form.result(), QDialog::Accepted);
}

TEST(TexPolyDialog, PairsReachThePolygonThroughBothOkButtonsAlone) {
  struct Row {
    const char *inner, *outer;
    bool stored;
  };
  for (const Row& row :
       {Row{"cmdOK", "cmdOK", true}, Row{"cmdCancel", "cmdOK", false}, Row{"cmdOK", "cmdCancel", false}}) {
    DialogRig rig;
    rig.session.project.Polys = {Square(Whole)};
    frmPolysP dialog(rig.session, rig.display, nullptr);
    dialog.ShowOne(0);
    QTimer::singleShot(0, qApp, [&] {
      QWidget& form = *QApplication::activeModalWidget();
      QTest::keyClick(&Find<QWidget>(form, "picTex"), Qt::Key_Right);
      Press(form, row.inner);
    });
    QTest::mouseClick(&Find<QWidget>(dialog, "imgTex"), Qt::LeftButton);
    Press(dialog, row.outer);
    EXPECT_EQ(rig.session.project.Polys[0], Square(row.stored ? "1,0//0,256//256,256//256,0//" : Whole))
        << row.inner << " " << row.outer;
    EXPECT_EQ(rig.session.undo.CanUndo(), row.stored);
  }
}

TEST(TexPolyDialog, TheBitmapComesFromTheProjectThenFromTheSimulator) {
  DialogRig rig;
  rig.tools.answer = [](const std::string&) { return ToolMissing; };
  for (const auto& folder : {rig.folder / "Texture", rig.folder / "fs" / "Texture"})
    std::filesystem::create_directories(folder);
  const auto save = [&](const std::filesystem::path& file, Qt::GlobalColor color) {
    QImage picture(256, 256, QImage::Format_RGB32);
    picture.fill(color);
    picture.save(QString::fromStdString(file.string()));
  };
  save(rig.folder / "Texture" / "both.bmp", Qt::green);
  save(rig.folder / "fs" / "Texture" / "both.bmp", Qt::blue);
  save(rig.folder / "fs" / "Texture" / "stock.bmp", Qt::blue);
  WriteWholeFile(rig.folder / "Texture" / "broken.bmp", "no picture");
  struct Row {
    const char* name;
    std::string message;
    QColor color;
  };
  const Row rows[] = {
      {"both.bmp", "", Qt::green},
      {"stock.bmp", "", Qt::blue},
      {"none.bmp", "This texture should be copied to the PolyTex Folder!", {}},
      {"broken.bmp", "Wrong bitmap file format or missing MWGFX DLLs!\nPlease check this site:", {}}};
  for (const Row& row : rows) {
    rig.dialogs.messages.clear();
    frmTexPoly form(rig.session, Square(Whole), row.name, Whole, nullptr);
    EXPECT_EQ(rig.LastMessage().substr(0, row.message.size()), row.message) << row.name;
    EXPECT_EQ(rig.dialogs.messages.empty(), row.message.empty()) << row.name;
    EXPECT_EQ(form.windowTitle().toStdString(),
              std::string("Landsmith - Set Tying Points for Texture ") + row.name);
    if (!row.color.isValid()) continue;
    const QImage picture = Find<QWidget>(form, "picTex").grab().toImage();
    EXPECT_EQ(picture.pixelColor(200, 250), row.color) << row.name;
  }
}

}  // namespace
}  // namespace landsmith::test
