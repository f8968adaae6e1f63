// The dialogs that choose and put together textures.
#include "DialogRig.h"
#include "forms/frmNamesT.h"
#include "forms/frmTerrain.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPixmap>

namespace landsmith::test {
namespace {

struct TextureDialogs : testing::Test {
  DialogRig rig;

  TextureDialogs() {
    rig.session.lineTextures = {{12, "na.bmp", "Lane", "", 10, 20, 30},
                                {40, "road.bmp", "Road", "", 1, 2, 3}};
    for (const char* file : {"na.bmp", "Road.BMP"})
      QImage(8, 8, QImage::Format_RGB32)
          .save(QString::fromStdString((rig.session.folders.Bitmaps() / file).string()));
    WriteWholeFile(rig.session.folders.Tools() / "lines.txt", "[Texture.12]\r\n\r\n");
  }
};

bool HasPicture(QDialog& dialog) {
  return !Find<QLabel>(dialog, "imgTex").pixmap().isNull();
}

TEST_F(TextureDialogs, ThePictureOfAnEntryIsConvertedFirst) {
  frmTerrain dialog(rig.session, TextureKind::Line, nullptr);
  EXPECT_TRUE(rig.tools.ran.empty());  // na.bmp needs no conversion
  EXPECT_TRUE(HasPicture(dialog));
  Find<QListWidget>(dialog, "List1").setCurrentRow(1);
  ASSERT_EQ(rig.tools.ran.size(), 1U);
  EXPECT_EQ(rig.tools.ran[0], "imagetool.exe -nogui -batch -e bmp -nomip bmps\\temp.bmp");
  EXPECT_TRUE(HasPicture(dialog));
  Press(dialog, "cmdOK");
  EXPECT_EQ(rig.session.currentLineTexture, 1U);
}

TEST_F(TextureDialogs, AFailedConversionShowsNoPictureAndAMissingToolIsAskedForOnce) {
  rig.tools.answer = [](const std::string&) { return ToolMissing; };
  frmTerrain dialog(rig.session, TextureKind::Line, nullptr);
  for (const int row : {1, 0, 1})
    Find<QListWidget>(dialog, "List1").setCurrentRow(row);
  EXPECT_FALSE(HasPicture(dialog));
  EXPECT_EQ(rig.tools.ran.size(), 1U);
  Press(dialog, "cmdCancel");
  EXPECT_EQ(rig.session.currentLineTexture, 0U);
}

TEST_F(TextureDialogs, TheNamedTextHoldsTheSeasonsInTheSimulatorsOrder) {
  std::filesystem::create_directories(rig.session.folders.FSTexturePath());
  WriteWholeFile(rig.session.folders.FSTexturePath() / "snow.bmp", "x");
  WriteWholeFile(rig.session.folders.FSTexturePath() / "readme.txt", "x");
  frmNamesT dialog(rig.session, TextureKind::Line, 0, nullptr);
  EXPECT_EQ(dialog.TextureName(),
            "\"001b2wa1.bmp;001b2wa1.bmp;001b2wa1.bmp;001b2wa1.bmp;001b2wa1.bmp;001b2wa1.bmp\" 0 0 0 4 ");

  auto& files = Find<QListWidget>(dialog, "filList");
  ASSERT_EQ(files.count(), 1);
  Press(dialog, "optHW");
  files.setCurrentRow(0);
  Type(dialog, "txtSU", "s.bmp");
  Type(dialog, "txtWI", "w.bmp");
  Type(dialog, "txtSP", "p.bmp");
  Type(dialog, "txtFA", "f.bmp");
  Type(dialog, "txtLM", "n.bmp");
  Find<QComboBox>(dialog, "cmbType").setCurrentIndex(2);
  Press(dialog, "ckEffect");
  EXPECT_EQ(dialog.TextureName(), "\"w.bmp;snow.bmp;p.bmp;s.bmp;f.bmp;n.bmp\" 2 1 0 4 wavecontroller");
}

TEST_F(TextureDialogs, AddingToTheCatalogueAsksForANameAndAppendsASection) {
  frmNamesT dialog(rig.session, TextureKind::Line, Rgb(1, 2, 3), nullptr);
  rig.dialogs.inputs = {std::nullopt, "Harbour"};
  Press(dialog, "cmdList");
  EXPECT_EQ(rig.session.lineTextures.size(), 2U);  // no reply, no entry
  Press(dialog, "cmdList");
  EXPECT_EQ(rig.dialogs.questions.back(),
            "Add this \nCustom Line Texture\nto the set of pre-assembled textures?\n"
            "If so enter a name to refer to this texture!");
  EXPECT_EQ(ReadTextureCatalog(rig.session.folders.Tools() / "lines.txt").back(),
            (TextureItem{41, "na.bmp", "Harbour", dialog.TextureName(), 1, 2, 3}));
  EXPECT_EQ(rig.session.lineTextures.back().Id, 41);
}

}  // namespace
}  // namespace landsmith::test
