// The polygon properties: type texts and colours, altitudes, exclusions, textures, join, check, templates.
#include "DialogRig.h"
#include "forms/frmLPCheck.h"
#include "forms/frmPolysP.h"
#include "raster/ClassTable.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include <functional>

namespace landsmith::test {
namespace {

constexpr const char* NoLayers = "Other//-2147483648//-2147483648//-2147483648//-2147483648//";

/// A ring through (longitude, latitude, altitude).
PolyRec Ring(std::initializer_list<PolyPoint> points, const std::string& type = {}) {
  PolyRec poly;
  poly.Type = type;
  poly.Points = points;
  poly.Color = 77;
  SetPathBounds(poly);
  return poly;
}
PolyRec Square(double west, double south, const std::string& type = {}) {
  return Ring({{west, south}, {west, south + 1}, {west + 1, south + 1}, {west + 1, south}}, type);
}

std::vector<float> Altitudes(const PolyRec& poly) {
  std::vector<float> altitudes;
  for (const PolyPoint& point : poly.Points)
    altitudes.push_back(point.Alt);
  return altitudes;
}

/// Does this with the next dialog that opens on top.
void WithNextDialog(std::function<void(QWidget&)> act) {
  QTimer::singleShot(0, qApp, [act = std::move(act)] { act(*QApplication::activeModalWidget()); });
}

class PolysDialog : public testing::Test {
protected:
  DialogRig rig;

  PolysDialog() {
    rig.session.polyTextures = {{2001, "na.bmp", "Lake", "", 10, 20, 30},
                                {2002, "na.bmp", "Park", "\"a.bmp\" 0 0 0 4", 1, 2, 3}};
    rig.session.lands = ParseClassTable("001 150 120 120 001 Urban\r\n003 040 090 050 003 Forest\r\n",
                                        ClassKind::Land, "lands.txt");
    rig.session.settings.DisplayJoin = false;
    rig.session.settings.PolyColorFill = 5;
    rig.session.settings.PolyExcludeColor = 6;
    rig.session.settings.PolyWaterColor = 7;
  }
  const PolyRec& Poly(std::size_t i = 0) { return rig.session.project.Polys[i]; }
  void Draw(std::initializer_list<PolyRec> polys) { rig.session.project.Polys = polys; }
  std::unique_ptr<frmPolysP> Open() {
    auto dialog = std::make_unique<frmPolysP>(rig.session, rig.display, nullptr);
    dialog->ShowOne(0);
    return dialog;
  }
  std::unique_ptr<frmPolysP> OpenMany(std::int32_t selectedItems) {
    rig.session.tool.Selected.SelectedCount = selectedItems;
    auto dialog = std::make_unique<frmPolysP>(rig.session, rig.display, nullptr);
    dialog->ShowMany();
    return dialog;
  }
};

// Looking at a polygon must not rewrite what another program, or an older catalogue, put into its type.
TEST_F(PolysDialog, EachTypeChoosesItsOptionAndStaysWhenUntouched) {
  struct Row {
    const char *type, *option, *inside;
  };
  const Row rows[] = {{"", "optNone", nullptr},
                      {"LWM//Land//5//5//1//1//", "optLWM", "optLand"},
                      {"LWM//Water//9//2//3//1//", "optLWM", "optWater"},
                      {"LWM//Flatten//5", "optLWM", "optFlatten"},
                      {"VTP//4//3//", "optVTP", "optClassTex"},
                      {"VTP//4// 250 //", "optVTP", "optClassTex"},  // no class of the table
                      {"VTP////2001//", "optVTP", "optAptTex"},
                      {"VTP//4//20010//tail//", "optVTP", "optNameTex"},
                      {NoLayers, "optOther", nullptr},
                      {"Other//1//2//", "optOther", nullptr},  // two masks are missing
                      {"TEX//a.bmp//x//1//1////7//1,2//", "optTex", nullptr}};
  for (const Row& row : rows) {
    Draw({Square(1, 1, row.type)});
    const auto dialog = Open();
    EXPECT_TRUE(IsChecked(*dialog, row.option)) << row.type;
    EXPECT_TRUE(row.inside == nullptr || IsChecked(*dialog, row.inside)) << row.type;
    Press(*dialog, "cmdOK");
    EXPECT_EQ(dialog->result(), QDialog::Accepted) << row.type;
    EXPECT_EQ(Poly().Type, row.type);
    EXPECT_EQ(Poly().Color, 77) << row.type;
    EXPECT_FALSE(rig.session.project.Dirty) << row.type;
  }
}

TEST_F(PolysDialog, EachOptionGivesItsTextAndColor) {
  using Steps = std::function<void(frmPolysP&)>;
  struct Row {
    const char* option;
    Steps steps;
    const char* type;
    std::int32_t color;
  };
  const std::int32_t own = Rgb(9, 9, 9);
  const auto choose = [](const char* inside, const char* swatch = nullptr) {
    return [=](frmPolysP& dialog) {
      Press(dialog, inside);
      if (swatch) Press(dialog, swatch);
    };
  };
  const Row rows[] = {
      {"optNone", [](frmPolysP&) {}, "", 5},
      {"optLWM", choose("optWater"), "LWM//Water//3//3//1//1//", 7},
      {"optLWM", choose("optFlatten", "lbAltColor"), "LWM//Flatten//3//3//1//1//", own},
      {"optVTP", choose("optClassTex"), "VTP//4//1//", Rgb(150, 120, 120)},
      {"optVTP",
       [](frmPolysP& dialog) {
         Press(dialog, "optAptTex");
         Type(dialog, "txtLayer", "12");
       },
       "VTP//12//2001//", Rgb(10, 20, 30)},
      {"optVTP",
       [](frmPolysP& dialog) {
         Press(dialog, "optNameTex");
         Type(dialog, "txtNameTex", " own.bmp ");
         Press(dialog, "lbColor");
       },
       "VTP//4//own.bmp//", own},
      {"optOther", [](frmPolysP&) {}, NoLayers, 6},
      // The square's pairs run from 0 to 256 on both axes, x before y.
      {"optTex",
       [](frmPolysP& dialog) {
         Type(dialog, "txtTexName", "a.bmp");
         for (const char* box : {"txtTexPri", "txtTexTileX", "txtTexTileY", "txtV1"})
           Type(dialog, box, "");
         Press(dialog, "ckNight");
         Press(dialog, "lbTexColor");
       },
       "TEX//a.bmp//4//1//1//5000//1//0,0//0,256//256,256//256,0//", own},
  };
  for (const Row& row : rows) {
    Draw({Ring({{1, 1, 3}, {1, 2, 3}, {2, 2, 3}, {2, 1, 3}}, "Signals//")});
    rig.dialogs.colors = {own};
    const auto dialog = Open();
    Press(*dialog, row.option);
    row.steps(*dialog);
    Press(*dialog, "cmdOK");
    EXPECT_EQ(Poly().Type, row.type);
    EXPECT_EQ(Poly().Color, row.color) << row.type;
    EXPECT_TRUE(rig.session.undo.CanUndo()) << row.type;
  }
}

TEST_F(PolysDialog, TheClassBoxHasTheColorOfTheClassAndTextThatShowsOnIt) {
  Draw({Square(1, 1, "VTP//4//3//")});
  const auto dialog = Open();
  const QPalette palette = Find<QLineEdit>(*dialog, "txtClassTex").palette();
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Base), QColor(40, 90, 50));
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::white));
}

TEST_F(PolysDialog, AnAltitudeTypedWithTheMaskGoesToLevelPolygonsAlone) {
  const PolyRec sloped = Ring({{1, 1, 4}, {1, 2, 9}, {2, 2, 2}});
  for (const bool level : {true, false}) {
    Draw({level ? Square(1, 1) : sloped});
    const auto dialog = Open();
    EXPECT_EQ(TextOf(*dialog, "txtAltitude"), level ? "0" : "9");
    Press(*dialog, "optLWM");
    Type(*dialog, "txtAltitude", "high");
    Press(*dialog, "cmdOK");
    EXPECT_EQ(Poly().Type, "") << "no number, so nothing happens";
    EXPECT_NE(dialog->result(), QDialog::Accepted);
    Type(*dialog, "txtAltitude", "50.50");
    Press(*dialog, "cmdOK");
    EXPECT_EQ(Poly().Type, level ? "LWM//Land//50.5//50.5//1//1//" : "LWM//Land//9//2//2//3//");
    EXPECT_EQ(Altitudes(Poly()), level ? std::vector<float>(4, 50.5F) : (std::vector<float>{4, 9, 2}));
  }
}

TEST_F(PolysDialog, AltitudeButtonsActAtOnceAndOutliveCancel) {
  Draw({Ring({{1, 0, 4}, {1, 1, 9}, {2, 1, 2}}, "LWM//Water//9//2//2//3//")});
  const auto dialog = Open();
  EXPECT_EQ(TextOf(*dialog, "txtAlt"), "5.5");
  EXPECT_EQ(TextOf(*dialog, "txtPt2"), "3");
  Type(*dialog, "txtAlt", "wide");
  Press(*dialog, "cmdAlt");
  Type(*dialog, "txtPt1", "4");  // no such vertex
  Press(*dialog, "cmdAlt12");
  EXPECT_EQ(Altitudes(Poly()), (std::vector<float>{4, 9, 2}));
  EXPECT_FALSE(rig.session.undo.CanUndo());

  Type(*dialog, "txtAlt", "30");
  Press(*dialog, "cmdAlt");
  EXPECT_EQ(Altitudes(Poly()), (std::vector<float>{30, 30, 30}));
  EXPECT_EQ(Poly().Type, "LWM//Water//30//30//2//3//");
  EXPECT_EQ(TextOf(*dialog, "txtAltitude"), "30");
  EXPECT_EQ(TextOf(*dialog, "txtAlt2"), "30");

  // From vertex 1 to vertex 2 the slope runs due north; vertex 3 lies beside vertex 2.
  Type(*dialog, "txtPt1", "1");
  Type(*dialog, "txtPt2", "2");
  Type(*dialog, "txtAlt1", "10");
  Type(*dialog, "txtAlt2", "20");
  Press(*dialog, "cmdAlt12");
  EXPECT_EQ(Altitudes(Poly()), (std::vector<float>{10, 20, 20}));
  EXPECT_EQ(Poly().Type, "LWM//Water//10//20//1//2//");
  EXPECT_EQ(TextOf(*dialog, "txtAlt"), "15");
  Type(*dialog, "txtName", "thrown away");
  Press(*dialog, "cmdCancel");
  EXPECT_EQ(Poly().Name, "");
  EXPECT_EQ(Altitudes(Poly()), (std::vector<float>{10, 20, 20}));

  const auto again = Open();  // the button's own change is nothing that OK would write again
  Type(*again, "txtAlt", "8");
  Press(*again, "cmdAlt");
  Press(*again, "cmdOK");
  EXPECT_EQ(Poly().Type, "LWM//Water//8//8//1//2//");
}

TEST_F(PolysDialog, LayersAreAddedUpToFiveAtAStrokeOrRefusedTogether) {
  struct Row {
    std::optional<std::string> reply;
    std::vector<std::string> list;
    bool refused;
  };
  const std::vector<std::string> some{"Layer 002", "Layer 007", "Layer 100"};
  const Row rows[] = {
      {std::nullopt, {}, false},
      {"0 1", {}, true},
      {"7 101", {}, true},
      {"four", {}, true},
      {" 7  100 2", some, false},
      {"7 7", some, false},
      {"1 2 3 4 5 999",
       {"Layer 001", "Layer 002", "Layer 003", "Layer 004", "Layer 005", "Layer 007", "Layer 100"},
       false}};
  Draw({Square(1, 1, NoLayers)});
  const auto dialog = Open();
  auto& list = Find<QListWidget>(*dialog, "lstLayers");
  const auto shown = [&] {
    std::vector<std::string> titles;
    for (int i = 0; i < list.count(); ++i)
      titles.push_back(list.item(i)->text().toStdString());
    return titles;
  };
  for (const Row& row : rows) {
    rig.dialogs.messages.clear();
    rig.dialogs.inputs = {row.reply};
    Press(*dialog, "cmdAddOne");
    EXPECT_EQ(rig.LastMessage(), row.refused ? "Please check your entries!" : "") << row.reply.value_or("");
    EXPECT_EQ(shown(), row.list) << row.reply.value_or("");
  }
  Press(*dialog, "cmdAddAll");
  EXPECT_EQ(list.count(), 100);
  emit list.itemDoubleClicked(list.item(25));
  Press(*dialog, "cmdOK");
  // All 25 bits of each mask beside the highest one; layer 26 is the lowest bit of the second.
  EXPECT_EQ(Poly().Type, "Other//-2113929217//-2113929218//-2113929217//-2113929217//");
}

TEST_F(PolysDialog, ABitmapMustLieInTheTextureFolderAndBeAPicture) {
  const auto textures = rig.folder / "Texture";
  std::filesystem::create_directories(textures);
  QImage picture(8, 8, QImage::Format_RGB32);
  picture.fill(Qt::red);
  for (const auto& file : {textures / "apron.bmp", rig.folder / "outside.bmp"})
    picture.save(QString::fromStdString(file.string()));
  WriteWholeFile(textures / "broken.bmp", "no picture");
  rig.tools.answer = [](const std::string&) { return ToolMissing; };
  Draw({Square(1, 1)});
  const auto dialog = Open();
  Press(*dialog, "optTex");
  rig.dialogs.files = {rig.folder / "outside.bmp", textures / "apron.bmp", textures / "broken.bmp"};
  Press(*dialog, "cmdTex");
  EXPECT_EQ(rig.LastMessage(), "outside.bmp should be copied to the PolyTex Folder!");
  EXPECT_EQ(TextOf(*dialog, "txtTexName"), "");
  rig.dialogs.messages.clear();
  Press(*dialog, "cmdTex");
  EXPECT_EQ(rig.LastMessage(), "");
  EXPECT_EQ(TextOf(*dialog, "txtTexName"), "apron.bmp");
  EXPECT_EQ(Find<QLabel>(*dialog, "imgTex").pixmap().toImage().pixelColor(3, 3), QColor(Qt::red));
  Press(*dialog, "cmdTex");
  EXPECT_EQ(rig.LastMessage().substr(0, 50), "Wrong bitmap file format or missing MWGFX DLLs!\nPl");
}

TEST_F(PolysDialog, ManyGetTheTypeAndKeepTheirNamesAltitudesAndPairs) {
  PolyRec a = Ring({{1, 1, 4}, {1, 2, 4}, {2, 2, 4}}, "TEX//a//4//1//1//5000//0//9,9//8,8//7,7//");
  PolyRec b = Square(5, 5);
  PolyRec c = Square(5, 5, "VTP//4//3//");
  a.Name = "a";
  a.Selected = b.Selected = true;
  Draw({a, b, c});
  const auto dialog = OpenMany(3);
  EXPECT_FALSE(Find<QLineEdit>(*dialog, "txtName").isEnabled());
  EXPECT_FALSE(Find<QWidget>(*dialog, "Frame1").isEnabled());
  EXPECT_FALSE(Find<QAbstractButton>(*dialog, "cmdLine").isEnabled());
  Press(*dialog, "cmdOK");
  EXPECT_EQ(Poly(1).Type, "") << "several types stay until one is chosen";

  const auto textured = OpenMany(3);
  Press(*textured, "optTex");
  Type(*textured, "txtTexName", "t.bmp");
  Press(*textured, "cmdOK");
  EXPECT_EQ(Poly(0).Type, "TEX//t.bmp//4//1//1//5000//0//9,9//8,8//7,7//");
  EXPECT_EQ(Poly(1).Type, "TEX//t.bmp//4//1//1//5000//0//0,0//0,256//256,256//256,0//");
  EXPECT_EQ(Poly(2).Type, "VTP//4//3//");
  EXPECT_EQ(Poly(0).Name, "a");

  const auto masks = OpenMany(3);
  Press(*masks, "optLWM");
  Press(*masks, "cmdOK");
  EXPECT_EQ(Poly(0).Type, "LWM//Land//4//4//1//1//");
  EXPECT_EQ(Poly(1).Type, "LWM//Land//0//0//1//1//");
}

TEST_F(PolysDialog, TwoSelectedPolygonsAreJoinedIfTheyTouch) {
  PolyRec a = Square(1, 1);
  PolyRec b = Square(7, 7);
  a.Selected = b.Selected = true;
  Draw({a, b});
  const auto apart = OpenMany(2);
  EXPECT_EQ(Find<QAbstractButton>(*apart, "cmdLine").text().remove('&'), "Join");
  Press(*apart, "cmdLine");
  EXPECT_EQ(rig.LastMessage(), "Polygons can not be joined!");
  EXPECT_FALSE(rig.session.project.Dirty);
  EXPECT_EQ(apart->result(), QDialog::Accepted);

  b = Square(2, 1);
  b.Selected = true;
  Draw({a, b});
  Press(*OpenMany(2), "cmdLine");
  ASSERT_EQ(rig.session.project.Polys.size(), 1U);
  EXPECT_EQ(Poly().Box.ELon, 3);
  EXPECT_EQ(rig.dialogs.beeps, 1);
}

TEST_F(PolysDialog, MakeLineClosesTheRingOnceAndTheOrderBoxMoves) {
  Draw({Square(1, 1), Square(2, 2), Square(3, 3)});
  const auto dialog = Open();
  Press(*dialog, "cmdLine");
  Press(*dialog, "cmdLine");
  ASSERT_EQ(rig.session.project.Lines.size(), 1U);
  EXPECT_EQ(rig.session.project.Lines[0].Points.size(), 5U);
  EXPECT_EQ(rig.session.project.Lines[0].Points[4].Lat, 1);
  EXPECT_EQ(rig.session.project.Lines[0].Points[0].Wid, rig.session.settings.DefPWidth);
  Press(*dialog, "cmdChange");
  EXPECT_EQ(Find<QLabel>(*dialog, "lbOrder").text().toStdString(), "Poly = 3 out of 3");
  Type(*dialog, "txtName", "moved");
  Press(*dialog, "cmdOK");
  EXPECT_EQ(Poly(2).Name, "moved");
}

TEST_F(PolysDialog, TemplatesTakeTypeAndColor) {
  PolyDefaults defaults;
  frmPolysP dialog(rig.session, rig.display, nullptr);
  dialog.ShowDefaults(defaults, "BLN");
  Press(dialog, "optLWM");
  Press(dialog, "optWater");
  Type(dialog, "txtAltitude", "12");
  Press(dialog, "cmdOK");
  EXPECT_EQ(defaults.Type, "LWM//Water//12//12//1//1//");
  EXPECT_EQ(defaults.Color, 7);
  EXPECT_FALSE(rig.session.project.Dirty);
}

TEST_F(PolysDialog, TheCheckTidiesAtOnceDeletesWhatCollapsesOrStartsTheWalk) {
  const auto check = [&](frmPolysP& dialog, const char* distance, const char* button) {
    WithNextDialog([=](QWidget& form) {
      Type(form, "txtDistance", distance);
      Press(form, button);
    });
    Press(dialog, "cmdCheckPoly");
  };
  // The second vertex lies 1.1 metres from the first; a degree of latitude has 111330 metres.
  Draw({Ring({{1, 1}, {1, 1.00001}, {1, 1.00002}, {1, 2}, {2, 2}, {2, 1}})});
  const auto dialog = Open();
  check(*dialog, "9", "cmdCancel");
  EXPECT_EQ(Poly().Points.size(), 6U);
  check(*dialog, "9", "cmdAuto");
  EXPECT_EQ(Poly().Points.size(), 5U);
  EXPECT_EQ(rig.session.settings.AutoCheckDistance, 9);
  EXPECT_EQ(LoadSettings(rig.session.folders.IniPath(), rig.session.folders.AppPath).AutoCheckDistance, 9);
  check(*dialog, "-9", "cmdAuto");
  EXPECT_GT(Poly().Points.size(), 5U) << "smoothing adds vertices";
  check(*dialog, "-9", "cmdManual");
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  ASSERT_TRUE(dialog->Walk());
  EXPECT_EQ(dialog->Walk()->Kind, "PtInPoly");

  const auto last = Open();
  check(*last, "1e7", "cmdAuto");
  EXPECT_TRUE(rig.session.project.Polys.empty());
  EXPECT_EQ(last->result(), QDialog::Accepted);
}

TEST(CheckDialog, KeysInTheButtonSetTheMarksOfSmoothing) {
  DialogRig rig;
  rig.session.settings.AutoCheckDistance = -4;
  frmLPCheck dialog(rig.session, nullptr);
  dialog.show();
  auto& automatic = Find<QAbstractButton>(dialog, "cmdAuto");
  QTest::keyClick(&automatic, Qt::Key_E);
  Type(dialog, "txtDistance", "far");
  automatic.click();
  EXPECT_TRUE(dialog.isVisible()) << "no number, so the dialog stays";
  Type(dialog, "txtDistance", "-6");
  automatic.click();
  EXPECT_EQ(dialog.Request().Mode, CheckMode::Smooth);
  EXPECT_TRUE(dialog.Request().Smooth.KeepEnds);
  EXPECT_FALSE(dialog.Request().Smooth.SmoothSharp);
}

}  // namespace
}  // namespace landsmith::test
