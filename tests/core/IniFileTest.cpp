#include "core/IniFile.h"
#include "platform/Paths.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(IniText, FindsKeysInTheirSection) {
  const std::string text =
      "[Main]\r\nDefLC=11\r\nempty=\r\n[photo]\r\nPhotoCall=LayerCall( :lcall 4 )\r\nDefLC=12\r\n"
      "Name=a[1]\r\nLost=1\r\n[Main]\r\nSecond=2\n";
  const struct {
    const char* section;
    const char* key;
    const char* value;
  } rows[] = {
      {"main", "DEFLC", "11"}, {"Photo", "DefLC", "12"}, {"Main", "empty", ""},
      {"Main", "absent", ""},  {"None", "DefLC", ""},    {"Photo", "PhotoCall", "LayerCall( :lcall 4 )"},
      {"Photo", "Lost", ""},    // a bracket anywhere ends the section
      {"Main", "Second", "2"},  // a section may come again
      {"Main", "Def", ""},      // part of a key is no key
  };
  for (const auto& row : rows)
    EXPECT_EQ(FindIniKey(text, row.section, row.key), row.value) << row.section << " " << row.key;
}

TEST(IniText, PutsKeysWhereTheyBelong) {
  const struct {
    const char* name;
    const char* before;
    const char* section;
    const char* key;
    const char* after;
  } rows[] = {
      {"empty file", "", "Main", "A", "[Main]\r\nA=v\r\n"},
      {"new section last", "[X]\r\nB=1\r\n", "Main", "A", "[X]\r\nB=1\r\n\r\n[Main]\r\nA=v\r\n"},
      {"new key first", "[Main]\r\nB=1\r\n[X]\r\nA=0\r\n", "Main", "A",
       "[Main]\r\nA=v\r\nB=1\r\n[X]\r\nA=0\r\n"},
      {"section without keys", "[Main]\r\n\r\n[X]\r\nB=1\r\n", "main", "A",
       "[Main]\r\nA=v\r\n\r\n[X]\r\nB=1\r\n"},
      {"replaced in place", "[Main]\r\nB=1\r\na=old\r\nC=2\r\n", "Main", "A",
       "[Main]\r\nB=1\r\nA=v\r\nC=2\r\n"},
      {"last line without its end", "[Main]\r\nA=old", "Main", "A", "[Main]\r\nA=v\r\n"},
      {"empty lines collapse", "\r\n\r\n[Main]\r\nA=1\r\n\r\n\r\n\r\n[X]\r\n\t\r\n", "Main", "A",
       "[Main]\r\nA=v\r\n\r\n[X]\r\n"},
      {"line feeds alone", "[Main]\nA=1\nB=2\n", "Main", "A", "[Main]\r\nA=v\r\nB=2\r\n"},
      {"a key behind a bracket", "[Main]\r\nB=x[1]\r\nA=1\r\n", "Main", "A",
       "[Main]\r\nA=v\r\nB=x[1]\r\nA=1\r\n"},  // the reader would not see the old one
  };
  for (const auto& row : rows) {
    const std::string after = WithIniKey(row.before, row.section, row.key, "v");
    EXPECT_EQ(after, row.after) << row.name;
    EXPECT_EQ(FindIniKey(after, row.section, row.key), "v") << row.name;
  }
}

TEST(IniFile, IsMadeWhenMissingAndKeepsItsCodePage) {
  const test::TempFolder temp;
  const auto file = temp / "Landsmith.ini";
  EXPECT_EQ(ReadIniKey(file, "Main", "A"), "");
  EXPECT_EQ(ReadWholeFile(file), "");
  WriteIniKey(file, "Main", "A", "caf\u00E9 \u20AC");
  EXPECT_EQ(ReadWholeFile(file), "[Main]\r\nA=caf\xE9 \x80\r\n");
  EXPECT_EQ(ReadIniKey(file, "Main", "A"), "caf\u00E9 \u20AC");
}

TEST(IniFile, ReadsASectionInFileOrderUpToThirty) {
  const test::TempFolder temp;
  const auto file = temp / "X.ini";
  std::string text = "[Other]\r\nz=0\r\n[List]\r\nb=1=2\r\nno key\r\na=C:\\maps[2]\\x\r\n";
  WriteWholeFile(file, text + "[End]\r\nc=3\r\n");
  EXPECT_EQ(ReadIniSection(file, "list"),
            (std::vector<std::pair<std::string, std::string>>{{"b", "1=2"}, {"a", "C:\\maps[2]\\x"}}));
  for (int i = 0; i < 40; ++i)
    text += "k=v\r\n";
  WriteWholeFile(file, text);
  EXPECT_EQ(ReadIniSection(file, "List").size(), 30u);
  EXPECT_TRUE(ReadIniSection(file, "None").empty());
}

}  // namespace
}  // namespace landsmith
