#include "core/IniFile.h"
#include "core/Settings.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "support/Errors.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

class SettingsFile : public testing::Test {
protected:
  AppSettings Load() { return LoadSettings(m_file, m_temp.Path()); }
  AppSettings LoadFrom(std::string_view text) {
    WriteWholeFile(m_file, text);
    return Load();
  }
  std::string Value(std::string_view section, std::string_view key) {
    return ReadIniKey(m_file, section, key);
  }

  test::TempFolder m_temp;
  std::filesystem::path m_file = m_temp / "Landsmith.ini";
};

TEST_F(SettingsFile, IsFilledWithDefaultsByAFirstRun) {
  const AppSettings settings = Load();
  const struct {
    const char* section;
    const char* key;
    std::string value;
  } rows[] = {
      {"Main", "DefLC", "11"},
      {"Main", "AreaPoints", "True"},
      {"Main", "BGL1Folder", PathText(m_temp.Path()) + "\\scenery"},
      {"Photo", "PhotoCall", "LayerCall( :lcall 4 )"},
      {"Photo", "HWinterStart", "-1"},
      {"BLN", "BLNSeparator", ","},
      {"Colors", "PolyFlattenColor", "32896"},    // 128 + 128 * 256
      {"Colors", "PolyExcludeColor", "4210752"},  // 64 * (1 + 256 + 65536)
      {"Tutorials", "Title5", "How to Make Photo Scenery ..."},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Value(row.section, row.key), row.value) << row.key;
  EXPECT_EQ(settings.BGL2Folder, PathText(m_temp.Path()) + "\\scenery");
  const std::string text = ReadWholeFile(m_file);
  EXPECT_NE(text.find("\r\nBmpDir=\r\n"), std::string::npos);  // empty defaults are written too
  // A new key comes first in its section, so the first that is asked for stands last.
  EXPECT_LT(text.find("DefWC="), text.find("DefLC="));
  EXPECT_EQ(Load(), settings);
  EXPECT_EQ(ReadWholeFile(m_file), text);
}

TEST_F(SettingsFile, IsTheSameAsWhenEachKeyIsAskedForAlone) {
  LoadFrom("[Main]\r\nDefWC=\r\nUnknown=1\r\n");
  const std::string atOnce = ReadWholeFile(m_file);
  WriteWholeFile(m_file, "[Main]\r\nDefWC=\r\nUnknown=1\r\n");
  EXPECT_EQ(GetSetting(m_file, "Main", "DefLC", "11"), "11");
  EXPECT_EQ(GetSetting(m_file, "Main", "DefWC", "10"), "10");
  EXPECT_EQ(ReadWholeFile(m_file), "[Main]\r\nDefLC=11\r\nDefWC=10\r\nUnknown=1\r\n");
  EXPECT_EQ(GetSetting(m_file, "Main", "Unknown", "2"), "1");
  Load();
  EXPECT_EQ(ReadWholeFile(m_file), atOnce);
}

TEST_F(SettingsFile, GivesItsValues) {
  const AppSettings settings = LoadFrom(
      "[Main]\r\nDefLC=\r\nDefWC= 12 \r\nDecimalDegrees=true\r\nMeasuringMeters=0\r\nMesh8=-1\r\n"
      "DefPWidth=12.5\r\nDefPoC=2.5\r\nUndoDepth=1000\r\nRwy12Path=C:\\caf\xE9\r\n"
      "[BLN]\r\nBLNSeparator=tab\r\n[RecentDirs]\r\nSaveDir=C:\\x\r\n");
  EXPECT_EQ(settings.DefLC, 11);  // an empty value is as good as none
  EXPECT_EQ(Value("Main", "DefLC"), "11");
  EXPECT_EQ(settings.DefWC, 12);
  EXPECT_TRUE(settings.DecimalDegrees);
  EXPECT_FALSE(settings.MeasuringMeters);
  EXPECT_TRUE(settings.Mesh8);
  EXPECT_EQ(settings.DefPWidth, 12.5f);
  EXPECT_EQ(settings.DefPoC, 2);  // halves to even
  EXPECT_EQ(settings.UndoDepth, 100);
  EXPECT_EQ(settings.Rwy12Path, "C:\\caf\u00E9");
  EXPECT_EQ(settings.BLNSeparator, "\t");
  EXPECT_EQ(settings.SaveDir, "C:\\x");
}

TEST_F(SettingsFile, WithABadNumberIsAnErrorThatNamesThePlace) {
  for (const char* line : {"DefLC=256", "DefLC=x", "DefPoC=1e10", "Mesh8=maybe", "DefAlt=1,5"}) {
    const std::string given(line), key = given.substr(0, given.find('='));
    const std::string text = test::ErrorOf([&] { LoadFrom("[Main]\r\n" + given + "\r\n"); });
    EXPECT_NE(text.find("Landsmith.ini, section Main, key " + key), std::string::npos) << text;
    EXPECT_NE(text.find("\"" + given.substr(key.size() + 1) + "\""), std::string::npos) << text;
  }
}

TEST_F(SettingsFile, KeepsWhatASaveDoesNotOwn) {
  AppSettings settings = LoadFrom("[Photo]\r\nSpringEnd=170\r\n[RecentDirs]\r\nOpenDir=C:\\a\r\n");
  EXPECT_EQ(settings.SpringEnd, 170);
  settings.SpringEnd = 1;
  settings.OpenDir = "C:\\b";
  settings.BLNSeparator = "\t";
  settings.Altitude2Change = 0.1f;
  settings.PolyFill = false;
  SaveSettings(m_file, settings);
  EXPECT_EQ(Value("Photo", "SpringEnd"), "170");
  EXPECT_EQ(Value("RecentDirs", "OpenDir"), "C:\\a");
  EXPECT_EQ(Value("BLN", "BLNSeparator"), "\t");
  EXPECT_EQ(Value("Main", "Altitude2Change"), "0.1");
  EXPECT_EQ(Value("Colors", "PolyFill"), "False");
  SaveRecentFolders(m_file, settings);
  EXPECT_EQ(Value("RecentDirs", "OpenDir"), "C:\\b");
  settings.SpringEnd = 170;
  EXPECT_EQ(Load(), settings);  // every key went out and came back
}

TEST(Settings, AreSetByName) {
  AppSettings settings;
  SetByName(settings, "mesh8", "TRUE");
  SetByName(settings, "BLNSeparator", "tab");
  SetByName(settings, "PhotoCall", "");
  SetByName(settings, "title3", "x");
  EXPECT_TRUE(settings.Mesh8);
  EXPECT_EQ(settings.BLNSeparator, "\t");
  EXPECT_EQ(settings.PhotoCall, "");
  EXPECT_EQ(settings.Title[2], "x");
  EXPECT_THROW(SetByName(settings, "Mesh8", ""), RuntimeError);
}

}  // namespace
}  // namespace landsmith
