#include "scenario/options.h"

#include <getopt.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <iostream>

#include "platform/code_page.h"
#include "platform/files/host_files.h"
#include "scenario/scenario_error.h"

namespace brooklander::scenario {
namespace {

enum Option : int { drawn = 1, shots, home, with, secret, help };

constexpr std::array<option, 7> long_options{{
    {"drawn", no_argument, nullptr, drawn},
    {"shots", required_argument, nullptr, shots},
    {"home", required_argument, nullptr, home},
    {"with", required_argument, nullptr, with},
    {"secret", required_argument, nullptr, secret},
    {"help", no_argument, nullptr, help},
    {nullptr, 0, nullptr, 0},
}};

std::string in_code_page(const std::string& utf8) {
    auto text = from_utf8(utf8);
    if (!text) throw WrongLine("\"" + utf8 + "\" holds a character that the code page lacks.");
    return *std::move(text);
}

void add_variable(Variables& variables, const std::string& assignment) {
    const std::size_t equals = assignment.find('=');
    if (equals == 0 || equals == std::string::npos) {
        throw WrongLine("--with wants NAME=VALUE, not \"" + assignment + "\".");
    }
    variables.insert_or_assign(assignment.substr(0, equals),
                               in_code_page(assignment.substr(equals + 1)));
}

// Switches the terminal's echo off as long as it lives.
class WithoutEcho {
  public:
    WithoutEcho() {
        active_ = isatty(STDIN_FILENO) == 1 && tcgetattr(STDIN_FILENO, &before_) == 0;
        if (!active_) return;
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    WithoutEcho(const WithoutEcho&) = delete;
    WithoutEcho& operator=(const WithoutEcho&) = delete;
    ~WithoutEcho() {
        if (active_) tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
    }

    bool active() const { return active_; }

  private:
    bool active_ = false;
    termios before_{};
};

}  // namespace

Options options_of(int argc, char** argv) {
    Options options;
    options.home = home_folder();
    optind = 1;
    opterr = 0;
    for (int found = 0;
         (found = getopt_long(argc, argv, ":", long_options.data(), nullptr)) != -1;) {
        switch (found) {
            case drawn: options.drawn = true; break;
            case shots: options.shots = optarg; break;
            case home: options.home = optarg; break;
            case with: add_variable(options.variables, optarg); break;
            case secret: options.secrets.emplace_back(optarg); break;
            case help: options.help = true; break;
            case ':': throw WrongLine(std::string(argv[optind - 1]) + " wants a value.");
            default: throw WrongLine(std::string(argv[optind - 1]) + " is no option.");
        }
    }
    for (int i = optind; i < argc; ++i) options.files.emplace_back(argv[i]);
    if (options.files.empty() && !options.help) throw WrongLine("No scenario file is given.");
    return options;
}

std::string usage() {
    return "brooklander-scenario [--drawn] [--shots FOLDER] [--home FOLDER] [--with NAME=VALUE]... "
           "[--secret NAME]... FILE...";
}

std::string ask_for_secret(const std::string& name) {
    const WithoutEcho without_echo;
    if (without_echo.active()) std::cerr << name << ": " << std::flush;
    std::string line;
    const bool read = static_cast<bool>(std::getline(std::cin, line));
    if (without_echo.active()) std::cerr << '\n';
    if (!read) throw WrongLine("No value for --secret " + name + " could be read.");
    if (line.ends_with('\r')) line.pop_back();
    auto value = from_utf8(line);
    if (!value) {
        throw WrongLine("The value for --secret " + name +
                        " holds a character that the code page lacks.");
    }
    return *std::move(value);
}

}  // namespace brooklander::scenario
