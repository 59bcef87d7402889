// Times, and the medians of several rounds.
#pragma once

#include <array>
#include <functional>

namespace brooklander::bench {

inline constexpr int rounds = 5;

using Figures = std::array<double, rounds>;

double milliseconds_of(const std::function<void()>& work);
double median(Figures figures);

}  // namespace brooklander::bench
