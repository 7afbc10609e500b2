#include "driver/Driver.h"

#include "base/Failure.h"
#include "driver/RequestError.h"
#include "host/system/IcuLocaleFormats.h"

#include <nlohmann/json.hpp>

#include <exception>
#include <new>
#include <utility>

namespace tempodial {

namespace {

constexpr int DeepestNesting = 100;

Json Parsed(const std::string& line)
{
    try {
        return Json::parse(line, [](int depth, Json::parse_event_t, const Json&) {
            if (depth > DeepestNesting) {
                throw RequestError("the line is nested too deeply");
            }
            return true;
        });
    } catch (const Json::parse_error& error) {
        throw RequestError("the line is no JSON from its byte " + std::to_string(error.byte) + " on");
    } catch (const Json::exception&) {
        throw RequestError("the line is no JSON: a number in it is too large");
    }
}

Json Refusal(const std::string& error)
{
    return { { "ok", false }, { "error", error } };
}

/// What went wrong, when nothing but the line's own work is to be stopped by it.
Json RefusalOfCurrentException()
{
    try {
        throw;
    } catch (const Failure& failure) {
        return Refusal(failure.Description());
    } catch (const Json::exception&) {
        return Refusal("a value in the line is of another kind than its field takes");
    } catch (const std::bad_alloc&) {
        return Refusal("there isn't enough memory");
    } catch (const std::exception& error) {
        return Refusal(error.what());
    } catch (...) {
        return Refusal("the command failed");
    }
}

}

Driver::Driver(const ProfileOptions& options, std::optional<RemotePrograms> programs)
    : Driver(std::make_unique<Session>(options),
        DriverSurroundings { .programs = std::move(programs),
            .locale = options.locale ? *options.locale : IcuLocaleFormats::FromEnvironment() })
{
}

Driver::Driver(std::unique_ptr<Session> session, DriverSurroundings surroundings)
    : Driver(*session, std::move(surroundings))
{
    mSession = std::move(session);
}

Driver::Driver(Session& session, DriverSurroundings surroundings)
    : mHost(session, std::move(surroundings))
{
    mHostCommands.AddTo(mCommands);
    mMailboxCommands.AddTo(mCommands);
    mWindowCommands.AddTo(mCommands);
    mFormCommands.AddTo(mCommands);
    mCommands["onPump"] = [this](const Request& request) { return PutOff(request); };
}

Driver::~Driver() = default;

std::string Driver::Answer(const std::string& line)
{
    return Concluded([&] { return Parsed(line); }).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string Driver::Refuse(const std::string& error)
{
    return Concluded([&]() -> Json { throw RequestError(error); }).dump();
}

Json Driver::Do(const Json& command)
{
    return Concluded([&] { return command; });
}

void Driver::Exit()
{
    mHost.Session().Exit();
    mHost.Session().DropReplaced();
}

template <class Source> Json Driver::Concluded(Source&& source)
{
    Json answer;
    try {
        answer = Execute(source());
    } catch (...) {
        answer = RefusalOfCurrentException();
    }
    mHost.Session().DropReplaced();
    answer["messages"] = mHost.MessageBox().Take();
    if (!mPumped.empty()) {
        answer["pumped"] = std::exchange(mPumped, {});
    }
    return answer;
}

Json Driver::Execute(const Json& command)
{
    Json answer { { "ok", true } };
    try {
        const Request request(command);
        const auto fields = Find(request)(request);
        answer.update(fields);
    } catch (...) {
        answer = RefusalOfCurrentException();
    }
    mHost.Session().Idle();
    if (const auto differences = mHost.Differences(); !differences.empty()) {
        answer["ok"] = false;
        answer["differences"] = differences;
    }
    return answer;
}

const Command& Driver::Find(const Request& request) const
{
    const auto name = request.Text("do");
    const auto found = mCommands.find(name);
    if (found == mCommands.end()) {
        throw RequestError("there is no command \"" + name + "\"");
    }
    return found->second;
}

Json Driver::PutOff(const Request& request)
{
    const auto moments = request.NumberFrom(1, "at", 1);
    const auto& then = request.Any("then");
    Find(Request(then));
    mHost.EventPump().Defer(moments, [this, then] { RunPutOff(then); });
    return Json::object();
}

void Driver::RunPutOff(const Json& command)
{
    const auto place = mPumped.size();
    mPumped.emplace_back();
    const auto shown = mHost.MessageBox().Count();
    auto answer = Execute(command);
    answer["messages"] = mHost.MessageBox().ShownFrom(shown);
    mPumped[place] = std::move(answer);
}

}
