#include "loggers/logger_records.h"

#include <gtest/gtest.h>

#include <utility>

#include "loggers/data_logger_results_screen.h"
#include "support/test_screen.h"

namespace brooklander {
namespace {

class LoggerRecords : public testing::Test {
  protected:
    std::string records_of(std::string_view file) {
        load_logger_file(log_, FileText(file));
        BatchUpdateText text(batch_update::logger);
        put_logger_records(log_, text);
        return text.text();
    }

    test::TestScreen test_;
    Grid& log_ = test_.screen.MSFlexTest;
};

TEST_F(LoggerRecords, ATableHasAsManyColumnsAsItsWidestLine) {
    for (const auto& [file, columns] : std::initializer_list<std::pair<const char*, int>>{
             {"", 1}, {"\r\n", 1}, {"a", 1}, {"a\r\nb\tc\td\r\ne\t", 3}, {"a\t\t\t\r\n", 4}}) {
        load_logger_file(log_, FileText(file));
        EXPECT_EQ(log_.columns(), columns) << file;
    }
}

TEST_F(LoggerRecords, ASecondFileLeavesNothingOfTheFirst) {
    load_logger_file(log_, FileText("a\tb\tc\r\nd\te\tf\r\n"));
    load_logger_file(log_, FileText("g\r\n"));
    EXPECT_EQ(log_.rows(), 1);
    EXPECT_EQ(log_.columns(), 1);
    load_logger_file(log_, FileText("h\ti\tj\r\n"));
    EXPECT_EQ(log_.cell(0, 2), "j");
}

TEST_F(LoggerRecords, AShortDateGetsItsZeroAndItsCentury) {
    EXPECT_EQ(records_of("61401\t091530\r\n"), "Record Date,06-14-2001,\r\nResult,091530,\r\n");
    EXPECT_EQ(log_.cell(0, 0), "06-14-2001");
}

TEST_F(LoggerRecords, ALongDateIsTakenFromThePlacesOfAShortOne) {
    EXPECT_EQ(records_of("061401\t091530\r\n"), "Record Date,06-61-2040,\r\nResult,091530,\r\n");
}

TEST_F(LoggerRecords, ATimeGoesThroughOneRuleAfterTheOther) {
    for (const auto& [time, put] :
         std::initializer_list<std::pair<const char*, const char*>>{{"", "000000"},
                                                                    {"0", "000000"},
                                                                    {" ", "000000"},
                                                                    {"930", "930"},
                                                                    {"1015", "001015"},
                                                                    {" 930", "000930"},
                                                                    {" 93 ", "0093"},
                                                                    {"91530", "091530"},
                                                                    {" 915 ", "0915"},
                                                                    {" 9153 ", "9153"},
                                                                    {"0915300", "0915300"}}) {
        EXPECT_EQ(records_of(std::string("x\t") + time), std::string("Result,") + put + ",\r\n")
            << time;
    }
}

TEST_F(LoggerRecords, AChangedTableCanBeGoneThroughAgain) {
    records_of("61401\t1015\t0\r\n");
    BatchUpdateText again(batch_update::logger);
    put_logger_records(log_, again);
    EXPECT_EQ(again.text(), "Result,001015,000000,\r\n");
}

TEST_F(LoggerRecords, ALineMuchWiderThanTheOthersLeavesThemAsTheyAre) {
    const std::string wide(30'000, '\t');
    std::string file = wide + "1\r\n";
    for (int line = 0; line < 1'000; ++line) file += "61401\t1015\r\n";
    EXPECT_EQ(records_of(file).size(), std::string("Result,000000,1,\r\n").size() +
                                           1'000 * std::string("Record Date,06-14-2001,\r\n"
                                                               "Result,001015,\r\n")
                                                       .size());
}

TEST(DataLoggerResults, TheWorkGridHasTwelveColumnsOfWhichTwoAreFixed) {
    test::TestScreen test;
    const FrmDataLoggerResults results(test.desk);
    EXPECT_EQ(results.MSFlexLog.columns(), 12);
    EXPECT_EQ(results.MSFlexLog.fixed_columns(), 2);
}

}  // namespace
}  // namespace brooklander
