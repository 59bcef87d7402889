#include "shared/workspace.h"

#include <gtest/gtest.h>

#include "platform/fatal_failure.h"
#include "support/test_screen.h"

namespace brooklander {
namespace {

using Entries = std::vector<std::string>;

class ReferenceListFiles : public testing::Test {
  protected:
    Entries read(std::string_view text, ReferenceItems items) {
        test_.folder.write("list.txt", text);
        test_.screen.lstEntries.set_entries({"from before"});
        read_reference_list(test_.files, "c:\\list.txt", items, test_.screen.lstEntries);
        return test_.screen.lstEntries.entries();
    }

    test::TestScreen test_;
};

TEST_F(ReferenceListFiles, LinesAreTakenAsTheyStand) {
    EXPECT_EQ(read(" Mean , of all\r\n\"Max\"\r\n\r\nMin", ReferenceItems::lines),
              (Entries{" Mean , of all", "\"Max\"", "", "Min"}));
}

TEST_F(ReferenceListFiles, ACommaDividesALineOfItemsUnlessItIsQuoted) {
    EXPECT_EQ(read("Total, Dissolved\r\n\"Total, Dissolved\"\r\n", ReferenceItems::comma_items),
              (Entries{"Total", "Dissolved", "Total, Dissolved"}));
}

TEST_F(ReferenceListFiles, AnEmptyFileGivesAnEmptyList) {
    EXPECT_EQ(read("", ReferenceItems::lines), Entries{});
    EXPECT_EQ(read("", ReferenceItems::comma_items), Entries{});
}

TEST_F(ReferenceListFiles, AMissingFileIsAFailure) {
    EXPECT_THROW(read_reference_list(test_.files, "c:\\none.txt", ReferenceItems::lines,
                                     test_.screen.lstEntries),
                 FatalFailure);
}

TEST_F(ReferenceListFiles, AllFourComeFromTheRoot) {
    test_.folder.write("brooklander/samplefraction.txt", "Total,Dissolved\r\n");
    test_.folder.write("brooklander/statistictype.txt", "Mean,Mode\r\n");
    test_.folder.write("brooklander/duration.txt", "24 Hours\r\n");
    test_.folder.write("brooklander/temperature.txt", "20 Deg C\r\n");
    test::FrmTest& screen = test_.screen;
    test::FrmTest other(test_.desk, "frmOther");
    read_reference_lists(
        test_.files, {screen.lstEntries, screen.cmbEntries, other.lstEntries, other.cmbEntries});
    EXPECT_EQ(screen.lstEntries.entries(), (Entries{"Total", "Dissolved"}));
    EXPECT_EQ(screen.cmbEntries.entries(), (Entries{"Mean,Mode"}));
    EXPECT_EQ(other.lstEntries.entries(), (Entries{"24 Hours"}));
    EXPECT_EQ(other.cmbEntries.entries(), (Entries{"20 Deg C"}));
}

}  // namespace
}  // namespace brooklander
