#include "desktop/EditedFile.h"

#include "base/Failure.h"
#include "host/files/PathOperations.h"
#include "host/settings/SettingsText.h"

#include <utility>

namespace tempodial {

EditedFile::EditedFile(std::string path)
    : mPath(std::move(path))
{
}

std::string EditedFile::PathAside() const
{
    auto path = mPath + ".broken";
    for (int number = 2; StatusAt(NativePath::Exactly(path), Links::Taken); ++number) {
        path = mPath + ".broken" + std::to_string(number);
    }
    return path;
}

void EditedFile::Keep(const SettingsFile& content) const
{
    if (mRefusal.empty()) {
        MakeFoldersAbove(NativePath::Exactly(mPath));
        WriteSettingsFile(content);
    }
}

void EditedFile::PutAside()
{
    if (mRefusal.empty()) {
        return;
    }
    const auto path = NativePath::Exactly(mPath);
    // Whoever was told of it may have moved it away.
    if (StatusAt(path, Links::Taken)) {
        RenameToAbsent(path, NativePath::Exactly(PathAside()));
    }
    mRefusal.clear();
}

}
