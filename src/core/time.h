// Moments and dates.
//
// A moment is whole seconds since 1 January 1970, universal time. A date is a count of days as the player's clock shows
// it, with 25569 being 1 January 1970. Both read the host's clock and zone only.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ombrel {

using Date = double;

std::int32_t NowUnix();  // the present moment
Date NowDate();          // the present date and time of day, in whole seconds

Date UnixToDate(std::int32_t seconds);
std::int32_t DateToUnix(Date date);

// Seconds from universal time to the zone's standard time. Summer time is left out: the clock HUD is built on that.
std::int32_t LocalOffset();
Date ToUniversal(std::optional<Date> date = std::nullopt);  // without an argument, of the present moment

// Fields of a date, for formatting.
struct DateFields {
    int year, month, day, hour, minute, second;
};
DateFields FieldsOf(Date date);

std::string FormatGeneralDate(Date date);          // "7/4/2024 1:05:09 PM"; a time of day of midnight is left out
std::string FormatIsoDay(Date date);               // "2024-07-04"
std::string FormatShortDate(Date date);            // "7/4/2024"
std::string FormatClock(Date date, bool hours24);  // "13:05" or "01:05 PM"

}  // namespace ombrel
