// The scenario player of a machine without windows.

#include "scenario/player.h"
#include "scenario/scenario_error.h"

int main(int argc, char** argv) {
    using namespace brooklander::scenario;
    return run_player(argc, argv, [](const std::filesystem::path& /*shots*/) -> FrontMaker {
        throw WrongLine("--drawn needs windows, and this program was built without.");
    });
}
