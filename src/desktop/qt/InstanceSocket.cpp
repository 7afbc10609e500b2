#include "desktop/qt/InstanceSocket.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>

namespace tempodial {

namespace {

constexpr auto CommandKey = "command";
constexpr auto RaiseCommand = "raise";
constexpr auto WishKey = "then";
/// The wishes in their order; none is left out.
constexpr std::array WishWords { "", "refresh", "report" };
constexpr auto TokenKey = "token";
/// By these a desktop hands on the right to come to the front.
constexpr std::array TokenVariables { "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID" };

std::string Line(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

}

InstanceSocket::InstanceSocket(const std::string& profile)
    : mSocket(profile)
    , mNotifier(mSocket.Number(), QSocketNotifier::Read)
{
    QObject::connect(&mNotifier, &QSocketNotifier::activated, &mNotifier,
        [this] { mSocket.AnswerCallers([this](const std::string& line) { return Answer(line); }); });
}

std::string InstanceSocket::Answer(const std::string& line) const
{
    const auto call = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
    if (call[CommandKey].toString() != RaiseCommand) {
        return Line({ { "ok", false }, { "error", "the one command is raise" } });
    }
    if (const auto token = call[TokenKey].toString().toUtf8(); !token.isEmpty()) {
        for (const auto* variable : TokenVariables) {
            qputenv(variable, token);
        }
    }
    const auto wish = std::find(WishWords.begin(), WishWords.end(), call[WishKey].toString());
    if (wish == WishWords.end()) {
        return Line({ { "ok", false }, { "error", "\"then\" can be refresh or report" } });
    }
    if (mRaise) {
        mRaise(static_cast<StartWish>(wish - WishWords.begin()));
    }
    return Line({ { "ok", true } });
}

bool InstanceSocket::RaiseOther(const std::string& profile, StartWish wish)
{
    QJsonObject call { { CommandKey, RaiseCommand } };
    if (wish != StartWish::None) {
        call[WishKey] = WishWords[static_cast<std::size_t>(wish)];
    }
    for (const auto* variable : TokenVariables) {
        if (const auto token = qEnvironmentVariable(variable); !token.isEmpty() && !call.contains(TokenKey)) {
            call[TokenKey] = token;
        }
    }
    return DesktopSocket::Ask(profile, Line(call)).has_value();
}

}
