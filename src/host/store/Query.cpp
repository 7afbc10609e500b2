#include "host/store/Query.h"

#include "host/store/MailboxDatabase.h"

#include <sqlite3.h>

namespace tempodial {

Query::Query(MailboxDatabase& database, const std::string& sql)
    : mDatabase(database)
    , mStatement(database.Prepare(sql))
{
    ++mDatabase.mRunning;
}

Query::~Query()
{
    // Values bound without a copy stay until the next run binds its own, all of them.
    sqlite3_reset(mStatement);
    --mDatabase.mRunning;
}

Query& Query::Bind(std::int64_t value)
{
    return Bound(sqlite3_bind_int64(mStatement, ++mBound, value));
}

Query& Query::Bind(const std::string& text)
{
    return Bound(sqlite3_bind_text64(mStatement, ++mBound, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

Query& Query::Bind(std::string&& text)
{
    return Bound(sqlite3_bind_text64(mStatement, ++mBound, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

Query& Query::BindNull()
{
    return Bound(sqlite3_bind_null(mStatement, ++mBound));
}

Query& Query::BindBytes(std::string_view bytes)
{
    return Bound(sqlite3_bind_blob64(mStatement, ++mBound, bytes.data(), bytes.size(), SQLITE_STATIC));
}

bool Query::Step()
{
    const auto code = sqlite3_step(mStatement);
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code == SQLITE_DONE) {
        return false;
    }
    const std::string text = sqlite3_errmsg(sqlite3_db_handle(mStatement));
    sqlite3_reset(mStatement);
    throw mDatabase.Failed(code, text);
}

void Query::Run()
{
    while (Step()) { }
}

std::int64_t Query::Int(int column) const
{
    return sqlite3_column_int64(mStatement, column);
}

std::string Query::Text(int column) const
{
    return std::string(View(column));
}

std::string_view Query::View(int column) const
{
    const auto* const bytes = static_cast<const char*>(sqlite3_column_blob(mStatement, column));
    return { bytes, bytes == nullptr ? 0 : static_cast<std::size_t>(sqlite3_column_bytes(mStatement, column)) };
}

bool Query::IsNull(int column) const
{
    return sqlite3_column_type(mStatement, column) == SQLITE_NULL;
}

Query& Query::Bound(int code)
{
    if (code != SQLITE_OK) {
        throw mDatabase.Failed(code, sqlite3_errmsg(sqlite3_db_handle(mStatement)));
    }
    return *this;
}

}
