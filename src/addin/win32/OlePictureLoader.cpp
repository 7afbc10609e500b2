#include "addin/win32/OlePictureLoader.h"

#include "addin/base/ResultFailure.h"
#include "addin/win32/OlePicture.h"
#include "addin/win32/Win32File.h"

#include <array>
#include <vector>

namespace tempodial {

namespace {

constexpr std::size_t LargestPicture = std::size_t { 16 } << 20;

std::vector<char> BytesOf(const std::string& path)
{
    try {
        Win32File file(path, { .access = GENERIC_READ, .disposition = OPEN_EXISTING });
        std::vector<char> bytes;
        std::array<char, 16384> buffer {};
        while (const auto count = file.Read(buffer.data(), buffer.size())) {
            bytes.insert(bytes.end(), buffer.data(), buffer.data() + count);
            if (bytes.size() > LargestPicture) {
                throw Failure(Error::InvalidPicture);
            }
        }
        return bytes;
    } catch (const Failure& failure) {
        throw failure.Is(Error::PathNotFound) ? Failure(Error::FileNotFound) : failure;
    }
}

}

Ref<Picture> OlePictureLoader::Load(const std::string& path)
{
    const auto bytes = BytesOf(path);
    ComRef<IStream> stream;
    Check(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()));
    Check(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    Check(stream->Seek(LARGE_INTEGER {}, STREAM_SEEK_SET, nullptr));
    ComRef<IPicture> picture;
    const auto size = static_cast<LONG>(bytes.size());
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    if (FAILED(OleLoadPicture(stream.Get(), size, FALSE, IID_IPicture, picture.PutAny()))
        || FAILED(picture->get_Width(&width)) || FAILED(picture->get_Height(&height)) || width <= 0 || height <= 0) {
        throw Failure(Error::InvalidPicture);
    }
    auto automation = picture.As<IDispatch>();
    if (!automation) {
        throw Failure(Error::InvalidPicture);
    }
    return MakeRef<OlePicture>(std::move(automation));
}

}
