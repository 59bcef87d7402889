#include "loggers/date_pictures.h"

#include <gtest/gtest.h>

#include <utility>

namespace brooklander {
namespace {

TEST(DatePicture, TakesMonthDayAndYear) {
    for (const auto& [text, date] :
         std::initializer_list<std::pair<const char*, const char*>>{{"6/14/2001", "06-14-2001"},
                                                                    {"06/14/2001", "06-14-2001"},
                                                                    {"6-14-2001", "06-14-2001"},
                                                                    {"06-14-2001", "06-14-2001"},
                                                                    {"  6/14/2001 ", "06-14-2001"},
                                                                    {"12/31/1999", "12-31-1999"},
                                                                    {"1/2/03", "01-02-2003"}}) {
        EXPECT_EQ(by_date_picture(text), date) << text;
    }
}

TEST(DatePicture, TakesTheDayFirstWhereTheFirstNumberIsNoMonth) {
    EXPECT_EQ(by_date_picture("14/6/2001"), "06-14-2001");
    EXPECT_EQ(by_date_picture("12/6/2001"), "12-06-2001");
    EXPECT_EQ(by_date_picture("13/13/2001"), "13/13/2001");
}

TEST(DatePicture, TakesAYearOfFourDigitsFirst) {
    EXPECT_EQ(by_date_picture("2001-06-14"), "06-14-2001");
    EXPECT_EQ(by_date_picture("2001/6/14"), "06-14-2001");
    EXPECT_EQ(by_date_picture("2001-14-06"), "2001-14-06");
}

TEST(DatePicture, TakesNamesOfMonths) {
    for (const char* const text : {"14-Jun-01", "14-jun-2001", "14 JUNE 2001", "June 14, 2001",
                                   "Jun 14 2001", "jun-14-2001", "14 Jun, 2001"}) {
        EXPECT_EQ(by_date_picture(text), "06-14-2001") << text;
    }
    for (const char* const text : {"14-Ju-01", "14-Junes-01", "Jun 2001", "Jun-01", "14Jun01",
                                   "June", "June 14", "14 June"}) {
        EXPECT_EQ(by_date_picture(text), text);
    }
}

TEST(DatePicture, PassesADayOfTheWeek) {
    for (const char* const text : {"Thursday, June 14, 2001", "thu 14-jun-01", "Thu, 6/14/2001",
                                   "Friday 14 June 2001", "SUN,2001-06-14"}) {
        EXPECT_EQ(by_date_picture(text), "06-14-2001") << text;
    }
    for (const char* const text :
         {"Thursday", "Thursday, ", "Th, June 14, 2001", "Thursday6/14/2001", "Thu Thu 6/14/2001",
          "Thursdays, June 14, 2001"}) {
        EXPECT_EQ(by_date_picture(text), text);
    }
    EXPECT_EQ(by_time_picture("Thursday, June 14, 2001 9:30"), "093000");
    EXPECT_EQ(by_time_picture("Thursday, 9:30"), "Thursday, 9:30");
}

TEST(DatePicture, TakesTwoDigitsOfAYearFor1930To2029) {
    EXPECT_EQ(by_date_picture("1/1/00"), "01-01-2000");
    EXPECT_EQ(by_date_picture("1/1/29"), "01-01-2029");
    EXPECT_EQ(by_date_picture("1/1/30"), "01-01-1930");
    EXPECT_EQ(by_date_picture("1/1/99"), "01-01-1999");
    EXPECT_EQ(by_date_picture("1/1/1"), "1/1/1");
    EXPECT_EQ(by_date_picture("1/1/101"), "1/1/101");
    EXPECT_EQ(by_date_picture("1/1/20011"), "1/1/20011");
}

TEST(DatePicture, KnowsTheDaysOfAMonth) {
    EXPECT_EQ(by_date_picture("2/29/2000"), "02-29-2000");
    EXPECT_EQ(by_date_picture("2/29/2004"), "02-29-2004");
    for (const char* const text : {"2/29/1900", "2/29/2001", "2/30/2004", "4/31/2001", "0/1/2001",
                                   "1/0/2001", "1/32/2001", "6/31/2001"}) {
        EXPECT_EQ(by_date_picture(text), text);
    }
}

TEST(DatePicture, LeavesTheTimeBehindADateOut) {
    EXPECT_EQ(by_date_picture("6/14/2001 9:30"), "06-14-2001");
    EXPECT_EQ(by_date_picture("14-Jun-01 9:30:15 PM"), "06-14-2001");
    EXPECT_EQ(by_date_picture("June 14, 2001 12:00 am"), "06-14-2001");
    EXPECT_EQ(by_date_picture("6/14/2001 25:00"), "6/14/2001 25:00");
    EXPECT_EQ(by_date_picture("6/14/2001 x"), "6/14/2001 x");
    EXPECT_EQ(by_date_picture("6/14/2001,9:30"), "6/14/2001,9:30");
}

TEST(DatePicture, LeavesWhatIsNoDateAsItIs) {
    for (const char* const text :
         {"", "  ", "61401", "061401", "38152", "6/14", "6/14-2001", "6//14/2001", "/6/14/2001",
          "6/14/2001/", "6.14.2001", "9:30", "9:30 AM", " early ", "-6/14/2001", "6/ 14/2001",
          "\xC4nderung", "6/14/2001\t"}) {
        EXPECT_EQ(by_date_picture(text), text);
    }
}

TEST(TimePicture, TakesHoursMinutesAndSeconds) {
    for (const auto& [text, time] :
         std::initializer_list<std::pair<const char*, const char*>>{{"9:30", "093000"},
                                                                    {"09:30:15", "093015"},
                                                                    {"0:00", "000000"},
                                                                    {"23:59:59", "235959"},
                                                                    {" 9:30 ", "093000"},
                                                                    {"9:5", "090500"}}) {
        EXPECT_EQ(by_time_picture(text), time) << text;
    }
}

TEST(TimePicture, TakesTheHalvesOfADay) {
    for (const auto& [text, time] :
         std::initializer_list<std::pair<const char*, const char*>>{{"9:30 AM", "093000"},
                                                                    {"9:30 PM", "213000"},
                                                                    {"9:30:15pm", "213015"},
                                                                    {"12:00 AM", "000000"},
                                                                    {"12:30 PM", "123000"},
                                                                    {"9 p", "210000"},
                                                                    {"11 a", "110000"}}) {
        EXPECT_EQ(by_time_picture(text), time) << text;
    }
    for (const char* const text : {"0:30 AM", "13:30 PM", "9:30 XM", "9:30 AMS"}) {
        EXPECT_EQ(by_time_picture(text), text);
    }
}

TEST(TimePicture, TakesTheTimeBehindADateAndMidnightWithoutOne) {
    EXPECT_EQ(by_time_picture("6/14/2001 9:30"), "093000");
    EXPECT_EQ(by_time_picture("2001-06-14 21:30:15"), "213015");
    EXPECT_EQ(by_time_picture("6/14/2001"), "000000");
}

TEST(TimePicture, LeavesWhatIsNoTimeAsItIs) {
    for (const char* const text :
         {"",        " ",           "9",        "930",   "0930",   "093000",   "24:00", "9:60",
          "9:30:60", "9:30:15:1",   "9:30:",    ":30",   "9::30",  "9:30.5",   "-9:30", "noon",
          " later ", "6/14/2001 9", "12345:00", "9:030", "009:30", "9:30:015", "009 AM"}) {
        EXPECT_EQ(by_time_picture(text), text);
    }
}

}  // namespace
}  // namespace brooklander
