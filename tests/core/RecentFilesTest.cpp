#include "core/IniFile.h"
#include "core/RecentFiles.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(RecentFiles, KeepTheLastFour) {
  const test::TempFolder temp;
  const auto file = temp / "Landsmith.ini";
  RecentFiles recent = LoadRecentFiles(file);
  EXPECT_EQ(recent, RecentFiles{});
  for (const char* path : {"/a.LSP", "/b.LSP", "/c.LSP", "/d[1].LSP", "/e.LSP"}) {
    PushRecentFile(recent, path, file);
    EXPECT_EQ(LoadRecentFiles(file), recent);
  }
  EXPECT_EQ(recent, (RecentFiles{"/e.LSP", "/d[1].LSP", "/c.LSP", "/b.LSP"}));
  PushRecentFile(recent, "/c.LSP", file);  // is there: stays where it is
  EXPECT_EQ(recent[2], "/c.LSP");
}

TEST(RecentFiles, AreNoneWithoutAFirst) {
  const test::TempFolder temp;
  const auto file = temp / "Landsmith.ini";
  WriteIniKey(file, "Recent Files", "RecentFile2", "/b.LSP");
  EXPECT_EQ(LoadRecentFiles(file), RecentFiles{});
}

TEST(ShortenPath, FitsPathsToAMenu) {
  const struct {
    const char* path;
    std::size_t n;
    const char* text;
  } rows[] = {
      {"C:\\projects\\alps\\inn\\valley_123.LSP", 35,
       "C:\\projects\\alps\\inn\\valley_123.LSP"},  // 35: whole
      {"C:\\projects\\alps\\inn\\valley_1234.LSP", 35, "C:\\projects\\..\\valley_1234.LSP"},
      {"C:\\projects\\alps\\inn\\valley_1234.LSP", 20, "C:\\..\\valley_1234.LSP"},
      {"/home/me/scenery/alps/inn/valley.LSP", 35, "/home/../valley.LSP"},
      {"/\u00E4\u00F6/me/scenery/alps/inn/valley1.LSP", 35, "/\u00E4\u00F6/me/scenery/alps/inn/valley1.LSP"},
      {"a_name_without_any_folder_before_it_.LSP", 35, "a_name_without_any_folder_before_it_.LSP"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ShortenPath(row.path, row.n), row.text);
}

}  // namespace
}  // namespace landsmith
