#pragma once

#include "base/Concatenated.h"
#include "base/Failure.h"
#include "base/Text.h"
#include "platform/system/TextStream.h"

#include <string>

namespace tempodial {

/// A text file opened for writing or appending.
class WritingStream : public TextStream
{
public:
    std::string ReadLine() final { throw Failure(Error::BadFileMode); }
    std::string ReadAll() final { throw Failure(Error::BadFileMode); }
    void WriteLine(const std::string& text) final { Write(Concatenated({ text, CrLf })); }
};

}
