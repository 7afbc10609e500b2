#include "addin/win32/ScratchFolder.h"

#include "addin/base/SystemText.h"
#include "addin/base/Windows.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tempodial {

namespace {

std::filesystem::path Native(const std::string& path)
{
    return Wide(path);
}

}

ScratchFolder::ScratchFolder()
{
    static int count = 0;
    const auto name = "tempodial-tests-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
    const auto path = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(path);
    mPath = Narrow(path.wstring());
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(Native(mPath), ignored);
}

std::string ScratchFolder::Path(const std::string& name) const
{
    return name.empty() ? mPath : mPath + "\\" + name;
}

void ScratchFolder::Write(const std::string& name, const std::string& bytes) const
{
    std::ofstream(Native(Path(name)), std::ios::binary) << bytes;
}

std::string ScratchFolder::Read(const std::string& name) const
{
    std::ifstream file(Native(Path(name)), std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "(absent)";
}

}
