#include "loggers/date_pictures.h"

#include <array>
#include <optional>
#include <span>
#include <utility>

#include "platform/code_page.h"
#include "shared/text.h"

namespace brooklander {
namespace {

struct Date {
    int year = 0;
    int month = 0;
    int day = 0;
};

struct Time {
    int hour = 0;
    int minute = 0;
    int second = 0;
};

struct Moment {
    std::optional<Date> date;
    std::optional<Time> time;
};

struct Number {
    int value = 0;
    std::size_t digits = 0;
};

constexpr std::size_t short_year = 2;
constexpr std::size_t full_year = 4;
constexpr int first_year_of_this_century = 30;  // two digits below it mean 20yy

constexpr std::array<std::string_view, 12> months{"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                  "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                  "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};

constexpr std::array<std::string_view, 7> weekdays{"MONDAY", "TUESDAY",  "WEDNESDAY", "THURSDAY",
                                                   "FRIDAY", "SATURDAY", "SUNDAY"};

bool is_digit(char character) { return character >= '0' && character <= '9'; }
bool is_letter(char character) { return character >= 'A' && character <= 'Z'; }

// Takes a text in capitals apart from its start on.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool at_end() const { return rest_.empty(); }
    char next() const { return rest_.empty() ? '\0' : rest_.front(); }

    // Up to four digits, and none behind them.
    std::optional<Number> number() {
        Number number;
        while (number.digits < rest_.size() && is_digit(rest_[number.digits])) {
            if (number.digits == full_year) return std::nullopt;
            number.value = number.value * 10 + (rest_[number.digits++] - '0');
        }
        if (number.digits == 0) return std::nullopt;
        rest_.remove_prefix(number.digits);
        return number;
    }

    std::string_view word() {
        std::size_t length = 0;
        while (length < rest_.size() && is_letter(rest_[length])) ++length;
        const std::string_view word = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return word;
    }

    // Whether it goes on with the sign, which is passed then.
    bool pass(char sign) {
        if (next() != sign || at_end()) return false;
        rest_.remove_prefix(1);
        return true;
    }

    // Whether it goes on with some of the signs, which are passed then.
    bool pass_all(std::string_view signs) {
        const std::size_t length = std::min(rest_.find_first_not_of(signs), rest_.size());
        rest_.remove_prefix(length);
        return length > 0;
    }

  private:
    std::string_view rest_;
};

bool is_leap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int days_of(int month, int year) {
    constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && is_leap(year) ? 29 : days.at(static_cast<std::size_t>(month) - 1);
}

std::optional<Date> date_of(Number year, int month, int day) {
    if (year.digits == short_year) {
        year.value += year.value < first_year_of_this_century ? 2000 : 1900;
    } else if (year.digits != full_year) {
        return std::nullopt;
    }
    if (month < 1 || month > 12 || day < 1 || day > days_of(month, year.value)) return std::nullopt;
    return Date{year.value, month, day};
}

// The place of a name, written whole or by its first three letters, from 1 on; 0 where it is none
// of these.
int place_of(std::string_view word, std::span<const std::string_view> names) {
    for (std::size_t place = 0; place < names.size(); ++place) {
        if (word == names[place] || word == left(names[place], 3)) {
            return static_cast<int>(place) + 1;
        }
    }
    return 0;
}

constexpr std::string_view signs_around_a_name = " ,-";

std::optional<Date> date_behind_month(Reader& reader) {
    const int month = place_of(reader.word(), months);
    if (!reader.pass_all(signs_around_a_name)) return std::nullopt;
    const auto day = reader.number();
    if (!day || !reader.pass_all(signs_around_a_name)) return std::nullopt;
    const auto year = reader.number();
    return year ? date_of(*year, month, day->value) : std::nullopt;
}

std::optional<Date> date_behind_day(int day, Reader& reader) {
    if (!reader.pass_all(signs_around_a_name)) return std::nullopt;
    const int month = place_of(reader.word(), months);
    if (!reader.pass_all(signs_around_a_name)) return std::nullopt;
    const auto year = reader.number();
    return year ? date_of(*year, month, day) : std::nullopt;
}

// The sign between the numbers, where it is one.
std::optional<Date> date_in_numbers(Number first, char sign, Reader& reader) {
    const auto second = reader.number();
    if (!second || !reader.pass(sign)) return std::nullopt;
    const auto third = reader.number();
    if (!third) return std::nullopt;
    if (first.digits == full_year) return date_of(first, second->value, third->value);
    int month = first.value;
    int day = second->value;
    if (month > 12) std::swap(month, day);
    return date_of(*third, month, day);
}

// A day of the week in front says nothing that the date does not; it is passed, right or wrong.
void pass_weekday(Reader& reader) {
    Reader behind = reader;
    if (place_of(behind.word(), weekdays) > 0 && behind.pass_all(" ,")) reader = behind;
}

std::optional<Date> date_in(Reader& reader) {
    pass_weekday(reader);
    if (is_letter(reader.next())) return date_behind_month(reader);
    const auto first = reader.number();
    if (!first) return std::nullopt;
    for (const char sign : {'/', '-'}) {
        Reader behind = reader;
        if (!behind.pass(sign) || !is_digit(behind.next())) continue;
        reader = behind;
        return date_in_numbers(*first, sign, reader);
    }
    return date_behind_day(first->value, reader);
}

// The hour behind AM or PM; nothing for one that no clock shows.
std::optional<int> hour_by_half(int hour, std::string_view half) {
    const bool before_noon = half == "AM" || half == "A";
    const bool after_noon = half == "PM" || half == "P";
    if ((!before_noon && !after_noon) || hour < 1 || hour > 12) return std::nullopt;
    return hour % 12 + (after_noon ? 12 : 0);
}

// A part of a time: one digit or two.
std::optional<int> time_part(Reader& reader) {
    const auto number = reader.number();
    if (!number || number->digits > 2) return std::nullopt;
    return number->value;
}

// A time to the text's end.
std::optional<Time> time_in(Reader reader) {
    const auto hour = time_part(reader);
    if (!hour) return std::nullopt;
    Time time{.hour = *hour};
    bool has_minutes = false;
    for (int Time::*const part : {&Time::minute, &Time::second}) {
        if (!reader.pass(':')) break;
        const auto number = time_part(reader);
        if (!number || *number > 59) return std::nullopt;
        time.*part = *number;
        has_minutes = true;
    }
    reader.pass_all(" ");
    const std::string_view half = reader.word();
    if (!reader.at_end()) return std::nullopt;
    if (!half.empty()) {
        const auto whole = hour_by_half(time.hour, half);
        if (!whole) return std::nullopt;
        time.hour = *whole;
        return time;
    }
    if (!has_minutes || time.hour > 23) return std::nullopt;
    return time;
}

Moment moment_in(std::string_view text) {
    const std::string capitals = upper(trim(text));
    Reader reader(capitals);
    if (const auto time = time_in(reader)) return {.date = {}, .time = time};
    const auto date = date_in(reader);
    if (!date) return {};
    if (reader.at_end()) return {.date = date, .time = Time{}};
    if (!reader.pass_all(" ")) return {};
    const auto time = time_in(reader);
    return time ? Moment{date, time} : Moment{};
}

std::string padded(int number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

}  // namespace

std::string by_date_picture(std::string_view text) {
    const auto date = moment_in(text).date;
    if (!date) return std::string(text);
    return padded(date->month, 2) + "-" + padded(date->day, 2) + "-" + padded(date->year, 4);
}

std::string by_time_picture(std::string_view text) {
    const auto time = moment_in(text).time;
    if (!time) return std::string(text);
    return padded(time->hour, 2) + padded(time->minute, 2) + padded(time->second, 2);
}

}  // namespace brooklander
