// What tests of the file adapter start from.
#pragma once

#include <gtest/gtest.h>

#include "platform/files/host_files.h"
#include "support/failure_of.h"
#include "support/temporary_folder.h"

namespace brooklander::test {

using Names = std::vector<std::string>;

// An empty folder stands for drive `c:`.
class HostFileRules : public testing::Test {
  protected:
    std::string read(std::string_view path) { return std::string(files_.read(path).view()); }

    void write(std::string_view path, std::string_view text) {
        const auto file = files_.create(path);
        file->write(text);
        file->close();
    }

    TemporaryFolder folder_;
    HostFiles files_{folder_.path()};
};

}  // namespace brooklander::test
