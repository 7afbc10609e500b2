#include "desktop/qt/SavedFile.h"

#include "host/files/ReplacementFile.h"

namespace tempodial {

void SaveFile(const std::string& path, const std::string& content)
{
    ReplacementFile file(NativePath::Exactly(path));
    file.Write(content);
    file.TakeUsualMode();
    file.Commit();
}

}
