// The road of one file through the program, step by step, for measuring it.
#pragma once

#include <filesystem>
#include <string>

#include "platform/files/host_files.h"
#include "platform/help.h"
#include "program.h"

namespace brooklander::bench {

// What the table is converted under: a configuration of the import module, or `bench.txt`.
enum class Under { module, configuration };

class Road {
  public:
    // `home` stands for drive `c:`; the table is `c:\data\table.txt`.
    explicit Road(const std::filesystem::path& home);

    void up_to_view();
    void view() { screens().frmStart.cmdView.press(); }
    void up_to_configuration();
    void select_configuration();
    void up_to_convert(Under under);
    void convert() { screens().frmImportFileDisplay.cmdFormatConfirm.press(); }

    Screens& screens() { return program_.screens(); }

  private:
    // Lets everyone in and answers without rows, as the statement for a group that is empty does.
    class OpenDatabase : public Database {
        void try_connect(std::string_view /*connect_string*/) override {}
        QueryResult run(const Query& /*query*/) override { return {{"column"}, {}}; }
    };
    class NoHelp : public Help {
        void show(std::string_view /*path*/) override {}
    };

    HostFiles files_;
    OpenDatabase database_;
    NoHelp help_;
    Program program_{{files_, database_, help_}};
};

}  // namespace brooklander::bench
