#include "program.h"

#include "characteristics/wiring.h"
#include "configuration/wiring.h"
#include "conversion/wiring.h"
#include "import/wiring.h"
#include "loggers/wiring.h"
#include "logon/wiring.h"

namespace brooklander {

Program::Program(Platform platform) : platform_(platform), screens_(platform.files) {
    wire_logon(screens_, platform_);
    wire_import(screens_, platform_);
    wire_conversion(screens_, platform_);
    wire_configuration(screens_, platform_);
    wire_characteristics(screens_, platform_);
    wire_loggers(screens_, platform_);
}

void Program::start() { screens_.frmStart.show(); }

}  // namespace brooklander
