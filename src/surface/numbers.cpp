// The conversions between numbers and text, independent of the C locale: only the decimal separator
// follows the system.
#include "surface/numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

#include "surface/errors.h"

namespace surface {
namespace {

char theSeparator = '.';

template <class Integer>
Integer narrow(double value) {
  const double rounded = roundEven(value);
  // Written so that a value that is no number fails too.
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max()))
    throw RuntimeError(ErrorKind::Overflow, "Overflow");
  return static_cast<Integer>(rounded);
}

std::string withSeparator(std::string text) {
  std::replace(text.begin(), text.end(), '.', theSeparator);
  return text;
}

template <class Float>
std::string shortest(Float value, int digits) {
  if (value == 0) return "0";
  char buffer[64];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits).ptr;
  return withSeparator(std::string(buffer, end));
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

// A plus before a digit or separator says nothing; before a minus it makes the text no number.
std::string_view withoutPlus(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

// A number of too many digits, or with an exponent too large, is the largest there is; a minus
// beyond the sign is that of an exponent too small.
double beyondRange(std::string_view number) {
  if (number.find('-', 1) != std::string_view::npos) return 0;
  constexpr double largest = std::numeric_limits<double>::max();
  return number[0] == '-' ? -largest : largest;
}

}  // namespace

std::int16_t toInt16(double value) { return narrow<std::int16_t>(value); }
std::int32_t toInt32(double value) { return narrow<std::int32_t>(value); }

double Val(const std::string& text) {
  const std::string_view rest = withoutPlus(trimmed(text));
  double value = 0;
  const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  if (result.ec == std::errc::result_out_of_range)
    return beyondRange({rest.data(), static_cast<std::size_t>(result.ptr - rest.data())});
  return result.ec == std::errc{} && std::isfinite(value) ? value : 0;
}

char decimalSeparator() { return theSeparator; }
void setDecimalSeparator(char separator) { theSeparator = separator; }

std::string toText(float value) { return shortest(value, 7); }
std::string toText(double value) { return shortest(value, 15); }
std::string toText(int value) { return std::to_string(value); }

double toNumber(const std::string& text) {
  std::string copy(trimmed(text));
  const bool foreign = theSeparator != '.' && copy.find('.') != std::string::npos;
  std::replace(copy.begin(), copy.end(), theSeparator, '.');
  const std::string_view rest = withoutPlus(copy);
  double value = 0;
  const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  const bool whole = result.ec == std::errc{} && result.ptr == rest.data() + rest.size();
  if (foreign || !whole || !std::isfinite(value))
    throw RuntimeError(ErrorKind::TypeMismatch, "Type mismatch");
  return value;
}

}  // namespace surface
