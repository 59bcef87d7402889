#include <termios.h>
#include <unistd.h>

#include <iostream>

#include "scenario/terminal.h"

namespace brooklander::scenario {
namespace {

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

// Bytes pass as they are.
Terminal::Terminal() = default;

std::vector<std::string> command_line(int argc, char** argv) { return {argv, argv + argc}; }

std::optional<std::string> read_unseen(const std::string& question) {
    const WithoutEcho without_echo;
    if (without_echo.active()) std::cerr << question << std::flush;
    std::string line;
    const bool read = static_cast<bool>(std::getline(std::cin, line));
    if (without_echo.active()) std::cerr << '\n';
    return read ? std::optional(std::move(line)) : std::nullopt;
}

}  // namespace brooklander::scenario
