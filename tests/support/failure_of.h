// The sentence in which something fails.
#pragma once

#include <string>

#include "platform/fatal_failure.h"

namespace brooklander::test {

// The sentence of the FatalFailure that `act` throws; "nothing failed" when it throws none.
template <typename Act>
std::string failure_of(const Act& act) {
    try {
        act();
    } catch (const FatalFailure& failure) {
        return failure.what();
    }
    return "nothing failed";
}

}  // namespace brooklander::test
