#include "core/Numbers.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace landsmith {
namespace {

TEST(NumberText, OfADoubleIsTheShortestWithFifteenDigits) {
  const struct {
    double value;
    const char* text;
  } rows[] = {
      {-0.0, "0"},
      {0.1 + 0.2, "0.3"},                        // 17 digits would show the error of the sum
      {1.0 / 3, "0.333333333333333"},            // 15 digits behind the point: plain
      {1.0 / 30, "3.33333333333333E-02"},        // 16 with the zero
      {0.000000000000001, "0.000000000000001"},  // 15 places
      {0.0000000000000001, "1E-16"},
      {1.5e-15, "1.5E-15"},
      {1234567890123456, "1.23456789012346E+15"},
      {1e15, "1E+15"},
      {999999999999999.9, "1E+15"},  // rounds up into one digit more
  };
  for (const auto& row : rows)
    EXPECT_EQ(NumberText(row.value), row.text);
}

TEST(NumberText, OfASingleIsTheShortestWithSevenDigits) {
  const struct {
    float value;
    const char* text;
  } rows[] = {
      {0.01464844f, "1.464844E-02"}, {1.0f / 3, "0.3333333"}, {1234567.0f, "1234567"},
      {12345678.0f, "1.234568E+07"}, {0.00000001f, "1E-08"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(NumberText(row.value), row.text);
}

TEST(FixedText, RoundsTheExactValueTiesToEven) {
  const struct {
    double value;
    int decimals;
    int digits;
    const char* text;
  } rows[] = {
      {0.125, 2, 1, "0.12"},  // exact ties
      {0.375, 2, 1, "0.38"},    {2.5, 0, 1, "2"},
      {1.005, 2, 1, "1.00"},     // the double lies just below
      {-0.0004, 3, 1, "0.000"},  // no "-0.000"
      {7, 0, 2, "07"},          {-5, 7, 2, "-05.0000000"},
      {123, 0, 2, "123"},       {1e20, 3, 1, "100000000000000000000.000"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(FixedText(row.value, row.decimals, row.digits), row.text);
}

TEST(ParseNumber, TakesWholeNumbersOfTextAlone) {
  const struct {
    const char* text;
    double value;
  } good[] = {{"40", 40},          {" -2.5\t", -2.5}, {"+7", 7},     {".5", 0.5}, {"5.", 5},
              {"1.5E+20", 1.5e20}, {"1e-3", 0.001},   {"1e-999", 0}, {"007", 7}};
  for (const auto& row : good) {
    ASSERT_TRUE(ParseNumber(row.text)) << row.text;
    EXPECT_EQ(*ParseNumber(row.text), row.value);
  }
  for (const char* text : {"", " ", ".", "-", "+-1", "1 2", "1,5", "1.2.3", "1e", "1e+", "e5", "inf", "nan",
                           "0x10", "12a", "1e999", "--1"})
    EXPECT_FALSE(ParseNumber(text)) << text;
  EXPECT_EQ(ParseNumber("1,5", true), 1.5);
  EXPECT_EQ(ParseNumber("1.5", true), 1.5);
  EXPECT_FALSE(ParseNumber("1.000,5", true));
}

TEST(ParseNumber, IntoATypeRoundsAndMustFit) {
  EXPECT_EQ(ParseInt16("2.5"), 2);
  EXPECT_EQ(ParseInt16("3.5"), 4);
  EXPECT_EQ(ParseInt16("32767.4"), 32767);
  EXPECT_FALSE(ParseInt16("32768"));
  EXPECT_EQ(ParseInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_FALSE(ParseInt32("2147483648"));
  EXPECT_EQ(ParseByte("255"), 255);
  EXPECT_FALSE(ParseByte("256"));
  EXPECT_FALSE(ParseByte("-1"));
  EXPECT_EQ(ParseFloat("0.1"), 0.1f);
  EXPECT_FALSE(ParseFloat("1e39"));
}

TEST(Rounding, GoesToEvenAndRefusesWhatDoesNotFit) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(2147483647.4), 2147483647);
  EXPECT_THROW(RoundHalfEven(2147483647.5), RuntimeError);
  EXPECT_THROW(RoundHalfEven(std::nan("")), RuntimeError);
  EXPECT_EQ(RoundToByte(254.5), 254);
  EXPECT_THROW(RoundToByte(255.5), RuntimeError);
  EXPECT_THROW(RoundToByte(-0.6), RuntimeError);
  EXPECT_EQ(Floor(-0.25), -1);
  EXPECT_THROW(Floor(-2147483648.5), RuntimeError);
  EXPECT_EQ(Mod(-33, 32), -1);
}

}  // namespace
}  // namespace landsmith
