#include "loggers/wiring.h"

namespace brooklander {

void wire_loggers(Screens& screens) {
    FrmDataLogger& logger = screens.frmDataLogger;
    logger.AdodcOrganization.bind(logger.MSHFlexOrganization);
}

}  // namespace brooklander
