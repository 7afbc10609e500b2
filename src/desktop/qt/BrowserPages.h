#pragma once

#include "platform/system/MailDraft.h"

#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>

namespace tempodial {

/// Pages that a person opened in the browser: files of this user alone, which go with the program.
class BrowserPages
{
public:
    /// Takes what opens a file in its usual program.
    explicit BrowserPages(std::function<void(const std::string& path)> open)
        : mOpen(std::move(open))
    {
    }

    /// Opens a mail's text; fails when it can't be written.
    void Open(const MailDraft& mail);

private:
    std::function<void(const std::string& path)> mOpen;
    std::unique_ptr<QTemporaryDir> mFolder;
    int mCount = 0;
};

}
