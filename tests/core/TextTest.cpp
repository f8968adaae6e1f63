#include "core/Text.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(Windows1252, KeepsEveryByteThereAndBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    all += static_cast<char>(byte);
  EXPECT_EQ(ToWindows1252(FromWindows1252(all)), all);
}

TEST(Windows1252, NamesItsCharacters) {
  EXPECT_EQ(FromWindows1252("\x80 40\xB0 \xC5ngstr\xF6m\x97\x81"),
            "\u20AC 40\u00B0 \u00C5ngstr\u00F6m\u2014\u0081");
  EXPECT_EQ(ToWindows1252("\u0152uvre \u017D\u2122"), "\x8Cuvre \x8E\x99");
}

TEST(Windows1252, PutsAQuestionMarkForWhatItLacks) {
  const struct {
    const char* utf8;
    const char* bytes;
  } rows[] = {
      {"\u0416", "?"},           // Cyrillic
      {"\U0001F600x", "?x"},     // four bytes are one character
      {"\u0080", "?"},           // a control character that is none of the five
      {"a\xFF\xFE z", "a?? z"},  // never UTF-8
      {"\xC3", "?"},             // cut off
      {"\xC0\xAF", "??"},        // overlong
      {"\xED\xA0\x80", "???"},   // half of a surrogate pair
      {"\xE2\x82x", "??x"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ToWindows1252(row.utf8), row.bytes);
}

TEST(Text, ChangesCase) {
  EXPECT_EQ(ToLower("ABC \u00C4"), "abc \u00C4");
  EXPECT_EQ(ToUpper("z\u00FCrich \u00FF \u0161\u0153\u017E \u00F7\u00DF"),
            "Z\u00DCRICH \u0178 \u0160\u0152\u017D \u00F7\u00DF");
  EXPECT_EQ(ToUpper("a\xFF"), "A\xFF");
  EXPECT_TRUE(EqualsIgnoringCase("Main", "mAIN"));
  EXPECT_FALSE(EqualsIgnoringCase("Main", "Mai"));
}

TEST(Text, CutsAndReplaces) {
  EXPECT_EQ(Trim(" \t a b\r\n"), "a b");
  EXPECT_EQ(Trim(" \r\n"), "");
  EXPECT_EQ(ReplaceAll("aaaa", "aa", "a"), "aa");  // one pass
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(SplitLines("a\r\n\r\nb\nc"), (std::vector<std::string_view>{"a", "", "b", "c"}));
  EXPECT_EQ(SplitLines("a\r\n"), (std::vector<std::string_view>{"a"}));
  EXPECT_EQ(SplitLines("\n\ra\rb\r\r\nc\r"), (std::vector<std::string_view>{"", "", "a", "b", "", "c"}));
  EXPECT_TRUE(SplitLines("").empty());
}

}  // namespace
}  // namespace landsmith
