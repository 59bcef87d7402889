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
    EXPECT_EQ(grid_.column_width(2), 0);
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
