#include "standin/PictureBytes.h"

namespace tempodial {

namespace {

/// What stands in front of the file when a picture is saved: a mark and the file's length.
constexpr std::size_t SavedHeader = 8;

}

std::optional<std::string> PictureBytes(const ComRef<IDispatch>& object)
{
    const auto persistent = object.As<IPersistStream>();
    ComRef<IStream> stream;
    if (!object.As<IPicture>() || !persistent || FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()))
        || FAILED(persistent->Save(stream.Get(), TRUE))) {
        return std::nullopt;
    }
    STATSTG facts {};
    if (FAILED(stream->Stat(&facts, STATFLAG_NONAME))
        || FAILED(stream->Seek(LARGE_INTEGER {}, STREAM_SEEK_SET, nullptr))) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(facts.cbSize.QuadPart), '\0');
    ULONG count = 0;
    if (FAILED(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count)) || count <= SavedHeader) {
        return std::nullopt;
    }
    bytes.resize(count);
    return bytes.substr(SavedHeader);
}

}
