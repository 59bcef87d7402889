#include "sweeps/keldar.h"

#include "shared/text.h"

namespace brooklander {
namespace {

constexpr std::string_view connection = "DSN=keldar";
constexpr std::string_view bare_name = "keldar";

}  // namespace

void connect_to_keldar(DataSource& source, const FrmStart& start) {
    source.connect(connection, start.txtOracleID.text(), start.txtOraclePassWord.text());
}

void connect_to_keldar_trimmed(DataSource& source, const FrmStart& start) {
    source.connect(connection, trim(start.txtOracleID.text()),
                   trim(start.txtOraclePassWord.text()));
}

void connect_to_keldar_by_name(DataSource& source, const FrmStart& start) {
    source.connect(bare_name, start.txtOracleID.text(), start.txtOraclePassWord.text());
}

void ask_keldar(DataSource& source, const FrmStart& start, std::string_view statement,
                Database& database) {
    connect_to_keldar(source, start);
    source.set_record_source(statement);
    source.refresh(database);
}

std::string keldar_connect_string(const FrmStart& start) {
    return "ODBC;DATABASE=KELDAR2;UID=" + start.txtOracleID.text() + ";" +
           "PWD=" + start.txtOraclePassWord.text() + ";DSN=keldar";
}

Query keldar_query(const FrmStart& start, std::string_view statement) {
    return {std::string(connection), start.txtOracleID.text(), start.txtOraclePassWord.text(),
            std::string(statement)};
}

}  // namespace brooklander
