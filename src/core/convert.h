// Numbers to text and back, neutral to the system's locale. Halves round to the even neighbour throughout. A text that
// is no number is failure 13, a number that does not fit is failure 6.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ombrel {

bool IsNumeric(std::string_view text);  // a whole or broken number, with blanks, sign, exponent or groups
double ToDouble(std::string_view text);
std::int32_t ToLong(std::string_view text);  // rounds
std::int32_t ToLong(double value);
bool ToBool(std::string_view text);  // "True", "False" in any case, or a number
double Val(std::string_view text);   // the number that the text begins with, else 0

std::string WithoutPercent(std::string_view text);  // a percentage may have its sign or not
double ToShare(std::string_view percent);           // "50%" or "50" is 0.5

std::string_view BoolText(bool value);  // "True" or "False"
std::string NumberText(double value);   // shortest form with up to 15 digits
std::string NumberText(float value);    // up to 7 digits
std::string NumberText(std::int32_t value);

double Round(double value, int decimals = 0);         // halves to even
std::string FormatFixed(double value, int decimals);  // as "0.0" with so many decimals: leading zero, halves away

}  // namespace ombrel
