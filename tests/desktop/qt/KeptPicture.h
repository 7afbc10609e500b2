#pragma once

#include <QImage>
#include <string>

namespace tempodial {

/// A picture of a window that is kept beside the tests, for one version of the toolkit and one scale.
class KeptPicture
{
public:
    /// The picture of that name as it is drawn now. Its file is named after the version and the scale, too.
    KeptPicture(const std::string& name, QImage drawn);

    /// The part of the pixels that differ to be seen; 1 when the sizes do, or none is kept.
    double Difference() const;
    /// Leaves the picture as it is drawn now in a folder, and answers its path.
    std::string Leave(const std::string& folder) const;

    /// What part of the pixels may differ, as where a letter is drawn a little otherwise.
    static constexpr double Tolerated = 0.002;

private:
    std::string mFile;
    QImage mDrawn;
    QImage mKept;
};

}
