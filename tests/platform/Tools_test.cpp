#include "platform/Tools.h"

#include "platform/Paths.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace landsmith {

using test::ScriptedDialogs;
using test::TempFolder;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;

void WriteScript(const fs::path& file, const std::string& body) {
  WriteWholeFile(file, "#!/bin/sh\n" + body + "\n");
  chmod(file.c_str(), 0755);
}

/// PATH for one test, put back afterwards.
class SearchPath {
public:
  explicit SearchPath(const std::string& path) : m_before(getenv("PATH")) { setenv("PATH", path.c_str(), 1); }
  ~SearchPath() { setenv("PATH", m_before.c_str(), 1); }
  SearchPath(const SearchPath&) = delete;
  SearchPath& operator=(const SearchPath&) = delete;

private:
  std::string m_before;
};

TEST(SplitCommandLine, PartsAtBlanksOutsideOfQuotes) {
  EXPECT_THAT(SplitCommandLine("  scasm  work\\X.scm\t-s "), ElementsAre("scasm", "work\\X.scm", "-s"));
  EXPECT_THAT(SplitCommandLine("a \"b c\"d \"\""), ElementsAre("a", "b cd", ""));
  EXPECT_THAT(SplitCommandLine("a \"open end"), ElementsAre("a", "open end"));
  EXPECT_THAT(SplitCommandLine("   "), ElementsAre());
}

class Tools : public testing::Test {
protected:
  Tools() {
    for (const char* folder : {"tools/work", "standins", "bin"})
      fs::create_directories(m_root / folder);
  }
  fs::path ToolsFolder() const { return m_root / "tools"; }
  fs::path StandIns() const { return m_root / "standins"; }
  auto Resolve(const char* commandLine) { return ResolveTool(commandLine, ToolsFolder(), StandIns()); }

  int Run(const char* commandLine) {
    NoProgress progress;
    return m_runner.RunAndWait(commandLine, ToolsFolder(), progress);
  }
  std::string Content(const char* file) { return ReadWholeFile(m_root / file); }
  bool Exists(const char* file) { return fs::exists(m_root / file); }
  /// Programs that nobody waits for have four seconds.
  bool Appears(const char* file) {
    for (int i = 0; i < 200 && !Exists(file); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return Exists(file);
  }

  TempFolder m_root;
  ScriptedDialogs m_dialogs;
  SystemToolRunner m_runner{m_root / "tools", m_root / "standins", m_dialogs,
                            [](std::string_view bytes) { return "decoded " + std::string(bytes); }};
};

TEST_F(Tools, TheWindowsProgramNeedsWineAndGoesBeforeTheStandIn) {
  WriteWholeFile(ToolsFolder() / "SCASM.EXE", "MZ");
  WriteScript(StandIns() / "scasm", "exit 0");
  {
    const SearchPath without((m_root / "bin").string());
    const auto command = Resolve("scasm work\\X.scm -s");
    ASSERT_TRUE(command.has_value());
    EXPECT_THAT(command->Arguments, ElementsAre((StandIns() / "scasm").string(), "work/X.scm", "-s"));
    EXPECT_TRUE(command->Environment.empty());
  }
  WriteScript(m_root / "bin/wine", "exit 0");
  const SearchPath with("/nowhere::" + (m_root / "bin").string());
  const auto command = Resolve("scasm.exe work\\X.scm -s");
  ASSERT_TRUE(command.has_value());
  EXPECT_THAT(command->Arguments, ElementsAre((m_root / "bin/wine").string(),
                                              (ToolsFolder() / "SCASM.EXE").string(), "work\\X.scm", "-s"));
  EXPECT_THAT(command->Environment,
              ElementsAre("WINEDEBUG=-all", "WINEDLLOVERRIDES=mscoree,mshtml=;winedbg.exe=d"));
}

TEST_F(Tools, AProgramWithAFolderIsLookedUpThere) {
  WriteScript(m_root / "bin/wine", "exit 0");
  WriteWholeFile(m_root / "bin/FS9.exe", "MZ");
  const SearchPath path((m_root / "bin").string());
  const auto command = Resolve(("\"" + (m_root / "bin").string() + "\\fs9.exe\"").c_str());
  ASSERT_TRUE(command.has_value());
  EXPECT_EQ(command->Arguments.back(), (m_root / "bin/FS9.exe").string());
  EXPECT_FALSE(Resolve("none\\fs9.exe").has_value());
}

TEST_F(Tools, AToolThatIsMissingOrCannotBeStartedIsToldByName) {
  WriteWholeFile(StandIns() / "scasm", "no program");
  EXPECT_EQ(Run("scasm x"), ToolMissing);
  EXPECT_EQ(Run("resample0 work\\X.inf"), ToolMissing);
  EXPECT_FALSE(m_runner.Start("polyview.exe x.bmp", ToolsFolder()));
  ASSERT_EQ(m_dialogs.messages.size(), 3U);
  EXPECT_THAT(m_dialogs.messages[0].text, HasSubstr("scasm"));
  EXPECT_THAT(m_dialogs.messages[1].text, HasSubstr("resample0"));
  EXPECT_EQ(m_dialogs.messages[1].kind, MessageKind::Error);
}

TEST_F(Tools, AToolRunsInItsFolderWithItsArgumentsAndALog) {
  WriteScript(StandIns() / "scasm", "echo \"$1\" here; echo there >&2; pwd > work/where; exit 7");
  EXPECT_EQ(Run("scasm \"work\\My X.scm\""), 7);
  EXPECT_EQ(Content("tools/work/scasm.log"), "work/My X.scm here\nthere\n");
  EXPECT_EQ(Content("tools/work/where"), fs::canonical(ToolsFolder()).string() + "\n");
  WriteScript(StandIns() / "scasm", "kill -9 $$");
  EXPECT_GT(Run("scasm x"), 0);
  EXPECT_TRUE(m_dialogs.messages.empty());
}

TEST_F(Tools, AStopEndsTheToolAndWhatItStarted) {
  struct StopAtOnce final : Progress {
    bool Step(double, std::string_view) override { return true; }
    bool Wait() override {
      ++waits;
      return waits < 10;
    }
    int waits = 0;
  } progress;
  WriteScript(StandIns() / "resample0", "(sleep 1; echo late > work/late) & sleep 30");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(m_runner.RunAndWait("resample0", ToolsFolder(), progress), -1);
  EXPECT_EQ(progress.waits, 10);
  std::this_thread::sleep_until(begin + std::chrono::milliseconds(1500));
  EXPECT_FALSE(Exists("tools/work/late"));
}

TEST_F(Tools, NotepadShowsTheReportDecoded) {
  WriteWholeFile(ToolsFolder() / "ScaError.log", "bad");
  EXPECT_EQ(Run("notepad SCAERROR.LOG"), 0);
  ASSERT_EQ(m_dialogs.shown.size(), 1U);
  EXPECT_EQ(m_dialogs.shown[0], (std::pair<std::string, std::string>("SCAERROR.LOG", "decoded bad")));
  EXPECT_GT(Run("notepad none.txt"), 0);
  EXPECT_EQ(m_dialogs.messages.size(), 1U);
}

TEST_F(Tools, ABatchFileRunsLineByLine) {
  WriteScript(StandIns() / "tmf2bgl", "echo \"$@\" >> work/calls; exit 3");
  WriteWholeFile(ToolsFolder() / "work/A.tmf", "a");
  WriteWholeFile(ToolsFolder() / "TEMP.bat",
                 "@tmf2bgl work\\A.cmf work\\A.bgl\r\n\r\ncopy work\\a.tmf work\\B.tmf\r\n"
                 "DEL work\\a.TMF\r\ndel work\\none.tmf\r\ntmf2bgl again");
  EXPECT_EQ(Run("temp.bat"), 3);
  EXPECT_EQ(Content("tools/work/calls"), "work/A.cmf work/A.bgl\nagain\n");
  EXPECT_EQ(Content("tools/work/B.tmf"), "a");
  EXPECT_FALSE(Exists("tools/work/A.tmf"));
}

TEST_F(Tools, ABatchFileEndsAtAMissingToolAndSaysItOnce) {
  WriteWholeFile(ToolsFolder() / "temp.bat", "tmfcompress a\r\ntmfcompress b\r\n");
  EXPECT_EQ(Run("temp.bat"), ToolMissing);
  EXPECT_EQ(m_dialogs.messages.size(), 1U);
}

TEST_F(Tools, AStartedProgramIsNotWaitedFor) {
  WriteScript(StandIns() / "fs9", "sleep 0.3; echo done > work/done");
  EXPECT_TRUE(m_runner.Start("fs9.exe", ToolsFolder()));
  EXPECT_FALSE(Exists("tools/work/done"));
  EXPECT_TRUE(Appears("tools/work/done"));
}

TEST_F(Tools, ADocumentGoesToTheSystemsOpener) {
  const SearchPath path((m_root / "bin").string() + ":/usr/bin:/bin");
  const std::string opened = (m_root / "opened").string();
  WriteScript(m_root / "bin/xdg-open", "echo \"$1\" > " + opened + ".new && mv " + opened + ".new " + opened);
  m_runner.OpenDocument("http://example.org/a b");
  ASSERT_TRUE(Appears("opened"));
  EXPECT_EQ(Content("opened"), "http://example.org/a b\n");
}

}  // namespace

}  // namespace landsmith
