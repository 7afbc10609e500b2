#pragma once

#include "desktop/qt/AccessVoice.h"

#include <string>
#include <vector>

namespace tempodial {

/// What assistive programs hear while this is there: what happened, and the name of whom.
class HeardEvents
{
public:
    struct Heard
    {
        QAccessible::Event what;
        std::string name;

        friend bool operator==(const Heard&, const Heard&) = default;
    };

    HeardEvents()
    {
        AccessVoice::TellInstead([this](QAccessibleEvent& event) {
            mAll.push_back({ event.type(), event.accessibleInterface()->text(QAccessible::Name).toStdString() });
        });
    }
    ~HeardEvents() { AccessVoice::TellInstead({}); }
    HeardEvents(const HeardEvents&) = delete;
    HeardEvents& operator=(const HeardEvents&) = delete;

    const std::vector<Heard>& All() const { return mAll; }
    /// The names of those to whom something happened.
    std::vector<std::string> Of(QAccessible::Event what) const
    {
        std::vector<std::string> names;
        for (const auto& heard : mAll) {
            if (heard.what == what) {
                names.push_back(heard.name);
            }
        }
        return names;
    }

private:
    std::vector<Heard> mAll;
};

}
