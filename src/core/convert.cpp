#include "core/convert.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "core/failure.h"
#include "core/text.h"

namespace ombrel {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Takes a number apart while it is read, and puts it together in the plain form that the library reads.
class NumberReader {
public:
    explicit NumberReader(std::string_view text) : rest_(text) {}

    // Reads as much as is a number. `groups` allows commas between the digits before the point.
    bool Read(bool groups) {
        if (Next() == '-') plain_ += '-';
        if (Next() == '-' || Next() == '+') Skip();
        const auto before = plain_.size();
        while (IsDigit(Next()) || (groups && Next() == ',' && plain_.size() > before)) {
            if (Next() != ',') plain_ += Next();
            Skip();
        }
        auto digits = plain_.size() - before;
        if (Next() == '.') {
            plain_ += digits == 0 ? "0." : ".";
            Skip();
            for (; IsDigit(Next()); Skip(), ++digits) plain_ += Next();
            plain_ += '0';
        }
        if (digits == 0) return false;
        ReadExponent();
        return true;
    }

    // What stands behind the number.
    std::string_view Rest() const { return rest_; }

    double Value() const {
        double value = 0.0;
        const auto [end, error] = std::from_chars(plain_.data(), plain_.data() + plain_.size(), value);
        if (error == std::errc::result_out_of_range) {
            const auto exponent = plain_.find('e');
            if (exponent != std::string::npos && plain_[exponent + 1] == '-') return 0.0;
            throw Failure(failure::kOverflow);
        }
        return value;
    }

private:
    char Next() const { return rest_.empty() ? '\0' : rest_.front(); }
    void Skip() { rest_.remove_prefix(1); }

    // An exponent without digits is none.
    void ReadExponent() {
        if (Next() != 'e' && Next() != 'E' && Next() != 'd' && Next() != 'D') return;
        auto tail = rest_.substr(1);
        std::string exponent = "e";
        if (!tail.empty() && (tail.front() == '+' || tail.front() == '-')) {
            if (tail.front() == '-') exponent += '-';
            tail.remove_prefix(1);
        }
        if (tail.empty() || !IsDigit(tail.front())) return;
        for (; !tail.empty() && IsDigit(tail.front()); tail.remove_prefix(1)) exponent += tail.front();
        plain_ += exponent;
        rest_ = tail;
    }

    std::string_view rest_;
    std::string plain_;
};

std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

// The number that a whole text is; nothing when it is none.
std::optional<double> ReadNumber(std::string_view text) {
    NumberReader reader(TrimBlanks(text));
    if (!reader.Read(true) || !reader.Rest().empty()) return std::nullopt;
    return reader.Value();
}

// The decimal digits of a number, up to 15 of them and none behind the last that counts, and how many stand before the
// point. This is the precision that people see; a binary remainder behind it decides no rounding.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

// Digits that the text of a number shows at most.
constexpr int kMostDigits = 15;
constexpr int kMostWholeDigits = 20;  // of a whole number of 64 bits
constexpr int kMostFloatDigits = 7;

Decimal ToDecimal(double value, int digits = kMostDigits) {
    if (!std::isfinite(value)) throw Failure(failure::kOverflow);
    Decimal result;
    result.negative = std::signbit(value) && value != 0.0;
    const auto scientific = fmt::format("{:.{}e}", std::abs(value), digits - 1);  // d.ddde+xx
    const auto mantissa = scientific.find('e');
    result.digits = scientific.substr(0, 1) + scientific.substr(2, mantissa - 2);
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    if (result.digits.empty()) return result;
    const auto* exponent = scientific.data() + mantissa + 1;
    if (*exponent == '+') ++exponent;
    std::from_chars(exponent, scientific.data() + scientific.size(), result.point);
    ++result.point;
    return result;
}

// Cuts behind so many digits; halves go away from zero.
void RoundDigits(Decimal& number, int keep) {
    if (keep >= static_cast<int>(number.digits.size())) return;
    if (keep < 0) {
        number.digits.clear();
        return;
    }
    const auto kept = static_cast<std::size_t>(keep);
    const bool up = number.digits[kept] >= '5';
    number.digits.resize(kept);
    if (!up) return;
    for (auto i = kept; i > 0; --i) {
        if (number.digits[i - 1] != '9') {
            ++number.digits[i - 1];
            return;
        }
        number.digits[i - 1] = '0';
    }
    number.digits.insert(0, 1, '1');
    ++number.point;
}

}  // namespace

bool IsNumeric(std::string_view text) try { return ReadNumber(text).has_value(); } catch (const Failure&) {
    return false;
}

double ToDouble(std::string_view text) {
    const auto number = ReadNumber(text);
    if (!number) throw Failure(failure::kTypeMismatch);
    return *number;
}

std::int32_t ToLong(std::string_view text) { return ToLong(ToDouble(text)); }

std::int32_t ToLong(double value) {
    const double whole = Round(value);
    constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    if (!(whole >= kLowest && whole <= kHighest)) throw Failure(failure::kOverflow);
    return static_cast<std::int32_t>(whole);
}

bool ToBool(std::string_view text) {
    const auto word = ToLower(TrimBlanks(text));
    if (word == "true") return true;
    if (word == "false") return false;
    return ToDouble(text) != 0.0;
}

double Val(std::string_view text) {
    std::string dense;
    for (const char c : text) {
        if (!IsBlank(c)) dense += c;
    }
    NumberReader reader(dense);
    return reader.Read(false) ? reader.Value() : 0.0;
}

std::string WithoutPercent(std::string_view text) { return Replace(text, "%", ""); }

double ToShare(std::string_view percent) { return ToDouble(WithoutPercent(percent)) / 100.0; }

std::string_view BoolText(bool value) { return value ? "True" : "False"; }

namespace {

std::string DecimalText(const Decimal& number, int most_digits) {
    const auto count = static_cast<int>(number.digits.size());
    if (count == 0) return "0";

    std::string text = number.negative ? "-" : "";
    const bool fits = number.point <= most_digits && count - number.point <= most_digits;
    if (!fits) {
        text += number.digits[0];
        if (count > 1) text.append(1, '.').append(number.digits, 1);
        const int exponent = number.point - 1;
        return text + fmt::format("E{}{:02}", exponent < 0 ? '-' : '+', std::abs(exponent));
    }
    if (number.point <= 0)
        return text + "0." + std::string(static_cast<std::size_t>(-number.point), '0') + number.digits;
    if (number.point >= count)
        return text + number.digits + std::string(static_cast<std::size_t>(number.point - count), '0');
    const auto point = static_cast<std::size_t>(number.point);
    return text + number.digits.substr(0, point) + "." + number.digits.substr(point);
}

}  // namespace

std::string NumberText(double value) { return DecimalText(ToDecimal(value), kMostDigits); }
std::string NumberText(float value) { return DecimalText(ToDecimal(value, kMostFloatDigits), kMostFloatDigits); }
std::string NumberText(std::int32_t value) { return fmt::format_int(value).str(); }

double Round(double value, int decimals) {
    if (decimals == 0) return std::nearbyint(value);
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    return std::isfinite(scaled) ? std::nearbyint(scaled) / scale : value;
}

std::string FormatFixed(double value, int decimals) {
    auto number = ToDecimal(value, std::abs(value) < 1e15 ? kMostDigits : kMostWholeDigits);
    RoundDigits(number, number.point + decimals);
    if (number.digits.find_first_not_of('0') == std::string::npos) number = {};

    std::string whole;
    std::string fraction;
    const auto digit = [&number](int index) {
        const bool inside = index >= 0 && index < static_cast<int>(number.digits.size());
        return inside ? number.digits[static_cast<std::size_t>(index)] : '0';
    };
    for (int i = 0; i < number.point; ++i) whole += digit(i);
    for (int i = 0; i < decimals; ++i) fraction += digit(number.point + i);
    if (whole.empty()) whole = "0";
    return (number.negative ? "-" : "") + whole + (fraction.empty() ? "" : "." + fraction);
}

}  // namespace ombrel
