#include "addin/win32/Win32MessageBox.h"

#include "addin/base/SystemText.h"
#include "base/Failure.h"

#include <algorithm>

namespace tempodial {

namespace {

UINT KindOfButtons(const std::vector<Answer>& buttons)
{
    const std::pair<std::vector<Answer>, UINT> known[] = { { { Answer::Ok }, MB_OK }, { {}, MB_OK },
        { { Answer::Ok, Answer::Cancel }, MB_OKCANCEL }, { { Answer::Yes, Answer::No }, MB_YESNO },
        { { Answer::Yes, Answer::No, Answer::Cancel }, MB_YESNOCANCEL } };
    for (const auto& [answers, kind] : known) {
        if (answers == buttons) {
            return kind;
        }
    }
    throw Failure(Error::InvalidCall);
}

}

unsigned Win32MessageBox::Kind(const std::vector<Answer>& buttons, MessageIcon icon)
{
    const auto picture = icon == MessageIcon::Question ? MB_ICONQUESTION
        : icon == MessageIcon::Exclamation             ? MB_ICONEXCLAMATION
                                                       : 0U;
    return KindOfButtons(buttons) | picture;
}

Answer Win32MessageBox::Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon)
{
    switch (MessageBoxW(mOwner.Get(), Wide(text).c_str(), Wide(mTitle).c_str(), Kind(buttons, icon))) {
    case IDYES:
        return Answer::Yes;
    case IDNO:
        return Answer::No;
    case IDCANCEL:
        return Answer::Cancel;
    default:
        return buttons.empty() ? Answer::Ok : buttons.front();
    }
}

}
