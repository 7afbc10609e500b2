#include "support/TestServices.h"

#include <utility>

namespace tempodial {

namespace {

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

bool TestImportJournal::Remembers()
{
    return mJournal->Remembers();
}

void TestImportJournal::ForgetLines()
{
    mJournal->ForgetLines();
}

std::int32_t TestImportJournal::BeginDay(const std::string& dayKey, std::int32_t lastCount)
{
    return mJournal->BeginDay(dayKey, lastCount);
}

bool TestImportJournal::IsKnown(const std::string& line)
{
    return mJournal->IsKnown(line);
}

void TestImportJournal::Reached(std::int64_t number, bool isReadable)
{
    mJournal->Reached(number, isReadable);
}

void TestImportJournal::Tell(const std::string& call)
{
    calls.push_back(call);
    if (hook) {
        hook(call);
    }
}

void TestEventPump::ProcessPending()
{
    if (hook) {
        hook();
    }
}

void TestShell::Open(const std::string& document)
{
    opened.push_back(document);
}

std::int32_t TestShell::ThreadId()
{
    return 7;
}

Ref<Picture> TestPictures::Load(const std::string& path)
{
    if (!present) {
        throw Failure(Error::FileNotFound);
    }
    loaded.push_back(path.substr(path.rfind('/') + 1));
    return MakeRef<TestPicture>();
}

TestImportJournal::TestImportJournal(Ref<ImportJournal> journal)
    : mJournal(std::move(journal))
{
}

void NoImportJournal::Begin() { }

void NoImportJournal::Loaded(const std::string&, const Position&) { }

void NoImportJournal::Commit() { }

std::optional<ImportJournal::Position> NoImportJournal::Committed(const std::string&)
{
    return std::nullopt;
}

void NoImportJournal::HistorySaved() { }

void NoImportJournal::End() { }

bool NoImportJournal::Remembers()
{
    return false;
}

void NoImportJournal::ForgetLines() { }

std::int32_t NoImportJournal::BeginDay(const std::string&, std::int32_t lastCount)
{
    return lastCount;
}

bool NoImportJournal::IsKnown(const std::string&)
{
    return false;
}

void NoImportJournal::Reached(std::int64_t, bool) { }

}
