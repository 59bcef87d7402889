#include "sample_table.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace brooklander::bench {
namespace {

constexpr std::uint64_t seed = 20211104;

constexpr std::array<std::string_view, leading_columns> headings{
    "Station", "Date",  "Time",  "Sample",  "Depth", "Comments", "Crew",
    "Lake",    "Basin", "Visit", "Weather", "Wind",  "Method",   "Batch"};

constexpr std::array<std::string_view, 12> characteristics{
    "Temperature", "pH",       "Oxygen, dissolved", "Conductivity", "Phosphorus", "Nitrate",
    "Ammonia",     "Chloride", "Chlorophyll a",     "Turbidity",    "Alkalinity", "Silica"};

constexpr std::array<std::string_view, 4> remarks{"", "", "", "windy, stirred up near the shore"};

// A small generator of its own, so that the tables are the same with every library.
class Random {
  public:
    explicit Random(std::uint64_t start) : state_(start) {}

    // A number from 0 up to but not including `bound`.
    int below(int bound) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((state_ >> 33U) % static_cast<std::uint64_t>(bound));
    }

  private:
    std::uint64_t state_;
};

std::string two_digits(int number) {
    std::string digits = std::to_string(number);
    return digits.size() < 2 ? std::string("0").append(digits) : digits;
}

std::string heading_line() {
    std::string line;
    for (const std::string_view heading : headings) line.append(heading).push_back('\t');
    for (int column = 0; column < result_columns; ++column) {
        const auto index = static_cast<std::size_t>(column);
        line += characteristics[index % characteristics.size()];
        if (index >= characteristics.size()) line += " " + std::to_string(column);
        line += column + 1 < result_columns ? "\t" : "\r\n";
    }
    return line;
}

void put_result(std::string& line, Random& random, Cells cells) {
    const int chance = random.below(100);
    const std::string number =
        std::to_string(random.below(40)) + "." + std::to_string(random.below(100));
    if (chance < 15) return;
    if (chance < 25 && cells == Cells::as_in_life) line += '<';
    line += number;
}

void put_row(std::string& line, int row, Random& random, Cells cells) {
    const bool life = cells == Cells::as_in_life;
    const int hour = 6 + random.below(12);
    const std::string padded = two_digits(hour) + two_digits(random.below(60));
    const bool short_time = life && hour < 10 && random.below(2) == 0;
    line += "ST-" + std::to_string(100 + random.below(400)) + '\t';
    line += two_digits(1 + random.below(12)) + "/" + two_digits(1 + random.below(28)) + "/" +
            std::to_string(1990 + random.below(30)) + '\t';
    line += (short_time ? padded.substr(1) : padded) + '\t';
    if (!life || random.below(10) > 0) line += "WQ-" + std::to_string(row);
    line += '\t';
    line += std::to_string(random.below(20)) + "." + std::to_string(random.below(10)) + '\t';
    line.append(remarks[static_cast<std::size_t>(random.below(4))]).push_back('\t');
    line += random.below(2) == 0 ? "Doe Jane\t" : "Roe Richard\t";
    line += "Long Lake\tNorth\t";
    line += std::to_string(1 + random.below(9)) + "\tclear\t";
    line += std::to_string(random.below(30)) + "\tgrab\t";
    line += "B" + std::to_string(row / 20) + '\t';
    for (int column = 0; column < result_columns; ++column) {
        put_result(line, random, cells);
        line += column + 1 < result_columns ? "\t" : "\r\n";
    }
}

}  // namespace

void write_sample_table(const std::filesystem::path& file, int rows, Cells cells) {
    constexpr std::size_t block = 1 << 20;
    std::ofstream out(file, std::ios::binary);
    std::string text = heading_line();
    Random random(seed);
    for (int row = 1; row <= rows; ++row) {
        put_row(text, row, random, cells);
        if (text.size() < block) continue;
        out << text;
        text.clear();
    }
    out << text;
}

}  // namespace brooklander::bench
