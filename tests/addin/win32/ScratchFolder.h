#pragma once

#include <string>

namespace tempodial {

/// A folder for one test, with what is in it.
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// The path of a name in it, or its own.
    std::string Path(const std::string& name = {}) const;
    /// Makes a file of bytes.
    void Write(const std::string& name, const std::string& bytes) const;
    /// The bytes of a file, "(absent)" without one.
    std::string Read(const std::string& name) const;

private:
    std::string mPath;
};

}
