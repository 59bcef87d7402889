// What the player is run from, where one system differs from another. Of the two sources beside it
// the build takes the one for its system.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brooklander::scenario {

// Has standard input, output and errors pass the same bytes on every system as long as it lives:
// UTF-8, lines ended by a line feed alone.
class Terminal {
  public:
    Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal() {
        if (restore_) restore_();
    }

  private:
    std::function<void()> restore_;  // takes back what the console was set to
};

// The words of the command line in UTF-8, the program's own name first. `argc` and `argv` are those
// of main().
std::vector<std::string> command_line(int argc, char** argv);

// Reads a line, in UTF-8, without its line feed: from the terminal, behind a question and without
// showing what is typed, or from standard input where there is no terminal. Nothing when there is
// no line.
std::optional<std::string> read_unseen(const std::string& question);

}  // namespace brooklander::scenario
