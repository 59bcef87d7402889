// Handles of the ODBC driver manager that are let go by themselves, and what they say of a failure.
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <string>

namespace brooklander {

// A handle of one kind, made below another one and let go with its owner.
class OdbcHandle {
  public:
    // `parent` has to live longer; an environment has none. A FatalFailure when there is no memory.
    OdbcHandle(SQLSMALLINT kind, SQLHANDLE parent);
    OdbcHandle(const OdbcHandle&) = delete;
    OdbcHandle& operator=(const OdbcHandle&) = delete;
    ~OdbcHandle() { SQLFreeHandle(kind_, handle_); }

    SQLHANDLE get() const { return handle_; }

    // What the last call on the handle complained of, in UTF-8 on one line, with its SQLSTATE and
    // without the names of the parts that passed it on.
    std::string complaint() const;

  private:
    SQLSMALLINT kind_;
    SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

// The environment: what the driver manager knows before any connection.
class OdbcEnvironment : public OdbcHandle {
  public:
    OdbcEnvironment();

    // The library of a data source's driver, or the driver's name where nothing is known of its
    // library; empty when there is no such source.
    std::string driver_of(const std::string& source) const;

  private:
    std::string library_of(const std::string& driver) const;
};

// A connection, which need not be open. It is closed before its handle is let go.
class OdbcConnection : public OdbcHandle {
  public:
    explicit OdbcConnection(const OdbcEnvironment& environment)
        : OdbcHandle(SQL_HANDLE_DBC, environment.get()) {}
    ~OdbcConnection() { SQLDisconnect(get()); }
    OdbcConnection(const OdbcConnection&) = delete;
    OdbcConnection& operator=(const OdbcConnection&) = delete;
};

// A number as the API takes it for an attribute.
SQLPOINTER attribute(SQLULEN value);

}  // namespace brooklander
