#pragma once

#include "faults/Interposer.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace tempodial {

/// What goes wrong with files while the product works, which goes on all the same and shows nothing of it: what can't
/// be read or kept, and tracker files that went or shrank, of which nothing fails. It is told in sentences that say
/// what to do.
class ImportTroubles final : public Interposer
{
public:
    /// Takes the folder of the profile, and that of the tracker's files in it.
    ImportTroubles(std::string folder, std::string dataFolder);

    void Before(const InterposedCall& call) override;
    void Failed(const InterposedCall& call, const Failure& failure) override;

    /// What went wrong since this was asked last; empty when nothing did.
    std::string Take();
    /// True when an import was made since this was asked last.
    bool TakeImported();

private:
    /// Looks at the tracker's files that were read so far.
    void Look();
    void LookAt(const std::string& path, std::uint64_t& size);
    void Note(const std::string& sentence);

    std::string mFolder;
    std::string mDataFolder;
    /// The bytes of the tracker's files that were read, by their paths.
    std::map<std::string, std::uint64_t, std::less<>> mSizes;
    std::string mSentences;
    bool mHasImported = false;
};

}
