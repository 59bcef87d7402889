// The maker of the help on a machine without windows: it takes no pictures.

#include "guide/guide.h"

int main(int argc, char** argv) {
    using namespace brooklander;
    return guide::run_guide(argc, argv, scenario::no_drawn_front);
}
