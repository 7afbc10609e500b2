#include "support/AddInFixture.h"

#include "base/Text.h"
#include "forms/ButtonModel.h"
#include "platform/objectmodel/Items.h"
#include "session/ProductFacts.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

void WriteContent(const std::string& path, const std::string& content)
{
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

}

TestAddIn::TestAddIn(const std::string& profile, const std::string& mailboxPath)
    : TestHost(profile, MakeRef<TomlRegistry>(profile + "/" + RegistryFileName), mailboxPath)
    , registry(platform->registry.As<TomlRegistry>())
    , mProfile(profile)
{
    registry->Write(Hive::LocalMachine, ProductKey, InstallFolderValue, TEMPODIAL_SOURCE_DIR "/resources");
}

TestAddIn::~TestAddIn()
{
    Disconnect();
}

void TestAddIn::Connect()
{
    main = MakeRef<TempodialMain>(platform);
    main->Initialize(ConnectProgId, application);
    main->TempodialMain_Run();
}

void TestAddIn::Disconnect()
{
    if (main) {
        main->Terminate();
        main = nullptr;
    }
}

void TestAddIn::WriteTracker(const std::string& dayKey, const std::vector<std::string>& lines) const
{
    WriteContent(DataPath("tracker_granules" + dayKey + ".out"), TrackerText(lines));
}

void TestAddIn::WriteHistory(const std::string& text) const
{
    WriteContent(DataPath(HistoryFileName), text);
}

std::string TestAddIn::HistoryText() const
{
    return HasFile(HistoryFileName) ? ReadFile(HistoryFileName) : "(absent)";
}

bool TestAddIn::HasFile(const std::string& name) const
{
    return fs::exists(DataPath(name));
}

std::string TestAddIn::ReadFile(const std::string& name) const
{
    return ContentOf(DataPath(name));
}

std::vector<std::string> TestAddIn::Trace()
{
    const auto text = ReadFile(TraceFileName);
    std::vector<std::string> lines;
    auto pieces = Split(text.size() < mTraceRead ? text : text.substr(mTraceRead), CrLf);
    mTraceRead = text.size();
    for (auto& piece : pieces) {
        const auto head = piece.find("M: ");
        if (piece.starts_with("7 ") && head != std::string::npos) {
            lines.push_back(piece.substr(head + 3));
        } else if (!lines.empty() && !piece.empty()) {
            lines.back() += "\r\n" + piece;
        }
    }
    return lines;
}

std::vector<std::string> TestAddIn::TraceTexts()
{
    auto lines = Trace();
    for (auto& line : lines) {
        line.erase(0, line.find(' ') + 1);
    }
    return lines;
}

std::vector<Ref<AppointmentItem>> TestAddIn::Items() const
{
    const auto items = mailbox->FolderByPath("Calendar/Tempodial")->Items();
    items->Sort("[Start]", false);
    std::vector<Ref<AppointmentItem>> all;
    for (std::int32_t i = 1; i <= items->Count(); ++i) {
        all.push_back(items->Item(i).As<AppointmentItem>());
    }
    return all;
}

std::vector<std::string> TestAddIn::ItemTexts() const
{
    std::vector<std::string> texts;
    for (const auto& item : Items()) {
        const auto body = item->Body();
        texts.push_back(item->Start().HourMinute() + "-" + item->End().HourMinute() + " " + item->Subject()
            + (body.empty() ? "" : "|" + body));
    }
    return texts;
}

Variant TestAddIn::Property(const Ref<AppointmentItem>& item, const std::string& name) const
{
    return item->UserProperties()->Item(name)->Value();
}

void TestAddIn::ClickCancel() const
{
    forms->NewestVisible("ProgressBarForm")->Control("LoadCancel").As<ButtonModel>()->Click();
}

std::string TestAddIn::DataPath(const std::string& name) const
{
    return mProfile + "/" + DataFolderName + "/" + name;
}

AddInFixture::AddInFixture()
{
    mAddIn.Connect();
    mAddIn.Trace();
}

AddInFixture::~AddInFixture() = default;

}
