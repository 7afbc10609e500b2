#include "host/system/GMimeDraftWriter.h"

#include "host/system/FileReplacer.h"
#include "host/system/ReplacementFile.h"
#include "host/system/SystemFailure.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace tempodial {

GMimeDraftWriter::GMimeDraftWriter(std::string modulePath)
    : mModulePath(std::move(modulePath))
{
}

void GMimeDraftWriter::Write(const MailDraft& draft, const std::string& path)
{
    const auto writeMessage = Load();
    const NativePath native(path);
    RequireReplaceable(native, true);
    ReplacementFile file(native);
    if (const auto error = writeMessage(draft, file.Descriptor()); error != 0) {
        throw SystemFailure(error);
    }
    file.Commit();
}

std::string GMimeDraftWriter::ModuleOfThisProgram()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / "lib/tempodial/tempodial-mail.so").string();
}

MimeMessageWriter GMimeDraftWriter::Load()
{
    if (mWriteMessage == nullptr) {
        // It stays loaded: GLib can't be unloaded.
        auto* module = ::dlopen(mModulePath.c_str(), RTLD_NOW | RTLD_LOCAL);
        auto* symbol = module != nullptr ? ::dlsym(module, MimeMessageWriterName) : nullptr;
        if (symbol == nullptr) {
            throw Failure(Error::CannotCreateObject);
        }
        mWriteMessage = reinterpret_cast<MimeMessageWriter>(symbol);
    }
    return mWriteMessage;
}

}
