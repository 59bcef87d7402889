// Load and convert, measured beside a plain copy of the output.
//
//   bench_conversion FOLDER [ROWS...]
//
// Works in FOLDER, which should lie on the file system that matters, and removes what it made.
// Each size is measured five times, load, convert and copy in turn; figures are medians, and the
// ones to quote are the ratios to the copy. Memory is measured in a process of its own.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "road.h"
#include "sample_configuration.h"
#include "sample_table.h"

namespace brooklander::bench {
namespace {

namespace fs = std::filesystem;

constexpr int rounds = 5;
constexpr const char* memory_option = "--memory-of";
constexpr double mebibyte = 1024.0 * 1024.0;

// In seconds; the CPU time with the kernel's share, and without it.
struct Cost {
    double wall = 0;
    double cpu = 0;
    double user = 0;
};

Cost cost_till_now(int of_whom) {
    rusage usage{};
    getrusage(of_whom, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    const double user = seconds(usage.ru_utime);
    return {0, user + seconds(usage.ru_stime), user};
}

Cost cost_of(int of_whom, const std::function<void()>& work) {
    using Clock = std::chrono::steady_clock;
    const Cost spent = cost_till_now(of_whom);
    const auto before = Clock::now();
    work();
    const std::chrono::duration<double> wall = Clock::now() - before;
    const Cost now = cost_till_now(of_whom);
    return {wall.count(), now.cpu - spent.cpu, now.user - spent.user};
}

void run_command(std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) throw std::runtime_error(words.front() + " failed");
}

class Workplace {
  public:
    explicit Workplace(const fs::path& folder) : home_(folder / "brooklander-bench") {
        fs::remove_all(home_);
        fs::create_directories(home_ / "data");
        fs::create_directories(home_ / "brooklander");
    }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;
    ~Workplace() {
        std::error_code ignored;
        fs::remove_all(home_, ignored);
    }

    const fs::path& home() const { return home_; }
    fs::path input() const { return home_ / "data/table.txt"; }
    fs::path output() const { return home_ / "brooklander/voxoutfiles/table.txt"; }
    fs::path copy() const { return home_ / "copy"; }

  private:
    fs::path home_;
};

struct Round {
    Cost load;
    Cost convert;
    Cost copy;
};

Round load_and_convert(const Workplace& place, Under under) {
    Round round;
    Road road(place.home());
    road.up_to_view();
    round.load = cost_of(RUSAGE_SELF, [&] { road.view(); });
    road.up_to_convert(under);
    round.convert = cost_of(RUSAGE_SELF, [&] { road.convert(); });
    return round;
}

Round measure_once(const Workplace& place, Under under) {
    Round round = load_and_convert(place, under);
    fs::remove(place.copy());
    round.copy = cost_of(RUSAGE_CHILDREN, [&] {
        run_command({"cp", "--reflink=never", place.output().string(), place.copy().string()});
    });
    return round;
}

double median(const std::vector<Round>& all, const std::function<double(const Round&)>& figure) {
    std::vector<double> figures;
    for (const Round& round : all) figures.push_back(figure(round));
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

void measure_time(const Workplace& place, int rows, Under under) {
    measure_once(place, under);
    std::vector<Round> all;
    for (int i = 0; i < rounds; ++i) all.push_back(measure_once(place, under));
    const double load = median(all, [](const Round& r) { return r.load.wall; });
    const double convert = median(all, [](const Round& r) { return r.convert.wall; });
    const double together =
        median(all, [](const Round& r) { return r.load.wall + r.convert.wall; });
    const double cpu = median(all, [](const Round& r) { return r.load.cpu + r.convert.cpu; });
    const double copy = median(all, [](const Round& r) { return r.copy.wall; });
    const double copy_cpu = median(all, [](const Round& r) { return r.copy.cpu; });
    std::printf("%8d rows  in %8.1f MiB  out %8.1f MiB  cp %8.1f ms\n", rows,
                static_cast<double>(fs::file_size(place.input())) / mebibyte,
                static_cast<double>(fs::file_size(place.output())) / mebibyte, copy * 1e3);
    std::printf("    load %8.1f ms  %5.2f x cp   convert %8.1f ms  %5.2f x cp\n", load * 1e3,
                load / copy, convert * 1e3, convert / copy);
    std::printf("    both %8.1f ms  %5.2f x cp   CPU %5.2f x cp's\n", together * 1e3,
                together / copy, cpu / copy_cpu);
    std::fflush(stdout);
}

// Load and convert again and again, with nothing in between that gives memory back to the system: a
// machine that has to fetch it from its host again makes large files dear for everyone.
void measure_growth(const Workplace& place, int rows) {
    fs::remove(place.copy());
    load_and_convert(place, Under::module);
    std::vector<Round> all;
    for (int i = 0; i < rounds; ++i) all.push_back(load_and_convert(place, Under::module));
    const double cpu = median(all, [](const Round& r) { return r.load.cpu + r.convert.cpu; });
    const double user = median(all, [](const Round& r) { return r.load.user + r.convert.user; });
    std::printf("    without copies in between %6.2f us of CPU a row, %5.2f us of it our own\n",
                cpu * 1e6 / rows, user * 1e6 / rows);
    std::fflush(stdout);
}

// A line of /proc/self/status, in MiB.
double memory_now(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name + ":")) {
            return std::strtod(line.c_str() + name.size() + 1, nullptr) / 1024.0;
        }
    }
    return 0;
}

// What a process of its own does: the peaks of memory, from a start without anything.
void print_memory(const fs::path& home) {
    const double input = static_cast<double>(fs::file_size(home / "data/table.txt")) / mebibyte;
    Road road(home);
    road.up_to_view();
    std::ofstream("/proc/self/clear_refs") << "5";
    road.view();
    const double loaded = memory_now("VmHWM");
    road.up_to_convert(Under::module);
    std::ofstream("/proc/self/clear_refs") << "5";
    const double before = memory_now("VmRSS");
    road.convert();
    std::printf("    memory loaded %8.1f MiB  (allowed %8.1f)   converting adds %6.1f MiB\n",
                loaded, 2 * input + 32, memory_now("VmHWM") - before);
}

void measure_memory(const Workplace& place) {
    run_command({"/proc/self/exe", memory_option, place.home().string()});
}

void measure(const fs::path& folder, int rows) {
    const Workplace place(folder);
    write_sample_table(place.input(), rows, Cells::as_in_life);
    measure_time(place, rows, Under::module);
    write_sample_configuration(place.home(), result_columns);
    std::printf("  under a configuration of %d characteristics:\n", result_columns);
    measure_time(place, rows, Under::configuration);
    measure_growth(place, rows);
    measure_memory(place);
    write_sample_table(place.input(), rows, Cells::plain);
    std::printf("  without cells to rewrite:\n");
    std::fflush(stdout);
    measure_memory(place);
}

}  // namespace
}  // namespace brooklander::bench

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "bench_conversion FOLDER [ROWS...]\n";
        return 2;
    }
    if (argv[1] == std::string_view(brooklander::bench::memory_option) && argc == 3) {
        brooklander::bench::print_memory(argv[2]);
        return 0;
    }
    std::vector<int> sizes;
    for (int i = 2; i < argc; ++i) sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty()) sizes = {1000, 10000, 100000};
    for (const int rows : sizes) brooklander::bench::measure(argv[1], rows);
    return 0;
}
