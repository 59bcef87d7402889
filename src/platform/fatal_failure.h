// The one failure that no handler treats.
#pragma once

#include <stdexcept>
#include <string>

namespace brooklander {

// Thrown where the program cannot go on and has no step of its own for the case: a file that
// cannot be opened, a statement that fails, a cell outside its grid. what() is one sentence for a
// person, in UTF-8, that names the thing and the cause.
//
// It passes through handlers untouched; whoever runs the program (the desktop, the scenario
// player) tells it once and ends the program. The few steps that go on after a failure catch it on
// the spot, and nothing else is ever thrown across a handler.
class FatalFailure : public std::runtime_error {
  public:
    explicit FatalFailure(const std::string& sentence) : std::runtime_error(sentence) {}
};

}  // namespace brooklander
