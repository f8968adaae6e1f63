#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "support/Errors.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

namespace fs = std::filesystem;

class StoredPaths : public testing::Test {
protected:
  void SetUp() override {
    fs::create_directories(m_temp / "Scenery/World");
    WriteWholeFile(m_temp / "Scenery/World/Lake.bgl", "x");
  }
  std::string Stored(const std::string& rest) const { return PathText(m_temp.Path()) + rest; }
  test::TempFolder m_temp;
};

TEST_F(StoredPaths, AreFoundWithBothSeparatorsAndInAnyCase) {
  const fs::path lake = m_temp / "Scenery/World/Lake.bgl";
  for (const char* rest : {"/Scenery/World/Lake.bgl", "\\Scenery\\World\\Lake.bgl",
                           "\\scenery/WORLD\\LAKE.BGL", "/scenery/./world/../World/lake.bgl"})
    EXPECT_TRUE(fs::equivalent(MapPath(Stored(rest)), lake)) << rest;
  EXPECT_EQ(MapPath(Stored("\\SCENERY\\world\\lake.BGL")), lake);
}

TEST_F(StoredPaths, KeepWhatIsMissingSoThatItCanBeMade) {
  EXPECT_EQ(MapPath(Stored("\\scenery\\New\\Deep.bgl")), m_temp / "Scenery/New/Deep.bgl");
  EXPECT_FALSE(FindExisting(Stored("\\scenery\\New")));
  EXPECT_TRUE(FindExisting(Stored("\\scenery\\world\\")));
  EXPECT_FALSE(FindExisting(""));
}

TEST_F(StoredPaths, TakeTheExactNameBeforeAnyOtherCase) {
  WriteWholeFile(m_temp / "LAKE.txt", "upper");
  WriteWholeFile(m_temp / "lake.TXT", "lower");
  EXPECT_EQ(ReadWholeFile(MapPath(Stored("\\lake.TXT"))), "lower");
  EXPECT_EQ(ReadWholeFile(MapPath(Stored("\\Lake.txt"))), "upper");  // the first in order, every time
  EXPECT_EQ(FindInFolder(m_temp.Path(), "lake.TXT"), m_temp / "lake.TXT");
  EXPECT_FALSE(FindInFolder(m_temp.Path(), "pond.txt"));
  EXPECT_FALSE(FindInFolder(m_temp.Path(), ""));
  EXPECT_FALSE(FindInFolder(m_temp / "nowhere", "lake.txt"));
}

TEST_F(StoredPaths, WithADriveLetterAreMissing) {
  EXPECT_TRUE(NamesForeignDrive("C:\\Scenery"));
  EXPECT_TRUE(NamesForeignDrive("d:"));
  EXPECT_FALSE(NamesForeignDrive("1:\\x"));
  EXPECT_FALSE(FindExisting("C:\\"));
}

TEST_F(StoredPaths, AFileIsWrittenWholeOrNotAtAll) {
  const fs::path file = m_temp / "out.LSP";
  const std::string bytes("a\0\r\n\xFF", 5);
  WriteWholeFile(file, bytes);
  EXPECT_EQ(ReadWholeFile(file), bytes);
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_THROW(WriteWholeFile(file, "new"), RuntimeError);
  EXPECT_EQ(ReadWholeFile(file), bytes);
  EXPECT_THROW(WriteWholeFile(m_temp / "nowhere/out.LSP", "x"), RuntimeError);
  EXPECT_THROW(WriteWholeFile(m_temp / "Scenery", "x"), RuntimeError);  // a folder
  // The file and the folder, nothing half written beside them.
  EXPECT_EQ(std::distance(fs::directory_iterator(m_temp.Path()), {}), 2);
}

TEST_F(StoredPaths, AWriteGoesThroughALinkAndKeepsPermissions) {
  const fs::path file = m_temp / "real.txt";
  WriteWholeFile(file, "old");
  fs::permissions(file, fs::perms::owner_all);
  fs::create_symlink(file, m_temp / "link.txt");
  WriteWholeFile(m_temp / "link.txt", "new");
  EXPECT_TRUE(fs::is_symlink(m_temp / "link.txt"));
  EXPECT_EQ(ReadWholeFile(file), "new");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_all);
  EXPECT_THROW(WriteWholeFile("/dev/full", "x"), RuntimeError);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(StoredPaths, AFileThatCannotBeReadIsNamed) {
  EXPECT_NE(test::ErrorOf([&] { ReadWholeFile(m_temp / "gone.LSP"); }).find("gone.LSP"), std::string::npos);
  EXPECT_THROW(ReadWholeFile(m_temp.Path()), RuntimeError);
}

TEST(RuntimeErrorText, LeavesEmptyPiecesOut) {
  EXPECT_STREQ(RuntimeError::At("reading", "F", "offset 3", "bad").what(), "reading: F, offset 3: bad");
  EXPECT_STREQ(RuntimeError::At("reading", "", "line 2", "bad").what(), "reading: line 2: bad");
  EXPECT_STREQ(RuntimeError::At("reading", "", "", "").what(), "reading");
}

}  // namespace
}  // namespace landsmith
