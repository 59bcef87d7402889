#include "measure.h"

#include <algorithm>
#include <chrono>

namespace brooklander::bench {

double milliseconds_of(const std::function<void()>& work) {
    const auto before = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time =
        std::chrono::steady_clock::now() - before;
    return time.count();
}

double median(Figures figures) {
    std::sort(figures.begin(), figures.end());
    return figures[rounds / 2];
}

}  // namespace brooklander::bench
