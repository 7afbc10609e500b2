#include "host/store/Query.h"

#include "host/store/MailboxDatabase.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <limits>

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
    mStatement.tryReset();
    --mDatabase.mRunning;
}

/// Binds a value of that many bytes.
template <class Binding> void Query::Checked(std::size_t size, Binding&& binding)
{
    // SQLiteCpp counts bytes in an int.
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw mDatabase.Failed(SQLITE_TOOBIG, sqlite3_errstr(SQLITE_TOOBIG));
    }
    try {
        binding();
    } catch (const SQLite::Exception& problem) {
        throw mDatabase.Failed(problem.getExtendedErrorCode(), problem.what());
    }
}

Query& Query::Bind(std::int64_t value)
{
    Checked(sizeof(value), [&] { mStatement.bind(++mBound, value); });
    return *this;
}

Query& Query::Bind(const std::string& text)
{
    Checked(text.size(), [&] { mStatement.bindNoCopy(++mBound, text); });
    return *this;
}

Query& Query::Bind(std::string&& text)
{
    Checked(text.size(), [&] { mStatement.bind(++mBound, text); });
    return *this;
}

Query& Query::BindNull()
{
    Checked(0, [&] { mStatement.bind(++mBound); });
    return *this;
}

Query& Query::BindBytes(std::string_view bytes)
{
    Checked(bytes.size(), [&] { mStatement.bindNoCopy(++mBound, bytes.data(), static_cast<int>(bytes.size())); });
    return *this;
}

bool Query::Step()
{
    const auto code = mStatement.tryExecuteStep();
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code == SQLITE_DONE) {
        return false;
    }
    const auto extended = mStatement.getExtendedErrorCode();
    const std::string text = mStatement.getErrorMsg();
    mStatement.tryReset();
    throw mDatabase.Failed(extended, text);
}

void Query::Run()
{
    while (Step()) { }
}

std::int64_t Query::Int(int column) const
{
    return mStatement.getColumn(column).getInt64();
}

std::string Query::Text(int column) const
{
    return mStatement.getColumn(column).getString();
}

std::string_view Query::View(int column) const
{
    const auto value = mStatement.getColumn(column);
    const auto* const bytes = static_cast<const char*>(value.getBlob());
    return { bytes, bytes == nullptr ? 0 : static_cast<std::size_t>(value.getBytes()) };
}

bool Query::IsNull(int column) const
{
    return mStatement.getColumn(column).isNull();
}

}
