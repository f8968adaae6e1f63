#include "CompileRig.h"
#include "compile/CompileStep.h"
#include "compile/StepTable.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace landsmith::test {
namespace {

constexpr const char* Name = "My_Project_VTPL";

CompileStepRequest Request() {
  CompileStepRequest request;
  request.BaseName = ProjectFileName("My Project") + "_VTPL";
  request.Source = "; Stra\u00dfe\r\n";
  return request;
}

class CompileStepRun : public testing::Test {
protected:
  std::filesystem::path Work(const std::string& extension) const {
    return rig.folders.Work() / (Name + extension);
  }
  std::filesystem::path Copied() const { return rig.folder / "out" / (std::string(Name) + ".BGL"); }
  void ToolWrites(const std::string& file) {
    rig.tools.answer = [this, file](const std::string&) {
      WriteWholeFile(rig.folders.Work() / file, "bgl");
      return 0;
    };
  }
  void OldOutput(const std::string& file) const {
    std::filesystem::create_directories(rig.folders.Work());
    WriteWholeFile(rig.folders.Work() / file, "old");
  }
  std::string OnlyMessage() const {
    return rig.dialogs.messages.size() == 1 ? rig.dialogs.messages.front().text : "(not one message)";
  }

  CompileRig rig;
};

TEST_F(CompileStepRun, WritesRunsAndCopies) {
  rig.options.CopyBGL = true;
  ToolWrites("my_project_vtpl.bgl");  // tools of other systems write names in their own case
  EXPECT_TRUE(CompileStep(rig.Context(), Request()));

  EXPECT_EQ(ReadWholeFile(Work(".scm")),
            "; Stra\xdf"
            "e\r\n");
  ASSERT_EQ(rig.tools.ran.size(), 1U);
  EXPECT_EQ(rig.tools.ran[0], "scasm work\\My_Project_VTPL.scm -s -l");
  EXPECT_EQ(rig.tools.folder, rig.folders.Tools());
  EXPECT_EQ(ReadWholeFile(Copied()), "bgl");
  const std::vector<std::filesystem::path> written{Work(".scm"), rig.folders.Work() / "my_project_vtpl.bgl",
                                                   Copied()};
  EXPECT_EQ(rig.report.Written, written);
  EXPECT_EQ(rig.report.LastSource, Work(".scm"));
  EXPECT_FALSE(rig.report.Failed);
}

TEST_F(CompileStepRun, TheOldOutputIsGoneBeforeTheToolStarts) {
  OldOutput("MY_PROJECT_VTPL.bgl");
  OldOutput(std::string(Name) + ".BGL");
  rig.tools.answer = [&](const std::string&) {
    EXPECT_FALSE(FindInFolder(rig.folders.Work(), std::string(Name) + ".BGL"));
    WriteWholeFile(Work(".BGL"), "bgl");
    return 0;
  };
  EXPECT_TRUE(CompileStep(rig.Context(), Request()));
  EXPECT_EQ(rig.report.Written, (std::vector{Work(".scm"), Work(".BGL")})) << "no copy unasked";
}

TEST_F(CompileStepRun, AFailureOffersTheReport) {
  const std::string question =
      "There was a compilation error in this project!\nDo you want to read a SCASM report?";
  rig.options.CopyBGL = true;
  rig.tools.answer = [this](const std::string&) {
    WriteWholeFile(Work(".BGL"), "half");
    return 3;
  };
  EXPECT_FALSE(CompileStep(rig.Context(), Request()));
  EXPECT_EQ(rig.dialogs.questions, std::vector{question});
  EXPECT_EQ(rig.tools.ran.size(), 1U) << "Cancel reads nothing";
  EXPECT_FALSE(std::filesystem::exists(Work(".BGL"))) << "half a file is no output";
  EXPECT_FALSE(std::filesystem::exists(Copied()));
  EXPECT_TRUE(rig.report.Failed);

  rig.dialogs.answers = {true};
  EXPECT_FALSE(CompileStep(rig.Context(), Request()));
  ASSERT_EQ(rig.tools.ran.size(), 3U);
  EXPECT_EQ(rig.tools.ran[2], "notepad SCAERROR.LOG");
  EXPECT_EQ(rig.tools.folder, rig.folders.Tools());
}

// A missing tool has been told already, a stop was the user's own.
TEST_F(CompileStepRun, AToolThatIsMissingOrStoppedLeavesNoOutputAndAsksNothing) {
  for (const int result : {ToolMissing, -1}) {
    rig.report = {};
    rig.tools.answer = [&](const std::string&) {
      if (result != ToolMissing) WriteWholeFile(Work(".BGL"), "half");
      return result;
    };
    EXPECT_FALSE(CompileStep(rig.Context(), Request()));
    EXPECT_FALSE(std::filesystem::exists(Work(".BGL")));
    EXPECT_TRUE(rig.dialogs.questions.empty());
    EXPECT_TRUE(rig.dialogs.messages.empty());
    EXPECT_TRUE(rig.report.Failed);
  }
}

TEST_F(CompileStepRun, SuccessWithoutAFileIsAnError) {
  EXPECT_FALSE(CompileStep(rig.Context(), Request()));
  EXPECT_EQ(OnlyMessage(), "SCASM reported success but made no file My_Project_VTPL.BGL!");
  EXPECT_EQ(rig.dialogs.messages[0].kind, MessageKind::Error);
  EXPECT_TRUE(rig.report.Failed);
}

TEST_F(CompileStepRun, AFailedCopyIsToldAndKeepsTheOutput) {
  rig.options.CopyBGL = true;
  ToolWrites(std::string(Name) + ".BGL");
  for (const std::string& folder :
       {std::string(), (rig.folder / "nowhere").string(), std::string("Q:\\no\\such\\folder")}) {
    rig.dialogs.messages.clear();
    rig.project.BGL1ProjectFolder = folder;
    EXPECT_FALSE(CompileStep(rig.Context(), Request()));
    EXPECT_EQ(OnlyMessage(), "Copying BGL files failed! Please exit FS2004!") << folder;
    EXPECT_TRUE(std::filesystem::exists(Work(".BGL")));
  }
}

TEST_F(CompileStepRun, AProjectNameCannotLeadOutOfTheWorkFolder) {
  for (const char* name : {"../out/x", "..\\x", "C:x", "a\"b", "a|b", "a\nb"}) {
    CompileStepRequest request = Request();
    request.BaseName = name;
    EXPECT_THROW(CompileStep(rig.Context(), request), RuntimeError) << name;
  }
  EXPECT_TRUE(rig.report.Written.empty());
}

// ---- tables of steps

std::vector<std::string>& Ran() {
  static std::vector<std::string> names;
  return names;
}

const StepTable Steps{
    {"first", "ckFirst", "fr", "First", nullptr, true, false,
     [](const CompileContext&) { Ran().push_back("first"); }},
    {"bad", "ckBad", "fr", "Bad", nullptr, true, false,
     [](const CompileContext&) { throw RuntimeError("the disk is full"); }},
    {"later", "ckLater", "fr", "Later", nullptr, true, false, nullptr},
    {"last", "ckLast", "fr", "Last", nullptr, true, false,
     [](const CompileContext&) { Ran().push_back("last"); }},
};

TEST(RunSteps, RunsInTableOrderAndGoesOnAfterAFailure) {
  Ran().clear();
  CompileRig rig;
  std::vector<std::string> started;
  RunSteps(Steps, {"last", "later", "bad", "first", "unknown"}, rig.Context(),
           [&](const StepInfo& step) { started.emplace_back(step.Name); });
  EXPECT_EQ(Ran(), (std::vector<std::string>{"first", "last"}));
  EXPECT_EQ(started, (std::vector<std::string>{"first", "bad", "last"}));
  ASSERT_EQ(rig.dialogs.messages.size(), 1U);
  EXPECT_EQ(rig.dialogs.messages[0].text, "the disk is full");
  EXPECT_EQ(rig.dialogs.messages[0].kind, MessageKind::Error);
  EXPECT_TRUE(rig.report.Failed);
}

}  // namespace
}  // namespace landsmith::test
