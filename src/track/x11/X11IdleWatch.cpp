#include "track/x11/X11IdleWatch.h"

#include "track/x11/X11Connection.h"

#include <algorithm>
#include <cstddef>

namespace tempodial {

namespace {

/// Bit of an event that another client has sent.
constexpr std::uint8_t SentByClient = 0x80;
/// How long the server is believed without being asked.
constexpr std::chrono::minutes Belief(3);

}

X11IdleWatch::X11IdleWatch(xcb_connection_t* connection, std::chrono::milliseconds notice)
    : mConnection(connection)
    , mNotice(notice)
{
    const auto* extension = ::xcb_get_extension_data(mConnection, &xcb_sync_id);
    if (extension == nullptr || extension->present == 0) {
        return;
    }
    const X11Answer<xcb_sync_initialize_reply_t> begun(::xcb_sync_initialize_reply(
        mConnection, ::xcb_sync_initialize(mConnection, XCB_SYNC_MAJOR_VERSION, XCB_SYNC_MINOR_VERSION), nullptr));
    const auto counter = begun ? CounterOf("IDLETIME") : static_cast<xcb_sync_counter_t>(XCB_NONE);
    if (counter != XCB_NONE) {
        mAlarmEvent = static_cast<std::uint8_t>(extension->first_event + XCB_SYNC_ALARM_NOTIFY);
        MakeAlarm(counter);
        ::xcb_flush(mConnection);
    }
}

void X11IdleWatch::Take(const xcb_generic_event_t& event)
{
    if (mAlarmEvent != 0 && (event.response_type & ~SentByClient) == mAlarmEvent) {
        mInput.reset();
    }
}

std::optional<std::chrono::milliseconds> X11IdleWatch::Idle() const
{
    const auto now = Clock::now();
    if (!mInput || now - mAskedAt >= Belief) {
        return std::nullopt;
    }
    return std::chrono::duration_cast<std::chrono::milliseconds>(now - *mInput);
}

void X11IdleWatch::Asked(std::chrono::milliseconds idle)
{
    mAskedAt = Clock::now();
    mInput.reset();
    // The server tells the end of a time only that it has seen to be one, which it looks at a little earlier.
    constexpr int Tenth = 10;
    if (mAlarmEvent != 0 && idle >= mNotice + mNotice / Tenth) {
        mInput = mAskedAt - idle;
    }
}

xcb_sync_counter_t X11IdleWatch::CounterOf(std::string_view name) const
{
    const X11Answer<xcb_sync_list_system_counters_reply_t> answer(
        ::xcb_sync_list_system_counters_reply(mConnection, ::xcb_sync_list_system_counters(mConnection), nullptr));
    if (!answer) {
        return XCB_NONE;
    }
    // Read as it is sent: a counter, its resolution, the length of its name, the name, up to a multiple of four bytes.
    // The library's own functions look for the name two bytes behind its beginning.
    constexpr std::size_t LengthAt = 12;
    constexpr std::size_t NameAt = 14;
    constexpr std::size_t Unit = 4;
    std::string_view rest(reinterpret_cast<const char*>(answer.get() + 1), answer->length * Unit);
    while (rest.size() >= NameAt) {
        std::uint16_t length = 0;
        rest.substr(LengthAt).copy(reinterpret_cast<char*>(&length), sizeof(length));
        if (rest.substr(NameAt, length) == name) {
            xcb_sync_counter_t counter = XCB_NONE;
            rest.copy(reinterpret_cast<char*>(&counter), sizeof(counter));
            return counter;
        }
        rest.remove_prefix(std::min((NameAt + length + Unit - 1) / Unit * Unit, rest.size()));
    }
    return XCB_NONE;
}

void X11IdleWatch::MakeAlarm(xcb_sync_counter_t counter) const
{
    xcb_sync_create_alarm_value_list_t values {};
    values.counter = counter;
    values.valueType = XCB_SYNC_VALUETYPE_ABSOLUTE;
    values.value.lo = static_cast<std::uint32_t>(mNotice.count());
    values.testType = XCB_SYNC_TESTTYPE_NEGATIVE_TRANSITION;
    values.events = 1;
    ::xcb_sync_create_alarm_aux(mConnection, ::xcb_generate_id(mConnection),
        XCB_SYNC_CA_COUNTER | XCB_SYNC_CA_VALUE_TYPE | XCB_SYNC_CA_VALUE | XCB_SYNC_CA_TEST_TYPE | XCB_SYNC_CA_DELTA
            | XCB_SYNC_CA_EVENTS,
        &values);
}

}
