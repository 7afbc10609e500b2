#include "host/store/Query.h"

#include "host/store/MailboxDatabase.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
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
    mStatement.tryReset();
    --mDatabase.mRunning;
}

template <class Binding> void Query::Checked(Binding&& binding)
{
    try {
        binding();
    } catch (const SQLite::Exception& problem) {
        throw mDatabase.Failed(problem.getExtendedErrorCode(), problem.what());
    }
}

Query& Query::Bind(std::int64_t value)
{
    Checked([&] { mStatement.bind(++mBound, value); });
    return *this;
}

Query& Query::Bind(const std::string& text)
{
    Checked([&] { mStatement.bindNoCopy(++mBound, text); });
    return *this;
}

Query& Query::Bind(std::string&& text)
{
    Checked([&] { mStatement.bind(++mBound, text); });
    return *this;
}

Query& Query::BindBytes(const std::string& bytes)
{
    Checked([&] { mStatement.bindNoCopy(++mBound, bytes.data(), static_cast<int>(bytes.size())); });
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

bool Query::IsNull(int column) const
{
    return mStatement.getColumn(column).isNull();
}

}
