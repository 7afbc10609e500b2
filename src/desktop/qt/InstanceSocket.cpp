#include "desktop/qt/InstanceSocket.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <array>

namespace tempodial {

namespace {

constexpr auto CommandKey = "command";
constexpr auto RaiseCommand = "raise";
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
    if (mRaise) {
        mRaise();
    }
    return Line({ { "ok", true } });
}

bool InstanceSocket::RaiseOther(const std::string& profile)
{
    QJsonObject call { { CommandKey, RaiseCommand } };
    for (const auto* variable : TokenVariables) {
        if (const auto token = qEnvironmentVariable(variable); !token.isEmpty() && !call.contains(TokenKey)) {
            call[TokenKey] = token;
        }
    }
    return DesktopSocket::Ask(profile, Line(call)).has_value();
}

}
