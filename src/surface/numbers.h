// The conversions between numbers, and between numbers and text. Nothing else in the program
// converts by itself.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>

namespace surface {

/// To the nearest whole number, ties to even. The default rounding mode of the processor is what
/// makes this one instruction.
inline double roundEven(double value) { return std::nearbyint(value); }
/// The same as an int, for the inner loops of pictures: unchecked, within 31 bits. Adding
/// 1.5 * 2^52 leaves no room for a fraction, and the library's own rounding may be a call.
inline int nearestInt(double value) { return static_cast<int>((value + 0x1.8p52) - 0x1.8p52); }
/// The largest whole number that is not above `value`.
inline double Int(double value) { return std::floor(value); }

/// Rounds ties to even into 16 bits; outside -32768..32767 an Overflow error.
std::int16_t toInt16(double value);
/// Rounds ties to even into 32 bits; outside the range an Overflow error.
std::int32_t toInt32(double value);

/// The number at the start of a text, with a point as decimal separator; 0 if there is none, and
/// the largest there is for one beyond it.
double Val(const std::string& text);

/// The separator between whole and fraction where a user reads or types a number; '.' until the
/// platform says otherwise.
char decimalSeparator();
void setDecimalSeparator(char separator);

/// A number as a caption shows it: up to 7 significant digits for a float, 15 for a double, no
/// trailing zeros, and the system's decimal separator.
std::string toText(float value);
std::string toText(double value);
std::string toText(int value);

/// Reads a whole text as one number with the system's decimal separator, blanks around it allowed;
/// TypeMismatch if it is none.
double toNumber(const std::string& text);

}  // namespace surface
