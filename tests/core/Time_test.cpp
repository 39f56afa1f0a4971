#include "core/time.h"

#include "core/failure.h"
#include "tests/core/ServicesTest.h"

namespace ombrel {
namespace {

class Time : public ServicesTest {};

constexpr host::TimeZone kZones[] = {{0, false, false},  {300, false, true}, {300, true, true},
                                     {300, true, false}, {-570, true, true}, {-345, false, false}};

TEST_F(Time, MomentsAndDatesTurnIntoEachOtherExactly) {
    for (const auto& zone : kZones) {
        client.system.zone = zone;
        for (std::int64_t moment = -2147400000; moment < 2147400000; moment += 33333331) {
            const auto seconds = static_cast<std::int32_t>(moment);
            ASSERT_EQ(DateToUnix(UnixToDate(seconds)), seconds) << zone.bias;
        }
    }
    EXPECT_THROW(DateToUnix(1e6), Failure);
    EXPECT_THROW(DateToUnix(1e300), Failure);
}

TEST_F(Time, SummerTimeNeedsTheRuleAndTheSeason) {
    const double hour = 1.0 / 24.0;
    const double expected[] = {25569.0,
                               25569.0 - 5 * hour,
                               25569.0 - 4 * hour,
                               25569.0 - 5 * hour,
                               25569.0 + 10.5 * hour,
                               25569.0 + 5.75 * hour};
    for (std::size_t i = 0; i < std::size(kZones); ++i) {
        client.system.zone = kZones[i];
        EXPECT_NEAR(UnixToDate(0), expected[i], 1e-9) << i;
    }
}

TEST_F(Time, UniversalTimeIsTakenFromTheStandardOffset) {
    client.system.zone = {300, true, true};
    EXPECT_EQ(LocalOffset(), -18000);
    EXPECT_NEAR(ToUniversal(45000.0), 45000.0 + 5.0 / 24.0, 1e-9);
    EXPECT_EQ(FormatGeneralDate(ToUniversal()), "7/4/2024 2:05:09 PM");  // an hour ahead in summer
}

TEST_F(Time, ThePresentIsInWholeSeconds) {
    client.clock.SetEpoch(1720098309999);
    EXPECT_EQ(NowUnix(), 1720098309);
    EXPECT_EQ(FormatGeneralDate(NowDate()), "7/4/2024 1:05:09 PM");
    client.clock.SetEpoch(-1);
    EXPECT_EQ(NowUnix(), -1);
    client.clock.SetEpoch(4133980800000);  // a calendar goes on where moments end
    EXPECT_THROW(NowUnix(), Failure);
    EXPECT_EQ(FormatGeneralDate(NowDate()), "1/1/2101");
}

TEST_F(Time, DatesReadAsPeopleWriteThem) {
    const struct {
        Date date;
        const char *general, *iso, *brief, *clock24, *clock12;
    } cases[] = {
        {45477.0, "7/4/2024", "2024-07-04", "7/4/2024", "00:00", "12:00 AM"},
        {45477.5, "7/4/2024 12:00:00 PM", "2024-07-04", "7/4/2024", "12:00", "12:00 PM"},
        {38781.0 + 7.0 / 24, "3/5/2006 7:00:00 AM", "2006-03-05", "3/5/2006", "07:00", "07:00 AM"},
        {45351.0 + 86399.0 / 86400, "2/29/2024 11:59:59 PM", "2024-02-29", "2/29/2024", "23:59", "11:59 PM"},
        {45351.99999999, "3/1/2024", "2024-03-01", "3/1/2024", "00:00", "12:00 AM"},
        {25569.0 - 1.0 / 86400, "12/31/1969 11:59:59 PM", "1969-12-31", "12/31/1969", "23:59", "11:59 PM"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(FormatGeneralDate(row.date), row.general);
        EXPECT_EQ(FormatIsoDay(row.date), row.iso);
        EXPECT_EQ(FormatShortDate(row.date), row.brief);
        EXPECT_EQ(FormatClock(row.date, true), row.clock24);
        EXPECT_EQ(FormatClock(row.date, false), row.clock12);
    }
}

}  // namespace
}  // namespace ombrel
