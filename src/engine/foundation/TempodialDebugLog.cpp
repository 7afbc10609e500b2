#include "engine/foundation/TempodialDebugLog.h"

#include "base/Text.h"
#include "engine/foundation/Quietly.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialWin32APICalls.h"

namespace tempodial {

namespace {

constexpr auto Revision = "revision 1 TempodialDebugLog ";
constexpr std::int32_t BufferedLength = 2500;
/// A file is rolled over when it has more bytes.
constexpr std::int64_t FullSize = 300000;

}

TempodialDebugLog::TempodialDebugLog(Ref<const Platform> platform)
    : mPlatform(std::move(platform))
{
}

void TempodialDebugLog::Initialize(Ref<TempodialCommonUtils> utils, const std::string& version,
    const std::string& name1, const std::string& name2, std::int32_t flushLength)
{
    mCommonUtils = std::move(utils);
    mVersion = version;
    mFileName1 = name1;
    mFileName2 = name2;
    mFlushLength = flushLength;
    mTraceInfo = "TDDebugLog";
}

void TempodialDebugLog::Start()
{
    Out(mTraceInfo, std::string(Revision) + "TRACE SESSION START ");
}

void TempodialDebugLog::Out(std::string_view context, std::string_view text) noexcept
{
    Quietly([&] {
        if (HasFiles()) {
            AddTraceLine(context, text);
        }
    });
}

void TempodialDebugLog::SetBufferedTrace(bool buffer)
{
    mFlushLength = buffer ? BufferedLength : 0;
}

void TempodialDebugLog::FlushIt() noexcept
{
    Quietly([&] {
        if (HasFiles()) {
            const auto path = GetTraceFilePath();
            const auto stream = mFileSystem->OpenTextFile(path, OpenMode::Appending, true);
            stream->WriteLine(mBuffer);
            stream->Close();
        }
    });
    mBuffer.clear();
}

void TempodialDebugLog::Terminate()
{
    if (mFileSystem) {
        Quietly([&] { AddTraceLine(mTraceInfo, "TRACE SESSION STOP"); });
        FlushIt();
        mFileSystem = nullptr;
    }
    mCommonUtils = nullptr;
}

bool TempodialDebugLog::HasFiles()
{
    if (!mFileSystem && mCommonUtils) {
        mFileSystem = mPlatform->fileSystem;
    }
    return static_cast<bool>(mFileSystem);
}

void TempodialDebugLog::AddTraceLine(std::string_view context, std::string_view text)
{
    Quietly([&] { RefreshHead(); });
    if (!mBuffer.empty()) {
        mBuffer += CrLf;
    }
    mBuffer.append(mHead).append(context).append(" ").append(text);

    // A text never has more characters than bytes, so most lines need no counting.
    if (mFlushLength == 0
        || (mBuffer.size() > static_cast<std::size_t>(mFlushLength) && Length(mBuffer) > mFlushLength)) {
        FlushIt();
    }
}

std::string TempodialDebugLog::GetTraceFilePath()
{
    auto path = mCommonUtils->GetDataFilePath(mFileName1);
    std::int64_t size = 0;
    const bool exists = Quietly([&] { size = mFileSystem->GetFile(path).size; }) || mFileSystem->FileExists(path);
    if (!exists || (size > FullSize && RollOver(path))) {
        Quietly([&] { BeginFile(path); });
    }
    return path;
}

bool TempodialDebugLog::RollOver(const std::string& path)
{
    const auto rolled = mCommonUtils->GetDataFilePath(mFileName2);
    Quietly([&] {
        if (mFileSystem->FileExists(rolled)) {
            mFileSystem->DeleteFile(rolled, false);
        }
    });
    return Quietly([&] { mFileSystem->MoveFile(path, rolled); });
}

void TempodialDebugLog::BeginFile(const std::string& path)
{
    // Appending makes the file as well, and spares the care with which a file that replaces another is written.
    const auto stream = mFileSystem->OpenTextFile(path, OpenMode::Appending, true);
    stream->WriteLine("Tempodial Version: " + mVersion);
    stream->WriteLine("");
    stream->Close();
}

void TempodialDebugLog::RefreshHead()
{
    const auto now = mPlatform->clock->Now();
    const auto thread = std::this_thread::get_id();
    if (mHead.empty() || now != mHeadMoment || thread != mHeadThread) {
        auto& formats = *mPlatform->formats;
        // Both parts stand in every line, also at midnight.
        mHead = std::to_string(TempodialWin32APICalls::GetThreadId(*mPlatform)) + " " + formats.ShortDate(now) + " "
            + formats.LongTime(now) + ": ";
        mHeadMoment = now;
        mHeadThread = thread;
    }
}

}
