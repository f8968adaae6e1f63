#include "CompileRig.h"
#include "compile/VtpLines.h"
#include "support/Builders.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <string>

namespace landsmith::test {
namespace {

ProjectState Holding(const LineRec& line) {
  ProjectState project;
  project.Lines = {ALine().Named("other").Through({{1, 2}, {3, 4}}), line};
  return project;
}

ALine Road() {
  return ALine().Named("Main street").Vtp("4", "1280").Selected();
}

std::string FailureOf(const LineRec& line) {
  return ErrorOf([&] { VtpLineSource(Holding(line), {}); });
}

TEST(VtpLineSource, NamesTheLineItCannotWrite) {
  for (const char* layer : {"", "four", "40000", "4x"}) {
    const std::string text = FailureOf(Road().Vtp(layer, "1280").Through({{47.5, 8.1}, {47.6, 8.1}}));
    EXPECT_NE(text.find("line 2 \"Main street\""), std::string::npos) << text;
    EXPECT_NE(text.find("\"" + std::string(layer) + "\""), std::string::npos) << text;
  }
  for (const float width : {255.5F, 256.0F, -0.6F}) {
    const std::string text = FailureOf(Road().Through({{47.5, 8.1}, {47.6, 8.1}}, width));
    EXPECT_NE(text.find("line 2 \"Main street\""), std::string::npos) << text;
    EXPECT_NE(text.find("width "), std::string::npos) << text;
  }
}

TEST(VtpLineSource, HasNothingWithoutALineOfTwoPlaces) {
  LineRec unselected = Road().Through({{47.5, 8.1}, {47.6, 8.1}});
  unselected.Selected = false;
  LineRec polyHead = Road().Through({{47.5, 8.1}, {47.6, 8.1}});
  polyHead.Type = "VTPX//4//1280//";
  const LineRec rows[] = {unselected, polyHead, Road(), Road().Through({{47.5, 8.1}}, 300),
                          Road().Through({{47.5, 8.1}, {47.5, 8.1000001}})};
  for (const LineRec& line : rows)
    EXPECT_FALSE(VtpLineSource(Holding(line), {}).has_value());
}

TEST(VtpLineSource, NumbersTheHundredthCellWithThreeDigits) {
  ProjectState project;
  for (int i = 0; i < 102; ++i)
    project.Lines.push_back(Road().Through({{47.5, -20 + i * CellWidth}, {47.51, -20 + i * CellWidth}}));
  const std::string source = VtpLineSource(project, {}).value();
  EXPECT_NE(source.find(":cell00\r\n"), std::string::npos);
  EXPECT_NE(source.find(":cell99\r\n"), std::string::npos);
  EXPECT_NE(source.find(":cell101\r\n"), std::string::npos);
  EXPECT_NE(source.find("VTPIndexList( 102\r\n"), std::string::npos);
}

TEST(CompileVTPLines, SaysWhenThereIsNothingToWrite) {
  CompileRig rig;
  rig.project.Lines = {Road().Through({{47.5, 8.1}})};
  CompileVTPLines(rig.Context());
  ASSERT_EQ(rig.dialogs.messages.size(), 1U);
  EXPECT_EQ(rig.dialogs.messages[0].kind, MessageKind::Info);
  EXPECT_NE(rig.dialogs.messages[0].text.find("nothing was compiled"), std::string::npos);
  EXPECT_TRUE(rig.tools.ran.empty());
  EXPECT_TRUE(rig.report.Written.empty());
  EXPECT_FALSE(std::filesystem::exists(rig.folders.Work()));
  EXPECT_FALSE(rig.report.Failed);
}

}  // namespace
}  // namespace landsmith::test
