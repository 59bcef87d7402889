#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <iostream>

#include "platform/files/host_system.h"
#include "scenario/terminal.h"

namespace brooklander::scenario {
namespace {

// A console that is typed into, if standard input is one, with its echo off as long as it lives.
class SilentConsole {
  public:
    SilentConsole() {
        active_ = GetConsoleMode(input_, &before_) != 0;
        if (active_) SetConsoleMode(input_, ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT);
    }
    SilentConsole(const SilentConsole&) = delete;
    SilentConsole& operator=(const SilentConsole&) = delete;
    ~SilentConsole() {
        if (active_) SetConsoleMode(input_, before_);
    }

    bool active() const { return active_; }

    // A typed line, which the console hands over in pieces when it is long. Its bytes would be
    // those of the console's own code page, so that it is read as it was typed.
    std::optional<std::string> read_line() const {
        constexpr wchar_t end_of_input = 0x1A;  // Ctrl+Z
        std::wstring line;
        while (line.empty() || line.back() != L'\n') {
            wchar_t piece[256];
            DWORD read = 0;
            if (ReadConsoleW(input_, piece, std::size(piece), &read, nullptr) == 0) return {};
            if (read == 0 || (line.empty() && piece[0] == end_of_input)) return {};
            line.append(piece, read);
        }
        line.pop_back();
        return host_system::utf8_of(line);
    }

  private:
    HANDLE input_ = GetStdHandle(STD_INPUT_HANDLE);
    bool active_ = false;
    DWORD before_ = 0;
};

}  // namespace

Terminal::Terminal() {
    for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    const UINT before = GetConsoleOutputCP();
    if (before == 0) return;
    SetConsoleOutputCP(CP_UTF8);
    restore_ = [before] { SetConsoleOutputCP(before); };
}

// main() gets the command line in the machine's own code page.
std::vector<std::string> command_line(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> words;
    for (int word = 0; word < count; ++word) words.push_back(host_system::utf8_of(wide[word]));
    LocalFree(wide);
    return words;
}

std::optional<std::string> read_unseen(const std::string& question) {
    const SilentConsole console;
    if (console.active()) {
        std::cerr << question << std::flush;
        auto line = console.read_line();
        std::cerr << '\n';
        return line;
    }
    std::string line;
    return std::getline(std::cin, line) ? std::optional(std::move(line)) : std::nullopt;
}

}  // namespace brooklander::scenario
