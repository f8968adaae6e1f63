#include "core/ProjectFile.h"
#include "editor/Recovery.h"
#include "platform/Paths.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <chrono>
#include <csignal>
#include <cstdlib>

namespace landsmith {
namespace {

class Recovery : public testing::Test {
protected:
  ProjectState Changed(const std::string& name, const std::string& file = {}) const {
    ProjectState project;
    project.Name = name;
    project.ProjectFile = file;
    project.Maps.emplace_back().Name = "MAP01";
    return project;
  }
  std::filesystem::path Folder() const { return m_temp / "app/recovery"; }
  std::string NameLeft() const {
    const auto left = RecoverySlot::TakeLeft(Folder());
    return left ? left->Copy()->Name : "";
  }
  test::TempFolder m_temp;
};

TEST_F(Recovery, ACopyIsLeftWhenItsProgramIsGoneAndNotBefore) {
  auto slot = RecoverySlot::TakeEmpty(Folder());
  ASSERT_TRUE(slot);
  EXPECT_EQ(NameLeft(), "");
  slot->Write(Changed("Harbour", "/home/ann/Harbour.LSP"), m_temp / "app");
  EXPECT_EQ(NameLeft(), "") << "its program runs";
  slot.reset();

  const auto left = RecoverySlot::TakeLeft(Folder());
  ASSERT_TRUE(left);
  EXPECT_EQ(NameLeft(), "") << "another program that starts now must not offer it too";
  const RecoveryCopy copy = left->Copy().value();
  EXPECT_EQ(copy.Name, "Harbour");
  EXPECT_EQ(copy.ProjectFile, "/home/ann/Harbour.LSP");
  const ProjectState kept = ReadProject(ReadWholeFile(copy.File), "");
  EXPECT_EQ(kept.Maps.front().Name, "MAP01");
  left->SetAside();
  EXPECT_FALSE(left->Copy());
  EXPECT_FALSE(RecoverySlot::TakeLeft(Folder())) << "it is not offered again";
  EXPECT_EQ(ReadProject(ReadWholeFile(Folder() / "declined.LSP"), "").Name, "Harbour");
}

TEST_F(Recovery, ProgramsHaveSlotsOfTheirOwn) {
  auto first = RecoverySlot::TakeEmpty(Folder());
  auto second = RecoverySlot::TakeEmpty(Folder());
  first->Write(Changed("First"), m_temp / "app");
  second->Write(Changed("Second"), m_temp / "app");
  second.reset();
  EXPECT_EQ(NameLeft(), "Second");
  const auto third = RecoverySlot::TakeEmpty(Folder());
  third->Write(Changed("Third"), m_temp / "app");
  EXPECT_EQ(NameLeft(), "Second") << "a slot with a copy is not written over";
  EXPECT_EQ(first->Copy()->Name, "First");
}

TEST_F(Recovery, WithoutAFolderNothingIsLeftAndNothingIsMade) {
  EXPECT_FALSE(RecoverySlot::TakeLeft(Folder()));
  EXPECT_FALSE(std::filesystem::exists(Folder()));
  WriteWholeFile(m_temp / "flat", "a file in the way");
  EXPECT_FALSE(RecoverySlot::TakeEmpty(m_temp / "flat"));
}

#ifndef _WIN32

TEST_F(Recovery, AKilledProgramLeavesItsCopy) {
  const pid_t child = fork();
  if (child == 0) {
    const auto slot = RecoverySlot::TakeEmpty(Folder());
    slot->Write(Changed("Killed"), m_temp / "app");
    std::raise(SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(NameLeft(), "Killed");
}

TEST_F(Recovery, TheQuestionNamesTheProjectAndTheTime) {
  setenv("TZ", "UTC0", 1);
  tzset();
  const std::chrono::sys_seconds written{std::chrono::sys_days{std::chrono::January / 31 / 2026} +
                                         std::chrono::hours(23) + std::chrono::minutes(5)};
  RecoveryCopy copy{"copy1.LSP", "Madeira", "/maps/Madeira.LSP", std::chrono::file_clock::from_sys(written)};
  std::string question = RecoveryQuestion(copy);
  for (const char* part : {"Madeira\n", "/maps/Madeira.LSP", "2026-01-31 23:05"})
    EXPECT_NE(question.find(part), std::string::npos) << part << " in " << question;
  unsetenv("TZ");
  tzset();
}

#endif

}  // namespace
}  // namespace landsmith
