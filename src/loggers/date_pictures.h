// Dates and times as spreadsheets write them, shown by a picture.
//
// A text is read, without regard to blanks around it and to capitals, as a date, a time, or a date
// with a time behind it:
//
//   6/14/2004  6-14-04       month, day, year, the same sign twice; where the first number cannot
//                            be a month, day, month, year
//   2004-06-14  2004/6/14    a first number of four digits is the year
//   14-Jun-04  14 June 2004  names of months in English, whole or by their first three letters
//   June 14, 2004
//   Thursday, June 14, 2001  a day of the week in front, whole or by three letters, is passed over
//   9:30  09:30:15           hours up to 23, minutes, seconds or none, a digit or two each
//   9:30 PM  9 am  9:30:15p  hours from 1 to 12
//
// Years have four digits or two; two mean 1930 to 2029. A day that its month does not have makes a
// text no date. So does whatever else stands in it: digits alone are neither a date nor a time,
// since nobody could tell a day's number from a date without its signs.
#pragma once

#include <string>
#include <string_view>

namespace brooklander {

// The date by the picture "mm-dd-yyyy". A text without a date stays as it is.
std::string by_date_picture(std::string_view text);

// The time by the picture "hhmmss"; a date alone is midnight. A text that is neither stays as it
// is.
std::string by_time_picture(std::string_view text);

}  // namespace brooklander
