// The two programs as a compilation starts them: from the tools folder, found as stand-ins.
#include "Sources.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/Tools.h"
#include "simtools/BmpImage.h"
#include "support/BglReaders.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith::simtools {

using landsmith::test::ScriptedDialogs;
using landsmith::test::TempFolder;
using testing::HasSubstr;

namespace {

class Programs : public testing::Test {
protected:
  Programs() { std::filesystem::create_directories(m_tools / "work"); }

  int Run(const char* commandLine) {
    NoProgress progress;
    return m_runner.RunAndWait(commandLine, m_tools.Path(), progress);
  }
  std::string Log(const char* tool) { return ReadWholeFile(m_tools / "work" / tool); }
  bool Exists(const char* file) { return std::filesystem::exists(m_tools / file); }

  TempFolder m_tools;
  ScriptedDialogs m_dialogs;
  SystemToolRunner m_runner{m_tools.Path(), LANDSMITH_BINARY_DIR "/bin", m_dialogs};
};

TEST_F(Programs, ScasmWritesTheBglAndForgetsOldErrors) {
  WriteWholeFile(m_tools / "work/My Road_VTPL.scm", test::OneRoad);
  WriteWholeFile(m_tools / "SCAERROR.LOG", "old");
  EXPECT_EQ(Run("scasm \"work\\My Road_VTPL.scm\" -s -l"), 0);
  const auto file = landsmith::test::ReadVtpFile(ReadWholeFile(m_tools / "work/My Road_VTPL.BGL"));
  EXPECT_EQ(file.Features.size(), 1U);
  EXPECT_FALSE(Exists("SCAERROR.LOG"));
  EXPECT_THAT(Log("scasm.log"), HasSubstr("Landsmith stand-in compiler"));
}

TEST_F(Programs, ScasmLeavesALogAndNoBglForAFaultySource) {
  WriteWholeFile(m_tools / "work/X.scm", ReplaceAll(test::OneRoad, "12 -7", "12 -1023"));
  WriteWholeFile(m_tools / "work/x.bgl", "old");
  EXPECT_EQ(Run("scasm work\\X.scm -s -l"), 1);
  EXPECT_THAT(ReadWholeFile(m_tools / "SCAERROR.LOG"),
              HasSubstr("work/X.scm(17): VTPCPoint: the step in y is -1023"));
  EXPECT_THAT(Log("scasm.log"), HasSubstr("work/X.scm(17): "));
  EXPECT_FALSE(Exists("work/x.bgl"));
  EXPECT_FALSE(Exists("work/X.BGL"));
}

TEST_F(Programs, ScasmTellsThePointsThatItHeld) {
  WriteWholeFile(m_tools / "work/X.scm", ReplaceAll(test::OneRoad, "5000 6000", "16999 6000"));
  EXPECT_EQ(Run("scasm work\\X.scm -s -l"), 0);
  EXPECT_FALSE(Exists("SCAERROR.LOG"));
  EXPECT_THAT(Log("scasm.log"),
              HasSubstr("work/X.scm(16): warning: VTPWPoint: the point 16999 6000 is held to 16383 6000"));
  EXPECT_THAT(Log("scasm.log"), HasSubstr("1 point lies outside of 0 to 16383"));
}

TEST_F(Programs, ScasmSaysWhenItWritesNoSection) {
  WriteWholeFile(m_tools / "work/X.scm", "Header( 1 48 47 9 8 )\r\n");
  EXPECT_EQ(Run("scasm work\\X.scm -l"), 0);
  EXPECT_THAT(Log("scasm.log"), HasSubstr("no section"));
  const std::string bytes = ReadWholeFile(m_tools / "work/X.BGL");
  EXPECT_EQ(bytes.size(), 128U);
  EXPECT_EQ(bytes.substr(54, 4), std::string(4, '\0'));
}

TEST_F(Programs, ScasmFailsForAMissingSourceOrAnUnknownOption) {
  EXPECT_EQ(Run("scasm work\\none.scm -s -l"), 1);
  EXPECT_THAT(ReadWholeFile(m_tools / "SCAERROR.LOG"), HasSubstr("none.scm"));
  EXPECT_EQ(Run("scasm work\\none.scm -z"), 2);
}

TEST_F(Programs, ImageToolConvertsInPlaceAndKeepsWhatItCannotRead) {
  std::filesystem::create_directories(m_tools / "bmps");
  const BmpImage image{1, 2, {{1, 2, 3}, {4, 5, 6}}};
  std::string bytes = WriteBmp24(image);
  WriteWholeFile(m_tools / "bmps/TEMP.bmp", bytes);
  EXPECT_EQ(Run("imagetool.exe -nogui -batch -e bmp -nomip bmps\\temp.bmp"), 0);
  EXPECT_EQ(ReadWholeFile(m_tools / "bmps/TEMP.bmp"), bytes);
  EXPECT_THAT(Log("imagetool.log"), HasSubstr("Landsmith stand-in"));

  bytes[30] = 1;  // run length coding
  WriteWholeFile(m_tools / "bmps/TEMP.bmp", bytes);
  EXPECT_EQ(Run("imagetool.exe -nogui -batch -e bmp -nomip bmps\\temp.bmp"), 1);
  EXPECT_EQ(ReadWholeFile(m_tools / "bmps/TEMP.bmp"), bytes);
  EXPECT_THAT(Log("imagetool.log"), HasSubstr("compressed pixels"));
  EXPECT_EQ(Run("imagetool.exe -nogui -batch -e bmp -DXT1 bmps\\temp.bmp"), 1);
  EXPECT_THAT(Log("imagetool.log"), HasSubstr("-nogui -batch -e bmp -nomip FILE"));
}

}  // namespace

}  // namespace landsmith::simtools
