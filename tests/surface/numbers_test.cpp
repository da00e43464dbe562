// The conversions between numbers and texts.
#include "surface/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/errors.h"

using namespace surface;

namespace {

// The system's decimal separator, as long as this lives.
class DecimalSeparator {
 public:
  explicit DecimalSeparator(char separator) : former_(decimalSeparator()) {
    setDecimalSeparator(separator);
  }
  ~DecimalSeparator() { setDecimalSeparator(former_); }
  DecimalSeparator(const DecimalSeparator&) = delete;
  DecimalSeparator& operator=(const DecimalSeparator&) = delete;

 private:
  char former_;
};

}  // namespace

TEST(Numbers, AHalfGoesToTheEvenNeighbour) {
  const struct {
    double value;
    int rounded;
  } cases[] = {{0.5, 0},   {1.5, 2},  {2.5, 2},  {3.5, 4},    {-0.5, 0},    {-1.5, -2},
               {-2.5, -2}, {0.49, 0}, {0.51, 1}, {-0.51, -1}, {126.5, 126}, {127.5, 128}};
  for (const auto& c : cases) {
    EXPECT_EQ(roundEven(c.value), c.rounded) << c.value;
    EXPECT_EQ(toInt16(c.value), c.rounded) << c.value;
    EXPECT_EQ(toInt32(c.value), c.rounded) << c.value;
  }
}

TEST(Numbers, IntGoesDownAlsoBelowZero) {
  EXPECT_EQ(Int(6.99), 6);
  EXPECT_EQ(Int(-0.01), -1);
  EXPECT_EQ(Int(-7.0), -7);
}

TEST(Numbers, SixteenBitsOverflowJustBeyondTheirRange) {
  EXPECT_EQ(toInt16(32767.49), 32767);
  EXPECT_EQ(toInt16(-32768.5), -32768);  // the tie goes to the even end
  EXPECT_ERROR(Overflow, toInt16(32767.5));
  EXPECT_ERROR(Overflow, toInt16(-32768.51));
  EXPECT_ERROR(Overflow, toInt16(1e30));
}

TEST(Numbers, ThirtyTwoBitsOverflowJustBeyondTheirRange) {
  EXPECT_EQ(toInt32(2147483647.0), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(toInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
  EXPECT_ERROR(Overflow, toInt32(2147483648.0));
  EXPECT_ERROR(Overflow, toInt32(-2147483649.0));
}

TEST(Numbers, WhatIsNoNumberOverflows) {
  EXPECT_ERROR(Overflow, toInt16(std::nan("")));
  EXPECT_ERROR(Overflow, toInt32(std::nan("")));
  EXPECT_ERROR(Overflow, toInt32(std::numeric_limits<double>::infinity()));
}

TEST(Numbers, ValReadsTheNumberAtTheStartOfAText) {
  EXPECT_EQ(Val("12"), 12);
  EXPECT_EQ(Val("  12.5 cm"), 12.5);
  EXPECT_EQ(Val("+3"), 3);
  EXPECT_EQ(Val("-3abc"), -3);
  EXPECT_EQ(Val("1.5.7"), 1.5);
}

TEST(Numbers, ValOfATextWithoutANumberIsZero) {
  for (const char* text : {"", "   ", "abc", "+-5", "-", ".", "inf", "nan", "1e-999"})
    EXPECT_EQ(Val(text), 0) << text;
}

TEST(Numbers, ValOfANumberBeyondAllRangeIsTheLargestThereIs) {
  constexpr double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(Val("1e999"), largest);
  EXPECT_EQ(Val(std::string(400, '9') + " cm"), largest);
  EXPECT_EQ(Val("-" + std::string(400, '9')), -largest);
}

TEST(Numbers, ValKnowsOnlyThePointWhateverTheSystemSays) {
  const DecimalSeparator comma(',');
  EXPECT_EQ(Val("1,5"), 1);
  EXPECT_EQ(Val("1.5"), 1.5);
}

TEST(Numbers, ATextShowsNoMoreDigitsThanASingleHolds) {
  EXPECT_EQ(toText(0.f), "0");
  EXPECT_EQ(toText(-0.f), "0");
  EXPECT_EQ(toText(12.f), "12");
  EXPECT_EQ(toText(-12.5f), "-12.5");
  EXPECT_EQ(toText(0.1f), "0.1");  // as a double it would be 0.100000001490116
  EXPECT_EQ(toText(16.32396f), "16.32396");
  EXPECT_EQ(toText(1.f / 3), "0.3333333");
}

TEST(Numbers, ATextShowsFifteenDigitsOfADouble) {
  EXPECT_EQ(toText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(toText(0.1), "0.1");
  EXPECT_EQ(toText(-3), "-3");
}

TEST(Numbers, ADutchSystemWritesAndReadsACommaInNumbers) {
  const DecimalSeparator comma(',');
  EXPECT_EQ(toText(16.5f), "16,5");
  EXPECT_EQ(toText(-0.25), "-0,25");
  EXPECT_EQ(toNumber("16,5"), 16.5);
  EXPECT_EQ(toNumber("  -0,25 "), -0.25);
  EXPECT_EQ(toNumber(toText(16.32396f)), 16.32396);
}

TEST(Numbers, TheOtherSystemsSeparatorIsNoNumber) {
  EXPECT_ERROR(TypeMismatch, toNumber("16,5"));
  const DecimalSeparator comma(',');
  EXPECT_ERROR(TypeMismatch, toNumber("16.5"));
}

TEST(Numbers, AWholeTextThatIsNoNumberIsAMismatch) {
  for (const char* text : {"", " ", "tien", "5 cm", "1 2", "+-5", "--5", "inf", "nan", "1e999"})
    EXPECT_ERROR(TypeMismatch, toNumber(text)) << text;
  EXPECT_EQ(toNumber("+5"), 5);
}
