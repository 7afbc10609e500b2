#include "engine/import/TempodialDataHandler.h"
#include "fuzz/FuzzTarget.h"
#include "support/AddInFixture.h"

namespace tempodial {

namespace {

/// The reader of slots in an add-in that writes no trace.
struct SlotReader
{
    SlotReader()
    {
        addIn.Connect();
        handler.Initialize(addIn.main, nullptr, nullptr, MakeRef<TempodialDebugLog>(addIn.platform));
    }

    TempFolder folder { TempFolder::InMemory() };
    TestAddIn addIn { folder.Path() };
    TempodialDataHandler handler { addIn.platform };
};

/// A line of a tracker file is parsed, and taken apart as a slot.
void ParseAndExtract(std::string_view input)
{
    static SlotReader reader;
    const auto document = reader.addIn.platform->xml->NewDocument();
    if (!document->LoadXML(std::string(input))) {
        return;
    }
    const auto day = Date::FromYearMonthDay(2006, 10, 10);
    SlotActivity activity;
    reader.handler.ExtractData(document, day, activity);
    Hold(!activity.application.empty(), "an activity has an application");
    Hold(!activity.description.empty(), "an activity has a description");
    SlotActivity again;
    reader.handler.ExtractData(document, day, again);
    Hold(again.description == activity.description && again.startTime == activity.startTime
            && again.endTime == activity.endTime && again.contacts == activity.contacts,
        "a slot says the same twice");
}

}

TEMPODIAL_FUZZ_TARGET(SlotLine, ParseAndExtract)

}
