#include "core/ProjectFile.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "support/Builders.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"
#include "wiring/ProjectStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using testing::HasSubstr;

class ProjectFiles : public testing::Test {
protected:
  ProjectFiles() {
    m_settings.BGL1Folder = PathText(m_folder / "out" / "scenery");
    m_settings.BGL2Folder = PathText(m_folder / "out2");
  }

  std::optional<ProjectState> Open(const std::string& name, std::string_view content) {
    WriteWholeFile(m_folder / name, content);
    return OpenProjectFile(m_folder / name, m_settings, m_dialogs);
  }

  test::TempFolder m_folder;
  AppSettings m_settings;
  test::ScriptedDialogs m_dialogs;
};

TEST_F(ProjectFiles, ComeBackReadyForWork) {
  ProjectState project;
  project.Name = "island";
  project.LatDispCenter = 60;  // where a degree of longitude is half as long
  project.Zoom = 4;
  LineRec line = test::ALine().Through({{1, 1}, {2, 2}});
  line.Box = {5, 4, 3, 6};
  line.Flag = 7;
  project.Lines = {line};
  FillRec& fill = project.Fills.emplace_back();
  fill.CellX = 384;  // the Cell east of Greenwich
  fill.Size = 2;
  ObjectRec& object = project.Objects.emplace_back();
  object.Type = 2;
  object.Length = object.Width = 222.66F;

  const auto opened = Open("X.LSP", WriteProject(project, "C:\\Scenery"));

  ASSERT_TRUE(opened) << m_dialogs.messages.front().text;
  EXPECT_EQ(opened->ProjectFile, PathText(m_folder / "X.LSP"));
  EXPECT_TRUE(opened->ProjectOpen);
  EXPECT_FALSE(opened->Dirty);
  EXPECT_EQ(opened->Lines, project.Lines) << "boxes and flags of lines stay as stored";
  EXPECT_EQ(opened->Fills[0].Box.WLon, 0);
  EXPECT_EQ(opened->Fills[0].Box.ELon, 0.029296875);  // two Areas
  EXPECT_NEAR(opened->Objects[0].Box.NLat, 0.001, 1e-9);
  EXPECT_NEAR(opened->Objects[0].Box.ELon, 0.002, 1e-9);
  EXPECT_EQ(opened->BGL1ProjectFolder, m_settings.BGL1Folder);
  EXPECT_TRUE(std::filesystem::is_directory(m_folder / "out" / "Texture"));
  EXPECT_TRUE(m_dialogs.messages.empty());
}

TEST_F(ProjectFiles, ThatAreNoneAreRefusedWithAMessage) {
  ProjectState project;
  const std::string whole = WriteProject(project, "");
  const struct {
    const char* name;
    std::string content;
    std::string text;  // part of the message
  } rows[] = {{"EMPTY.LSP", "", "Not a Valid Landsmith File!"},
              {"TEXT.LSP", "[Main]\r\nName=x", "Not a Valid Landsmith File!"},
              {"OTHER.LSP", std::string("\6\0LS205", 7), "Not a Valid Landsmith File!"},
              {"NEWER.LSP", std::string("\5\0LS206", 7), "Not a Valid Landsmith File!"},
              {"CUT.LSP", whole.substr(0, whole.size() - 1), "CUT.LSP"}};
  for (const auto& row : rows) {
    m_dialogs.messages.clear();
    EXPECT_FALSE(Open(row.name, row.content)) << row.name;
    ASSERT_EQ(m_dialogs.messages.size(), 1U) << row.name;
    EXPECT_EQ(m_dialogs.messages[0].kind, MessageKind::Error);
    EXPECT_THAT(m_dialogs.messages[0].text, HasSubstr(row.text));
  }
}

TEST_F(ProjectFiles, OfOlderVersionsAreAskedAboutAndKept) {
  const struct {
    const char* tag;
    const char* version;
  } rows[] = {{"LS203", "LS203"}, {"LS204", "LS204"}, {"QORVA", "LS202 or lower"}};
  for (const auto& row : rows) {
    const std::string content = std::string("\5\0", 2) + row.tag + "rest";
    for (const bool yes : {false, true}) {
      m_dialogs = {};
      m_dialogs.answers = {yes};
      EXPECT_FALSE(Open("Old one.LSP", content));
      ASSERT_EQ(m_dialogs.questions.size(), 1U);
      EXPECT_EQ(m_dialogs.questions[0], std::string("This file is in the ") + row.version +
                                            " format!\nConvert to the new LS205 format and\n"
                                            "create a bakup with name Old one_OLD.LSP ?");
      EXPECT_EQ(m_dialogs.messages.size(), yes ? 1U : 0U);
      EXPECT_EQ(ReadWholeFile(m_folder / "Old one.LSP"), content);
      EXPECT_FALSE(std::filesystem::exists(m_folder / "Old one_OLD.LSP"));
    }
  }
}

TEST_F(ProjectFiles, LoseTheDefaultFolderWhenSaved) {
  const std::filesystem::path appPath = m_folder / "app";
  ProjectState project;
  project.Name = "island";
  project.BGL1ProjectFolder = AppFolderText(appPath, "Scenery");
  project.BGL2ProjectFolder = AppFolderText(appPath, "scenery");  // another case: another folder

  SaveProjectFile(project, m_folder / "X.LSP", appPath);

  EXPECT_EQ(project.BGL1ProjectFolder, "");
  EXPECT_EQ(project.BGL2ProjectFolder, AppFolderText(appPath, "scenery"));
  EXPECT_EQ(ReadProject(ReadWholeFile(m_folder / "X.LSP"), "X.LSP"), project);
}

TEST_F(ProjectFiles, ThatCannotBeSavedLeaveTheProjectAsItWas) {
  ProjectState project;
  project.BGL1ProjectFolder = AppFolderText(m_folder / "app", "Scenery");
  const ProjectState before = project;
  EXPECT_THROW(SaveProjectFile(project, m_folder / "missing" / "X.LSP", m_folder / "app"), RuntimeError);
  EXPECT_EQ(project, before);
}

}  // namespace
}  // namespace landsmith
