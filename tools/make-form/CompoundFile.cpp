#include "CompoundFile.h"

#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-utils.h>

#include <stdexcept>

namespace tempodial {

namespace {

void Check(bool succeeded, const std::string& what)
{
    if (!succeeded) {
        throw std::runtime_error(what);
    }
}

GsfOutput* AsOutput(void* object)
{
    return static_cast<GsfOutput*>(object);
}

GsfOutfile* NewFile(const std::string& path, const ClassId& rootClass)
{
    gsf_init();
    auto* sink = gsf_output_stdio_new(path.c_str(), nullptr);
    Check(sink != nullptr, "can't write " + path);
    auto* file = gsf_outfile_msole_new(sink);
    g_object_unref(sink);
    Check(
        gsf_outfile_msole_set_class_id(static_cast<GsfOutfileMSOle*>(static_cast<void*>(file)), rootClass.data()) != 0,
        "can't set the class of " + path);
    return file;
}

}

CompoundFolder::CompoundFolder(_GsfOutfile* folder)
    : mFolder(folder)
{
}

void CompoundFolder::Write(const std::string& name, const Bytes& bytes)
{
    const std::unique_ptr<GsfOutput, Release> stream(gsf_outfile_new_child(mFolder.get(), name.c_str(), FALSE));
    Check(stream != nullptr, "can't begin the stream " + name);
    const auto* data = static_cast<const guint8*>(static_cast<const void*>(bytes.data()));
    Check(gsf_output_write(stream.get(), bytes.size(), data) != 0, "can't write the stream " + name);
    Check(gsf_output_close(stream.get()) != 0, "can't end the stream " + name);
}

CompoundFolder CompoundFolder::Begin(const std::string& name)
{
    auto* folder = gsf_outfile_new_child(mFolder.get(), name.c_str(), TRUE);
    Check(folder != nullptr, "can't begin the folder " + name);
    return CompoundFolder(static_cast<GsfOutfile*>(static_cast<void*>(folder)));
}

void CompoundFolder::Close()
{
    Check(gsf_output_close(AsOutput(mFolder.get())) != 0, "can't end a folder");
}

void CompoundFolder::Release::operator()(void* object) const
{
    g_object_unref(object);
}

CompoundFile::CompoundFile(const std::string& path, const ClassId& rootClass)
    : CompoundFolder(NewFile(path, rootClass))
{
}

}
