#include "EditorRig.h"
#include "core/IniFile.h"
#include "platform/Paths.h"
#include "wiring/ProjectStore.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

constexpr const char* DropQuestion = "You did not save your data! Continue ?";

class FileCommands : public testing::Test, public EditorRig {
protected:
  FileCommands() {
    session.settings = LoadSettings(Ini(), folder.Path());
    session.project = EmptyProject(session.settings);
    session.project.Name = "Coast";
    session.project.ProjectOpen = true;
    AddLine({{-100, 0}, {100, 0}});
  }
  std::filesystem::path Ini() const { return folder / "Landsmith.ini"; }

  /// A project with one selected line that shows 10 N 20 E.
  std::filesystem::path StoredProject(const std::string& name) {
    ProjectState project = EmptyProject(session.settings);
    project.Name = name;
    project.LatDispCenter = 10;
    project.LonDispCenter = 20;
    project.Zoom = 4;
    project.Lines.push_back(ALine().Through({{10, 20}, {10.1, 20.1}}).Selected());
    auto file = folder / (name + ".LSP");
    SaveProjectFile(project, file, folder.Path());
    return file;
  }
};

TEST_F(FileCommands, TheFirstSaveAsksForANameAndTheNextOnesDoNot) {
  session.project.Dirty = true;
  session.view.Zoom = 8;
  EXPECT_FALSE(editor.MaySave());
  dialogs.files = {folder / "Bay"};
  EXPECT_TRUE(editor.Save());
  ASSERT_EQ(dialogs.fileRequests.size(), 1U);
  EXPECT_EQ(dialogs.fileRequests[0].Title, "Landsmith: Save Project As");
  EXPECT_EQ(dialogs.fileRequests[0].Filter, "Landsmith (*.LSP)|*.LSP|All Files|*.*");
  EXPECT_EQ(dialogs.fileRequests[0].FileName, "");
  EXPECT_EQ(session.project.ProjectFile, PathText(folder / "Bay.LSP"));
  EXPECT_FALSE(session.project.Dirty);
  EXPECT_EQ(ReadIniKey(Ini(), "RecentDirs", "SaveDir"), PathText(folder.Path()));

  session.project.Dirty = true;
  session.project.Name = "Bay";
  EXPECT_TRUE(editor.Save());
  EXPECT_EQ(dialogs.fileRequests.size(), 1U);
  const auto stored = OpenProjectFile(folder / "Bay.LSP", session.settings, dialogs);
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->Name, "Bay");
  EXPECT_EQ(stored->Zoom, 8);
  EXPECT_EQ(stored->Lines.size(), 1U);

  EXPECT_FALSE(editor.SaveAs()) << "cancelled";
  EXPECT_EQ(dialogs.fileRequests[1].FileName, PathText(folder / "Bay.LSP"));
  EXPECT_EQ(dialogs.fileRequests[1].Folder, folder.Path());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(FileCommands, ASaveThatFailsLosesNothing) {
  session.project.Dirty = true;
  dialogs.files = {folder / "missing" / "Bay.LSP"};
  EXPECT_FALSE(editor.SaveAs());
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].kind, MessageKind::Error);
  EXPECT_TRUE(session.project.Dirty);
  EXPECT_FALSE(editor.MaySave());
}

TEST_F(FileCommands, WhatADragMovesAfterASaveIsUnsaved) {
  session.project.ProjectFile = PathText(folder / "Bay.LSP");
  editor.Canvas().DisplayAll();
  Press({50, 0}).MoveTo({50, 10});
  editor.Save();
  MoveTo({50, 40}).Release();
  const auto stored = OpenProjectFile(folder / "Bay.LSP", session.settings, dialogs);
  ASSERT_TRUE(stored);
  EXPECT_TRUE(session.project.Dirty || stored->Lines[0].Points == Lines()[0].Points);
}

TEST_F(FileCommands, OpeningTakesViewSelectionAndFolderAlong) {
  const auto file = StoredProject("Island");
  dialogs.files = {file};
  editor.ChooseMode(ModeId::Line);
  editor.ToggleViewAll();
  editor.OpenProjectCommand();
  EXPECT_EQ(dialogs.fileRequests.at(0).Title, "Landsmith: Open Project");
  EXPECT_EQ(session.project.Name, "Island");
  EXPECT_EQ(session.project.ProjectFile, PathText(file));
  EXPECT_EQ(editor.Caption(), "ISLAND  Landsmith");
  EXPECT_TRUE(editor.MaySave());
  EXPECT_FALSE(session.project.Dirty);
  EXPECT_EQ(session.tool.Mode, ModeId::Pointer);
  EXPECT_TRUE(session.view.Shows(LayerKind::Polys));
  EXPECT_EQ(session.view.MapView, "Summer");
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(session.view.Zoom, 4);
  EXPECT_DOUBLE_EQ((session.view.LatTop + session.view.LatBottom) / 2, 10);
  EXPECT_DOUBLE_EQ((session.view.LonLeft + session.view.LonRight) / 2, 20);
  EXPECT_EQ(host.status.Zoom, "Zoom = 4");
  EXPECT_EQ(session.recent[0], PathText(file));
  EXPECT_EQ(ReadIniKey(Ini(), "Recent Files", "RecentFile1"), PathText(file));
  EXPECT_EQ(ReadIniKey(Ini(), "RecentDirs", "OpenDir"), PathText(folder.Path()));
}

TEST_F(FileCommands, TheRecentListKeepsItsOrderAndFullPaths) {
  const auto first = StoredProject("First"), second = StoredProject("Second");
  EXPECT_TRUE(editor.OpenProject(first));
  EXPECT_TRUE(editor.OpenProject(std::filesystem::proximate(second)));
  EXPECT_EQ(session.recent[0], PathText(second));
  editor.OpenRecent(1);
  EXPECT_EQ(session.project.Name, "First");
  EXPECT_EQ(session.recent[0], PathText(second)) << "a project in the list stays where it is";
  std::filesystem::remove(second);
  editor.OpenRecent(0);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, PathText(second) + "\n\ndoes not exist !");
  EXPECT_EQ(session.project.Name, "First");
  EXPECT_EQ(session.recent[0], PathText(second));
  editor.OpenRecent(3);  // an empty slot
  editor.OpenRecent(4);
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(FileCommands, AFileThatCannotBeReadLeavesTheProjectAlone) {
  const auto good = StoredProject("Good");
  std::string bytes = ReadWholeFile(good);
  WriteWholeFile(folder / "cut.LSP", bytes.substr(0, bytes.size() / 2));
  WriteWholeFile(folder / "text.LSP", "2,Road\r\n1,2\r\n");
  Press({50, 0});
  for (const char* name : {"cut.LSP", "text.LSP"}) {
    EXPECT_FALSE(editor.OpenProject(folder / name)) << name;
    EXPECT_EQ(session.project.Name, "Coast");
    EXPECT_EQ(session.recent[0], "");
  }
  EXPECT_EQ(dialogs.messages.size(), 2U);
}

struct DropRow {
  const char* name;
  void (*command)(EditorRig&);
};
class DropsChanges : public FileCommands, public testing::WithParamInterface<DropRow> {};
TEST_P(DropsChanges, OnlyAfterYes) {
  const auto file = StoredProject("Island");
  session.recent[0] = PathText(file);
  dialogs.files = {file, file};
  session.project.Dirty = true;
  GetParam().command(*this);
  EXPECT_EQ(dialogs.questions, std::vector<std::string>{DropQuestion});
  EXPECT_EQ(session.project.Name, "Coast");
  EXPECT_TRUE(dialogs.fileRequests.empty());
  EXPECT_EQ(host.propertiesShown, 0);
  dialogs.answers = {true};
  GetParam().command(*this);
  EXPECT_NE(session.project.Name, "Coast");
  EXPECT_FALSE(session.project.Dirty);
  GetParam().command(*this);
  EXPECT_EQ(dialogs.questions.size(), 2U) << "nothing to lose, no question";
}
INSTANTIATE_TEST_SUITE_P(Commands, DropsChanges,
                         testing::Values(DropRow{"New", [](EditorRig& rig) { rig.editor.NewProject(); }},
                                         DropRow{"Open",
                                                 [](EditorRig& rig) { rig.editor.OpenProjectCommand(); }},
                                         DropRow{"Recent", [](EditorRig& rig) { rig.editor.OpenRecent(0); }}),
                         [](const auto& row) { return row.param.name; });

TEST_F(FileCommands, ANewProjectLivesOnceItsPropertiesAreAccepted) {
  WriteIniKey(Ini(), "Main", "LatLandCenter", "51.5");
  WriteIniKey(Ini(), "Main", "ClassGridVIEW", "True");
  WriteIniKey(Ini(), "Main", "BGL2Folder", PathText(folder / "second"));
  editor.NewProject();
  EXPECT_EQ(host.propertiesShown, 1);
  EXPECT_FALSE(editor.HasProject());
  EXPECT_EQ(editor.Caption(), "Landsmith");
  EXPECT_TRUE(Lines().empty());
  EXPECT_EQ(session.view.LatDispCenter, 51.5) << "settings are read anew";
  EXPECT_TRUE(session.project.ClassGridVIEW);
  EXPECT_EQ(session.project.PhotoSeasons, 1281);
  EXPECT_EQ(session.project.BGL1ProjectFolder, session.settings.BGL1Folder);
  EXPECT_EQ(session.project.BGL2ProjectFolder, session.settings.BGL2Folder);
  EXPECT_FALSE(editor.Save());
  EXPECT_TRUE(dialogs.fileRequests.empty());

  host.acceptProperties = true;
  host.inProperties = [this] {
    session.project.Name = "Bay";
    session.project.LatLandCenter = session.view.LatDispCenter = 60;
    session.project.LonLandCenter = session.view.LonDispCenter = 5;
  };
  session.project.Dirty = false;
  editor.NewProject();
  EXPECT_TRUE(editor.HasProject());
  EXPECT_FALSE(editor.MaySave());
  EXPECT_EQ(editor.Caption(), "BAY  Landsmith");
  EXPECT_EQ(session.view.MapView, "");
  EXPECT_EQ(session.view.LatDispCenter, 60) << "the centre given in the dialog counts";
  EXPECT_EQ(session.view.LonDispCenter, 5);
  EXPECT_DOUBLE_EQ(session.view.Classes.LandNorth, ClassWindowOf(60, 5).LandNorth);
  EXPECT_FALSE(session.project.Dirty);
}

TEST_F(FileCommands, AppendingKeepsTheViewAndCountsAsSaved) {
  WriteWholeFile(folder / "roads.BLN", "2,Coast road\r\n0.1,0.2,12\r\n0.3,0.4,12\r\n");
  WriteWholeFile(folder / "bad.BLN", "2,Coast road\r\n0.1,word\r\n");
  dialogs.files = {std::nullopt, folder / "bad.BLN", folder / "roads.BLN"};
  session.project.Dirty = true;
  editor.Append("bln");
  EXPECT_EQ(dialogs.fileRequests.at(0).Title, "Landsmith: Append Surfer File");
  EXPECT_EQ(Lines().size(), 1U);
  editor.Append("bln");
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(Lines().size(), 1U);
  EXPECT_TRUE(session.project.Dirty);

  editor.GoTo({1, 2});
  editor.Append("bln");
  ASSERT_EQ(Lines().size(), 2U);
  EXPECT_EQ(Lines()[1].Name, "Coast road");
  EXPECT_FALSE(session.project.Dirty);
  EXPECT_EQ(session.view.LatDispCenter, 1);
  EXPECT_EQ(ReadIniKey(Ini(), "RecentDirs", "SurferDir"), PathText(folder.Path()));
  editor.Append("mp");
  EXPECT_EQ(dialogs.fileRequests.size(), 3U) << "a kind that cannot be read asks for no file";
  editor.Undo();
  EXPECT_EQ(Lines().size(), 1U);
  EXPECT_TRUE(session.project.Dirty) << "no longer what was saved";
}

}  // namespace
}  // namespace landsmith::test
