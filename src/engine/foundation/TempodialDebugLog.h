#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "platform/Platform.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <thread>

namespace tempodial {

class TempodialCommonUtils;

/// The trace: two files in the data folder, the older thrown away when the newer is full.
class TempodialDebugLog
{
public:
    explicit TempodialDebugLog(Ref<const Platform> platform);

    /// The context word of the trace's own lines, "TDDebugLog".
    std::string mTraceInfo;
    /// 0 flushes after every line; otherwise the buffer is flushed when it is longer, in characters.
    std::int32_t mFlushLength = 0;

    /// Stores what it is given and touches no file.
    void Initialize(Ref<TempodialCommonUtils> utils, const std::string& version, const std::string& name1,
        const std::string& name2, std::int32_t flushLength);
    /// Writes the start line.
    void Start();
    /// Adds a line; never fails.
    void Out(std::string_view context, std::string_view text) noexcept;
    /// Collects lines from now on, up to 2500 characters, or stops collecting; writes nothing itself.
    void SetBufferedTrace(bool buffer);
    /// Writes the buffer and one line end; never fails.
    void FlushIt() noexcept;
    /// Writes the stop line, flushes and lets its references go; later lines do nothing.
    void Terminate();

private:
    /// True when there are files to write to, made on first use; not before `Initialize` nor after `Terminate`.
    bool HasFiles();
    void AddTraceLine(std::string_view context, std::string_view text);
    /// The path to write to, with the roll-over done and a new file begun where there is none.
    std::string GetTraceFilePath();
    /// Makes room by moving the file to the second name; false when that failed.
    bool RollOver(const std::string& path);
    void BeginFile(const std::string& path);
    /// Makes the head of lines anew when the thread or the present moment is another.
    void RefreshHead();

    Ref<const Platform> mPlatform;
    Ref<FileSystemObject> mFileSystem;
    Ref<TempodialCommonUtils> mCommonUtils;
    std::string mVersion;
    std::string mBuffer;
    std::string mFileName1;
    std::string mFileName2;
    /// What stands before the context: thread id and present moment.
    std::string mHead;
    std::thread::id mHeadThread;
    Date mHeadMoment;
};

}
