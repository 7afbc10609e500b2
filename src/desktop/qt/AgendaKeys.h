#pragma once

#include <cstddef>
#include <optional>

class QKeyEvent;

namespace tempodial {

class AgendaView;

/// What a person does in an agenda with the keys that go from one activity to another, and that move one.
class AgendaKeys
{
public:
    /// The view must live as long as this.
    explicit AgendaKeys(AgendaView& view)
        : mView(view)
    {
    }

    /// True when the key was taken.
    bool Press(const QKeyEvent& event);

private:
    /// The piece to which a key leads; nothing for other keys and where the way ends.
    std::optional<std::size_t> Goal(int key) const;
    std::optional<std::size_t> First() const;
    void GoTo(std::size_t piece, const QKeyEvent& event);
    void Toggle();
    bool Nudge(const QKeyEvent& event);

    AgendaView& mView;
};

}
