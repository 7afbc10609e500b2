#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3_stmt; // NOLINT(readability-identifier-naming): the library names it so

namespace tempodial {

class MailboxDatabase;

/// One run of a prepared statement; values are bound from left to right, columns count from 0. Every member fails when
/// SQLite refuses: a full disk (61), a locked or read-only file (70), a device error (57), anything else (440).
class Query
{
public:
    /// Takes the statement of that text, which must not be running already.
    Query(MailboxDatabase& database, const std::string& sql);
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;
    ~Query();

    Query& Bind(std::int64_t value);
    /// Binds a text that outlives the run.
    Query& Bind(const std::string& text);
    Query& Bind(std::string&& text);
    Query& BindNull();
    /// Binds a text that outlives the run, or nothing.
    Query& BindOptional(const std::optional<std::string>& text) { return text ? Bind(*text) : BindNull(); }
    Query& BindOptional(std::optional<std::int64_t> number) { return number ? Bind(*number) : BindNull(); }
    /// Binds bytes that outlive the run.
    Query& BindBytes(std::string_view bytes);
    /// Goes to the next row; false when there is none.
    bool Step();
    /// Runs a statement that gives no rows.
    void Run();

    std::int64_t Int(int column) const;
    /// A text, or bytes as they are.
    std::string Text(int column) const;
    /// The same, where it stands until the next row or the end of the run.
    std::string_view View(int column) const;
    bool IsNull(int column) const;

private:
    /// Fails unless a value was bound.
    Query& Bound(int code);

    MailboxDatabase& mDatabase;
    sqlite3_stmt* mStatement;
    int mBound = 0;
};

}
