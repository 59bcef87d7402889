#include "failures/roads.h"

#include "characteristics/defaults_layout.h"
#include "failures/user_acts.h"
#include "loggers/logger_selection.h"
#include "shared/tab_stops.h"

namespace brooklander::test {
namespace {

namespace fs = std::filesystem;

// An answer that serves every statement: three rows, each value its own.
QueryResult some_rows() {
    QueryResult answer;
    for (int column = 0; column < 8; ++column)
        answer.columns.push_back("C" + std::to_string(column));
    for (int row = 0; row < 3; ++row) {
        std::vector<std::string>& values = answer.rows.emplace_back();
        for (int column = 0; column < 8; ++column) {
            values.push_back("R" + std::to_string(row) + "C" + std::to_string(column));
        }
    }
    return answer;
}

// What an installation has laid down, and files that no road has to do with.
void lay_down(const TemporaryFolder& home) {
    for (const char* const list :
         {"samplefraction.txt", "statistictype.txt", "duration.txt", "temperature.txt"}) {
        home.write(fs::path("brooklander") / list, "Total\r\nDissolved\r\n");
    }
    home.write("brooklander/preferences/meres.txt", "organization       =MERES\r\n");
    home.write("data/notes.dat", std::string("\0\xFF\n\r of nobody", 14));
}

// A table whose load file has several blocks, and lines that go out by themselves.
std::string long_table() {
    const std::string comment(58000, 'c');
    std::string text = "Station\tDate\tComment\tpH\tOxygen\r\n";
    for (int row = 1; row <= 12; ++row) {
        text += "LL-" + std::to_string(row) + "\t05/04/2021\t" + comment +
                (row == 11 ? std::string(12000, 'd') : "") + "\t7.2\t<9.8\r\n";
    }
    return text;
}

std::string short_table() {
    std::string text = "Station\tDate\tComment\tSecchi\tOxygen\r\n";
    for (int row = 0; row < 8; ++row) text += "LL-1\t05/04/2021\t\t4.1\t9.8\r\n";
    return text;
}

std::string configuration_text() {
    return "organization       =MERES\r\nactivitytype       =Sample\r\n"
           "activitycategory   =Routine Sample\r\nmedium             =Water\r\n"
           "samplecollectionid =DIP\r\nprojectid          =REEDS\r\n"
           "projectname        =Reed beds\r\ntimezone           =EST\r\n";
}

std::string characteristics_text() {
    TabStopWriter writer;
    for (const std::string_view name : {"pH", "Oxygen, dissolved"}) {
        for (const auto& field : defaults_fields) {
            writer.tab_to(field.stop);
            writer.put(&field == &defaults_fields.front() ? name : "x");
        }
        writer.end_line();
    }
    return writer.text();
}

void log_on(RoadProgram& road) {
    road.database.answer = some_rows();
    road.program.start();
    FrmStart& start = road.program.screens().frmStart;
    type(start.txtOracleID, "jdoe");
    type(start.txtOraclePassWord, "secret");
    click(start.cmdUIDok);
}

void view_table(RoadProgram& road, std::string_view name) {
    FrmStart& start = road.program.screens().frmStart;
    click(start.mnuImport);
    pick(start.Dir1, "data");
    pick(start.lstImportFileBox, name);
    click(start.cmdView);
    click(road.program.screens().frmImportFileDisplay.cmdYes);
}

void convert(FrmImportFileDisplay& display) {
    click(display.cmdSave);
    click(display.cmdActivitySkip);
    const auto assign = [&](Button& category, int column) {
        click(category);
        click(display.MSFlexKeldarIN, {0, column});
    };
    assign(display.cmdStation, 0);
    assign(display.cmdDate, 1);
    assign(display.cmdComments, 2);
    assign(display.cmdResults, 3);
    click(display.cmdContinue);
    click(display.MSFlexKeldarIN, {1, 0});
    click(display.cmdRowContinue);
    click(display.cmdFormatConfirm);
    need(display.optAnotherFile);
}

void go_home(FrmImportFileDisplay& display) {
    click(display.optQuit);
    click(display.cmdConfirm);
}

// A name that is there already, as a run that has failed may leave it, is replaced.
void name_configuration(FrmPreferences& preferences) {
    click(preferences.optBrooklanderNew);
    type(preferences.txtFileName, "survey");
    click(preferences.cmdNewFileSave);
    if (!preferences.frameFileExistsWarning.seen()) return;
    click(preferences.cmdReplaceYes);
    click(preferences.cmdYes);
}

void choose_settings(FrmPreferencesSettings& settings) {
    click(settings.MSHFlexOrganization, {1, 0});
    click(settings.chkSample);
    click(settings.chkWater);
    pick_first(settings.lstTimeZone);
    click(settings.cmdSave);
}

void choose_sample(FrmPreferencesSamples& samples) {
    click(samples.MSHFlexSampleCollection, {1, 0});
    click(samples.MSHFlexGear, {1, 0});
    click(samples.MSHFlexGearConfiguration, {1, 0});
    click(samples.cmdContinue);
}

void translate(FrmCharacteristics& translation) {
    for (const int row : {0, 1}) {
        click(translation.MSFlexChar, {row, 0});
        click(translation.cmdDisplay);
        pick_first(translation.cmbCharacteristics);
        click(translation.cmdChange);
        click(translation.cmdYes);
    }
    click(translation.cmdNext);
}

void save_details(FrmCharacteristicDetails& details) {
    click(details.chkFraction);
    pick_first(details.cmbFraction);
    click(details.cmdFractionAll);
    click(details.cmdSave);
    click(details.cmdYes);
}

void make_configuration(RoadProgram& road) {
    Screens& screens = road.program.screens();
    click(screens.frmStart.mnuPreferences);
    name_configuration(screens.frmPreferences);
    choose_settings(screens.frmPreferencesSettings);
    choose_sample(screens.frmPreferencesSamples);
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    click(options.chkMeters);
    click(options.MSHFlexProjects, {1, 0});
    click(options.cmdNext);

    pick(screens.frmCharSource.Dir1, "c:\\");
    pick(screens.frmCharSource.Dir1, "data");
    pick(screens.frmCharSource.lstImportFileBox, "lake.txt");
    click(screens.frmCharSource.cmdView);
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    click(display.cmdCharYes);
    click(display.MSFlexKeldarIN, {0, 3});
    click(display.cmdCharContinue);
    translate(screens.frmCharacteristics);
    save_details(screens.frmCharacteristicDetails);
}

void edit_configuration(RoadProgram& road) {
    Screens& screens = road.program.screens();
    FrmPreferences& preferences = screens.frmPreferences;
    click(screens.frmStart.mnuPreferences);
    click(preferences.optBrookLanderEdit);
    pick(preferences.filePreferences, "survey.txt");
    click(preferences.cmdOpen);
    click(screens.frmPreferencesSettings.cmdSave);
    click(screens.frmPreferencesSamples.cmdKeep);
    if (!screens.frmPreferencesSampleOption.chkFeet.ticked()) {
        click(screens.frmPreferencesSampleOption.chkFeet);
    }
    click(screens.frmPreferencesSampleOption.cmdNext);
    save_details(screens.frmCharacteristicDetails);
}

// What a run before has deleted already is left out.
void delete_files(RoadProgram& road) {
    Screens& screens = road.program.screens();
    FrmPreferences& preferences = screens.frmPreferences;
    click(screens.frmStart.mnuPreferences);
    click(preferences.optBrookLanderEdit);
    if (preferences.filePreferences.find("survey.txt")) {
        pick(preferences.filePreferences, "survey.txt");
        click(preferences.cmdDelete);
        click(preferences.cmdFileDeleteYes);
    }
    click(preferences.mnuExit);

    // The panel of the old outputs is one that no step brings up before the conversion.
    view_table(road, "lake.txt");
    click(preferences.optVox);
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.frameOutputFile.show();
    if (const auto old = display.fileConvertedFiles.find("old.txt")) {
        display.fileConvertedFiles.click_entry(*old);
        display.cmdExistingFileDelete.press();
        display.cmdKillYes.press();
    }
    type(display.txtSave, road_files::load_file);
    convert(display);
    go_home(display);
}

void take_first_logger_path(RoadProgram& road) {
    Screens& screens = road.program.screens();
    log_on(road);
    click(screens.frmStart.mnuImport);
    pick(screens.frmStart.Dir1, "data");
    pick(screens.frmStart.lstImportFileBox, "buoy.txt");
    open_logger_file(screens, road.files);  // no step of the start screen leads there
    FrmLogger& logger = screens.frmLogger;
    click(logger.cmdYes);
    click(logger.MSHFlexOrganization, {1, 0});
    click(logger.MSHFlexADL, {1, 0});
    click(logger.MSHFlexLogFile, {1, 0});
    click(logger.cmdContinue);
    click(screens.frmLoggerResults.MSHFlexCharGroup, {1, 0});
    click(screens.frmLoggerResults.cmdConvert);
    click(screens.frmLoggerResults.chkNo);
    click(screens.frmLoggerResults.cmdContinue);
}

void take_second_logger_path(RoadProgram& road) {
    Screens& screens = road.program.screens();
    log_on(road);
    screens.frmStart.mnuLogger.choose();  // an entry that no user sees
    FrmDataLogger& logger = screens.frmDataLogger;
    click(logger.MSHFlexOrganization, {1, 0});
    click(logger.cmdLoggerNext);
    type(logger.txtInstallationID, "BUOY");
    type(logger.txtOperatingPeriod, "SPRING");
    click(logger.cmdCharContinue);
    click(logger.MSHFlexGroups, {1, 0});
    click(logger.cmdConvertContinue);
    FrmDataLoggerResults& results = screens.frmDataLoggerResults;
    pick(results.dirLoggerFile, "c:\\");
    pick(results.dirLoggerFile, "data");
    pick(results.fileLogger, "buoy.txt");
    click(results.cmdView);
    click(results.cmdConvert);
    click(results.cmdEnterMoreDataNo);
}

void enter_portable_results(RoadProgram& road) {
    road.program.start();
    FrmPortableDataLogger& portable = road.program.screens().frmPortableDataLogger;
    portable.show();  // stands by itself
    type(portable.txtLines, "2");
    click(portable.cmdContinue);
    click(portable.cmdLinesContinue);
    click(portable.cmdSave);
    need(portable.chkDataNo);
}

void lay_down_logger_table(const TemporaryFolder& home) {
    lay_down(home);
    home.write("data/buoy.txt", "61401\t0930\t7.1\r\n61501\t0945\t7.3\r\n");
}

}  // namespace

Road conversion_without_configuration() {
    const auto prepare = [](const TemporaryFolder& home) {
        lay_down(home);
        home.write("data/lake.txt", long_table());
        home.write("brooklander/voxoutfiles/lake.txt", "of an older run\r\n");
    };
    return {"conversion without a configuration", prepare, [](RoadProgram& road) {
                log_on(road);
                view_table(road, "lake.txt");
                click(road.program.screens().frmPreferences.optVox);
                convert(road.program.screens().frmImportFileDisplay);
                go_home(road.program.screens().frmImportFileDisplay);
            }};
}

Road conversion_with_configuration() {
    const auto prepare = [](const TemporaryFolder& home) {
        lay_down(home);
        home.write("data/lake.txt", long_table());
        home.write("brooklander/preferences/survey.txt", configuration_text());
        home.write("brooklander/characteristics/survey.txt", characteristics_text());
        home.write("brooklander/person/survey.txt", "Doe Jane\r\n");
    };
    return {"conversion with a configuration", prepare, [](RoadProgram& road) {
                log_on(road);
                view_table(road, "lake.txt");
                Screens& screens = road.program.screens();
                FrmPreferences& preferences = screens.frmPreferences;
                click(preferences.optUseConfig);
                pick(preferences.filePreferences, "survey.txt");
                click(preferences.chkYes);
                click(preferences.cmdConfirm);
                click(screens.frmImportFileDisplay.cmdDetails);
                click(screens.frmConfigurationDisplay.cmdReturn);
                convert(screens.frmImportFileDisplay);
                go_home(screens.frmImportFileDisplay);
            }};
}

Road making_a_configuration() {
    const auto prepare = [](const TemporaryFolder& home) {
        lay_down(home);
        home.write("data/lake.txt", short_table());
    };
    return {"making a configuration", prepare, [](RoadProgram& road) {
                log_on(road);
                make_configuration(road);
            }};
}

Road editing_a_configuration() {
    const auto prepare = [](const TemporaryFolder& home) {
        lay_down(home);
        home.write("brooklander/preferences/survey.txt", configuration_text());
        home.write("brooklander/voxconfiguration/survey.txt", "the notice of a former edit\r\n");
        home.write("brooklander/characteristics/survey.txt", characteristics_text());
    };
    return {"editing a configuration", prepare, [](RoadProgram& road) {
                log_on(road);
                edit_configuration(road);
            }};
}

Road managing_files() {
    const auto prepare = [](const TemporaryFolder& home) {
        lay_down(home);
        home.write("data/lake.txt", short_table());
        home.write("brooklander/preferences/survey.txt", configuration_text());
        home.write("brooklander/characteristics/survey.txt", characteristics_text());
        home.write("brooklander/voxoutfiles/old.txt", "of an older run\r\n");
    };
    return {"managing files", prepare, [](RoadProgram& road) {
                log_on(road);
                delete_files(road);
            }};
}

Road first_logger_path() {
    return {"first logger path", lay_down_logger_table, take_first_logger_path};
}

Road second_logger_path() {
    return {"second logger path", lay_down_logger_table, take_second_logger_path};
}

Road portable_entry() { return {"portable entry", lay_down, enter_portable_results}; }

}  // namespace brooklander::test
