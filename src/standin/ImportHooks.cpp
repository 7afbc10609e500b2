#include "standin/ImportHooks.h"

#include "addin/base/Shell.h"
#include "addin/base/SystemText.h"
#include "base/Date.h"
#include "platform/controls/MessageBox.h"
#include "wire/WireFailure.h"

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

using Answers = std::vector<Answer>;

Conversation*& HookedHost()
{
    static Conversation* host = nullptr;
    return host;
}

/// What the host answers; nothing when it refuses. Nothing may pass into the module, and without the host there is
/// nothing to be done.
WireValue AskHost(const std::string& word, const std::vector<WireValue>& arguments = {}) noexcept
{
    try {
        FrameWriter request(FrameType::Surroundings);
        return HookedHost()->Ask(request.Text(word).Values(arguments));
    } catch (const WireFailure&) {
        return {};
    } catch (...) {
        constexpr UINT HostGone = 3;
        ExitProcess(HostGone);
    }
}

void WINAPI TellTime(SYSTEMTIME* time)
{
    const auto now = Date::FromSeconds(AskHost("now").number).ToParts();
    *time = {};
    time->wYear = static_cast<WORD>(now.year);
    time->wMonth = static_cast<WORD>(now.month);
    time->wDay = static_cast<WORD>(now.day);
    time->wHour = static_cast<WORD>(now.hour);
    time->wMinute = static_cast<WORD>(now.minute);
    time->wSecond = static_cast<WORD>(now.second);
}

Answers ButtonsOf(UINT kind)
{
    switch (kind & MB_TYPEMASK) {
    case MB_OKCANCEL:
        return { Answer::Ok, Answer::Cancel };
    case MB_YESNO:
        return { Answer::Yes, Answer::No };
    case MB_YESNOCANCEL:
        return { Answer::Yes, Answer::No, Answer::Cancel };
    default:
        return { Answer::Ok };
    }
}

MessageIcon IconOf(UINT kind)
{
    switch (kind & MB_ICONMASK) {
    case MB_ICONQUESTION:
        return MessageIcon::Question;
    case MB_ICONEXCLAMATION:
        return MessageIcon::Exclamation;
    default:
        return MessageIcon::None;
    }
}

int NumberOf(Answer answer)
{
    switch (answer) {
    case Answer::Yes:
        return IDYES;
    case Answer::No:
        return IDNO;
    case Answer::Cancel:
        return IDCANCEL;
    default:
        return IDOK;
    }
}

int WINAPI ShowBox(HWND /*owner*/, LPCWSTR text, LPCWSTR /*title*/, UINT kind)
{
    std::vector<WireValue> offered;
    for (const auto button : ButtonsOf(kind)) {
        offered.push_back(WireValue::Number(static_cast<std::int64_t>(button)));
    }
    const auto answer = AskHost("box",
        { WireValue::Text(Narrow(text)), WireValue::Number(static_cast<std::int64_t>(IconOf(kind))),
            WireValue::List(std::move(offered)) });
    return NumberOf(static_cast<Answer>(answer.number));
}

HINSTANCE WINAPI OpenDocument(
    HWND /*owner*/, LPCWSTR /*verb*/, LPCWSTR document, LPCWSTR /*arguments*/, LPCWSTR /*folder*/, INT /*show*/)
{
    AskHost("shell", { WireValue::Text(Narrow(document)) });
    // Anything above 32 is a success.
    constexpr INT_PTR Opened = 33;
    return reinterpret_cast<HINSTANCE>(Opened); // NOLINT
}

BOOL WINAPI NextMessage(MSG* message, HWND window, UINT first, UINT last, UINT remove)
{
    if (PeekMessageW(message, window, first, last, remove) != FALSE) {
        return TRUE;
    }
    AskHost("pump");
    return FALSE;
}

/// What lies in a loaded module at a place counted from its beginning.
template <class Part> Part* At(HMODULE module, std::size_t place)
{
    return reinterpret_cast<Part*>(reinterpret_cast<BYTE*>(module) + place); // NOLINT
}

/// Where a loaded module keeps the address of a function that it imports.
ULONG_PTR& PlaceOfImport(HMODULE module, std::string_view function)
{
    const auto* head
        = At<IMAGE_NT_HEADERS>(module, static_cast<std::size_t>(At<IMAGE_DOS_HEADER>(module, 0)->e_lfanew));
    const auto& imports = head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports.VirtualAddress); library->Name != 0; ++library) {
        auto* place = At<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (auto* name = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk); name->u1.AddressOfData != 0;
             ++name, ++place) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal) == 0
                && function == At<char>(module, name->u1.AddressOfData + offsetof(IMAGE_IMPORT_BY_NAME, Name))) {
                return place->u1.Function;
            }
        }
    }
    throw WireFailure(WireFailure::Refused, "the add-in's module doesn't call " + std::string(function));
}

template <class Function> void Hook(HMODULE module, std::string_view name, Function* function)
{
    auto& place = PlaceOfImport(module, name);
    DWORD protection = 0;
    VirtualProtect(&place, sizeof place, PAGE_READWRITE, &protection);
    place = reinterpret_cast<ULONG_PTR>(function); // NOLINT
    VirtualProtect(&place, sizeof place, protection, &protection);
}

}

void ImportHooks::Set(HMODULE module, Conversation& host)
{
    HookedHost() = &host;
    Hook(module, "GetLocalTime", &TellTime);
    Hook(module, "MessageBoxW", &ShowBox);
    Hook(module, "ShellExecuteW", &OpenDocument);
    Hook(module, "PeekMessageW", &NextMessage);
}

}
