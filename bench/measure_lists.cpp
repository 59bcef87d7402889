#include "measure_lists.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

#include "measure.h"
#include "platform/database/odbc_database.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/windows.h"
#include "platform/files/host_files.h"
#include "platform/help.h"
#include "program.h"

namespace brooklander::bench {
namespace {

namespace fs = std::filesystem;

constexpr int entries = 10000;

// One organization; all other lists are long.
class MemoryDatabase : public Database {
  public:
    void try_connect(std::string_view /*connect_string*/) override {}
    QueryResult run(const Query& query) override {
        const bool lists_organizations = query.statement.find("From tsmorgan") != std::string::npos;
        QueryResult result{{"org_id", "id_code", "name", "number", "type"}, {}};
        for (int row = 0; row < (lists_organizations ? 1 : entries); ++row) {
            const std::string number = std::to_string(row);
            result.rows.push_back({"MERES   ", "ID" + number + "    ",
                                   "An entry of the usual length, number " + number, number,
                                   "Water Sampler"});
        }
        return result;
    }
};

// Takes the time of the queries.
class TimedDatabase : public Database {
  public:
    explicit TimedDatabase(Database& database) : database_(database) {}

    void try_connect(std::string_view connect_string) override {
        database_.try_connect(connect_string);
    }
    QueryResult run(const Query& query) override {
        QueryResult result;
        milliseconds += milliseconds_of([&] { result = database_.run(query); });
        return result;
    }

    double milliseconds = 0;

  private:
    Database& database_;
};

class NoHelp : public Help {
    void show(std::string_view /*path*/) override {}
};

// A program whose activity settings are up, an organization chosen, drawn.
class Step {
  public:
    Step(const fs::path& home, Database& database) : files_(home), database_(database) {
        program_.start();
        windows_.settle();
        FrmStart& start = program_.screens().frmStart;
        start.txtOracleID.type("user");
        start.txtOraclePassWord.type("password");
        start.cmdUIDok.press();
        windows_.act([this] { settings().show(); });
        windows_.act([this] { settings().MSHFlexOrganization.click_cell({1, 0}); });
        QApplication::processEvents();
    }

    FrmPreferencesSettings& settings() { return program_.screens().frmPreferencesSettings; }
    FrmPreferencesSamples& samples() { return program_.screens().frmPreferencesSamples; }
    FrmPreferencesSampleOption& options() { return program_.screens().frmPreferencesSampleOption; }

    void tick(TickBox& box) {
        windows_.act([&box] { box.turn_over(); });
    }

    struct Times {
        double whole = 0;
        double queries = 0;
    };

    // Presses a button that fills a list, among others perhaps.
    Times press(Button& button, const Grid& list) {
        QApplication::processEvents();
        database_.milliseconds = 0;
        Times times;
        times.whole = milliseconds_of([&] {
            windows_.act([&button] { button.press(); });
            windows_.foremost()->repaint();
            QApplication::processEvents();
        });
        times.queries = database_.milliseconds;
        if (list.rows() != entries + 1) throw std::runtime_error("a list was not filled");
        return times;
    }

  private:
    HostFiles files_;
    TimedDatabase database_;
    NoHelp help_;
    Program program_{{files_, database_, help_}};
    desktop::Windows windows_{program_.screens(), desktop::lay_out};
};

Step::Times list_procedures(Step& step) {
    step.tick(step.settings().chkSample);
    step.tick(step.settings().chkAir);
    return step.press(step.settings().cmdSave, step.samples().MSHFlexSampleCollection);
}

Step::Times list_projects_and_persons(Step& step) {
    step.tick(step.settings().chkField);
    step.tick(step.settings().chkHabitat);
    return step.press(step.settings().cmdSave, step.options().MSHFlexPerson);
}

Step::Times list_all_options(Step& step) {
    list_procedures(step);
    step.samples().cmdContinue.enable();
    return step.press(step.samples().cmdContinue, step.options().MSHFlexProjects);
}

void measure(const char* what, const fs::path& home, Database& database,
             Step::Times (*list)(Step& step)) {
    Figures whole{};
    Figures queries{};
    Figures more{};
    for (std::size_t round = 0; round < rounds; ++round) {
        Step step(home, database);
        const Step::Times times = list(step);
        whole[round] = times.whole;
        queries[round] = times.queries;
        more[round] = times.whole - times.queries;
    }
    std::printf("%-46s click to the screen %7.1f ms   queries %7.1f ms   more %6.1f ms\n", what,
                median(whole), median(queries), median(more));
    std::fflush(stdout);
}

void measure_all(const fs::path& home, Database& database) {
    measure("    procedures", home, database, list_procedures);
    measure("    projects and persons", home, database, list_projects_and_persons);
    measure("    projects, transports and persons", home, database, list_all_options);
}

// Makes the database and the data source that leads to it; false where that cannot be done.
bool make_sqlite(const fs::path& home) {
    if (std::system("command -v sqlite3 >/dev/null") != 0) return false;
    std::ofstream script(home / "lists.sql");
    const std::string numbers =
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
        "WHERE i < " +
        std::to_string(entries) + ") ";
    const auto table = [&](const std::string& name, const std::string& columns,
                           const std::string& values) {
        script << "CREATE TABLE " << name << " (" << columns << ");\n"
               << "INSERT INTO " << name << ' ' << numbers << "SELECT " << values << " FROM n;\n";
    };
    const std::string text = "'An entry of the usual length, number ' || i";
    script << "CREATE TABLE tsmorgan (org_id, name);\n"
           << "INSERT INTO tsmorgan VALUES ('MERES', 'Meres and Tarns Conservancy');\n"
           << "CREATE TABLE tsrtpa (tsrtrip_is_number, tsmproj_is_number, tsmproj_org_id);\n"
           << "INSERT INTO tsrtpa VALUES ('1', 1, 'MERES');\n"
           << "CREATE TABLE tsrtrip (id_code, tsrtrip_org_id, name, tsrtrip_is_number);\n";
    table("tsrfldpr", "tsrfldpr_org_id, id_code, name, tsrfldpr_is_number, fld_gear_type_name",
          "'MERES', 'ID' || i, " + text + ", i, 'Water Sampler'");
    table("tsmproj", "tsmproj_is_number, identification_cd, name, tsmproj_org_id",
          "i, 'ID' || i, " + text + ", 'MERES'");
    table("tsmpersn", "tsmpersn_org_id, last_name, first_name, active_indicatr_cd",
          "'MERES', 'Roe the ' || i || 'th', 'Richard', 'Y'");
    table("tsrsdp", "tsrsdp_org_id, id_code, name", "'MERES', 'ID' || i, " + text);
    script.close();
    const std::string database = (home / "lists.db").string();
    const std::string command =
        "sqlite3 \"" + database + "\" \".read '" + (home / "lists.sql").string() + "'\"";
    if (std::system(command.c_str()) != 0) return false;
    const fs::path sources = home / "odbc.ini";
    std::ofstream(sources) << "[keldar]\nDriver=SQLite3\nDatabase=" << database
                           << "\nNoCreat=Yes\n";
    return setenv("ODBCINI", sources.c_str(), 1) == 0;
}

}  // namespace

void measure_lists(const fs::path& home) {
    std::printf("lists of %d entries from memory\n", entries);
    MemoryDatabase memory;
    measure_all(home, memory);
    if (!make_sqlite(home)) return;
    std::printf("lists of %d entries from SQLite\n", entries);
    OdbcDatabase sqlite;
    measure_all(home, sqlite);
}

}  // namespace brooklander::bench
