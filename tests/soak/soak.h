// Many files, one after the other, in one run of the program.
#pragma once

#include <functional>
#include <random>
#include <string>

#include "support/plain_conversion.h"
#include "support/test_program.h"

namespace brooklander::test {

class Soak {
  public:
    // `act` does something as a step of the program.
    using Act = std::function<void(const std::function<void()>&)>;

    Soak(TestProgram& program, Act act) : program_(program), act_(std::move(act)) {}

    // Logs on.
    void start();

    // Converts one more invented file, holds its load file against the plain conversion, and asks
    // for another file.
    void convert();

  private:
    void view(const std::string& name);
    void choose_columns();

    // A table with an odd cell here and there, as text, and what is to be made of it.
    std::string invent(PlainInputs& inputs);

    TestProgram& program_;
    Act act_;
    std::mt19937 random_{27};
    int number_ = 0;
};

// Converts so many files and compares what the process holds after file 20 with what it holds in
// the end: not a file more, and no more memory than told, in KiB. Wants /proc.
void soak(Soak& soak, int count, long most_growth);

}  // namespace brooklander::test
