#include "track/x11/X11Desktop.h"

#include "base/Utf8.h"
#include "track/x11/CompoundText.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// Bit of an event that another client has sent, and not the server.
constexpr std::uint8_t SentBit = 0x80;
constexpr std::uint32_t NewsOfWindow
    = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

bool IsSet(const char* variable)
{
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

std::string AsUtf8(const std::string& text)
{
    return IsUtf8(text) ? text : FromLatin1(text);
}

/// The program that a window's class tells.
std::string ProgramOf(const std::optional<X11Property>& words)
{
    if (!words) {
        return {};
    }
    // The instance and the class, each with an end.
    const auto instance = words->bytes.substr(0, words->bytes.find('\0'));
    const auto rest = words->bytes.substr(std::min(instance.size() + 1, words->bytes.size()));
    const auto name = rest.substr(0, rest.find('\0'));
    return AsUtf8(name.empty() ? instance : name);
}

/// The number of the process that a window belongs to, if it runs on this machine, else 0.
std::int64_t ProcessOf(const std::optional<X11Property>& machine, const std::optional<X11Property>& process)
{
    std::array<char, HOST_NAME_MAX + 1> host {};
    ::gethostname(host.data(), host.size() - 1);
    if (!machine || (machine->type != XCB_ATOM_NONE && machine->bytes != host.data())) {
        return 0;
    }
    return process ? process->Number().value_or(0) : 0;
}

}

std::unique_ptr<DesktopSource> X11Desktop::Open(const WatchSettings& settings, DesktopSight& sight)
{
    if (!IsSet("DISPLAY")) {
        sight.why = "DISPLAY isn't set: run it inside of a session of X11";
        return nullptr;
    }
    if (IsSet("WAYLAND_DISPLAY")) {
        sight.why = "this is a session of Wayland, whose X server shows only some programs: another one is taken here";
        return nullptr;
    }
    auto desktop = std::make_unique<X11Desktop>(settings);
    if (!desktop->mConnection.IsOpen()) {
        sight.why = std::string("no X server answers at DISPLAY ") + std::getenv("DISPLAY")
            + ": see whether it runs and whether you may use it";
        return nullptr;
    }
    if (desktop->mConnection.HasExtension("XWAYLAND")) {
        sight.why = "this X server shows only some programs of a session of Wayland: set WAYLAND_DISPLAY";
        return nullptr;
    }
    desktop->Dispatch();
    sight = desktop->Sight();
    return desktop;
}

X11Desktop::X11Desktop(const WatchSettings& settings)
    // Between two windows none is in front for a moment, which is no time without a window.
    : mPatience(settings.idleNotice * 2 / 15)
{
    if (!mConnection.IsOpen()) {
        return;
    }
    mActiveAtom = mConnection.Atom("_NET_ACTIVE_WINDOW");
    mSupportedAtom = mConnection.Atom("_NET_SUPPORTED");
    mNameAtom = mConnection.Atom("_NET_WM_NAME");
    mUtf8Atom = mConnection.Atom("UTF8_STRING");
    mCompoundAtom = mConnection.Atom("COMPOUND_TEXT");
    mProcessAtom = mConnection.Atom("_NET_WM_PID");
    mConnection.Watch(mConnection.Root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    // Of shorter times without input the question once a minute tells enough, and who reads moves the pointer often.
    mIdleWatch.emplace(mConnection.Get(), settings.idleNotice * 4);
}

int X11Desktop::Descriptor() const
{
    return ::xcb_get_file_descriptor(mConnection.Get());
}

bool X11Desktop::Dispatch()
{
    // Nobody tells a focus that moves.
    mHasNewActive = mHasNewActive || mIsByFocus;
    TakeEvents();
    return mConnection.IsOpen();
}

DesktopSight X11Desktop::Sight() const
{
    DesktopSight sight { .window = true, .title = true };
    sight.idle = mConnection.IdleMilliseconds().has_value();
    if (!sight.idle) {
        sight.why = "this X server doesn't tell times without input: switch its extension MIT-SCREEN-SAVER on";
    }
    return sight;
}

std::optional<FrontWindow> X11Desktop::Window()
{
    if (mLostAt && Clock::now() - *mLostAt >= mPatience) {
        mFront.reset();
    }
    return mFront;
}

std::optional<std::chrono::milliseconds> X11Desktop::Idle()
{
    if (const auto told = mIdleWatch && mConnection.IsOpen() ? mIdleWatch->Idle() : std::nullopt) {
        return told;
    }
    const auto idle = mConnection.IdleMilliseconds();
    if (idle && mIdleWatch) {
        mIdleWatch->Asked(std::chrono::milliseconds(*idle));
    }
    // Events that came in with the answer show on the descriptor no more; one may say that it holds no longer.
    TakeEvents();
    return idle ? std::optional(std::chrono::milliseconds(*idle)) : std::nullopt;
}

void X11Desktop::TakeEvents()
{
    // Each question may bring in events besides its answer.
    do {
        while (const auto event = mConnection.NextEvent()) {
            TakeEvent(*event);
        }
        if (std::exchange(mHasNewActive, false)) {
            FindActive();
        }
        if (std::exchange(mHasNewWords, false)) {
            ReadWindow();
        }
        while (const auto event = X11Answer<xcb_generic_event_t>(::xcb_poll_for_queued_event(mConnection.Get()))) {
            TakeEvent(*event);
        }
    } while (mHasNewActive || mHasNewWords);
}

void X11Desktop::TakeEvent(const xcb_generic_event_t& event)
{
    if (mIdleWatch) {
        mIdleWatch->Take(event);
    }
    const auto kind = event.response_type & ~SentBit;
    if (kind == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == mConnection.Root()) {
            mHasNewActive = mHasNewActive || change.atom == mActiveAtom;
        } else if (change.window == mWindow) {
            mHasNewWords = mHasNewWords || change.atom == mNameAtom || change.atom == XCB_ATOM_WM_NAME
                || change.atom == XCB_ATOM_WM_CLASS;
        }
    } else if (kind == XCB_FOCUS_OUT || kind == XCB_FOCUS_IN) {
        mHasNewActive = true;
    } else if (kind == XCB_DESTROY_NOTIFY) {
        // Its number may come again.
        mWindow = XCB_WINDOW_NONE;
        mHasNewWords = true;
    } else if (kind == XCB_UNMAP_NOTIFY || kind == XCB_MAP_NOTIFY) {
        mHasNewWords = true;
    }
}

void X11Desktop::FindActive()
{
    const auto active = mConnection.Property(mConnection.Root(), mActiveAtom);
    mIsByFocus = (!active || active->type == XCB_ATOM_NONE) && !HasManager();
    const auto told = active ? active->Number() : std::nullopt;
    const auto window = mIsByFocus ? Focused() : told.value_or(XCB_WINDOW_NONE);
    if (window == XCB_WINDOW_NONE) {
        mLostAt = mLostAt ? mLostAt : std::optional(Clock::now());
    } else if (window != mWindow) {
        if (mWindow != XCB_WINDOW_NONE) {
            mConnection.Watch(mWindow, XCB_EVENT_MASK_NO_EVENT);
        }
        mWindow = window;
        mConnection.Watch(mWindow, NewsOfWindow);
        mHasNewWords = true;
    } else {
        mHasNewWords = mHasNewWords || mLostAt.has_value();
    }
}

void X11Desktop::ReadWindow()
{
    enum Name { Words, NewTitle, OldTitle, Machine, Process };
    const std::array<xcb_atom_t, Name::Process + 1> names { XCB_ATOM_WM_CLASS, mNameAtom, XCB_ATOM_WM_NAME,
        XCB_ATOM_WM_CLIENT_MACHINE, mProcessAtom };
    const auto look = mConnection.Look(mWindow, names);
    // Managers may leave the last window active that is closed or hidden.
    if (!look.isShown) {
        mLostAt = mLostAt ? mLostAt : std::optional(Clock::now());
        return;
    }
    mLostAt.reset();
    const auto& told = look.properties;
    mFront = FrontWindow { ProgramOf(told[Name::Words]), TitleOf(told[Name::NewTitle], told[Name::OldTitle]),
        ProcessOf(told[Name::Machine], told[Name::Process]) };
}

bool X11Desktop::HasManager() const
{
    const auto supported = mConnection.Property(mConnection.Root(), mSupportedAtom);
    return supported && supported->Has(mActiveAtom);
}

xcb_window_t X11Desktop::Focused() const
{
    const X11Answer<xcb_get_input_focus_reply_t> focus(
        ::xcb_get_input_focus_reply(mConnection.Get(), ::xcb_get_input_focus(mConnection.Get()), nullptr));
    // The focus is often with a window inside of that which has a class.
    auto window = focus ? focus->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    while (window != XCB_WINDOW_NONE && window != XCB_INPUT_FOCUS_POINTER_ROOT && window != mConnection.Root()) {
        const auto words = mConnection.Property(window, XCB_ATOM_WM_CLASS);
        if (words && words->type != XCB_ATOM_NONE) {
            return window;
        }
        const X11Answer<xcb_query_tree_reply_t> tree(
            ::xcb_query_tree_reply(mConnection.Get(), ::xcb_query_tree(mConnection.Get(), window), nullptr));
        window = tree ? tree->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    }
    return XCB_WINDOW_NONE;
}

std::string X11Desktop::TitleOf(const std::optional<X11Property>& name, const std::optional<X11Property>& old) const
{
    constexpr int Bytes = 8;
    // Its type is often another than it should be.
    if (name && name->format == Bytes && !name->bytes.empty() && IsUtf8(name->bytes)) {
        return name->bytes;
    }
    if (!old || old->format != Bytes) {
        return {};
    }
    if (old->type == mCompoundAtom) {
        return FromCompoundText(old->bytes);
    }
    return old->type == mUtf8Atom ? AsUtf8(old->bytes) : FromLatin1(old->bytes);
}

}
