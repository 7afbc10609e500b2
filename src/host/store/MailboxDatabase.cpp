#include "host/store/MailboxDatabase.h"

#include "base/MemoryShortage.h"
#include "base/Text.h"
#include "host/store/JournalVfs.h"
#include "host/store/PropertyCodec.h"
#include "host/store/Query.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <cerrno>

namespace tempodial {

namespace {

constexpr std::size_t StatementsKept = 100;
constexpr int BusyMilliseconds = 5000;

std::string_view TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text == nullptr ? std::string_view()
                           : std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

void GiveText(sqlite3_context* context, const std::string& text)
{
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

/// Runs a function of SQL, in which no exception may leave.
template <class Body> void Guarded(sqlite3_context* context, Body&& body)
{
    try {
        body();
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& problem) {
        sqlite3_result_error(context, problem.what(), -1);
    }
}

void FoldText(sqlite3_context* context, int, sqlite3_value** arguments)
{
    Guarded(context, [&] {
        if (sqlite3_value_type(arguments[0]) == SQLITE_TEXT) {
            GiveText(context, Fold(TextOf(arguments[0])));
        }
    });
}

void ItemPropertyOf(sqlite3_context* context, int, sqlite3_value** arguments)
{
    Guarded(context, [&] {
        auto* const database = static_cast<MailboxDatabase*>(sqlite3_user_data(context));
        const auto properties = database->Properties(TextOf(arguments[0]));
        const auto* property = FindProperty(properties, TextOf(arguments[1]));
        if (property == nullptr) {
            return;
        }
        if (const auto* text = property->value.If<std::string>()) {
            GiveText(context, *text);
        } else if (const auto* date = property->value.If<Date>()) {
            sqlite3_result_int64(context, date->Seconds());
        } else if (const auto* flag = property->value.If<bool>()) {
            sqlite3_result_int(context, *flag ? 1 : 0);
        }
    });
}

void MinuteOf(sqlite3_context* context, int, sqlite3_value** arguments)
{
    sqlite3_result_int64(context, Date::FromSeconds(sqlite3_value_int64(arguments[0])).Minute().Seconds() / 60);
}

/// True for what leaves nothing that can be relied on: damage, no memory, and a disk that doesn't give back what it
/// has.
bool IsTrouble(int code)
{
    constexpr int primary = 0xff;
    const int kind = code & primary;
    return kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB || kind == SQLITE_NOMEM || code == SQLITE_IOERR_NOMEM
        || code == SQLITE_IOERR_READ || code == SQLITE_IOERR_SHORT_READ || code == SQLITE_IOERR_FSTAT
        || code == SQLITE_IOERR_MMAP || code == SQLITE_IOERR_DATA || code == SQLITE_IOERR_CORRUPTFS;
}

/// The address of a file for SQLite that nobody changes.
std::string UnchangedAddress(const std::string& path)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr unsigned int digitBits = 4;
    constexpr unsigned int lastDigit = 15;
    std::string address = "file:";
    for (const char character : path) {
        if (std::string_view("?#%").find(character) == std::string_view::npos) {
            address += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            address += '%';
            address += digits[byte >> digitBits];
            address += digits[byte & lastDigit];
        }
    }
    return address + "?immutable=1";
}

}

MailboxDatabase::MailboxDatabase(const std::string& path, Access access)
    : mPath(path)
{
    const bool isAlone = access == Access::ReadingAlone;
    const auto name = isAlone ? UnchangedAddress(path) : path;
    const int flags = (access == Access::Writing ? SQLite::OPEN_READWRITE : SQLite::OPEN_READONLY)
        | (isAlone ? SQLite::OPEN_URI : 0) | SQLite::OPEN_NOMUTEX;
    try {
        mConnection = std::make_unique<SQLite::Database>(name.c_str(), flags, BusyMilliseconds, JournalVfs::Name());
    } catch (const SQLite::Exception& problem) {
        throw Failed(problem.getErrorCode(), problem.what());
    }
    auto* handle = mConnection->getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // We have none of these, so those in a file were put there to do harm.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_extended_result_codes(handle, 1);
    AddFunctions();
    Execute("PRAGMA trusted_schema = OFF");
    Execute("PRAGMA cell_size_check = ON");
    Execute("PRAGMA foreign_keys = ON");
    Execute("PRAGMA synchronous = FULL");
    Execute("PRAGMA temp_store = MEMORY");
    Execute("PRAGMA cache_size = -4096");
}

MailboxDatabase::~MailboxDatabase()
{
    if (mHeld) {
        RollBack();
    }
}

void MailboxDatabase::Trust()
{
    sqlite3_db_config(mConnection->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
}

bool MailboxDatabase::IsSound()
{
    Query check(*this, "PRAGMA integrity_check(1)");
    if (!check.Step() || check.Text(0) != "ok") {
        return false;
    }
    return !Query(*this, "PRAGMA foreign_key_check").Step();
}

void MailboxDatabase::TakeCopyOf(MailboxDatabase& other)
{
    auto* const handle = mConnection->getHandle();
    auto* const copy = sqlite3_backup_init(handle, "main", other.mConnection->getHandle(), "main");
    if (copy != nullptr) {
        sqlite3_backup_step(copy, -1);
        sqlite3_backup_finish(copy);
    }
    if (const int code = sqlite3_extended_errcode(handle); code != SQLITE_OK) {
        throw other.Failed(code, sqlite3_errmsg(handle));
    }
    mPath = other.mPath;
}

void MailboxDatabase::Execute(const std::string& sql)
{
    char* text = nullptr;
    const auto code = sqlite3_exec(mConnection->getHandle(), sql.c_str(), nullptr, nullptr, &text);
    if (code != SQLITE_OK) {
        const std::string message = text == nullptr ? std::string() : text;
        sqlite3_free(text);
        throw Failed(code, message);
    }
}

std::int64_t MailboxDatabase::Number(const std::string& sql)
{
    Query query(*this, sql);
    return query.Step() ? query.Int(0) : 0;
}

int MailboxDatabase::RowsChanged() const
{
    return sqlite3_changes(mConnection->getHandle());
}

void MailboxDatabase::Hold()
{
    CheckWhole();
    Execute("BEGIN IMMEDIATE");
    mHeld = true;
}

void MailboxDatabase::CommitHeld()
{
    CheckWhole();
    Execute("COMMIT");
    mHeld = false;
}

void MailboxDatabase::DropHeld()
{
    mHeld = false;
    RollBack();
    if (mOnUndone) {
        mOnUndone();
    }
}

void MailboxDatabase::CheckWhole() const
{
    if (const auto trouble = Trouble()) {
        throw Failure(*trouble);
    }
    if (mUndone) {
        throw Failure(*mUndone);
    }
}

std::optional<Failure> MailboxDatabase::Trouble() const
{
    return mTrouble || !MemoryShortage::HasCome() ? mTrouble : Failure(Error::OutOfMemory);
}

Failure MailboxDatabase::Damaged(const std::string& what)
{
    Failure failure(Error::Automation, "The mailbox " + mPath + " is damaged: " + what);
    Note(failure);
    return failure;
}

std::vector<ItemProperty> MailboxDatabase::Properties(std::string_view json)
{
    try {
        return PropertyCodec::Decode(json);
    } catch (const Failure& failure) {
        throw Damaged(failure.Description());
    }
}

void MailboxDatabase::ReadProperties(std::string_view json, std::span<const WantedText> wanted)
{
    try {
        PropertyCodec::Read(json, wanted);
    } catch (const Failure& failure) {
        throw Damaged(failure.Description());
    }
}

void MailboxDatabase::Finalizer::operator()(sqlite3_stmt* statement) const noexcept
{
    sqlite3_finalize(statement);
}

sqlite3_stmt* MailboxDatabase::Prepare(const std::string& sql)
{
    if (const auto known = mStatements.find(sql); known != mStatements.end()) {
        return known->second.get();
    }
    if (mStatements.size() >= StatementsKept && mRunning == 0) {
        mStatements.clear();
    }
    auto* const handle = mConnection->getHandle();
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(handle, sql.c_str(), static_cast<int>(sql.size()), &statement, nullptr);
    std::unique_ptr<sqlite3_stmt, Finalizer> prepared(statement);
    if (code != SQLITE_OK) {
        throw Failed(code, sqlite3_errmsg(handle));
    }
    return mStatements.emplace(sql, std::move(prepared)).first->second.get();
}

void MailboxDatabase::AddFunctions()
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
    auto* handle = mConnection->getHandle();
    sqlite3_create_function_v2(handle, "fold_text", 1, flags, nullptr, FoldText, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(handle, "item_property", 2, flags, this, ItemPropertyOf, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(handle, "minute_of", 1, flags, nullptr, MinuteOf, nullptr, nullptr, nullptr);
}

void MailboxDatabase::RollBack()
{
    if (sqlite3_get_autocommit(mConnection->getHandle()) == 0) {
        sqlite3_exec(mConnection->getHandle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

Failure MailboxDatabase::Failed(int code, const std::string& text)
{
    auto failure = Described(code, text);
    if (IsTrouble(code)) {
        Note(failure);
    }
    if (mHeld) {
        mUndone = failure;
        DropHeld();
    }
    return failure;
}

void MailboxDatabase::Note(const Failure& trouble)
{
    if (!mTrouble) {
        mTrouble = trouble;
    }
    if (mConnection) {
        sqlite3_db_config(mConnection->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    }
}

bool MailboxDatabase::IsDiskFull() const
{
    const int reason = mConnection ? sqlite3_system_errno(mConnection->getHandle()) : 0;
    return reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
}

Failure MailboxDatabase::Described(int code, const std::string& text) const
{
    const auto named = [&](Error error) {
        return Failure(error, std::string(ErrorText(static_cast<std::int32_t>(error))) + ": the mailbox " + mPath);
    };
    switch (code & 0xff) {
    case SQLITE_FULL:
        return named(Error::DiskFull);
    case SQLITE_IOERR:
        return named(IsDiskFull() ? Error::DiskFull : Error::DeviceError);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
        return named(Error::PermissionDenied);
    case SQLITE_NOMEM:
        return Failure(Error::OutOfMemory);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return { Error::Automation, "The mailbox " + mPath + " is damaged" };
    default:
        return { Error::Automation, "The mailbox " + mPath + " refused: " + text };
    }
}

}
