// The line properties: type texts, widths, order, join, and the templates of imports.
#include "DialogRig.h"
#include "forms/frmLinesP.h"
#include "support/Builders.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>

namespace landsmith::test {
namespace {

class LinesDialog : public testing::Test {
protected:
  DialogRig rig;
  frmLinesP dialog{rig.session, rig.display, nullptr};

  LinesDialog() {
    // Id 12 is used by number, id 13 by a text of its own.
    rig.session.lineTextures = {{12, "na.bmp", "Lane", "", 10, 20, 30},
                                {13, "na.bmp", "Lit street", "\"a.bmp\" 0 0 0 4", 1, 2, 3}};
  }
  LineRec& Line(std::size_t i) { return rig.session.project.Lines.Edit(i); }
  void Add(const LineRec& line) { rig.session.project.Lines.push_back(line); }
  std::vector<float> Widths(std::size_t i) { return test::Widths(Line(i)); }
};

LineRec ThreePoints() {
  return ALine().Named("Road").Through({{1, 1}, {1, 2}, {1, 3}}, 10);
}

TEST_F(LinesDialog, WidthTextsOutOfLimitsChangeNothing) {
  const struct {
    const char *button, *whole, *first, *last, *message;
  } rows[] = {
      {"cmdWidth", "", "1", "1", "Check Width!"},
      {"cmdWidth", "256", "1", "1", "Maximum Line Width is 255 meters!"},
      {"cmdWidth", "-1e30", "1", "1", "Minimum Line Width is 0 meters!"},
      {"cmdWidth", "wide", "1", "1", ""},
      {"cmdWidth12", "1", "300", "", "Check Width!"},
      {"cmdWidth12", "1", "-1", "300", "Maximum Line Width is 255 meters!"},
      {"cmdWidth12", "1", "5", "-1", "Minimum Line Width is 0 meters!"},
  };
  Add(ThreePoints());
  dialog.ShowOne(0);
  for (const auto& row : rows) {
    rig.dialogs.messages.clear();
    Type(dialog, "txtWidth", row.whole);
    Type(dialog, "txtWidth1", row.first);
    Type(dialog, "txtWidth2", row.last);
    Press(dialog, row.button);
    EXPECT_EQ(rig.LastMessage(), row.message) << row.button << ' ' << row.whole;
    EXPECT_EQ(Widths(0), (std::vector<float>{10, 10, 10})) << row.button << ' ' << row.whole;
  }
  EXPECT_FALSE(rig.session.project.Dirty);
}

TEST_F(LinesDialog, WidthButtonsActAtOnceAndOutliveCancel) {
  Add(ThreePoints());
  Line(0).Points[0].Wid = 4;
  Line(0).Points[2].Wid = 13;
  dialog.ShowOne(0);
  EXPECT_EQ(TextOf(dialog, "txtWidth"), "9") << "the mean of 4, 10 and 13";
  EXPECT_EQ(TextOf(dialog, "txtWidth1"), "4");
  EXPECT_EQ(TextOf(dialog, "txtWidth2"), "13");
  Type(dialog, "txtWidth", "255.25");  // the limit looks at the integer
  Press(dialog, "cmdWidth");
  EXPECT_EQ(Widths(0), (std::vector<float>{255.25F, 255.25F, 255.25F}));
  EXPECT_EQ(TextOf(dialog, "txtWidth2"), "255.25");

  Type(dialog, "txtWidth1", "10");
  Type(dialog, "txtWidth2", "40");
  Press(dialog, "cmdWidth12");
  EXPECT_EQ(TextOf(dialog, "txtWidth"), "25");
  Type(dialog, "txtName", "thrown away");
  Press(dialog, "cmdCancel");
  EXPECT_EQ(Widths(0), (std::vector<float>{10, 25, 40}));
  EXPECT_EQ(Line(0).Name, "Road");
  EXPECT_TRUE(rig.session.project.Dirty);
}

TEST_F(LinesDialog, EachOptionStoresItsText) {
  const struct {
    const char *option, *texture, *layer, *named, *type;
    std::int32_t color;
  } rows[] = {{"optNone", "optAptTex", "3", "", "", 77},
              {"optObjects", "optAptTex", "3", "", "Objects//", 77},
              {"optPoints", "optAptTex", "3", "", "Points//", 77},
              {"optVTP", "optAptTex", "3", "x", "VTP//3//12//", Rgb(10, 20, 30)},
              {"optVTP", "optAptTex", "", "x", "VTP//7//12//", Rgb(10, 20, 30)},
              {"optVTP", "optNameTex", "3", "  own.bmp ", "VTP//3//own.bmp//", Rgb(9, 9, 9)}};
  for (const auto& row : rows) {
    rig.session.project.Lines = {ThreePoints()};
    Line(0).Color = 77;
    Line(0).Type = "Signals//";
    frmLinesP fresh(rig.session, rig.display, nullptr);
    fresh.ShowOne(0);
    Press(fresh, row.option);
    Press(fresh, row.texture);
    Type(fresh, "txtLayer", row.layer);
    Type(fresh, "txtNameTex", row.named);
    rig.dialogs.colors = {Rgb(9, 9, 9)};
    if (std::string(row.texture) == "optNameTex") Press(fresh, "lbColor");
    Press(fresh, "cmdOK");
    EXPECT_EQ(Line(0).Type, row.type);
    EXPECT_EQ(Line(0).Color, row.color) << row.type;
    EXPECT_EQ(fresh.result(), QDialog::Accepted);
  }
}

// Looking at a line must not rewrite what another program, or an older catalogue, put into its type.
TEST_F(LinesDialog, UntouchedTypesStayAsTheyAre) {
  const struct {
    const char *type, *option;
  } rows[] = {{"", "optNone"},
              {"Objects//more//", "optObjects"},
              {"Signals//x//", "optObjects"},
              {"Other//7//", "optOther"},
              {"VTP//4", "optVTP"},
              {"VTP////12//", "optVTP"},
              {"VTP//4// 99 //", "optVTP"},
              {"VTP//4//\"a;b\" 1//tail//", "optVTP"}};
  for (const auto& row : rows) {
    rig.session.project.Lines = {ThreePoints()};
    Line(0).Type = row.type;
    Line(0).Color = 5;
    frmLinesP fresh(rig.session, rig.display, nullptr);
    fresh.ShowOne(0);
    EXPECT_TRUE(IsChecked(fresh, row.option)) << row.type;
    Press(fresh, "cmdOK");
    EXPECT_EQ(Line(0).Type, row.type);
    EXPECT_EQ(Line(0).Color, 5) << row.type;
    EXPECT_FALSE(rig.session.project.Dirty) << row.type;
  }
  Line(0).Type = "VTP//4//99//";  // a new layer keeps a texture that the catalogue lacks
  dialog.ShowOne(0);
  Type(dialog, "txtLayer", "8");
  Press(dialog, "cmdOK");
  EXPECT_EQ(Line(0).Type, "VTP//8//99//");
  EXPECT_EQ(Line(0).Color, 5);
}

TEST_F(LinesDialog, OrderBoxMovesTheLineAndSaysWhereItIs) {
  for (const char* name : {"a", "b", "c"})
    Add(ALine().Named(name).Through({{1, 1}, {1, 2}}));
  dialog.ShowOne(0);
  const auto order = [&] { return Find<QLabel>(dialog, "lbOrder").text().toStdString(); };
  const auto move = [&](const char* where) {
    Press(dialog, where);
    Press(dialog, "cmdChange");
  };
  EXPECT_EQ(order(), "Line = 1 out of 3");
  move("opTop");
  move("opUp");
  EXPECT_EQ(order(), "Line = 3 out of 3");
  Type(dialog, "txtName", "moved");
  Press(dialog, "cmdOK");
  EXPECT_EQ(Line(2).Name, "moved");
  EXPECT_EQ(Line(0).Name, "b");
}

TEST_F(LinesDialog, ManyTakesTheTypeAndLeavesTheNames) {
  Add(ALine().Named("a").Through({{1, 1}, {1, 2}}).Selected());
  Add(ALine().Named("b").Through({{1, 1}, {1, 2}}));
  Add(ALine().Named("c").Vtp("4", "12").Through({{1, 1}, {1, 2}}).Selected());
  rig.session.tool.Selected.SelectedCount = 3;
  dialog.ShowMany();
  EXPECT_FALSE(Find<QLineEdit>(dialog, "txtName").isEnabled());
  EXPECT_FALSE(Find<QWidget>(dialog, "Frame1").isEnabled());
  EXPECT_FALSE(Find<QAbstractButton>(dialog, "cmdPoly").isEnabled());
  Press(dialog, "cmdOK");  // without a choice each keeps its type
  EXPECT_EQ(Line(0).Type, "");
  EXPECT_EQ(Line(2).Type, "VTP//4//12//");
  dialog.ShowMany();
  Press(dialog, "optPoints");
  Press(dialog, "cmdOK");
  EXPECT_EQ(Line(0).Type, "Points//");
  EXPECT_EQ(Line(1).Type, "");
  EXPECT_EQ(Line(2).Type, "Points//");
  EXPECT_EQ(Line(2).Name, "c");
}

TEST_F(LinesDialog, TwoSelectedLinesAreJoinedIfTheirEndsMeet) {
  Add(ALine().Named("a").Through({{1, 1}, {1, 2}}).Selected());
  Add(ALine().Named("b").Through({{9, 8}, {9, 9}}).Selected());
  rig.session.tool.Selected.SelectedCount = 2;
  dialog.ShowMany();
  EXPECT_EQ(Find<QAbstractButton>(dialog, "cmdPoly").text().remove('&'), "Join");
  Press(dialog, "cmdPoly");
  EXPECT_EQ(rig.LastMessage(), "Could not join the lines!");
  EXPECT_FALSE(rig.session.project.Dirty);
  Line(1) = ALine().Named("b").Through({{1, 2.1}, {1, 3}}).Selected();
  Press(dialog, "cmdPoly");
  ASSERT_EQ(rig.session.project.Lines.size(), 1U);
  EXPECT_EQ(Line(0).Points.size(), 3U);
  EXPECT_EQ(rig.dialogs.beeps, 1);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(LinesDialog, MakePolyAddsOnePolygonAndReverseTurnsTheLine) {
  Add(ThreePoints());
  Line(0).Points[0].Wid = 3;
  dialog.ShowOne(0);
  Press(dialog, "cmdPoly");
  Press(dialog, "cmdPoly");
  ASSERT_EQ(rig.session.project.Polys.size(), 1U);
  EXPECT_EQ(rig.session.project.Polys[0].Points.size(), 3U);
  Press(dialog, "cmdReverse");
  EXPECT_EQ(Line(0).Points[0].Lon, 3);
  EXPECT_EQ(TextOf(dialog, "txtWidth2"), "3");
}

TEST_F(LinesDialog, TheCheckTakesOutCrowdedVerticesOfEachSelectedLine) {
  // One step of the latitude is 1.1 metres; a degree has 111330 metres.
  for (const bool selected : {true, true, false}) {
    LineRec line = ALine().Through({{1, 1}, {1.00001, 1}, {1.00002, 1}, {2, 1}});
    line.Selected = selected;
    Add(line);
  }
  dialog.ShowMany();
  QTimer::singleShot(0, &dialog, [] {
    QWidget& check = *QApplication::activeModalWidget();
    Type(check, "txtDistance", "9");
    Press(check, "cmdAuto");
  });
  Press(dialog, "cmdCheckLine");
  EXPECT_EQ(Line(0).Points.size(), 3U);
  EXPECT_EQ(Line(1).Points.size(), 3U);
  EXPECT_EQ(Line(2).Points.size(), 4U);
  EXPECT_TRUE(rig.session.undo.CanUndo());
}

TEST_F(LinesDialog, TemplatesTakeTypeColorAndWidths) {
  LineDefaults defaults;
  dialog.ShowDefaults(defaults, "BLN");
  Press(dialog, "optVTP");
  Type(dialog, "txtWidth1", "");
  Press(dialog, "cmdOK");
  EXPECT_EQ(rig.LastMessage(), "Check Width!");
  EXPECT_NE(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(defaults.Type, "");

  Type(dialog, "txtWidth1", "8");
  Type(dialog, "txtWidth2", "12.5");
  Press(dialog, "cmdOK");
  EXPECT_EQ(defaults.Type, "VTP//7//12//");
  EXPECT_EQ(defaults.Color, Rgb(10, 20, 30));
  EXPECT_EQ(defaults.FirstWidth, 8);
  EXPECT_EQ(defaults.LastWidth, 12.5F);
  EXPECT_FALSE(rig.session.project.Dirty);
}

}  // namespace
}  // namespace landsmith::test
