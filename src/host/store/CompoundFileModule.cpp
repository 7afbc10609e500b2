#include "host/store/CompoundFile.h"

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-utils.h>

#include <cstddef>
#include <memory>

namespace tempodial {

namespace {

struct Release
{
    void operator()(void* object) const { g_object_unref(object); }
};

using Input = std::unique_ptr<GsfInput, Release>;

/// Readies the library, which would tell of damaged files on the program's standard error.
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

bool ReadStream(GsfInput* stream, std::string& bytes)
{
    const auto size = static_cast<std::size_t>(gsf_input_size(stream));
    if (size == 0) {
        return true;
    }
    const auto* data = gsf_input_read(stream, size, nullptr);
    if (data == nullptr) {
        return false;
    }
    bytes.assign(static_cast<const char*>(static_cast<const void*>(data)), size);
    return true;
}

bool ReadFolder(GsfInfile* folder, std::vector<std::string>& names, CompoundStreams& streams)
{
    // A damaged file may hold a folder within itself.
    constexpr std::size_t deepest = 8;
    if (names.size() > deepest) {
        return false;
    }
    const int count = gsf_infile_num_children(folder);
    for (int index = 0; index < count; ++index) {
        const Input child(gsf_infile_child_by_index(folder, index));
        const auto* name = gsf_infile_name_by_index(folder, index);
        if (!child || name == nullptr) {
            return false;
        }
        names.emplace_back(name);
        const bool isFolder = GSF_IS_INFILE(child.get()) && gsf_infile_num_children(GSF_INFILE(child.get())) >= 0;
        const bool isRead
            = isFolder ? ReadFolder(GSF_INFILE(child.get()), names, streams) : ReadStream(child.get(), streams[names]);
        names.pop_back();
        if (!isRead) {
            return false;
        }
    }
    return true;
}

}

extern "C" __attribute__((visibility("default"))) bool TempodialReadCompoundStreams(
    const std::string& bytes, CompoundStreams& streams)
{
    static const bool initialised = Initialise();
    static_cast<void>(initialised);
    const auto* data = static_cast<const guint8*>(static_cast<const void*>(bytes.data()));
    const Input input(gsf_input_memory_new(data, static_cast<gsf_off_t>(bytes.size()), FALSE));
    if (!input) {
        return false;
    }
    const std::unique_ptr<GsfInfile, Release> file(gsf_infile_msole_new(input.get(), nullptr));
    std::vector<std::string> names;
    return file && ReadFolder(file.get(), names, streams);
}

}
