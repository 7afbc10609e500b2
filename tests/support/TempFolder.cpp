#include "support/TempFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tempodial {

TempFolder::TempFolder(const std::filesystem::path& parent)
{
    auto pattern = (parent / "tempodial-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no folder for the test can be made");
    }
    mPath = pattern;
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
}

std::filesystem::path TempFolder::InMemory()
{
    return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
}

const std::string& TempFolder::Path() const
{
    return mPath;
}

std::string TempFolder::Path(std::string_view name) const
{
    return mPath + "/" + std::string(name);
}

std::string TempFolder::Write(std::string_view name, std::string_view content) const
{
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
}

std::string TempFolder::Read(std::string_view name) const
{
    std::ifstream file(Path(name), std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

bool TempFolder::Has(std::string_view name) const
{
    return std::filesystem::exists(std::filesystem::symlink_status(Path(name)));
}

}
