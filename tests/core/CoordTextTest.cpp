#include "core/CoordText.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

constexpr CoordForm Dms = CoordForm::DegreesMinutesSeconds;
constexpr CoordForm Decimal = CoordForm::DecimalDegrees;

TEST(CoordText, ReadsEveryOrderOfSignAndPieces) {
  const double full = 40 + 30.0 / 60 + 30.33 / 3600;
  const struct {
    const char* text;
    double degrees;
  } lats[] = {
      {"N40 30 30,33", full},
      {"40:30 30,33 N", full},
      {"40 30 30.33n", full},
      {"40\u00B030'30.33''", full},
      {"  40   30  30.33  ", full},
      {"S40 30 30.33", -full},
      {"-40 30 30.33", -full},
      {"40 30 -30.33", -full},    // the sign may stand anywhere
      {"-40 30 30.33 S", -full},  // both together are one negative
      {"40      30", 40.5},       // 6 blanks collapse in two passes; 7 do not
      {"40,5", 40.5},
      {"0 0 0", 0},
  };
  for (const auto& row : lats)
    EXPECT_EQ(ParseLatText(row.text, Dms), row.degrees) << row.text;
  EXPECT_EQ(ParseLonText("E40 30 30.33", Dms), full);
  EXPECT_EQ(ParseLonText("40:30:30,33 w", Dms), -full);
}

TEST(CoordText, GivesTheFailureValueForAnythingElse) {
  for (const char* text : {"", "S", "40 30 30 30", "forty", "40 x", "E40", "40\"", "40       30"})
    EXPECT_EQ(ParseLatText(text, Dms), FailedLat) << text;
  for (const char* text : {"", "W", "N40", "1 2 3 4"})
    EXPECT_EQ(ParseLonText(text, Dms), FailedLon) << text;
  EXPECT_EQ(ParseLatText("40 30", Decimal), FailedLat);
  EXPECT_EQ(ParseLonText("10 W", Decimal), FailedLon);
}

TEST(CoordText, Prints) {
  EXPECT_EQ(FormatLatText(40.5083333, Dms), "40\u00B0 30' 29.9999'' N");
  EXPECT_EQ(FormatLatText(-5.25, Dms), "5\u00B0 15' 00.0000'' S");
  EXPECT_EQ(FormatLonText(-170, Dms), "170\u00B0 00' 00.0000'' W");
  EXPECT_EQ(FormatLonText(0, Dms), "0\u00B0 00' 00.0000'' E");
  EXPECT_EQ(FormatLatText(-4294967296.5, Dms), "4294967296\u00B0 30' 00.0000'' S");  // beyond 32 bits
  EXPECT_EQ(FormatLatText(40 + 30.0 / 60 + 59.99999 / 3600, Dms), "40\u00B0 30' 60.0000'' N");  // no carry
  EXPECT_EQ(FormatLonText(-9.25, Decimal), "-09.2500000");
  EXPECT_EQ(FormatLatText(40.50833334, Decimal), "40.5083333");
}

TEST(CoordText, ChecksRangesBordersIncluded) {
  EXPECT_TRUE(CheckLatLon("90", "-180", Decimal));
  EXPECT_TRUE(CheckLatLon("S90", "180 E", Dms));
  EXPECT_FALSE(CheckLatLon("90.0000001", "0", Decimal));
  EXPECT_FALSE(CheckLatLon("0", "-180.0000001", Decimal));
  EXPECT_FALSE(CheckLatLon("x", "0", Decimal));
  EXPECT_FALSE(CheckLatLon("0", "x", Decimal));
}

}  // namespace
}  // namespace landsmith
