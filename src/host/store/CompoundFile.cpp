#include "host/store/CompoundFile.h"

#include "base/Failure.h"

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-utils.h>

#include <cstddef>

namespace tempodial {

namespace {

/// Readies the library, which would tell of damaged files on the program's standard error; they are failures here.
bool Initialise()
{
    gsf_init();
    constexpr auto all = static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_FATAL | G_LOG_FLAG_RECURSION);
    const auto drop = [](const gchar*, GLogLevelFlags, const gchar*, gpointer) {};
    for (const char* domain : { static_cast<const char*>(nullptr), "libgsf", "libgsf:msole" }) {
        g_log_set_handler(domain, all, drop, nullptr);
    }
    return true;
}

GsfInfile* Open(const std::string& bytes)
{
    static const bool initialised = Initialise();
    static_cast<void>(initialised);
    const auto* data = static_cast<const guint8*>(static_cast<const void*>(bytes.data()));
    auto* input = gsf_input_memory_new(data, static_cast<gsf_off_t>(bytes.size()), FALSE);
    auto* file = input == nullptr ? nullptr : gsf_infile_msole_new(input, nullptr);
    if (input != nullptr) {
        g_object_unref(input);
    }
    if (file == nullptr) {
        throw Failure(Error::Automation, "The file is no compound file");
    }
    return file;
}

}

CompoundFile::CompoundFile(const std::string& bytes)
    : mRoot(Open(bytes))
{
}

std::optional<std::string> CompoundFile::Stream(const std::vector<std::string>& names) const
{
    std::vector<const char*> path;
    path.reserve(names.size() + 1);
    for (const auto& name : names) {
        path.push_back(name.c_str());
    }
    path.push_back(nullptr);
    const std::unique_ptr<GsfInput, Release> stream(gsf_infile_child_by_aname(mRoot.get(), path.data()));
    if (!stream) {
        return std::nullopt;
    }
    const auto size = gsf_input_size(stream.get());
    if (size <= 0) {
        return std::string();
    }
    const auto* data = gsf_input_read(stream.get(), static_cast<std::size_t>(size), nullptr);
    if (data == nullptr) {
        throw Failure(Error::Automation, "The file is a damaged compound file");
    }
    return std::string(static_cast<const char*>(static_cast<const void*>(data)), static_cast<std::size_t>(size));
}

void CompoundFile::Release::operator()(void* object) const
{
    g_object_unref(object);
}

}
