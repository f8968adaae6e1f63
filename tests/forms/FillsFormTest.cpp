// The form of area fills, beside the canvas and for one fill.
#include "Controls.h"
#include "WindowRig.h"
#include "forms/frmFillsP.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

class FillsForm : public testing::Test {
protected:
  FillsForm() { rig.ShowProject("Fill"); }
  ~FillsForm() override { rig.session.project.Dirty = false; }

  frmFillsP* Palette() const {
    for (frmFillsP* form : rig.window->findChildren<frmFillsP*>())
      if (form->isVisible()) return form;
    return nullptr;
  }
  static std::string Label(QWidget& form) { return Find<QLabel>(form, "lbSize").text().toStdString(); }
  static std::string Button(QWidget& form) {
    return Find<QAbstractButton>(form, "cmdOK").text().toStdString();
  }
  const RecordList<FillRec>& Fills() const { return rig.session.project.Fills; }

  WindowRig rig;
};

TEST_F(FillsForm, ThePaletteLastsAsLongAsItsToolAndFollowsTheGrid) {
  ASSERT_NE(Palette(), nullptr);
  EXPECT_FALSE(Palette()->isModal());
  EXPECT_EQ(Button(*Palette()), "Close");
  const auto text = [](const std::string& size) {
    return "With present settings Fills\nhave a size of " + size +
           " Areas.\nChange Grid Display for other sizes.";
  };
  EXPECT_EQ(Label(*Palette()), text("1 X 1"));
  const frmFillsP* first = Palette();
  rig.Action("mnuG9").trigger();
  EXPECT_EQ(Palette(), first) << "it stays where it is";
  EXPECT_EQ(Label(*Palette()), text("16 X 16"));
  Press(*Palette(), "cmdOK");
  EXPECT_EQ(Palette(), nullptr);
  EXPECT_EQ(rig.session.tool.Mode, ModeId::Fill);
  rig.Button("Fill").click();
  ASSERT_NE(Palette(), nullptr) << "the tool brings it back";
  rig.Button("Line").click();
  EXPECT_EQ(Palette(), nullptr);
}

TEST_F(FillsForm, WhatThePaletteSaysCountsForTheNextClick) {
  frmFillsP& palette = *Palette();
  EXPECT_TRUE(IsChecked(palette, "ckWater"));
  Press(palette, "ckFlatten");
  EXPECT_FALSE(IsChecked(palette, "ckWater"));
  auto& altitude = Find<QLineEdit>(palette, "txtAltitude");
  altitude.selectAll();
  QTest::keyClicks(&altitude, "12.5");
  rig.Click(0, 0);
  ASSERT_EQ(Fills().size(), 1U);
  EXPECT_EQ(Fills()[0].Type, 2);
  EXPECT_EQ(Fills()[0].Height, 12.5F);

  QTest::keyClicks(&altitude, "m");
  Press(palette, "cmdOK");
  EXPECT_EQ(rig.dialogs.messages.back().text, "The altitude must be a number of metres!");
  EXPECT_TRUE(palette.isVisible());
  EXPECT_EQ(TextOf(palette, "txtAltitude"), "12.5m");
  rig.Click(200, 0);
  EXPECT_EQ(Fills()[1].Height, 12.5F);
  EXPECT_EQ(TextOf(palette, "txtAltitude"), "12.5") << "what counted is what stands there";
  QTest::keyClicks(&altitude, "m");
  Press(palette, "ckLand");
  EXPECT_FALSE(altitude.isEnabled());
  Press(palette, "ckLand");
  EXPECT_TRUE(IsChecked(palette, "ckLand")) << "one of the three always is";
  Press(palette, "cmdOK");
  EXPECT_FALSE(palette.isVisible()) << "land has no altitude to refuse";
}

TEST_F(FillsForm, OneFillGetsAnotherTypeAndHeightAsOneChange) {
  rig.Action("mnuG11").trigger();
  rig.Button("Fill").click();
  rig.session.tool.CurrentFillHeight = 0.1234567890F;  // more digits than its text
  rig.Click(0, 0);
  rig.Click(300, 0);
  const std::size_t points = rig.session.undo.UndoCount();
  frmFillsP form(rig.session, rig.window->TheEditor().Canvas(), rig.window.get());
  const auto open = [&] {
    form.ShowFill(1);
    form.show();
  };
  open();
  EXPECT_EQ(Button(form), "Apply");
  EXPECT_EQ(Label(form), "This Fill has as a size of \n4 X 4 Areas.");
  EXPECT_EQ(TextOf(form, "txtAltitude"), "0.1234568");
  Press(form, "cmdOK");
  EXPECT_EQ(rig.session.undo.UndoCount(), points) << "nothing was changed";
  EXPECT_EQ(Fills()[1].Height, 0.1234567890F);

  open();
  Press(form, "ckFlatten");
  Type(form, "txtAltitude", "");
  Press(form, "cmdOK");
  EXPECT_TRUE(form.isVisible());
  Type(form, "txtAltitude", "-3");
  Press(form, "cmdOK");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(Fills()[1].Type, 2);
  EXPECT_EQ(Fills()[1].Height, -3);
  EXPECT_EQ(rig.session.undo.UndoCount(), points + 1);
  EXPECT_EQ(Fills()[0].Type, 0) << "the other one";

  open();
  Press(form, "ckLand");
  Press(form, "cmdCancel");
  EXPECT_EQ(Fills()[1].Type, 2);
  open();
  Press(form, "ckLand");
  Press(form, "cmdOK");
  EXPECT_EQ(Fills()[1].Type, 1);
  EXPECT_EQ(Fills()[1].Height, 0);
  EXPECT_EQ(rig.session.tool.CurrentFillType, FillType::Water) << "the palette's own choice";
}

}  // namespace
}  // namespace landsmith::test
