#include "conversion/batch_update.h"

#include <gtest/gtest.h>

#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"
#include "support/temporary_folder.h"

namespace brooklander {
namespace {

std::string heading(const BatchUpdateForm& form) {
    BatchUpdateText text(form);
    text.put_heading(" LAKES ", "ADL-1  ", "LOG0601");
    text.put_group("TEMP-DO ");
    text.begin_rows();
    text.put_value("R1");
    text.put_value("R2");
    text.end_line();
    text.put_end();
    return text.text();
}

TEST(BatchUpdate, TheFirstPathHasItsWordsAndTheGroupAsItIs) {
    EXPECT_EQ(heading(batch_update::logger),
              "Organization ID,LAKES,\r\nInstallation ID,ADL-1,\r\nOP Log,LOG0601,\r\n"
              "Char Group ID,TEMP-DO ,\r\nRow ID,R1,R2,\r\nEnd\r\n");
}

TEST(BatchUpdate, TheSecondPathHasItsWordsAndTheGroupTrimmed) {
    EXPECT_EQ(heading(batch_update::data_logger),
              "Organization ID,LAKES,\r\nInstallation ID,ADL-1,\r\nOp Log,LOG0601,\r\n"
              "Char Group ID,TEMP-DO,\r\nRow Id,R1,R2,\r\nEND\r\n");
}

TEST(BatchUpdate, EveryValueHasACommaBehindIt) {
    BatchUpdateText text(batch_update::portable);
    text.put_line("Data Line Count", " 1 ");
    text.begin_rows();
    text.end_line();
    text.put_record_date("06-14-2001");
    text.begin_result();
    text.put_value("093000");
    text.put_value(" 12.4 ");
    text.put_value("");
    text.put_value("a \"b\", c");
    text.end_line();
    EXPECT_EQ(text.text(),
              "Data Line Count,1,\r\nRow ID,\r\nRecord Date,06-14-2001,\r\n"
              "Result,093000, 12.4 ,,a \"b\", c,\r\n");
}

TEST(BatchUpdate, AFileIsWrittenAnewOrGoneOnWith) {
    const test::TemporaryFolder folder;
    HostFiles files(folder.path());
    BatchUpdateText first(batch_update::logger);
    first.put_line("A", "1");
    BatchUpdateText second(batch_update::logger);
    second.put_line("B", "2");
    write_behind(files, "c:\\out.txt", first);
    write_behind(files, "c:\\OUT.TXT", second);
    EXPECT_EQ(folder.read("out.txt"), "A,1,\r\nB,2,\r\n");
    write_anew(files, "c:\\out.txt", second);
    EXPECT_EQ(folder.read("out.txt"), "B,2,\r\n");
    EXPECT_THROW(write_anew(files, "c:\\gone\\out.txt", first), FatalFailure);
    EXPECT_THROW(write_behind(files, "c:\\gone\\out.txt", first), FatalFailure);
}

}  // namespace
}  // namespace brooklander
