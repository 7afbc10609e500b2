#pragma once

#include "base/Failure.h"
#include "base/Ref.h"
#include "host/system/HostFileSystem.h"
#include "platform/controls/EventPump.h"
#include "platform/system/ImportJournal.h"
#include "platform/system/PictureLoader.h"
#include "platform/system/Shell.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// Messages let a test look in, or cancel, when a job lets them be processed.
class TestEventPump : public EventPump
{
public:
    /// Run each time, when it is set.
    std::function<void()> hook;

    void ProcessPending() override;
};

/// A shell that notes what it is to open.
class TestShell : public Shell
{
public:
    std::vector<std::string> opened;

    void Open(const std::string& document) override;
    std::int32_t ThreadId() override;
};

/// A picture that is nothing but there.
class TestPicture : public Picture
{
};

/// Has the pictures of any name, or none.
class TestPictures : public PictureLoader
{
public:
    bool present = true;
    /// The names of the files that were loaded.
    std::vector<std::string> loaded;

    Ref<Picture> Load(const std::string& path) override;
};

/// The files of the host, of which a test is told before each operation; what it throws, the operation fails with.
class TestFileSystem : public HostFileSystem
{
public:
    using HostFileSystem::HostFileSystem;

    /// Told of "open", "copy", "delete" and "move" with the path, and of "write" and "save" for a file opened for
    /// writing: each text, and the moment at which all of it takes the place of the old file.
    std::function<void(const std::string& operation, const std::string& path)> hook;

    void MoveFile(const std::string& source, const std::string& target) override;
    void CopyFile(const std::string& source, const std::string& target, bool overwrite) override;
    void DeleteFile(const std::string& path, bool force) override;
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override;

private:
    void Tell(const std::string& operation, const std::string& path) const;
};

/// An import journal of which a test is told before each call; what it throws, the call fails with.
class TestImportJournal : public ImportJournal
{
public:
    explicit TestImportJournal(Ref<ImportJournal> journal);

    std::function<void(const std::string& call)> hook;
    /// The calls so far, as "Loaded 20061010 4300 2".
    std::vector<std::string> calls;

    void Begin() override;
    void Loaded(const std::string& dayKey, const Position& position) override;
    void Commit() override;
    std::optional<Position> Committed(const std::string& dayKey) override;
    void HistorySaved() override;
    void End() override;
    bool Remembers() override;
    void ForgetLines() override;
    std::int32_t BeginDay(const std::string& dayKey, std::int32_t lastCount) override;
    bool IsKnown(const std::string& line) override;
    void Reached(std::int64_t number, bool isReadable) override;

private:
    void Tell(const std::string& call);

    Ref<ImportJournal> mJournal;
};

/// An import journal as Outlook has it: none.
class NoImportJournal : public ImportJournal
{
public:
    void Begin() override;
    void Loaded(const std::string&, const Position&) override;
    void Commit() override;
    std::optional<Position> Committed(const std::string&) override;
    void HistorySaved() override;
    void End() override;
    bool Remembers() override;
    void ForgetLines() override;
    std::int32_t BeginDay(const std::string&, std::int32_t lastCount) override;
    bool IsKnown(const std::string&) override;
    void Reached(std::int64_t, bool) override;
};

}
