#pragma once

#include <sys/stat.h>

namespace tempodial {

/// Files that are made while this lives, whoever makes them, are the user's alone, and none is a program.
class PrivateFiles
{
public:
    PrivateFiles()
        : mMask(::umask(S_IXUSR | S_IRWXG | S_IRWXO))
    {
    }
    ~PrivateFiles() { ::umask(mMask); }
    PrivateFiles(const PrivateFiles&) = delete;
    PrivateFiles& operator=(const PrivateFiles&) = delete;

private:
    mode_t mMask;
};

}
