#include "host/store/LineMemory.h"

#include "base/Fnv1a.h"
#include "host/store/Mailbox.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/Query.h"

#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t HashSize = 8;
constexpr unsigned int ByteBits = 8;
constexpr unsigned int LastByte = 0xff;

std::uint64_t HashAt(std::string_view bytes)
{
    std::uint64_t hash = 0;
    for (const char byte : bytes.substr(0, HashSize)) {
        hash = hash << ByteBits | static_cast<unsigned char>(byte);
    }
    return hash;
}

void Append(std::string& bytes, std::uint64_t hash)
{
    for (auto left = HashSize; left > 0; --left) {
        bytes += static_cast<char>(hash >> (left - 1) * ByteBits & LastByte);
    }
}

}

LineMemory::LineMemory(const Ref<Mailbox>& mailbox)
    : mStore(mailbox->Store())
{
}

void LineMemory::ForgetLines()
{
    mStore->Database().CheckWhole();
    Query(mStore->Database(),
        "DELETE FROM import_line WHERE NOT EXISTS (SELECT 1 FROM import_position WHERE history IS NULL)")
        .Run();
}

void LineMemory::ForgetOldDays()
{
    mStore->Database().CheckWhole();
    // By the days themselves and not by the clock, which may be wrong for a run.
    Query(mStore->Database(),
        "DELETE FROM import_line WHERE day < (SELECT min(day) FROM (SELECT DISTINCT day FROM import_line "
        "ORDER BY day DESC LIMIT 60))")
        .Run();
}

void LineMemory::Drop(MailboxStore& store, const std::string& dayKey, const std::vector<std::string>& lines)
{
    std::unordered_map<std::uint64_t, std::int32_t> gone;
    for (const auto& line : lines) {
        ++gone[Fnv1a(line).Hash()];
    }
    std::vector<std::pair<std::int64_t, std::string>> rows;
    {
        Query query(store.Database(), "SELECT rowid, hashes FROM import_line WHERE day = ?");
        query.Bind(dayKey);
        while (query.Step()) {
            rows.emplace_back(query.Int(0), query.Text(1));
        }
    }
    for (const auto& [row, hashes] : rows) {
        std::string kept;
        for (std::string_view rest(hashes); rest.size() >= HashSize; rest.remove_prefix(HashSize)) {
            const auto known = gone.find(HashAt(rest));
            if (known == gone.end() || known->second == 0) {
                kept += rest.substr(0, HashSize);
            } else {
                --known->second;
            }
        }
        // A row without lines stays: it says from where on the day's lines were reached.
        Query(store.Database(), "UPDATE import_line SET hashes = ? WHERE rowid = ?").BindBytes(kept).Bind(row).Run();
    }
}

std::int32_t LineMemory::BeginDay(const std::string& dayKey, std::int32_t lastCount)
{
    Keep();
    mDay = dayKey;
    mLastCount = lastCount;
    mKnown.clear();
    Query query(mStore->Database(), "SELECT last_count, hashes FROM import_line WHERE day = ?");
    query.Bind(dayKey);
    while (query.Step()) {
        mLastCount = static_cast<std::int32_t>(query.Int(0));
        const auto hashes = query.Text(1);
        if (hashes.size() % HashSize != 0) {
            throw mStore->Database().Damaged("the lines that were imported of " + dayKey + " can't be read");
        }
        for (std::string_view rest(hashes); rest.size() >= HashSize; rest.remove_prefix(HashSize)) {
            ++mKnown[HashAt(rest)];
        }
    }
    return mLastCount;
}

bool LineMemory::IsKnown(const std::string& line)
{
    mLine = Fnv1a(line).Hash();
    const auto known = mKnown.find(mLine);
    if (known == mKnown.end() || known->second == 0) {
        return false;
    }
    --known->second;
    return true;
}

void LineMemory::Reached()
{
    Append(mReached, mLine);
}

void LineMemory::Keep()
{
    if (mReached.empty()) {
        return;
    }
    Query(mStore->Database(), "INSERT INTO import_line (day, last_count, hashes) VALUES (?, ?, ?)")
        .Bind(mDay)
        .Bind(std::int64_t { mLastCount })
        .BindBytes(mReached)
        .Run();
    mReached.clear();
}

}
