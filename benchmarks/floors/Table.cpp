#include "floors/Table.h"

#include <stdexcept>

namespace tempodial {

namespace {

void Check(sqlite3* database, bool good)
{
    if (!good) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

}

Table::Table(sqlite3* database, const std::string& sql)
    : mDatabase(database)
{
    Check(mDatabase, sqlite3_prepare_v2(database, sql.c_str(), -1, &mStatement, nullptr) == SQLITE_OK);
}

Table::~Table()
{
    sqlite3_finalize(mStatement);
}

Table& Table::Bind(std::int64_t value)
{
    Check(mDatabase, sqlite3_bind_int64(mStatement, ++mBound, value) == SQLITE_OK);
    return *this;
}

Table& Table::Bind(std::string_view text)
{
    const auto length = static_cast<int>(text.size());
    Check(mDatabase, sqlite3_bind_text(mStatement, ++mBound, text.data(), length, SQLITE_STATIC) == SQLITE_OK);
    return *this;
}

void Table::Run()
{
    while (Step()) { }
    sqlite3_reset(mStatement);
    mBound = 0;
}

bool Table::Step()
{
    const auto code = sqlite3_step(mStatement);
    Check(mDatabase, code == SQLITE_ROW || code == SQLITE_DONE);
    return code == SQLITE_ROW;
}

std::string_view Table::Text(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(mStatement, column));
    return { text, static_cast<std::size_t>(sqlite3_column_bytes(mStatement, column)) };
}

sqlite3* Table::Open(const std::string& path)
{
    sqlite3* database = nullptr;
    Check(database, sqlite3_open(path.c_str(), &database) == SQLITE_OK);
    Execute(database, "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA cache_size = -16384");
    return database;
}

void Table::Execute(sqlite3* database, const std::string& sql)
{
    Check(database, sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK);
}

}
