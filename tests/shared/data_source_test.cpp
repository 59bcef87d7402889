#include "shared/data_source.h"

#include <gtest/gtest.h>

#include "platform/fatal_failure.h"
#include "support/test_program.h"
#include "support/test_screen.h"

namespace brooklander {
namespace {

class DataSourceRules : public testing::Test {
  protected:
    test::TestScreen test_;
    Grid& grid_ = test_.screen.MSHFlexTest;
    DataSource& source_ = test_.screen.AdodcTest;
    test::WatchedDatabase database_;
};

TEST_F(DataSourceRules, RefreshingGivesTheDatabaseTheFourValues) {
    source_.connect("DSN=keldar", "user", "secret");
    source_.set_record_source("Select 1");
    source_.refresh(database_);
    ASSERT_EQ(database_.queries.size(), 1U);
    EXPECT_EQ(database_.queries[0].connection, "DSN=keldar");
    EXPECT_EQ(database_.queries[0].user, "user");
    EXPECT_EQ(database_.queries[0].password, "secret");
    EXPECT_EQ(database_.queries[0].statement, "Select 1");
}

TEST_F(DataSourceRules, ABoundGridShowsTheColumnNamesInItsFixedRow) {
    database_.answer = {{"org_id", "name"}, {{"21ORG   ", "Brook County"}, {"22ORG   ", "Lakes"}}};
    source_.bind(grid_);
    source_.refresh(database_);
    EXPECT_EQ(grid_.rows(), 3);
    EXPECT_EQ(grid_.columns(), 2);
    EXPECT_EQ(grid_.fixed_rows(), 1);
    EXPECT_EQ(grid_.cell(0, 1), "name");
    EXPECT_EQ(grid_.cell(1, 0), "21ORG   ");
    EXPECT_EQ(grid_.cell(2, 1), "Lakes");
    EXPECT_EQ(grid_.current(), (GridCell{1, 0}));
}

TEST_F(DataSourceRules, WithoutDataABoundGridHasOneBlankRow) {
    database_.answer = {{"org_id", "name"}, {}};
    source_.bind(grid_);
    source_.refresh(database_);
    EXPECT_EQ(grid_.rows(), 2);
    EXPECT_EQ(grid_.cell(1, 0), "");
    EXPECT_EQ(grid_.current(), (GridCell{1, 0}));
}

TEST_F(DataSourceRules, ListedColumnsComeFirstAndTheOthersFollowHidden) {
    database_.answer = {{"id_code", "org", "name", "number"}, {{"T1", "21ORG", "Spring", "7"}}};
    source_.bind(grid_, bound::trips);
    source_.refresh(database_);
    EXPECT_EQ(grid_.cell(0, 1), "name");
    EXPECT_EQ(grid_.cell(1, 0), "T1");
    EXPECT_EQ(grid_.cell(1, 1), "Spring");
    EXPECT_EQ(grid_.cell(1, 2), "7");
    EXPECT_EQ(grid_.cell(1, 3), "21ORG");

    database_.answer = {{"org", "id_code", "name"}, {{"21ORG", "ICE", "On ice"}}};
    source_.bind(grid_, bound::sample_transports);
    source_.refresh(database_);
    EXPECT_EQ(grid_.cell(1, 0), "ICE");
    EXPECT_EQ(grid_.cell(1, 2), "21ORG");
    EXPECT_EQ(grid_.column_width(0), Grid::standard_width);
    EXPECT_EQ(grid_.column_width(1), Grid::standard_width);
    EXPECT_EQ(grid_.column_width(2), 0);
}

// The columns of each statement, and the names that its grid must show first.
struct Layout {
    BoundColumns columns;
    std::vector<std::string> statement;
    std::vector<std::string> shown;
};

TEST_F(DataSourceRules, EveryGridShowsTheColumnsThatItsUsersRead) {
    const std::vector<Layout> layouts{
        {bound::trips,
         {"id_code", "tsrtrip_org_id", "name", "tsrtrip_is_number"},
         {"id_code", "name", "tsrtrip_is_number", "tsrtrip_org_id"}},
        {bound::sample_procedures,
         {"tsrfldpr_org_id", "id_code", "name", "tsrfldpr_is_number", "fld_gear_type_name"},
         {"id_code", "name", "fld_gear_type_name"}},
        {bound::gear,
         {"id_code", "type_name", "name", "fld_gear_type_name"},
         {"id_code", "type_name", "name"}},
        {bound::gear_configurations,
         {"tsrgrcfg_org_id", "id_code", "name", "tsrfldgr_is_number", "number", "gear_id_code"},
         {"id_code", "name"}},
        {bound::projects,
         {"tsmproj_is_number", "identification_cd", "name", "tsmproj_org_id"},
         {"identification_cd", "name"}},
        {bound::persons,
         {"tsmpersn_org_id", "last_name", "first_name", "active_indicatr_cd"},
         {"last_name", "first_name"}},
        {bound::sample_transports, {"tsrsdp_org_id", "id_code", "name"}, {"id_code", "name"}},
        {bound::procedures, {"source_acr", "procedure_id", "name"}, {"procedure_id", "name"}},
        {bound::installations,
         {"tsradl_org_id", "id_code", "serial_number", "model", "make"},
         {"id_code", "serial_number", "model", "make"}},
        {bound::log_files,
         {"adl_number", "adl_org", "prd_org", "prd_number", "log_file_name", "prd_adl_number",
          "prd_adl_org", "start_date", "stop_date"},
         {"log_file_name", "start_date", "stop_date"}},
        {bound::logger_groups,
         {"tsrchgrp_org_id", "tsrchgrp_is_number", "id_code", "name", "fld_act_type_nm"},
         {"id_code", "name"}},
        {bound::setup_groups,
         {"tsrchgrp_org_id", "id_code", "name", "fld_act_type_nm"},
         {"id_code", "name"}},
        {bound::group_characteristics,
         {"0", "1", "2", "3", "4", "5", "6", "row_id", "uom_name", "9", "10", "11", "12", "13",
          "14", "15", "16", "17", "display_name"},
         {"row_id", "display_name", "uom_name"}},
        {bound::group_contents,
         {"0", "1", "2", "3", "4", "5", "6", "row_id", "uom_name", "smpl_frac_type_nm", "10", "11",
          "12", "13", "14", "15", "16", "display_name", "18"},
         {"row_id", "display_name", "uom_name", "smpl_frac_type_nm"}},
    };
    for (const Layout& layout : layouts) {
        database_.answer = {layout.statement, {layout.statement}};
        source_.bind(grid_, layout.columns);
        source_.refresh(database_);
        std::vector<std::string> shown;
        for (std::size_t column = 0; column < layout.columns.count; ++column) {
            shown.emplace_back(grid_.cell(grid_.fixed_rows(), static_cast<int>(column)));
        }
        EXPECT_EQ(shown, layout.shown);
    }
}

TEST_F(DataSourceRules, AColumnThatTheAnswerLacksIsEmpty) {
    database_.answer = {{"id_code"}, {{"A"}}};
    source_.bind(grid_, bound::projects);
    source_.refresh(database_);
    EXPECT_EQ(grid_.cell(1, 0), "");
    EXPECT_EQ(grid_.cell(1, 2), "A");
}

TEST_F(DataSourceRules, ABoundPickListOffersOneColumn) {
    database_.answer = {{"org", "name", "id"},
                        {{"21ORG", "North Lab", "LAB1"}, {"21ORG", "", "LAB2"}}};
    PickList& labs = test_.screen.cmbEntries;
    source_.bind(labs, 2);
    source_.refresh(database_);
    EXPECT_EQ(labs.entries(), (std::vector<std::string>{"LAB1", "LAB2"}));
    EXPECT_FALSE(labs.selected());
}

TEST_F(DataSourceRules, AGridWithoutHeadingTakesRowZeroForDataAndHasNoRowWithoutData) {
    database_.answer.columns = {"0",  "1",  "2",  "3",  "4",  "5",  "6",  "row",  "uom", "frac",
                                "10", "11", "12", "13", "14", "15", "16", "name", "18"};
    source_.bind(grid_, bound::group_contents);
    source_.refresh(database_);
    EXPECT_EQ(grid_.rows(), 0);
    database_.answer.rows = {database_.answer.columns};
    source_.refresh(database_);
    EXPECT_EQ(grid_.rows(), 1);
    EXPECT_EQ(grid_.fixed_rows(), 0);
    EXPECT_EQ(grid_.cell(0, 0), "row");
    EXPECT_EQ(grid_.cell(0, 1), "name");
    EXPECT_EQ(grid_.cell(0, 2), "uom");
    EXPECT_EQ(grid_.cell(0, 3), "frac");
    EXPECT_EQ(grid_.current(), (GridCell{0, 0}));
}

TEST_F(DataSourceRules, AFailingStatementIsFatalAndLeavesTheGrid) {
    grid_.add_row("kept");
    source_.bind(grid_);
    database_.refuses = true;
    EXPECT_THROW(source_.refresh(database_), FatalFailure);
    EXPECT_EQ(grid_.cell(0, 0), "kept");
}

}  // namespace
}  // namespace brooklander
