// Cases of the batch program as text, so that a case is a few lines to read and none to compile.
//
//   case    a claim
//   write   FILE            makes a text file of the "|" lines that follow
//   bytes   FILE            makes a file of the hexadecimal bytes that follow
//   run     ARGUMENTS       runs landsmith-batch with --app app in front; what follows is about this run
//   stdin, stdout, stderr   "|" lines; "*" stands for any text, a line "..." for any further lines;
//                           without the word nothing may be printed
//   exit    STATUS          0 without the word
//   json    POINTER VALUE   a place in the JSON on standard output; takes the place of stdout
//   file    FILE            the content, "|" lines with CR LF behind each
//   same    FILE FILE       equal to the byte
//   differ  FILE FILE       not so
//   absent  FILE            does not exist
//   picture FILE WxH        a PNG of that size
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace landsmith::test {

/// One word with what stands behind it and the "|" lines below it.
struct CaseEntry {
  std::string Word;
  std::string Rest;
  std::vector<std::string> Lines;
  int Line = 0;  ///< in the file
};

struct BatchCase {
  std::string Claim;
  std::string File;  ///< for messages, without folder and extension
  std::vector<CaseEntry> Entries;
};

/// Every case of the folder's .txt files, files in alphabetical order. Throws std::runtime_error for a line
/// that is none of the above.
std::vector<BatchCase> LoadCases(const std::filesystem::path& folder);

/// "*" in `pattern` stands for any text.
bool FitsPattern(std::string_view text, std::string_view pattern);

}  // namespace landsmith::test
