#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

/// One prepared statement over a connection of SQLite.
class Table
{
public:
    /// Prepares a statement. Fails with `std::runtime_error`, as do the other members.
    Table(sqlite3* database, const std::string& sql);
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;
    ~Table();

    /// Binds the next value; a text must stay until the statement has run.
    Table& Bind(std::int64_t value);
    Table& Bind(std::string_view text);
    /// Runs the statement to its end and makes it ready for the next values.
    void Run();
    /// Goes to the next row; false behind the last one.
    bool Step();
    std::int64_t Int(int column) const { return sqlite3_column_int64(mStatement, column); }
    /// A text, which stays until the next step.
    std::string_view Text(int column) const;

    /// Opens a database that writes through a journal, and waits until the disk has what is committed.
    static sqlite3* Open(const std::string& path);
    /// Runs statements without values.
    static void Execute(sqlite3* database, const std::string& sql);

private:
    sqlite3* mDatabase;
    sqlite3_stmt* mStatement = nullptr;
    int mBound = 0;
};

}
