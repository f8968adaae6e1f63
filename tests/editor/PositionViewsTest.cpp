// One position in four ways: the numbers of each, what comes back from them, what is refused.
#include "core/Grid.h"
#include "editor/PositionViews.h"

#include <gtest/gtest.h>

#include <functional>

namespace landsmith::test {
namespace {

constexpr CoordForm Form = CoordForm::DegreesMinutesSeconds;
/// Cell 401 120, Area 19 28, Point 51 113: x = 188.25 and y = 42.5 degrees from the corner of the world.
constexpr LatLon Place{47.5, 8.25};

TEST(PositionViews, ShowAPositionInAllSystems) {
  const PositionTexts texts = TextsOf(Place, Form);
  EXPECT_EQ(texts.Lat, "47° 30' 00.0000'' N");
  EXPECT_EQ(texts.Lon, "8° 15' 00.0000'' E");
  EXPECT_EQ(texts.CX + " " + texts.CY + " " + texts.AX + " " + texts.AY, "401 120 19 28");
  EXPECT_EQ(texts.PtAX + " " + texts.PtAY, "51 113");
  EXPECT_EQ(texts.PtCX + " " + texts.PtCY, "8976 11333") << "(19 + 16) * 255 + 51, (28 + 16) * 255 + 113";
}

TEST(PositionViews, EachSystemLeadsBackToItsPoint) {
  const PositionTexts texts = TextsOf(Place, Form);
  // 120 Cells, 28 Areas and 113 steps south of the pole: 42.4999856388
  for (const ReadPosition& read : {ReadAreaPoint(texts), ReadCellPoint(texts)}) {
    EXPECT_EQ(read.Refusal, "");
    EXPECT_NEAR(read.At.lat, 47.5000143612, 1e-9);
    EXPECT_NEAR(read.At.lon, 8.25, 1e-9);
  }
  // On borders the Point stays in its own Area.
  for (const char* point : {"0", "255"}) {
    PositionTexts border = texts;
    border.PtAX = border.PtAY = point;
    const PositionTexts again = TextsOf(ReadAreaPoint(border).At, Form);
    EXPECT_EQ(again.AX + again.AY + again.PtAX + again.PtAY, std::string("1928") + point + point);
  }
}

TEST(PositionViews, RefuseWhatIsOutOfRangeOrNoNumber) {
  struct Row {
    std::string PositionTexts::*box;
    const char* text;
    const char* area;  ///< refusals of Point in Area and of Point in Cell
    const char* cell;
  };
  using P = PositionTexts;
  const Row rows[] = {
      {&P::CX, "768", "Cell X is outside 0 and 767!", "Cell X is outside 0 and 767!"},
      {&P::CY, "-1", "Cell Y is outside 0 and 511!", "Cell Y is outside 0 and 511!"},
      {&P::CY, "one", "Invalid value(s) in Cell/Area block!", "Invalid value(s) in Cell/Area block!"},
      {&P::AX, "32", "Area X is outside 0 and 31!", ""},
      {&P::AY, "32", "Area Y is outside 0 and 31!", ""},
      {&P::AY, "", "Invalid value(s) in Cell/Area block!", ""},
      {&P::PtAX, "256", "Area Point X is outside 0 and 255!", ""},
      {&P::PtAY, "-1", "Area Point Y is outside 0 and 255!", ""},
      {&P::PtAY, "9x", "Invalid value(s) in Point in Area block!", ""},
      {&P::PtCX, "4079", "", "Cell Point X is outside 4080 and 12240!"},
      {&P::PtCY, "12241", "", "Cell Point Y is outside 4080 and 12240!"},
      {&P::PtCX, "", "", "Invalid value(s) in Point in Cell block!"},
  };
  for (const Row& row : rows) {
    PositionTexts texts = TextsOf(Place, Form);
    texts.*row.box = row.text;
    EXPECT_EQ(ReadAreaPoint(texts).Refusal, row.area) << row.text;
    EXPECT_EQ(ReadCellPoint(texts).Refusal, row.cell) << row.text;
  }
  for (const char* lat : {"91", "north"}) {
    PositionTexts texts = TextsOf(Place, Form);
    texts.Lat = lat;
    EXPECT_EQ(ReadLatLon(texts, Place, Form).Refusal, "Check Latitude and longitude!") << lat;
  }
}

TEST(PositionViews, TakeTheSystemThatWasEdited) {
  const LatLon exact{47.500000001, 8.250000001};
  struct Row {
    const char* name;
    std::function<void(PositionTexts&)> edit;
    LatLon expected;
  };
  const auto at = [](int pointX) { return PointInAreaToLatLon({pointX, 113, 19, 28, 401, 120}); };
  const Row rows[] = {
      {"nothing: the text is less exact", [](PositionTexts&) {}, exact},
      {"latitude", [](PositionTexts& t) { t.Lat = "40 30"; }, {40.5, exact.lon}},
      {"Area point", [](PositionTexts& t) { t.PtAX = "52"; }, at(52)},
      {"Cell point", [](PositionTexts& t) { t.PtCX = "8978"; }, at(53)},
      {"Cell alone", [](PositionTexts& t) { t.CX = "402"; }, {at(51).lat, at(51).lon + 0.46875}},
  };
  for (const Row& row : rows) {
    PositionTexts texts = TextsOf(exact, Form);
    row.edit(texts);
    const ReadPosition read = ReadEdited(texts, exact, Form);
    EXPECT_NEAR(read.At.lat, row.expected.lat, 1e-12) << row.name;
    EXPECT_NEAR(read.At.lon, row.expected.lon, 1e-12) << row.name;
  }
}

}  // namespace
}  // namespace landsmith::test
