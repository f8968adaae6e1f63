#include "EditorRig.h"
#include "core/IniFile.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

const std::filesystem::path ShippedData = std::filesystem::path(LANDSMITH_SOURCE_DIR) / "data";

class SessionStart : public testing::Test {
protected:
  std::filesystem::path App() const { return folder / "app"; }
  ProgramFolders Folders() const {
    ProgramFolders folders;
    folders.AppPath = App();
    return folders;
  }
  /// Shipped data without what is named.
  std::filesystem::path DataWithout(const std::filesystem::path& missing) {
    std::filesystem::copy(ShippedData, folder / "data", std::filesystem::copy_options::recursive);
    std::filesystem::remove_all(folder / "data" / missing);
    return folder / "data";
  }

  TempFolder folder;
  ScriptedDialogs dialogs;
  RecordingTools tools;
  Session session{Folders(), dialogs, tools};
};

TEST_F(SessionStart, TheFirstOneFillsTheProgramFolder) {
  StartSession(session, ShippedData);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(std::filesystem::exists(App() / "tools" / "lines.txt"));
  EXPECT_TRUE(std::filesystem::is_directory(session.folders.Work()));
  EXPECT_EQ(ReadIniKey(App() / "Landsmith.ini", "Main", "DefLC"), "11");
  EXPECT_GT(session.lands.Count, 0);
  EXPECT_GT(session.waters.Count, 0);
  EXPECT_EQ(session.currentLineTexture, std::min<std::size_t>(9, session.lineTextures.size() - 1));
  EXPECT_TRUE(session.folders.SimulatorIsStandIn);
  EXPECT_TRUE(std::filesystem::exists(session.folders.FSPath / "scenery.cfg"));
  EXPECT_FALSE(session.project.ProjectOpen);
  EXPECT_EQ(session.view.LatDispCenter, 40);
  EXPECT_EQ(session.view.LonDispCenter, -10);
  EXPECT_EQ(session.view.Zoom, 1);
}

TEST_F(SessionStart, TakesSettingsRecentFilesAndTheConfiguredSimulator) {
  std::filesystem::create_directories(App());
  std::filesystem::create_directories(folder / "fs");
  WriteWholeFile(folder / "fs" / "scenery.cfg", "");
  const auto ini = App() / "Landsmith.ini";
  WriteIniKey(ini, "Main", "LatLandCenter", "51.5");
  WriteIniKey(ini, "Main", "DefLinC", "-7");
  WriteIniKey(ini, "Main", "DefPoC", "30000");
  WriteIniKey(ini, "Main", "FSPath", PathText(folder / "fs"));
  WriteIniKey(ini, "Recent Files", "RecentFile1", "C:\\a.LSP");
  StartSession(session, ShippedData);
  EXPECT_EQ(session.view.LatDispCenter, 51.5);
  EXPECT_EQ(session.currentLineTexture, 0U);
  EXPECT_EQ(session.currentPolyTexture, session.polyTextures.size() - 1);
  EXPECT_EQ(session.folders.FSPath, folder / "fs");
  EXPECT_FALSE(session.folders.SimulatorIsStandIn);
  EXPECT_EQ(session.recent[0], "C:\\a.LSP");
}

TEST_F(SessionStart, AMissingSimulatorEndsIt) {
  EXPECT_THROW(StartSession(session, DataWithout("simulator")), RuntimeError);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].kind, MessageKind::Error);
  EXPECT_EQ(dialogs.messages[0].text, "FS2004 does not exist in this computer!");
}

TEST_F(SessionStart, AMissingCatalogueEndsIt) {
  EXPECT_THROW(StartSession(session, DataWithout("tools/polys.txt")), RuntimeError);
}

TEST_F(SessionStart, MissingClassPicturesAreAnnounced) {
  StartSession(session, DataWithout("tools/bmps/001B2SU1.BMP"));
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].kind, MessageKind::Info);
  EXPECT_EQ(dialogs.messages[0].text,
            "You must wait until Landsmith copies some bitmaps! The next\n"
            "time Landsmith runs in this computer it will start faster!");
}

}  // namespace
}  // namespace landsmith::test
