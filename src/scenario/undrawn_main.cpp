// The scenario player of a machine without windows.

#include "scenario/player.h"

int main(int argc, char** argv) {
    using namespace brooklander::scenario;
    return run_player(argc, argv, no_drawn_front);
}
