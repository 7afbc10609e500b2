#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tempodial {

/// A new empty folder for one test, removed with all that is in it.
class TempFolder
{
public:
    explicit TempFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path());
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// Where files live in memory, so that tests that need no disk don't wait for it; else the usual place.
    static std::filesystem::path InMemory();

    const std::string& Path() const;
    /// The path of a name in the folder.
    std::string Path(std::string_view name) const;
    /// Writes a file and answers its path.
    std::string Write(std::string_view name, std::string_view content) const;
    /// The content of a file, "" when there is none.
    std::string Read(std::string_view name) const;
    bool Has(std::string_view name) const;

private:
    std::string mPath;
};

}
