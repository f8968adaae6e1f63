// Preferences: what is checked, what is stored, what is written to the settings file.
#include "DialogRig.h"
#include "core/IniFile.h"
#include "forms/ColorSwatch.h"
#include "forms/frmPreferences.h"
#include "support/RecordingHost.h"

#include <QSlider>

namespace landsmith::test {
namespace {

struct PreferencesDialog : testing::Test {
  DialogRig rig;
  RecordingHost host;
  Editor editor{rig.session, rig.canvas, host};
  frmPreferences dialog{rig.session, editor, nullptr};

  std::string Stored(const char* section, const char* key) {
    return ReadIniKey(rig.session.folders.IniPath(), section, key);
  }
};

TEST_F(PreferencesDialog, BadValuesKeepTheDialogOpenAndStoreNothing) {
  const struct {
    const char *box, *text, *message;
  } rows[] = {{"txtDefPWid", "256", "Maximum Line Width is 255 meters!"},
              {"txtDefPWid", "-0.5", "Minimum Line Width is 0 meters!"},
              {"txtPhotoRange", "far", "\"far\" is no value for: range"}};
  for (const auto& row : rows) {
    frmPreferences fresh(rig.session, editor, nullptr);
    Press(fresh, "ckAskDelete");
    Type(fresh, row.box, row.text);
    Press(fresh, "cmdOK");
    EXPECT_EQ(rig.LastMessage(), row.message);
    EXPECT_NE(fresh.result(), QDialog::Accepted) << row.text;
    EXPECT_TRUE(rig.session.settings.AskDelete);
    EXPECT_FALSE(std::filesystem::exists(rig.session.folders.IniPath())) << row.text;
  }
  Type(dialog, "txtDefPWid", "255.5");  // the limit looks at the integer
  Press(dialog, "cmdOK");
  EXPECT_EQ(rig.session.settings.DefPWidth, 255.5F);
}

TEST_F(PreferencesDialog, OkStoresEveryPageAndWritesTheFile) {
  WriteWholeFile(rig.session.folders.IniPath(), "[Photo]\r\nSpringEnd=170\r\n");
  rig.dialogs.colors = {Rgb(1, 2, 3), std::nullopt};
  rig.dialogs.folders = {rig.folder / "out"};
  // The second colour is cancelled.
  for (const char* button : {"ckAskDelete", "ckIgnoreDirection", "ckAutoLineJoin", "optDecimal",
                             "lbLnColorSel", "lbLnColorUns", "cmdAPI"})
    Press(dialog, button);
  Type(dialog, "txtZbias", "-1.5");
  Type(dialog, "txtBLNSeparator", "tab");
  Type(dialog, "txtLink2", "guide.pdf");
  Find<QSlider>(dialog, "sldNS").setValue(12);
  Find<QSlider>(dialog, "sldWE").setValue(-3);
  EXPECT_EQ(TextOf(dialog, "txtNS") + TextOf(dialog, "txtWE"), "+12-3");
  Press(dialog, "cmdOK");

  const AppSettings& settings = rig.session.settings;
  EXPECT_FALSE(settings.AskDelete);
  EXPECT_FALSE(settings.DirJoin);
  EXPECT_EQ(settings.AutoLineJoin, 1);
  EXPECT_TRUE(settings.DecimalDegrees);
  EXPECT_EQ(settings.Zbias, -1.5F);
  EXPECT_EQ(settings.BLNSeparator, "\t");
  EXPECT_EQ(settings.Link[1], "guide.pdf");
  EXPECT_EQ(settings.VTPShiftNS, 12);
  EXPECT_EQ(settings.VTPShiftWE, -3);
  EXPECT_EQ(settings.LnColorUns, 16711680);
  EXPECT_EQ(Stored("Colors", "LnColorSel"), std::to_string(Rgb(1, 2, 3)));
  EXPECT_EQ(Stored("Main", "AskDelete"), "False");
  EXPECT_EQ(Stored("Main", "MacroAPIPath"), (rig.folder / "out").string());
  EXPECT_EQ(Stored("Photo", "SpringEnd"), "170");
}

TEST_F(PreferencesDialog, UntouchedFieldsComeBackAsTheyWere) {
  AppSettings odd;
  odd.LatLandCenter = 41.123456789012;
  odd.BLNSeparator = "\t";
  odd.VTPShiftNS = 900;  // beyond the slider's usual range
  odd.FlattenBias = 0.1;
  rig.session.settings = odd;
  frmPreferences fresh(rig.session, editor, nullptr);
  Press(fresh, "cmdOK");
  EXPECT_EQ(fresh.result(), QDialog::Accepted);
  EXPECT_TRUE(rig.session.settings == odd);
}

TEST_F(PreferencesDialog, ACentreThatCannotBeReadIsIgnoredAndAGoodOneMovesTheView) {
  Type(dialog, "txtLat", "95 00 00 N");
  Press(dialog, "cmdOK");
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(rig.session.settings.LatLandCenter, 40);
  EXPECT_TRUE(rig.dialogs.messages.empty());

  frmPreferences again(rig.session, editor, nullptr);
  Type(again, "txtLat", "20 30 00 S");
  Press(again, "cmdOK");
  EXPECT_EQ(rig.session.settings.LatLandCenter, -20.5);
  EXPECT_EQ(rig.session.view.LatDispCenter, -20.5);
}

TEST_F(PreferencesDialog, AChangedGridLimitHoldsInTheOpenProjectToo) {
  ProjectState& project = rig.session.project;
  project.ProjectOpen = true;
  project.ClassGridVIEW = true;
  const auto viewAfter = [&](bool press) {
    frmPreferences fresh(rig.session, editor, nullptr);
    if (press) Press(fresh, "ckClassGridVIEW");
    Press(fresh, "cmdOK");
    return project.ClassGridVIEW;
  };
  EXPECT_TRUE(viewAfter(false)) << "the project's own choice stays while the box is left alone";
  EXPECT_TRUE(viewAfter(true));
  EXPECT_FALSE(viewAfter(true));
  EXPECT_FALSE(rig.session.settings.ClassGridVIEW);
}

TEST_F(PreferencesDialog, TheMeshExplanationCanBeStoppedHalfway) {
  Press(dialog, "cmdHMesh");
  EXPECT_TRUE(rig.dialogs.questions.back().ends_with("Press OK to continue reading or Cancel to stop!"));
  EXPECT_TRUE(rig.dialogs.messages.empty());
  rig.dialogs.answers = {true};
  Press(dialog, "cmdHMesh");
  EXPECT_EQ(rig.dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace landsmith::test
