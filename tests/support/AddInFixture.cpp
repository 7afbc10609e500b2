#include "support/AddInFixture.h"

#include "base/Text.h"
#include "forms/ButtonModel.h"
#include "host/store/FormTemplate.h"
#include "host/store/StoreImportJournal.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

class TestShell : public Shell
{
public:
    void Open(const std::string&) override { }
    std::int32_t ThreadId() override { return 7; }
};

class NoPictures : public PictureLoader
{
public:
    Ref<Picture> Load(const std::string&) override { throw Failure(Error::FileNotFound); }
};

/// A file opened for writing, which takes the place of the old one when it is closed, unless a write has failed.
class ToldStream : public TextStream
{
public:
    ToldStream(std::function<void(const std::string&)> tell, std::function<void(const std::string&)> save)
        : mTell(std::move(tell))
        , mSave(std::move(save))
    {
    }

    std::string ReadLine() override { throw Failure(Error::BadFileMode); }
    std::string ReadAll() override { throw Failure(Error::BadFileMode); }
    void Write(const std::string& text) override
    {
        mHasFailed = true;
        mTell("write");
        mHasFailed = false;
        mText += text;
    }
    void WriteLine(const std::string& text) override { Write(text + "\r\n"); }
    void Close() override
    {
        if (mHasFailed) {
            throw Failure(Error::DeviceError);
        }
        mTell("save");
        mSave(mText);
    }

private:
    std::function<void(const std::string&)> mTell;
    std::function<void(const std::string&)> mSave;
    std::string mText;
    bool mHasFailed = false;
};

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

FormTemplate ActivityForm()
{
    FormTemplate form;
    form.messageClass = "IPM.Appointment.TDActivity1";
    form.displayName = "Activity";
    form.fields = {
        { "Type", PropertyType::Text, {} },
        { "Day", PropertyType::DateTime, {} },
        { "StartTime", PropertyType::Text, {} },
        { "Project", PropertyType::Text, {} },
        { "Description", PropertyType::Text, {} },
        { "People", PropertyType::Text, {} },
        { "Keyword", PropertyType::Text, {} },
        { "ApplyPast", PropertyType::YesNo, {} },
    };
    return form;
}

}

void TestFileSystem::MoveFile(const std::string& source, const std::string& target)
{
    Tell("move", source);
    HostFileSystem::MoveFile(source, target);
}

void TestFileSystem::CopyFile(const std::string& source, const std::string& target, bool overwrite)
{
    Tell("copy", source);
    HostFileSystem::CopyFile(source, target, overwrite);
}

void TestFileSystem::DeleteFile(const std::string& path, bool force)
{
    Tell("delete", path);
    HostFileSystem::DeleteFile(path, force);
}

Ref<TextStream> TestFileSystem::OpenTextFile(const std::string& path, OpenMode mode, bool create)
{
    Tell("open", path);
    if (mode != OpenMode::Writing) {
        return HostFileSystem::OpenTextFile(path, mode, create);
    }
    return MakeRef<ToldStream>([this, path](const std::string& operation) { Tell(operation, path); },
        [this, path, create](const std::string& text) {
            const auto stream = HostFileSystem::OpenTextFile(path, OpenMode::Writing, create);
            stream->Write(text);
            stream->Close();
        });
}

void TestFileSystem::Tell(const std::string& operation, const std::string& path) const
{
    if (hook) {
        hook(operation, path);
    }
}

void TestImportJournal::Begin()
{
    Tell("Begin");
    mJournal->Begin();
}

void TestImportJournal::Loaded(const std::string& dayKey, const Position& position)
{
    Tell("Loaded " + dayKey + " " + std::to_string(position.count) + " " + std::to_string(position.lines));
    mJournal->Loaded(dayKey, position);
}

void TestImportJournal::Commit()
{
    Tell("Commit");
    mJournal->Commit();
}

std::optional<ImportJournal::Position> TestImportJournal::Committed(const std::string& dayKey)
{
    return mJournal->Committed(dayKey);
}

void TestImportJournal::HistorySaved()
{
    Tell("HistorySaved");
    mJournal->HistorySaved();
}

void TestImportJournal::End()
{
    Tell("End");
    mJournal->End();
}

void TestImportJournal::Tell(const std::string& call)
{
    calls.push_back(call);
    if (hook) {
        hook(call);
    }
}

TestAddIn::TestAddIn(const std::string& profile, const std::string& mailboxPath)
    : mProfile(profile)
{
    files = MakeRef<TestFileSystem>(profile);
    registry = MakeRef<TomlRegistry>(profile + "/registry.toml");
    registry->Write(
        Hive::LocalMachine, "Software\\Lindenfold\\Tempodial", "Install Directory", TEMPODIAL_SOURCE_DIR "/resources");
    platform->fileSystem = files;
    platform->registry = registry;
    platform->shell = MakeRef<TestShell>();
    platform->clock = clock;
    platform->formats = MakeRef<IcuLocaleFormats>("en_US");
    platform->xml = MakeRef<ExpatXmlFactory>();
    platform->pictures = MakeRef<NoPictures>();
    platform->forms = forms;
    platform->messageBox = messageBox;
    platform->eventPump = eventPump;
    mailbox = Mailbox::Open(mailboxPath, platform->formats, platform->xml);
    journal = MakeRef<TestImportJournal>(MakeRef<StoreImportJournal>(mailbox));
    platform->importJournal = journal;

    application->nameSpace = mailbox->NameSpace();
    application->fromTemplate = [this](const std::string&, const Ref<MAPIFolder>& folder) {
        return mailbox->NewItem(folder, ActivityForm());
    };
    const auto explorer = MakeRef<TestExplorer>();
    explorer->folder = mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox);
    application->explorers->windows.emplace_back(explorer);
    application->activeExplorer = explorer;
}

TestAddIn::~TestAddIn()
{
    Disconnect();
}

void TestAddIn::Connect()
{
    main = MakeRef<TempodialMain>(platform);
    main->Initialize("Tempodial.Connect", application);
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
    std::string text = "tracker\r\n";
    for (const auto& line : lines) {
        text += line + "\r\n";
    }
    WriteContent(DataPath("tracker_granules" + dayKey + ".out"), text);
}

void TestAddIn::WriteHistory(const std::string& text) const
{
    WriteContent(DataPath("TempodialHistory.out"), text);
}

std::string TestAddIn::HistoryText() const
{
    return HasFile("TempodialHistory.out") ? ReadFile("TempodialHistory.out") : "(absent)";
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
    const auto text = ReadFile("WorkLogTrace1.out");
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
    return mProfile + "/Tempodial/" + name;
}

std::string Slot(std::int32_t start, std::int32_t end, const std::string& nodes)
{
    return "<slot><StartTime>" + std::to_string(start) + "</StartTime><EndTime>" + std::to_string(end) + "</EndTime>"
        + nodes + "</slot>";
}

std::string WordSlot(std::int32_t start, std::int32_t end, const std::string& document, const std::string& nodes)
{
    return Slot(start, end, "<AppType>2</AppType><WordDocName>" + document + "</WordDocName>" + nodes);
}

}
