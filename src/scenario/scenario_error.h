// What is wrong with a scenario, or what in it did not hold.
#pragma once

#include <stdexcept>
#include <string>

namespace brooklander::scenario {

// A line that is no command. The message is one sentence, in UTF-8, without the line's place.
class WrongLine : public std::runtime_error {
  public:
    explicit WrongLine(const std::string& sentence) : std::runtime_error(sentence) {}
};

// A command that could not be done, or an expectation that does not hold; the rest of the file is
// passed over.
class Unmet : public std::runtime_error {
  public:
    explicit Unmet(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace brooklander::scenario
