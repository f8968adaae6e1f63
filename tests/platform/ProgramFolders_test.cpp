#include "platform/ProgramFolders.h"

#include "platform/Paths.h"
#include "support/Errors.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

namespace landsmith {

using test::TempFolder;

namespace {

namespace fs = std::filesystem;

class ProgramFoldersTest : public testing::Test {
protected:
  ProgramFoldersTest() { setenv("XDG_DATA_HOME", (m_root / "home").c_str(), 1); }

  fs::path Make(const char* folder) {
    fs::create_directories(m_root / folder);
    return m_root / folder;
  }
  void Write(const char* file, const char* content) { WriteWholeFile(m_root / file, content); }

  TempFolder m_root;
};

TEST_F(ProgramFoldersTest, TheExecutablesOwnFolderServesWhenItIsPortable) {
  const fs::path program = Make("bin") / "landsmith";
  EXPECT_EQ(FindProgramFolder(program), m_root / "home/landsmith");
  Write("bin/landsmith.INI", "");
  EXPECT_EQ(FindProgramFolder(program), m_root / "bin");
  fs::remove(m_root / "bin/landsmith.INI");
  Make("bin/Tools");
  EXPECT_EQ(FindProgramFolder(program), m_root / "bin");
  EXPECT_TRUE(fs::is_empty(m_root / "bin/Tools"));
}

TEST_F(ProgramFoldersTest, AFolderThatCannotBeWrittenDoesNotServe) {
  if (geteuid() == 0) GTEST_SKIP() << "the administrator may write anywhere";
  Make("bin/tools");
  fs::permissions(m_root / "bin", fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(FindProgramFolder(m_root / "bin/landsmith"), m_root / "home/landsmith");
  fs::permissions(m_root / "bin", fs::perms::owner_all);
}

TEST_F(ProgramFoldersTest, FillingAddsWhatIsMissingAndKeepsTheRest) {
  Make("data/tools/bmps");
  Make("data/html");
  Write("data/tools/lines.txt", "shipped");
  Write("data/tools/polys.txt", "shipped");
  Write("data/tools/bmps/001B2SU1.BMP", "picture");
  Write("data/html/island.pdf", "pdf");
  Make("app/Tools");
  Write("app/Tools/LINES.TXT", "mine");

  EXPECT_TRUE(FillProgramFolder(m_root / "app", m_root / "data"));
  EXPECT_EQ(ReadWholeFile(m_root / "app/Tools/LINES.TXT"), "mine");
  EXPECT_FALSE(fs::exists(m_root / "app/Tools/lines.txt"));
  EXPECT_EQ(ReadWholeFile(m_root / "app/Tools/polys.txt"), "shipped");
  EXPECT_EQ(ReadWholeFile(m_root / "app/Tools/bmps/001B2SU1.BMP"), "picture");
  EXPECT_EQ(ReadWholeFile(m_root / "app/html/island.pdf"), "pdf");
  EXPECT_TRUE(fs::is_directory(m_root / "app/Tools/work"));
  EXPECT_TRUE(fs::is_directory(m_root / "app/scenery"));
  EXPECT_FALSE(FillProgramFolder(m_root / "app", m_root / "data")) << "there was nothing left to copy";
}

TEST_F(ProgramFoldersTest, ItsFoldersAreFoundInAnyCase) {
  const fs::path textures = Make("FS9/Scenery/world/TEXTURE");
  const ProgramFolders folders{Make("app"), m_root / "FS9", false};
  EXPECT_EQ(folders.Work(), m_root / "app/tools/work") << "the name that would be made";
  Make("app/Tools/WORK");
  Make("app/Tools/Bmps");
  Make("app/HTML");
  Write("app/LANDSMITH.INI", "");
  EXPECT_EQ(folders.Tools(), m_root / "app/Tools");
  EXPECT_EQ(folders.Work(), m_root / "app/Tools/WORK");
  EXPECT_EQ(folders.Bitmaps(), m_root / "app/Tools/Bmps");
  EXPECT_EQ(folders.Html(), m_root / "app/HTML");
  EXPECT_EQ(folders.IniPath(), m_root / "app/LANDSMITH.INI");
  EXPECT_EQ(folders.FSTexturePath(), textures);
}

TEST_F(ProgramFoldersTest, AFolderThatCannotBeMadeIsNamed) {
  Make("data/tools");
  Write("app", "a file in the way");
  const std::string error = test::ErrorOf([&] { FillProgramFolder(m_root / "app", m_root / "data"); });
  EXPECT_NE(error.find((m_root / "app").string()), std::string::npos) << error;
}

TEST_F(ProgramFoldersTest, ShippedDataLiesBesideTheProgramOrInTheSharedFolder) {
  const fs::path program = Make("usr/bin") / "landsmith";
  Make("usr/share/landsmith/tools");
  Make("usr/share/landsmith/simulator");
  EXPECT_EQ(FindShippedData(program), m_root / "usr/share/landsmith");
  Make("usr/bin/tools");  // a program folder alone is no shipped data
  EXPECT_EQ(FindShippedData(program), m_root / "usr/share/landsmith");
  Make("usr/bin/simulator");
  EXPECT_EQ(FindShippedData(program), m_root / "usr/bin");
}

TEST_F(ProgramFoldersTest, TheSimulatorIsTheConfiguredFolderOrTheShippedOne) {
  Make("data/simulator");
  Make("FS 9");
  bool standIn = true;
  const std::string configured = PathText(m_root.Path()) + "\\fs 9";
  EXPECT_FALSE(FindSimulator(configured, m_root / "data", standIn).has_value());
  EXPECT_FALSE(standIn);
  Write("data/simulator/scenery.cfg", "");
  EXPECT_EQ(FindSimulator(configured, m_root / "data", standIn), m_root / "data/simulator");
  EXPECT_TRUE(standIn);
  Write("FS 9/SCENERY.CFG", "");
  EXPECT_EQ(FindSimulator(configured, m_root / "data", standIn), m_root / "FS 9");
  EXPECT_FALSE(standIn);
  for (const char* nowhere : {"", "C:\\FS9"}) {
    EXPECT_EQ(FindSimulator(nowhere, m_root / "data", standIn), m_root / "data/simulator") << nowhere;
    EXPECT_TRUE(standIn);
  }
}

}  // namespace

}  // namespace landsmith
