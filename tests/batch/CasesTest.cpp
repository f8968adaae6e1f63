// Every case of tests/batch/cases, once with the plain locale and once with one that has a decimal comma.
#include "CaseFile.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/Tools.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <locale.h>
#include <nlohmann/json.hpp>
#include <sys/wait.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::test {

namespace {

struct CaseRun {
  BatchCase Case;
  std::string Locale;
};

/// What GoogleTest names a case by in its messages.
std::ostream& operator<<(std::ostream& out, const CaseRun& run) {
  return out << run.Case.File << ": " << run.Case.Claim << " (" << run.Locale << ")";
}

/// "C.UTF-8", and the German locale under whatever name the machine has it.
std::vector<std::string> Locales() {
  std::vector<std::string> names{"C.UTF-8"};
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"}) {
    const locale_t found = newlocale(LC_ALL_MASK, name, locale_t{});
    if (found == locale_t{}) continue;
    freelocale(found);
    names.emplace_back(name);
    break;
  }
  return names;
}

std::vector<CaseRun> AllRuns() {
  std::vector<CaseRun> runs;
  for (const std::string& locale : Locales())
    for (const BatchCase& batchCase : LoadCases(LANDSMITH_SOURCE_DIR "/tests/batch/cases"))
      runs.push_back({batchCase, locale});
  return runs;
}

std::string RunName(const testing::TestParamInfo<CaseRun>& run) {
  std::string name = run.param.Case.File + "_" + run.param.Case.Claim + "_" + run.param.Locale;
  for (char& c : name)
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
  return name;
}

std::string Joined(const std::vector<std::string>& lines, std::string_view end) {
  std::string text;
  for (const std::string& line : lines)
    text.append(line).append(end);
  return text;
}

std::string Unhex(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string_view word : SplitCommandLine(Joined(lines, " ")))
    bytes += static_cast<char>(std::stoi(std::string(word), nullptr, 16));
  return bytes;
}

void ExpectText(std::string_view what, const std::string& text, const std::vector<std::string>& patterns) {
  const auto lines = SplitLines(text);
  for (std::size_t i = 0; i < patterns.size(); ++i) {
    if (patterns[i] == "...") return;
    ASSERT_LT(i, lines.size()) << what << " ends before \"" << patterns[i] << "\":\n" << text;
    EXPECT_TRUE(FitsPattern(lines[i], patterns[i]))
        << what << " line " << i + 1 << ":\n  " << lines[i] << "\ndoes not fit\n  " << patterns[i];
  }
  EXPECT_EQ(lines.size(), patterns.size()) << what << " goes on:\n" << text;
}

/// Width and height in the header of a PNG file.
std::string PictureSize(const std::string& bytes) {
  const auto number = [&bytes](std::size_t at) {
    unsigned value = 0;
    for (std::size_t i = at; i < at + 4; ++i)
      value = value * 256 + static_cast<unsigned char>(bytes[i]);
    return std::to_string(value);
  };
  if (bytes.size() < 24 || bytes.substr(1, 3) != "PNG") return "no PNG";
  return number(16) + "x" + number(20);
}

struct BatchResult {
  int Exit = -1;
  std::string Out, Err;
};

std::string Quoted(const std::string& text) {
  return "'" + ReplaceAll(text, "'", "'\\''") + "'";
}

/// Runs the built program in `folder`/here; the user's data folder is `folder`/home.
BatchResult RunBatchProgram(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                            const std::string& input, const std::string& localeName) {
  WriteWholeFile(folder / "stdin", input);
  std::string command = "cd " + Quoted((folder / "here").string()) + " && LC_ALL=" + localeName +
                        " XDG_DATA_HOME=" + Quoted((folder / "home").string()) + " " +
                        Quoted(LANDSMITH_BINARY_DIR "/bin/landsmith-batch");
  for (const std::string& argument : arguments)
    command += " " + Quoted(argument);
  command += " <../stdin >../stdout 2>../stderr";
  const int status = std::system(command.c_str());  // NOLINT(cert-env33-c): the tests' own command
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadWholeFile(folder / "stdout"),
          ReadWholeFile(folder / "stderr")};
}

class Player {
public:
  explicit Player(std::string locale) : m_locale(std::move(locale)) {
    std::filesystem::create_directory(m_folder / "here");
  }

  void Play(const BatchCase& batchCase) {
    const auto& entries = batchCase.Entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      SCOPED_TRACE(batchCase.File + ".txt:" + std::to_string(entries[i].Line));
      if (entries[i].Word == "run")
        Run(entries, i);
      else
        Check(entries[i]);
      if (testing::Test::HasFatalFailure()) return;
    }
  }

private:
  std::filesystem::path Path(const std::string& name) const { return m_folder / "here" / name; }

  /// The entries behind `at`, up to the next run, say what to expect of it.
  void Run(const std::vector<CaseEntry>& entries, std::size_t at) {
    std::vector<std::string> arguments{"--app", "app"};
    for (std::string& piece : SplitCommandLine(entries[at].Rest))
      arguments.push_back(std::move(piece));
    std::string input;
    std::vector<std::string> out, err;
    bool json = false;
    int exit = 0;
    for (std::size_t i = at + 1; i < entries.size() && entries[i].Word != "run"; ++i) {
      const CaseEntry& entry = entries[i];
      if (entry.Word == "stdin") input = Joined(entry.Lines, "\n");
      if (entry.Word == "stdout") out = entry.Lines;
      if (entry.Word == "stderr") err = entry.Lines;
      if (entry.Word == "exit") exit = std::stoi(entry.Rest);
      if (entry.Word == "json") json = true;
    }
    const BatchResult result = RunBatchProgram(m_folder.Path(), arguments, input, m_locale);
    EXPECT_EQ(result.Exit, exit) << result.Err;
    ExpectText("standard error", result.Err, err);
    m_out = result.Out;
    if (!json) ExpectText("standard output", result.Out, out);
  }

  void Check(const CaseEntry& entry) {
    const auto words = SplitCommandLine(entry.Rest);
    if (entry.Word == "write") {
      std::filesystem::create_directories(Path(entry.Rest).parent_path());
      WriteWholeFile(Path(entry.Rest), Joined(entry.Lines, "\n"));
    } else if (entry.Word == "bytes") {
      WriteWholeFile(Path(entry.Rest), Unhex(entry.Lines));
    } else if (entry.Word == "json") {
      CheckJson(entry.Rest);
    } else if (entry.Word == "file") {
      EXPECT_EQ(ReadWholeFile(Path(entry.Rest)), Joined(entry.Lines, "\r\n"));
    } else if (entry.Word == "same" || entry.Word == "differ") {
      const bool same = ReadWholeFile(Path(words.at(0))) == ReadWholeFile(Path(words.at(1)));
      EXPECT_EQ(same, entry.Word == "same") << entry.Rest;
    } else if (entry.Word == "absent") {
      EXPECT_FALSE(std::filesystem::exists(Path(entry.Rest))) << entry.Rest;
    } else if (entry.Word == "picture") {
      EXPECT_EQ(PictureSize(ReadWholeFile(Path(words.at(0)))), words.at(1));
    }
  }

  void CheckJson(const std::string& rest) {
    const std::size_t blank = rest.find(' ');
    const auto document = nlohmann::json::parse(m_out, nullptr, false);
    ASSERT_FALSE(document.is_discarded()) << "no JSON:\n" << m_out;
    const nlohmann::json::json_pointer place(rest.substr(0, blank));
    ASSERT_TRUE(document.contains(place)) << "nothing at " << place.to_string() << " in\n" << m_out;
    EXPECT_EQ(document.at(place), nlohmann::json::parse(rest.substr(blank + 1)));
  }

  TempFolder m_folder;
  std::string m_locale;
  std::string m_out;
};

class Batch : public testing::TestWithParam<CaseRun> {};

TEST_P(Batch, DoesAsItSays) {
  Player(GetParam().Locale).Play(GetParam().Case);
}

INSTANTIATE_TEST_SUITE_P(Cases, Batch, testing::ValuesIn(AllRuns()), RunName);

}  // namespace

}  // namespace landsmith::test
