#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "platform/objectmodel/MAPIFolder.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

class Mailbox;
class MailboxStore;
class Query;

/// An activity as the mailbox holds it, as far as people ask of many.
struct ActivityRow
{
    /// The number by which people name it.
    std::int64_t number = 0;
    Date start;
    Date end;
    /// Minute boundaries from start to end.
    std::int32_t duration = 0;
    /// The project, as the other properties below empty when the activity lacks it.
    std::string project;
    std::string type;
    std::string description;
    std::string people;
    /// A person chose the project.
    bool isProjectByHand = false;
};

/// Reads the activities of a folder without making objects of them, and changes nothing: the way to read many. Spans
/// leave their end out and go by the second. The lists are in order of start, and those of equal start in the order in
/// which they came into the mailbox. Every member fails as the store does.
class ActivityRows
{
public:
    /// The activities of a folder are its items of exactly that message class.
    ActivityRows(const Ref<Mailbox>& mailbox, const Ref<MAPIFolder>& folder, std::string messageClass);

    /// Called with one row, which may be taken.
    using Taking = std::function<void(ActivityRow& row)>;

    /// Those that start in a span.
    std::vector<ActivityRow> StartingIn(Date from, Date until) const;
    /// The same, one by one and in no certain order.
    void EachStartingIn(Date from, Date until, const Taking& take) const;
    /// Those that have some time in common with a span, wherever they start.
    std::vector<ActivityRow> Overlapping(Date from, Date until) const;
    /// When the last one before a moment starts; nothing when none does.
    std::optional<Date> LastStartBefore(Date moment) const;
    /// The one of that number; nothing when there is none.
    std::optional<ActivityRow> Numbered(std::int64_t number) const;
    /// The body of the one of that number, empty when there is none.
    std::string BodyOf(std::int64_t number) const;

    /// The statement behind the lists; it must find them by narrow searches, however many items the folder holds.
    static const std::string& ListSql();

private:
    /// Those that start from a moment on, or end behind another, whichever is later, and before a third.
    std::vector<ActivityRow> List(std::int64_t startsFrom, std::int64_t endsBehind, Date startsBefore) const;
    void Each(std::int64_t startsFrom, std::int64_t endsBehind, Date startsBefore, const Taking& take) const;
    void Read(const Query& query, ActivityRow& row) const;

    Ref<MailboxStore> mStore;
    std::int64_t mFolder;
    std::string mMessageClass;
};

}
