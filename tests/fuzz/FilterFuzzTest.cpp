#include "base/Failure.h"
#include "base/Text.h"
#include "fuzz/FuzzTarget.h"
#include "host/store/FilterParser.h"
#include "support/TestMailbox.h"

namespace tempodial {

namespace {

/// A calendar with a few activities and a field of each kind.
Ref<Mailbox> MakeMailbox()
{
    auto mailbox = OpenTestMailbox();
    for (const auto* subject : { "", "plan", "\"Plan\" 100%" }) {
        const auto item = NewTestItem(mailbox, subject);
        item->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue(subject);
        item->UserProperties()->Add("Day", PropertyType::DateTime, true)->SetValue(item->Start());
        item->UserProperties()->Add("ApplyPast", PropertyType::YesNo, true)->SetValue(true);
        item->Save();
    }
    NewTestItem(mailbox, "without")->Save();
    return mailbox;
}

/// A filter is parsed, and looks for items.
void ParseAndSelect(std::string_view input)
{
    static const auto mailbox = MakeMailbox();
    static const auto all = TestItems(mailbox);
    const std::string filter(input);
    try {
        FilterParser::Parse(filter);
    } catch (const Failure& failure) {
        Hold(failure.Is(Error::InvalidCall), "what is no filter is told so");
        return;
    }
    try {
        const auto selected = all->Restrict(filter);
        Hold(selected->Count() <= all->Count(), "a filter adds no items");
        Hold(static_cast<bool>(all->Find(filter)) == (selected->Count() > 0), "the first item is one of all");
        Hold(all->Restrict("not (" + filter + ")")->Count() + selected->Count() <= all->Count(),
            "no item is in both halves");
        Hold(all->Restrict(filter + " or [Subject] <> \"\"")->Count() >= selected->Count(), "\"or\" takes none away");
    } catch (const Failure& failure) {
        Hold(!failure.Is(Error::Automation), "the mailbox understands each filter: " + failure.Description());
    }
}

}

TEMPODIAL_FUZZ_TARGET(Filter, ParseAndSelect)

}
