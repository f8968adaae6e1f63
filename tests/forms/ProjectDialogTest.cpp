// Project properties: the packed photo options, the class legend, folders and centre; and the folder dialog.
#include "DialogRig.h"
#include "core/IniFile.h"
#include "forms/frmBrowse.h"
#include "forms/frmProjectP.h"

#include <QLabel>
#include <QListWidget>

namespace landsmith::test {
namespace {

struct ProjectDialog : testing::Test {
  DialogRig rig;

  ProjectDialog() {
    rig.session.project.PhotoSeasons = DefaultPhotoSeasons;
    rig.session.lands.Count = 3;
    for (std::uint8_t i = 1; i <= 3; ++i)
      rig.session.lands.Items[i].Code = static_cast<std::uint8_t>(100 + i);
  }
  ProjectState& Project() { return rig.session.project; }
};

TEST_F(ProjectDialog, EachPhotoControlHasItsBit) {
  const struct {
    const char* control;
    std::int32_t options;  ///< with layer 5 and nothing else
  } rows[] = {{"ckSummer", 0x501}, {"ckSpring", 0x502}, {"ckFall", 0x504},  {"ckWinter", 0x508},
              {"ckHard", 0x510},   {"ckNight", 0x520},  {"ckAlpha", 0x540}, {"ck8bit", 0x580},
              {"ckL8", 0x10500},   {"ckL9", 0x20500},   {"ckL10", 0x40500}, {"ckL11", 0x80500},
              {"opt24", 0x100500}, {"opt12", 0x500}};
  for (const auto& row : rows) {
    Project().PhotoSeasons = 0x500;
    frmProjectP dialog(rig.session, rig.display, nullptr);
    Press(dialog, row.control);
    Press(dialog, "cmdOK");
    EXPECT_EQ(Project().PhotoSeasons, row.options) << row.control;
    frmProjectP again(rig.session, rig.display, nullptr);
    EXPECT_TRUE(IsChecked(again, row.control));
    EXPECT_EQ(TextOf(again, "txtLayer"), "5");
  }
}

TEST_F(ProjectDialog, OkOpensTheProjectAndLeavesTheChangedMarkAlone) {
  Project().Lines = {LineRec{}, LineRec{}, LineRec{}};
  Project().NoOfLands = 17;  // a counter of its own
  for (const bool dirty : {false, true}) {
    Project().Dirty = dirty;
    Project().ProjectOpen = false;
    frmProjectP dialog(rig.session, rig.display, nullptr);
    EXPECT_EQ(Find<QLabel>(dialog, "lbLines").text(), "Lines = 3");
    EXPECT_EQ(Find<QLabel>(dialog, "lbLands").text(), "Lands = 17");
    Type(dialog, "txtName", "North Coast");
    Type(dialog, "txtLayer", "256");
    Press(dialog, "cmdOK");
    EXPECT_EQ(dialog.result(), QDialog::Rejected) << "a layer is one byte";
    EXPECT_FALSE(Project().ProjectOpen);
    Type(dialog, "txtLayer", "255");
    Press(dialog, "cmdOK");
    EXPECT_EQ(Project().PhotoSeasons, 0xFF01);
    EXPECT_EQ(Project().Name, "North Coast");
    EXPECT_TRUE(Project().ProjectOpen);
    EXPECT_EQ(Project().Dirty, dirty);
  }
}

TEST_F(ProjectDialog, LegendEntriesNeedThreeClassesOfTheTable) {
  frmProjectP dialog(rig.session, rig.display, nullptr);
  rig.dialogs.inputs = {"101 102", "101 102 199 Town", "101 102 103 Town", "103 103 103 Wood"};
  rig.dialogs.colors = {Rgb(1, 2, 3)};
  Press(dialog, "cmdLandAdd");
  EXPECT_EQ(rig.dialogs.questions.back(),
            "You should enter 3 numbers separated by spaces and an optional text. The 3 numbers refer to 3 "
            "classes which are assigned to a specific color of the Class Map . The 1st class is used 60% of "
            "the time, the 2nd class 25% and the 3rd class 15%.");
  EXPECT_EQ(rig.LastMessage(), "Please check your entry!");
  Press(dialog, "cmdLandAdd");
  EXPECT_EQ(rig.dialogs.messages.size(), 2U);
  EXPECT_EQ(Find<QListWidget>(dialog, "lstLCI").count(), 0);

  Press(dialog, "cmdLandAdd");
  Press(dialog, "cmdLandAdd");
  Press(dialog, "lbColor");
  Press(dialog, "cmdOK");
  ASSERT_EQ(Project().LCI.size(), 2U);
  EXPECT_EQ(Project().LCI[0], (ClassItemRec{"101 102 103 Town", 101, 102, 103, 255, 255, 0, 16776960}));
  EXPECT_EQ(Project().LCI[1], (ClassItemRec{"103 103 103 Wood", 103, 103, 103, 1, 2, 3, 66051}));
}

TEST_F(ProjectDialog, EditAndDeleteWorkOnACopyUntilOk) {
  Project().LCI = {{"101 102 103 Town", 101, 102, 103, 255, 255, 0, 16776960}};
  const auto before = Project().LCI;
  frmProjectP cancelled(rig.session, rig.display, nullptr);
  Press(cancelled, "cmdLandDelete");
  Press(cancelled, "cmdCancel");
  EXPECT_EQ(Project().LCI, before);

  frmProjectP dialog(rig.session, rig.display, nullptr);
  rig.dialogs.inputs = {"103 102 101"};
  Press(dialog, "cmdLandEdit");
  Press(dialog, "cmdOK");
  ASSERT_EQ(Project().LCI.size(), 1U);
  EXPECT_EQ(Project().LCI[0], (ClassItemRec{"103 102 101", 103, 102, 101, 255, 255, 0, 16776960}));
}

TEST_F(ProjectDialog, ANewCentreMovesTheViewAndAnUnreadableOneIsRefused) {
  Project().LatLandCenter = 10.123456789;  // finer than its text: an untouched box keeps it
  frmProjectP dialog(rig.session, rig.display, nullptr);
  Press(dialog, "cmdOK");
  EXPECT_EQ(Project().LatLandCenter, 10.123456789);
  Type(dialog, "txtLat", "north");
  Press(dialog, "cmdOK");
  EXPECT_EQ(rig.dialogs.messages.size(), 1U);
  EXPECT_EQ(Project().LatLandCenter, 10.123456789);
  Type(dialog, "txtLat", "41 30 00 N");
  Press(dialog, "cmdOK");
  EXPECT_EQ(Project().LatLandCenter, 41.5);
  EXPECT_EQ(rig.session.view.LatDispCenter, 41.5);
  EXPECT_GT(rig.session.view.Classes.LandNorth, 41.5);
}

TEST_F(ProjectDialog, FoldersCanBecomeTheDefaultsOfNewProjects) {
  std::filesystem::create_directories(rig.folder / "other");
  frmProjectP dialog(rig.session, rig.display, nullptr);
  rig.dialogs.folders = {rig.folder / "other"};
  Press(dialog, "cmdBGL1");
  Type(dialog, "txtBGL2Folder", (rig.folder / "gone").string());
  Press(dialog, "ckFolders");
  Press(dialog, "cmdOK");
  const std::string other = (rig.folder / "other").string();
  EXPECT_EQ(Project().BGL1ProjectFolder, other);
  EXPECT_EQ(rig.session.settings.BGL1Folder, other);
  EXPECT_EQ(ReadIniKey(rig.session.folders.IniPath(), "Main", "BGL1Folder"), other);
  // A folder that is not there gives way to the default one.
  EXPECT_EQ(Project().BGL2ProjectFolder, (rig.folder / "out2").string());
}

TEST(BrowseDialog, BeginsInTheNearestFolderThatExists) {
  const TempFolder folder;
  frmBrowse dialog(folder / "no" / "such", nullptr);
  EXPECT_EQ(dialog.Folder(), folder.Path());
  EXPECT_TRUE(Find<QWidget>(dialog, "cmdOK").isEnabled());
  Type(dialog, "txtFolder", (folder / "missing").string());
  EXPECT_FALSE(Find<QWidget>(dialog, "cmdOK").isEnabled());
}

}  // namespace
}  // namespace landsmith::test
