#include "core/time.h"

#include <fmt/format.h>

#include <chrono>
#include <cmath>
#include <limits>

#include "core/Vars.h"
#include "core/failure.h"
#include "host/Platform.h"

namespace ombrel {
namespace {

constexpr Date kUnixEpoch = 25569.0;
constexpr double kSecondsPerDay = 86400.0;

// Seconds to take off universal time to get the time that the player's clock shows.
std::int64_t ZoneSeconds() {
    const auto zone = Vars::Platform->GetTimeZoneInformation();
    const bool summer = zone.daylight && zone.daylight_rule;
    return (std::int64_t{zone.bias} - (summer ? 60 : 0)) * 60;
}

// The seconds of the clock that a date stands for, counted from 1 January 1970.
std::int64_t ClockSeconds(Date date) {
    const double seconds = (date - kUnixEpoch) * kSecondsPerDay;
    if (!(std::abs(seconds) < 1e15)) throw Failure(failure::kOverflow);
    return std::llround(seconds);
}

std::int32_t ToMoment(std::int64_t seconds) {
    if (seconds < std::numeric_limits<std::int32_t>::min() || seconds > std::numeric_limits<std::int32_t>::max()) {
        throw Failure(failure::kOverflow);
    }
    return static_cast<std::int32_t>(seconds);
}

// The present moment in whole seconds since 1970, universal time.
std::int64_t NowSeconds() {
    const std::int64_t now = Vars::Platform->Now();
    return now / 1000 - (now % 1000 < 0 ? 1 : 0);
}

int HalfDayHour(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

std::string_view HalfDay(int hour) { return hour < 12 ? "AM" : "PM"; }

}  // namespace

std::int32_t NowUnix() { return ToMoment(NowSeconds()); }

Date NowDate() { return kUnixEpoch + static_cast<double>(NowSeconds() - ZoneSeconds()) / kSecondsPerDay; }

Date UnixToDate(std::int32_t seconds) {
    return kUnixEpoch + static_cast<double>(seconds - ZoneSeconds()) / kSecondsPerDay;
}

std::int32_t DateToUnix(Date date) { return ToMoment(ClockSeconds(date) + ZoneSeconds()); }

std::int32_t LocalOffset() { return -Vars::Platform->GetTimeZoneInformation().bias * 60; }

Date ToUniversal(std::optional<Date> date) { return (date ? *date : NowDate()) - LocalOffset() / kSecondsPerDay; }

DateFields FieldsOf(Date date) {
    using namespace std::chrono;
    const sys_seconds clock{seconds(ClockSeconds(date))};
    const auto midnight = floor<days>(clock);
    const year_month_day day{midnight};
    const hh_mm_ss time{clock - midnight};
    return {static_cast<int>(day.year()),
            static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

std::string FormatGeneralDate(Date date) {
    const auto [year, month, day, hour, minute, second] = FieldsOf(date);
    auto text = fmt::format("{}/{}/{}", month, day, year);
    if (hour != 0 || minute != 0 || second != 0) {
        text += fmt::format(" {}:{:02}:{:02} {}", HalfDayHour(hour), minute, second, HalfDay(hour));
    }
    return text;
}

std::string FormatIsoDay(Date date) {
    const auto fields = FieldsOf(date);
    return fmt::format("{:04}-{:02}-{:02}", fields.year, fields.month, fields.day);
}

std::string FormatShortDate(Date date) {
    const auto fields = FieldsOf(date);
    return fmt::format("{}/{}/{}", fields.month, fields.day, fields.year);
}

std::string FormatClock(Date date, bool hours24) {
    const auto fields = FieldsOf(date);
    if (hours24) return fmt::format("{:02}:{:02}", fields.hour, fields.minute);
    return fmt::format("{:02}:{:02} {}", HalfDayHour(fields.hour), fields.minute, HalfDay(fields.hour));
}

}  // namespace ombrel
