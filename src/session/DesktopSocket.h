#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tempodial {

/// The socket by which the desktop program of a profile is reached: a caller sends a line and gets one back. It is this
/// user's alone.
class DesktopSocket
{
public:
    /// Answers a line with a line, both without their ends.
    using Answering = std::function<std::string(const std::string& line)>;

    /// Listens for a profile, which this process must hold. Fails (70) when the system refuses it.
    explicit DesktopSocket(const std::string& profile);
    ~DesktopSocket();
    DesktopSocket(const DesktopSocket&) = delete;
    DesktopSocket& operator=(const DesktopSocket&) = delete;

    /// What is to be watched: readable when somebody calls.
    int Number() const { return mNumber; }
    /// Answers those who have called. One who says nothing, too much, or is another user gets no answer.
    void AnswerCallers(const Answering& answer) const;

    /// Where the socket of a profile is, given by its absolute path.
    static std::string PathFor(const std::string& profile);
    /// What the desktop program of a profile answers: nothing when there is none, an empty line when it is too busy.
    static std::optional<std::string> Ask(const std::string& profile, const std::string& line);

private:
    std::string mPath;
    int mNumber;
};

}
