#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tempodial {

/// A new empty folder for one test, removed with all that is in it.
class TempFolder
{
public:
    explicit TempFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
    {
        auto pattern = (parent / "tempodial-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no folder for the test can be made");
        }
        mPath = pattern;
    }
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(mPath, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// Where files live in memory, so that tests that need no disk don't wait for it; else the usual place.
    static std::filesystem::path InMemory()
    {
        return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
    }

    const std::string& Path() const { return mPath; }
    /// The path of a name in the folder.
    std::string Path(std::string_view name) const { return mPath + "/" + std::string(name); }
    /// Writes a file and answers its path.
    std::string Write(std::string_view name, std::string_view content) const
    {
        std::ofstream(Path(name), std::ios::binary) << content;
        return Path(name);
    }
    /// The content of a file, "" when there is none.
    std::string Read(std::string_view name) const
    {
        std::ifstream file(Path(name), std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }
    bool Has(std::string_view name) const
    {
        return std::filesystem::exists(std::filesystem::symlink_status(Path(name)));
    }

private:
    std::string mPath;
};

}
