// The machine as the logic sees it.
#pragma once

#include "platform/database.h"
#include "platform/files.h"
#include "platform/help.h"

namespace brooklander {

struct Platform {
    Files& files;
    Database& database;
    Help& help;
};

}  // namespace brooklander
