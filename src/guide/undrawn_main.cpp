// The maker of the help on a machine without windows: it takes no pictures.

#include "guide/guide.h"
#include "scenario/scenario_error.h"

int main(int argc, char** argv) {
    using namespace brooklander;
    return guide::run_guide(
        argc, argv, [](const std::filesystem::path& /*shots*/) -> scenario::FrontMaker {
            throw scenario::WrongLine("--drawn needs windows, and this program was built without.");
        });
}
