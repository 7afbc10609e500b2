#include "KeptPicture.h"

#include <QDir>
#include <cstdlib>

namespace tempodial {

namespace {

constexpr auto KeptFolder = TEMPODIAL_SOURCE_DIR "/tests/desktop/qt/data/pictures/";
/// What two values of a channel may be apart before a pixel counts as another.
constexpr int ChannelTolerance = 24;

bool AreAlike(QRgb one, QRgb other)
{
    return std::abs(qRed(one) - qRed(other)) <= ChannelTolerance
        && std::abs(qGreen(one) - qGreen(other)) <= ChannelTolerance
        && std::abs(qBlue(one) - qBlue(other)) <= ChannelTolerance;
}

}

KeptPicture::KeptPicture(const std::string& name, QImage drawn)
    : mFile(name + "@" + QString::number(drawn.devicePixelRatio()).toStdString() + "-qt" + qVersion() + ".png")
    , mDrawn(std::move(drawn))
    , mKept(QString::fromStdString(KeptFolder + mFile))
{
    mDrawn = mDrawn.convertToFormat(QImage::Format_RGB32);
    mKept = mKept.convertToFormat(QImage::Format_RGB32);
}

double KeptPicture::Difference() const
{
    if (mKept.size() != mDrawn.size()) {
        return 1;
    }
    qint64 count = 0;
    for (int y = 0; y < mDrawn.height(); ++y) {
        for (int x = 0; x < mDrawn.width(); ++x) {
            count += AreAlike(mDrawn.pixel(x, y), mKept.pixel(x, y)) ? 0 : 1;
        }
    }
    return static_cast<double>(count) / (static_cast<double>(mDrawn.width()) * mDrawn.height());
}

std::string KeptPicture::Leave(const std::string& folder) const
{
    QDir().mkpath(QString::fromStdString(folder));
    auto path = folder + "/" + mFile;
    return mDrawn.save(QString::fromStdString(path)) ? path : std::string();
}

}
