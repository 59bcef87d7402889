// A program on a folder of its own, with a database and a help viewer that tests can watch.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"
#include "program.h"
#include "support/temporary_folder.h"

namespace brooklander::test {

class WatchedDatabase : public Database {
  public:
    void try_connect(std::string_view connect_string) override {
        connect_strings.emplace_back(connect_string);
        if (refuses) throw FatalFailure("The database refuses.");
    }
    QueryResult run(const Query& query) override {
        queries.push_back(query);
        if (refuses) throw FatalFailure("The database refuses.");
        return answers ? answers(query) : answer;
    }

    bool refuses = false;
    QueryResult answer{{"org_id", "name"}, {}};        // every answer has columns
    std::function<QueryResult(const Query&)> answers;  // where one for all does not do
    std::vector<std::string> connect_strings;
    std::vector<Query> queries;
};

class WatchedHelp : public Help {
  public:
    void show(std::string_view path) override { shown.emplace_back(path); }

    std::vector<std::string> shown;
};

// Files of the host, of which single writes of output files can be made to fail.
class FaultyFiles : public HostFiles {
  public:
    using HostFiles::HostFiles;

    std::unique_ptr<OutputFile> append(std::string_view path) override {
        return std::make_unique<FaultyOutput>(HostFiles::append(path), *this);
    }

    std::vector<int> failing_writes;  // counted from 1 over all files
    int writes = 0;

  private:
    class FaultyOutput : public OutputFile {
      public:
        FaultyOutput(std::unique_ptr<OutputFile> file, FaultyFiles& files)
            : file_(std::move(file)), files_(files) {}

        void write(std::string_view bytes) override {
            ++files_.writes;
            for (const int failing : files_.failing_writes) {
                if (failing != files_.writes) continue;
                file_->write(bytes.substr(0, bytes.size() / 2));
                throw FatalFailure("The disk is full.");
            }
            file_->write(bytes);
        }
        void cut_back(std::uint64_t bytes) override { file_->cut_back(bytes); }
        void close() override { file_->close(); }

      private:
        std::unique_ptr<OutputFile> file_;
        FaultyFiles& files_;
    };
};

struct TestProgram {
    TestProgram() { std::filesystem::create_directories(folder.path() / "brooklander"); }

    Screens& screens() { return program.screens(); }
    FrmStart& start_screen() { return screens().frmStart; }
    FrmImportFileDisplay& import_screen() { return screens().frmImportFileDisplay; }
    Grid& table() { return import_screen().MSFlexKeldarIN; }

    // From the start to the loaded table, a file `data/table.txt` of this text.
    void view(std::string_view table_text) {
        folder.write("data/table.txt", table_text);
        program.start();
        start_screen().txtOracleID.type("user");
        start_screen().txtOraclePassWord.type("secret");
        start_screen().cmdUIDok.press();
        start_screen().mnuImport.choose();
        select(start_screen().Dir1, "data");
        select(start_screen().lstImportFileBox, "table.txt");
        start_screen().cmdView.press();
    }

    // From the loaded table to the columns, under a configuration of the import module or, without
    // `vox`, under whatever stands in the fields of frmPreferences.
    void go_to_columns(bool vox = true) {
        import_screen().cmdYes.press();
        if (vox) {
            screens().frmPreferences.optVox.choose();
        } else {
            screens().frmPreferences.hide();
            import_screen().show();
        }
        import_screen().cmdSave.press();
        import_screen().cmdActivitySkip.press();
    }

    void assign(Button& category, int column) {
        category.press();
        table().click_cell({0, column});
    }

    // The least that a table of station, date and results needs.
    void assign_station_date_and_results() {
        assign(import_screen().cmdStation, 0);
        assign(import_screen().cmdDate, 1);
        assign(import_screen().cmdResults, 2);
    }

    // From the columns to the converted file.
    void convert(int first_row) {
        import_screen().cmdContinue.press();
        table().click_cell({first_row, 0});
        import_screen().cmdRowContinue.press();
        import_screen().cmdFormatConfirm.press();
    }

    std::string output() const { return folder.read("brooklander/voxoutfiles/table.txt"); }

    static void select(EntryList& list, std::string_view entry) {
        list.click_entry(list.find(entry).value());
    }

    TemporaryFolder folder;
    FaultyFiles files{folder.path()};
    WatchedDatabase database;
    WatchedHelp help;
    Program program{{files, database, help}};
};

}  // namespace brooklander::test
