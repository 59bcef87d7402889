#include "configuration/configuration_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "platform/files/host_files.h"
#include "support/failure_of.h"
#include "support/temporary_folder.h"

namespace brooklander {
namespace {

using testing::HasSubstr;

class ConfigurationFile : public testing::Test {
  protected:
    ConfigurationFile() {
        std::filesystem::create_directories(folder_.path() / "brooklander/preferences");
        manager_.txtFileName.set_text("new");
    }

    void read(std::string_view text) {
        read_configuration(text, {.panel = manager_, .medium = &medium_}, holder_);
    }

    std::string written(std::string_view name = "new.txt") {
        const auto file = files_.create("c:\\brooklander\\preferences\\" + std::string(name));
        write_configuration(screens_, *file);
        return saved(name);
    }
    std::string saved(std::string_view name) const {
        return folder_.read(std::filesystem::path("brooklander/preferences") / name);
    }

    // A source for each key that is written, in the order of the file.
    std::vector<Label*> sources() {
        FrmPreferencesSettings& settings = screens_.frmPreferencesSettings;
        FrmPreferencesSamples& samples = screens_.frmPreferencesSamples;
        FrmPreferencesSampleOption& options = screens_.frmPreferencesSampleOption;
        return {&manager_.lblOrganization,
                &settings.lblOrganizationName,
                &settings.lblTrip,
                &manager_.lblActivityType,
                &manager_.lblActivityCategory,
                &manager_.lblMedium,
                &samples.lblSampleCollectionProcedureID,
                &options.lblSampleTransportID,
                &samples.lblFieldGearIDSelected,
                &samples.lblFieldGearID,
                &samples.lblGearConfiguration,
                &options.lblDepthUnits,
                &options.lblSelectedProject,
                &options.lblProjectName,
                &options.lblSelectedName,
                &settings.lblTimeZone};
    }

    // Where the reader puts the values of those keys.
    std::vector<Label*> targets() {
        return {&manager_.lblOrganization,
                &manager_.lblOrganizationName,
                &manager_.lblTrip,
                &manager_.lblActivityType,
                &manager_.lblActivityCategory,
                &manager_.lblMedium,
                &manager_.lblSampleCollectionID,
                &manager_.lblSampleTransport,
                &manager_.lblFieldGearID,
                &manager_.lblGearType,
                &manager_.lblGearConfiguration,
                &manager_.lblDepthUnits,
                &manager_.lblProjectID,
                &manager_.lblProjectName,
                &manager_.lblPerson,
                &manager_.lblTimeZone};
    }

    void fill_sources() {
        int number = 1;
        for (Label* source : sources()) source->set_text("v" + std::to_string(number++));
    }

    void set_projects(std::string_view id, std::string_view name, std::string_view second_id,
                      std::string_view second_name) {
        FrmPreferencesSampleOption& options = screens_.frmPreferencesSampleOption;
        options.lblSelectedProject.set_text(id);
        options.lblProjectName.set_text(name);
        options.lblSelectedProjectTwo.set_text(second_id);
        options.lblProjectNameTwo.set_text(second_name);
    }

    test::TemporaryFolder folder_;
    HostFiles files_{folder_.path()};
    Screens screens_{files_};
    FrmPreferences& manager_ = screens_.frmPreferences;
    FrmPreferencesCharacteristics& holder_ = screens_.frmPreferencesCharacteristics;
    Label& medium_ = screens_.frmImportFileDisplay.lblMedium;
};

TEST_F(ConfigurationFile, EveryValueHasItsLineInTheirOrder) {
    fill_sources();
    EXPECT_EQ(written(),
              "organization       =v1\r\n"
              "organizationname   =v2\r\n"
              "trip               =v3\r\n"
              "activitytype       =v4\r\n"
              "activitycategory   =v5\r\n"
              "medium             =v6\r\n"
              "samplecollectionid =v7\r\n"
              "sampletransport    =v8\r\n"
              "fieldgearid        =v9\r\n"
              "geartype           =v10\r\n"
              "gearconfiguration  =v11\r\n"
              "depthunit          =v12\r\n"
              "projectid          =v13\r\n"
              "projectname        =v14\r\n"
              "person             =v15\r\n"
              "timezone           =v16\r\n");
}

TEST_F(ConfigurationFile, AnEmptyValueHasNoLine) {
    set_projects("P1", "Lakes", "", "");
    EXPECT_EQ(written(), "projectid          =P1\r\nprojectname        =Lakes\r\n");
}

TEST_F(ConfigurationFile, AValueOfBlanksHasItsLine) {
    set_projects("P1", "Lakes", "", "");
    manager_.lblMedium.set_text(" ");
    EXPECT_THAT(written(), HasSubstr("medium             = \r\n"));
}

TEST_F(ConfigurationFile, AFieldActivityHasNoLinesOfASample) {
    fill_sources();
    screens_.frmPreferencesSettings.chkField.set_ticked(true);
    fill_sources();
    const std::string text = written();
    for (const char* key : {"samplecollectionid", "sampletransport", "fieldgearid", "geartype",
                            "gearconfiguration"}) {
        EXPECT_EQ(text.find(key), std::string::npos) << key;
    }
    EXPECT_THAT(text, HasSubstr("depthunit          =v12\r\nprojectid          =v13\r\n"));
}

TEST_F(ConfigurationFile, TwoProjectsStandInOneValue) {
    set_projects("P1", "Lakes", "P2", "Rivers");
    EXPECT_EQ(written(), "projectid          =P1/P2\r\nprojectname        =Lakes/Rivers\r\n");
}

TEST_F(ConfigurationFile, ASecondProjectAloneHasANameAndNoId) {
    set_projects("", "", "P2", "Rivers");
    EXPECT_EQ(written(), "projectname        =Rivers\r\n");
}

TEST_F(ConfigurationFile, WithoutAProjectTheFileStaysHalfWritten) {
    fill_sources();
    set_projects("", "", "", "");
    EXPECT_THAT(test::failure_of([&] { written(); }), HasSubstr("no project"));
    EXPECT_THAT(saved("new.txt"), testing::EndsWith("depthunit          =v12\r\n"));
}

TEST_F(ConfigurationFile, ItReplacesWhatTheFileHeld) {
    folder_.write("brooklander/preferences/new.txt", std::string(10'000, 'x'));
    set_projects("P1", "", "", "");
    EXPECT_EQ(written(), "projectid          =P1\r\n");
}

TEST_F(ConfigurationFile, ASelectedFileKeepsItsWholeName) {
    manager_.txtFileName.clear_text();
    manager_.lblSelectedFile.set_text("Lake.cfg");
    EXPECT_EQ(configuration_name(manager_), "Lake.cfg");
}

TEST_F(ConfigurationFile, ATypedNameGetsItsEndingWhateverIsSelected) {
    manager_.txtFileName.set_text("lake.txt ");
    manager_.lblSelectedFile.set_text("Lake.cfg");
    EXPECT_EQ(configuration_name(manager_), "lake.txt .txt");
    manager_.txtFileName.clear_text();
    manager_.lblSelectedFile.clear_text();
    EXPECT_EQ(configuration_name(manager_), ".txt");
}

TEST_F(ConfigurationFile, AValueIsTakenFromPositionTwentyOneOn) {
    read("medium             :Water\r\n");
    EXPECT_EQ(manager_.lblMedium.text(), "Water");
    EXPECT_EQ(medium_.text(), "Water");
}

TEST_F(ConfigurationFile, AValueIsCutAtFiftyBytes) {
    const std::string fifty(50, 'x');
    read("person             =" + fifty + "\r\nprojectname        =" + fifty + "y\r\n");
    EXPECT_EQ(manager_.lblPerson.text(), fifty);
    EXPECT_EQ(manager_.lblProjectName.text(), fifty);
}

TEST_F(ConfigurationFile, AValueIsCutAtItsFirstComma) {
    read("organizationname   =Brook, County Laboratory\r\nmedium             =Air\r\n");
    EXPECT_EQ(manager_.lblOrganizationName.text(), "Brook");
    EXPECT_EQ(manager_.lblMedium.text(), "Air");
}

TEST_F(ConfigurationFile, AKeyBehindACommaCounts) {
    read("nothing,  medium             =Soil");
    EXPECT_EQ(manager_.lblMedium.text(), "Soil");
}

TEST_F(ConfigurationFile, OnlyTheOrganizationIsTrimmed) {
    read("organization       =  21ORG  \r\nperson             =  Doe Jane \r\n");
    EXPECT_EQ(manager_.lblOrganization.text(), "21ORG");
    EXPECT_EQ(manager_.lblPerson.text(), "  Doe Jane ");
}

TEST_F(ConfigurationFile, AKeyOfAnotherCaseOrPlaceIsNoKey) {
    read("Medium             =Air\r\nmedium=Soil\r\nxmedium            =Water\r\n");
    EXPECT_EQ(manager_.lblMedium.text(), "");
}

TEST_F(ConfigurationFile, TheLastOfTwoLinesWins) {
    read("medium             =Air\r\nmedium             =Soil\r\n");
    EXPECT_EQ(manager_.lblMedium.text(), "Soil");
}

TEST_F(ConfigurationFile, AKeyWithNothingBehindItEmptiesItsLabel) {
    manager_.lblMedium.set_text("Water");
    read("medium");
    EXPECT_EQ(manager_.lblMedium.text(), "");
}

TEST_F(ConfigurationFile, TheHabitatDefinitionGoesByWayOfTheHolder) {
    read("habitatdefinition  =U\r\nmedium             =Water\r\n");
    EXPECT_EQ(holder_.lblChar.text(), "U");
    EXPECT_EQ(manager_.lblChar.text(), "U");
}

TEST_F(ConfigurationFile, WithEveryItemTheHoldersValueIsShown) {
    holder_.lblChar.set_text("S");
    read("");
    EXPECT_EQ(manager_.lblChar.text(), "");
    read("any item");
    EXPECT_EQ(manager_.lblChar.text(), "S");
}

TEST_F(ConfigurationFile, ClearingLeavesTheActivityTypeAndTheDepthUnit) {
    for (Label* target : targets()) target->set_text("before");
    manager_.lblViewFileName.set_text("before");
    manager_.lblChar.set_text("before");
    clear_values(manager_);
    for (const Label* target : targets()) {
        const bool stays = target == &manager_.lblActivityType || target == &manager_.lblDepthUnits;
        EXPECT_EQ(target->text(), stays ? "before" : "") << target->name();
    }
    EXPECT_EQ(manager_.lblViewFileName.text(), "");
    EXPECT_EQ(manager_.lblChar.text(), "");
}

TEST_F(ConfigurationFile, OneItemTooManyIsAFailureBehindThoseBeforeIt) {
    const std::string text = "medium             =Air\r\nsecond\r\nthird\r\n";
    EXPECT_THAT(test::failure_of([&] {
                    read_configuration(text, {.panel = manager_, .most_items = 2}, holder_);
                }),
                HasSubstr("more than 2"));
    EXPECT_EQ(manager_.lblMedium.text(), "Air");
    read_configuration(text, {.panel = manager_, .most_items = 3}, holder_);
}

// Any configuration comes back as its first fifty bytes up to a comma, the organization trimmed.
TEST_F(ConfigurationFile, WhatIsWrittenIsReadAsFarAsItIsKept) {
    std::mt19937 random(7);
    const auto below = [&](std::size_t end) { return random() % end; };
    const std::vector<Label*> all_sources = sources();
    const std::vector<Label*> all_targets = targets();
    for (int round = 0; round < 400; ++round) {
        std::vector<std::string> values;
        for (Label* source : all_sources) {
            std::string value(below(60), ' ');
            for (char& byte : value) {
                do {
                    byte = static_cast<char>(below(256));
                } while (byte == '\r' || byte == '"');  // a quote behind a comma opens an item
                if (below(5) == 0) byte = ' ';
            }
            values.push_back(value);
            source->set_text(value);
        }
        if (values[12].empty()) {
            values[12] = "P";
            screens_.frmPreferencesSampleOption.lblSelectedProject.set_text("P");
        }
        const std::string text = written();
        for (Label* target : all_targets) target->clear_text();
        read(text);
        for (std::size_t key = 0; key < values.size(); ++key) {
            std::string expected = values[key].substr(0, values[key].find(',')).substr(0, 50);
            if (key == 0) expected = trim(expected);
            ASSERT_EQ(all_targets[key]->text(), expected) << round << " " << key;
        }
    }
}

}  // namespace
}  // namespace brooklander
