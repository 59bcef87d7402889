// The scenario player with windows.

#include "platform/desktop/drawn_front.h"
#include "scenario/player.h"

int main(int argc, char** argv) {
    using namespace brooklander;
    return scenario::run_player(argc, argv, desktop::drawn_front_maker(argv));
}
