#include "core/Grid.h"
#include "core/Project.h"
#include "core/Settings.h"
#include "platform/Paths.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

namespace fs = std::filesystem;

void SelectAll(ProjectState& project, bool selected) {
  const auto mark = [&](auto& records) { records.emplace_back().Selected = selected; };
  mark(project.Maps), mark(project.Lines), mark(project.Polys), mark(project.Fills), mark(project.Excludes);
  mark(project.Photos), mark(project.Meshes), mark(project.Objects);
  mark(project.Lines.Edit(0).Points), mark(project.Polys.Edit(0).Points);
  project.Lands.Set(5, 6, selected ? 130 : 2);
  project.NoOfLands = 1;
}

TEST(Project, ClearsEverySelection) {
  ProjectState project, expected;
  SelectAll(project, true);
  SelectAll(expected, false);
  ClearAllSelected(project);
  EXPECT_EQ(project, expected);
  EXPECT_FALSE(project.Waters.IsAllocated());  // no grid is made for it
}

TEST(Project, TakesGridBoxesFromGridNumbers) {
  ProjectState project;
  project.Fills.push_back({false, 4, 0, 3, 2, 0, 408, 121, {}});
  project.Photos.push_back({false, 408, 121, 6, 18, {}});
  project.Meshes.push_back({false, 0, 408, 121, {}});
  ComputeGridBoxes(project);
  // Column 3 of fills of size 4 begins at Area 12, row 2 at Area 8.
  const double west = 408 * 0.46875 + 12 * 0.0146484375 - 180;
  const double north = 90 - (121 * 0.3515625 + 8 * 0.010986328125);
  EXPECT_EQ(project.Fills[0].Box, (GeoBox{north, north - 4 * 0.010986328125, west, west + 4 * 0.0146484375}));
  EXPECT_EQ(project.Photos[0].Box, AreaBox(47.26, 11.34));
  EXPECT_EQ(project.Meshes[0].Box, CellBox(47.26, 11.34));
}

TEST(Project, GivesAPathWithoutPointsAnEmptyBox) {
  LineRec line;
  line.Box = {5, -2, -1, 3};
  SetPathBounds(line);
  EXPECT_EQ(line.Box, GeoBox{});
}

TEST(ProjectFolders, AreReplacedWhenMissingAndMade) {
  const test::TempFolder temp;
  AppSettings settings;
  settings.BGL1Folder = AppFolderText(temp.Path(), "scenery");
  settings.BGL2Folder = settings.BGL1Folder;
  fs::create_directory(temp / "Own");
  ProjectState project;
  project.BGL1ProjectFolder = PathText(temp.Path()) + "\\own";  // found in another case, so it stays
  project.BGL2ProjectFolder = PathText(temp.Path()) + "\\gone";
  ResolveProjectFolders(project, settings);
  EXPECT_EQ(project.BGL1ProjectFolder, PathText(temp.Path()) + "\\own");
  EXPECT_EQ(project.BGL2ProjectFolder, settings.BGL2Folder);
  EXPECT_TRUE(fs::is_directory(temp / "scenery"));
  EXPECT_TRUE(fs::is_directory(temp / "Texture"));  // beside the first folder
  EXPECT_FALSE(fs::exists(temp / "gone"));
}

TEST(ProjectFolders, OnADriveOfAnotherSystemAreMissing) {
  const test::TempFolder temp;
  const fs::path before = fs::current_path();
  fs::current_path(temp.Path());
  AppSettings settings;
  settings.BGL1Folder = settings.BGL2Folder = "D:\\Scenery";  // settings brought from elsewhere
  ProjectState project;
  project.BGL1ProjectFolder = "C:\\Scenery";
  ResolveProjectFolders(project, settings);
  fs::current_path(before);
  EXPECT_EQ(project.BGL1ProjectFolder, "D:\\Scenery");
  EXPECT_TRUE(fs::is_empty(temp.Path()));  // no folder named "D:" was made
}

TEST(ProjectFolders, PutTexturesBesideTheFirst) {
  ProjectState project;
  for (const auto& [folder, textures] :
       {std::pair("C:\\a\\b", "C:\\a\\Texture"), std::pair("/a/b\\scenery", "/a/b\\Texture"),
        std::pair("/a/b/", "/a/b/Texture")}) {
    project.BGL1ProjectFolder = folder;
    EXPECT_EQ(TextureFolder(project), textures);
  }
}

}  // namespace
}  // namespace landsmith
