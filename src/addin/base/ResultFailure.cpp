#include "addin/base/ResultFailure.h"

#include "addin/base/SystemText.h"

#include <cstdint>
#include <string>
#include <utility>

namespace tempodial {

namespace {

constexpr std::uint32_t FacilityMask = 0xFFFF0000U;
constexpr std::uint32_t ControlFacility = 0x800A0000U;
constexpr std::uint32_t NumberMask = 0xFFFFU;

constexpr auto MapiNotSupported = static_cast<HRESULT>(0x80040102);
constexpr auto ServerGone = static_cast<HRESULT>(0x800706BA);

std::int32_t NumberOf(HRESULT result)
{
    static constexpr std::pair<HRESULT, Error> Known[] = {
        { E_ABORT, Error::SecurityRefusal },
        { MapiNotSupported, Error::SecurityRefusal },
        { DISP_E_UNKNOWNNAME, Error::NotSupported },
        { DISP_E_MEMBERNOTFOUND, Error::NotSupported },
        { DISP_E_BADPARAMCOUNT, Error::NotSupported },
        { DISP_E_NONAMEDARGS, Error::NotSupported },
        { DISP_E_TYPEMISMATCH, Error::TypeMismatch },
        { E_NOINTERFACE, Error::TypeMismatch },
        { DISP_E_OVERFLOW, Error::Overflow },
        { DISP_E_BADINDEX, Error::SubscriptOutOfRange },
        { DISP_E_DIVBYZERO, Error::DivisionByZero },
        { E_OUTOFMEMORY, Error::OutOfMemory },
        { E_INVALIDARG, Error::InvalidCall },
        { E_POINTER, Error::ObjectNotSet },
        { ServerGone, Error::ServerUnavailable },
    };
    for (const auto& [known, error] : Known) {
        if (known == result) {
            return static_cast<std::int32_t>(error);
        }
    }
    const auto bits = static_cast<std::uint32_t>(result);
    return (bits & FacilityMask) == ControlFacility ? static_cast<std::int32_t>(bits & NumberMask) : result;
}

/// What the system says of a result, without its line end; "" when it says nothing.
std::string SystemWords(HRESULT result)
{
    constexpr DWORD Longest = 512;
    wchar_t words[Longest];
    const auto size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(result), 0, words, Longest, nullptr);
    std::wstring_view text(words, size);
    while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n' || text.back() == L' ')) {
        text.remove_suffix(1);
    }
    return Narrow(text);
}

/// Its own text, or for a result that is no number of ours the system's.
Failure FailureOfNumber(std::int32_t number)
{
    auto words = number < 0 && ErrorText(number) == ErrorText(0) ? SystemWords(number) : std::string();
    return words.empty() ? Failure(number) : Failure(number, std::move(words));
}

}

Failure FailureOf(HRESULT result)
{
    return FailureOfNumber(NumberOf(result));
}

Failure FailureOf(HRESULT result, EXCEPINFO& told)
{
    if (result != DISP_E_EXCEPTION) {
        return FailureOf(result);
    }
    if (told.pfnDeferredFillIn != nullptr) {
        told.pfnDeferredFillIn(&told);
    }
    // Some hosts tell that there was one and nothing else.
    const auto code = FAILED(told.scode) ? told.scode : result;
    const auto number = told.wCode != 0 ? std::int32_t { told.wCode } : NumberOf(code);
    auto text = FromBstr(told.bstrDescription);
    SysFreeString(std::exchange(told.bstrSource, nullptr));
    SysFreeString(std::exchange(told.bstrDescription, nullptr));
    SysFreeString(std::exchange(told.bstrHelpFile, nullptr));
    return text.empty() ? FailureOfNumber(number) : Failure(number, std::move(text));
}

void Check(HRESULT result)
{
    if (FAILED(result)) {
        throw FailureOf(result);
    }
}

}
