// The maker of the help, with windows to take pictures of.

#include "guide/guide.h"
#include "platform/desktop/drawn_front.h"

int main(int argc, char** argv) {
    using namespace brooklander;
    return guide::run_guide(argc, argv, desktop::drawn_front_maker(argv));
}
