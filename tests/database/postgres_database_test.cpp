// The adapter over the driver manager with a PostgreSQL server; runs under `with_postgres`.

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>

#include "platform/database/odbc_database.h"
#include "support/failure_of.h"

namespace brooklander {
namespace {

using test::failure_of;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Row = std::vector<std::string>;

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    EXPECT_NE(value, nullptr) << name << " is not set: this test runs under with_postgres";
    return value == nullptr ? "" : value;
}

// A port of this machine that nobody else can take. Connections to it are refused; while it
// listens, they are let in and never get an answer.
class Port {
  public:
    Port() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        auto* const any = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(socket_, any, length), 0);
        EXPECT_EQ(getsockname(socket_, any, &length), 0);
        number_ = ntohs(address.sin_port);
    }
    Port(const Port&) = delete;
    Port& operator=(const Port&) = delete;
    ~Port() { close(socket_); }

    void listen_in_silence() const { EXPECT_EQ(listen(socket_, 5), 0); }
    int number() const { return number_; }

  private:
    int socket_;
    int number_ = 0;
};

class PostgresSource : public testing::Test {
  protected:
    // The driver manager reads the sources when it is first called.
    static void SetUpTestSuite() {
        closed_ = std::make_unique<Port>();
        silent_ = std::make_unique<Port>();
        silent_->listen_in_silence();
        std::ofstream sources(variable("ODBCINI"), std::ios::app);
        const auto add = [&](const char* name, const Port& port) {
            sources << "[" << name
                    << "]\nDriver=PostgreSQL Unicode\nServername=127.0.0.1\nPort=" << port.number()
                    << "\nDatabase=keldar2\n";
        };
        add("keldar_down", *closed_);
        add("keldar_silent", *silent_);
    }
    static void TearDownTestSuite() {
        closed_.reset();
        silent_.reset();
    }

    void log_on(const std::string& user, const std::string& password,
                const std::string& source = "keldar") {
        database_.try_connect("ODBC;DATABASE=KELDAR2;UID=" + user + ";PWD=" + password +
                              ";DSN=" + source);
    }
    std::string refusal_of_logon(const std::string& user, const std::string& password,
                                 const std::string& source = "keldar") {
        return failure_of([&] { log_on(user, password, source); });
    }
    std::vector<Row> rows(const std::string& statement, const std::string& source = "keldar") {
        return database_.run({"DSN=" + source, user_, password_, statement}).rows;
    }
    std::string refusal_of(const std::string& statement) {
        return failure_of([&] { rows(statement); });
    }

    inline static std::unique_ptr<Port> closed_;
    inline static std::unique_ptr<Port> silent_;
    std::string user_ = variable("POSTGRES_USER");
    std::string password_ = variable("POSTGRES_PASSWORD");
    OdbcDatabase database_;
};

TEST_F(PostgresSource, TheRightPasswordIsLetIn) { log_on(user_, password_); }

TEST_F(PostgresSource, AWrongPasswordIsRefusedWithoutBeingTold) {
    const std::string sentence = refusal_of_logon(user_, "guessed");
    EXPECT_THAT(sentence, testing::StartsWith("The data source \"keldar\" cannot be opened: "));
    EXPECT_THAT(sentence, testing::EndsWith("FATAL:  password authentication failed for user \"" +
                                            user_ + "\" (SQLSTATE 08001)."));
    EXPECT_THAT(sentence, Not(HasSubstr("guessed")));
    EXPECT_THAT(sentence, Not(HasSubstr("\n")));
}

TEST_F(PostgresSource, APasswordThatTheServerRepeatsIsCovered) {
    EXPECT_THAT(refusal_of_logon("lake", "lake"), HasSubstr("failed for user \"***\""));
}

TEST_F(PostgresSource, AnEmptyPasswordIsRefused) {
    EXPECT_THAT(refusal_of_logon(user_, ""), HasSubstr("no password supplied"));
}

TEST_F(PostgresSource, AnUnknownUserIsRefused) {
    EXPECT_THAT(refusal_of_logon("nobody", password_),
                HasSubstr("password authentication failed for user \"nobody\""));
}

TEST_F(PostgresSource, UserAndPasswordMayHoldWhatConnectStringsAreMadeOf) {
    const std::string user = variable("POSTGRES_ODD_USER");
    const std::string password = variable("POSTGRES_ODD_PASSWORD");
    ASSERT_THAT(password, HasSubstr(";PWD="));
    log_on(user, password);
    EXPECT_THAT(database_.run({"DSN=keldar", user, password, "SELECT current_user"}).rows,
                ElementsAre(Row{user}));
    EXPECT_THAT(refusal_of_logon(user, password + "x"), HasSubstr("authentication failed"));
    EXPECT_THAT(refusal_of_logon(user, password.substr(0, password.find(';'))),
                HasSubstr("SQLSTATE 08001"));
}

TEST_F(PostgresSource, APasswordLeadsToNoOtherServer) {
    const std::string elsewhere = ";Port=" + std::to_string(closed_->number());
    EXPECT_THAT(refusal_of_logon(user_, password_ + elsewhere), HasSubstr("authentication failed"));
}

TEST_F(PostgresSource, AnUnknownSourceOrDatabaseIsRefused) {
    EXPECT_THAT(refusal_of_logon(user_, password_, "unheard_of"), HasSubstr("IM002"));
    EXPECT_THAT(refusal_of_logon(user_, password_, "keldar_nowhere"),
                HasSubstr("database \"nowhere\" does not exist"));
}

TEST_F(PostgresSource, AServerThatIsDownIsRefusedAtOnce) {
    EXPECT_THAT(refusal_of_logon(user_, password_, "keldar_down"), HasSubstr("Connection refused"));
}

TEST_F(PostgresSource, AServerThatNeverAnswersIsGivenUp) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(refusal_of_logon(user_, password_, "keldar_silent"), HasSubstr("timeout expired"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST_F(PostgresSource, NothingIsEverWritten) {
    EXPECT_THAT(refusal_of("INSERT INTO tsruom VALUES ('x', 'y')"), HasSubstr("is not sent"));
    EXPECT_THAT(refusal_of("WITH x AS (DELETE FROM tsruom RETURNING 1) SELECT * FROM x"),
                HasSubstr("in a read-only transaction"));
    for (const char* const hidden : {"E'\\''", "$$'$$"}) {
        EXPECT_THAT(refusal_of("SELECT " + std::string(hidden) +
                               "; COMMIT; BEGIN READ WRITE; INSERT INTO tsruom VALUES ('x', 'y'); "
                               "COMMIT --'"),
                    HasSubstr("is not sent"));
    }
    EXPECT_THAT(rows("SELECT short_form_name FROM tsruom WHERE short_form_name = 'x'"), IsEmpty());
}

TEST_F(PostgresSource, AWrongStatementIsToldWithTheWordsOfTheServer) {
    EXPECT_EQ(refusal_of("SELECT gr\xF6\xDF"
                         "e FROM tsruom"),
              "The data source \"keldar\" does not answer the statement \"SELECT größe FROM "
              "tsruom\": ERROR: column \"größe\" does not exist; Error while executing the query "
              "(SQLSTATE 42703).");
}

// The same for both drivers and whatever characters the server stores.
class EveryPostgresSource : public PostgresSource, public testing::WithParamInterface<const char*> {
  protected:
    std::vector<Row> answer(const std::string& statement) { return rows(statement, GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Sources, EveryPostgresSource,
                         testing::Values("keldar", "keldar_ansi", "keldar_1252"),
                         [](const auto& source) { return std::string(source.param); });

TEST_P(EveryPostgresSource, ValuesKeepTheirPaddingAndAbsentOnesAreEmpty) {
    EXPECT_THAT(answer("Select org_id, name From tsmorgan Where org_id <> 'ZZZZZZZZ'"),
                ElementsAre(Row{"LAKES   ", "Lake watch"}, Row{"RIVERS  ", ""}));
}

TEST_P(EveryPostgresSource, BlanksAtTheEndDoNotCountInComparisons) {
    EXPECT_THAT(answer("SELECT tsrfldpr.id_code FROM tsmorgan, tsrfldpr WHERE tsmorgan.org_id = "
                       "tsrfldpr.tsrfldpr_org_id AND org_id = 'LAKES' Order By tsrfldpr.id_code"),
                ElementsAre(Row{"P1  "}, Row{"P2  "}));
}

TEST_P(EveryPostgresSource, PatternsMindCapitalsAndTakeBackslashesAsTheyAre) {
    constexpr auto units = "Select description_text From tsruom Where ";
    const auto units_like = [&](const std::string& column, const std::string& pattern) {
        return answer(units + column + " LIKE '" + pattern + "'");
    };
    EXPECT_THAT(units_like("short_form_name", "%m%"), ElementsAre(Row{"milligrams per litre"}));
    EXPECT_THAT(units_like("description_text", "a\\b"), ElementsAre(Row{"a\\b"}));
    EXPECT_THAT(units_like("description_text", "%\\"), IsEmpty());
}

TEST_P(EveryPostgresSource, LettersComeAndGoInTheCodePage) {
    EXPECT_THAT(answer("SELECT name, 'd\xFC"
                       "nn \x80' FROM tsrfldpr WHERE name = 'Gr\xFCn \x80'"),
                ElementsAre(Row{"Gr\xFCn \x80",
                                "d\xFC"
                                "nn \x80"}));
}

TEST_P(EveryPostgresSource, LongTextsAreWhole) {
    const auto found = answer("SELECT repeat('x\x80', 50000), repeat('7;', 50000)");
    std::string euros;
    std::string sevens;
    for (int i = 0; i < 50'000; ++i) {
        euros += "x\x80";
        sevens += "7;";
    }
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found[0][0] == euros) << found[0][0].size();
    EXPECT_TRUE(found[0][1] == sevens) << found[0][1].size();
}

TEST_P(EveryPostgresSource, TheSchemaIsFoundWithItsPrefixAndWithoutIt) {
    EXPECT_EQ(answer("SELECT org_id FROM KELDAR1.TSMORGAN").size(), 3U);
    EXPECT_EQ(answer("SELECT org_id FROM tsmorgan").size(), 3U);
}

TEST_P(EveryPostgresSource, TheOuterJoinMarkIsUnderstood) {
    EXPECT_THAT(answer("SELECT DISTINCT tsrgrcfg.tsrgrcfg_org_id, tsrgrcfg.id_code FROM tsrgrcfg, "
                       "tsrfldgr WHERE tsrgrcfg.tsrfldgr_is_number = tsrfldgr.tsrfldgr_is_number(+)"
                       " AND tsrgrcfg.tsrgrcfg_org_id = 'LAKES' AND tsrfldgr.id_code = 'NET' "
                       "Order By tsrgrcfg.id_code"),
                ElementsAre(Row{"LAKES   ", "C1"}));
}

TEST_P(EveryPostgresSource, ANothingHasColumnsAndNoRows) {
    const QueryResult result = database_.run({GetParam(), user_, password_,
                                              "SELECT org_id, NAME FROM tsmorgan WHERE org_id = "
                                              "'NONE'"});
    EXPECT_THAT(result.columns, ElementsAre("org_id", "name"));
    EXPECT_THAT(result.rows, IsEmpty());
}

}  // namespace
}  // namespace brooklander
