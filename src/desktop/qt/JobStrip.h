#pragma once

#include "desktop/qt/Desk.h"

#include <QElapsedTimer>
#include <QWidget>
#include <optional>

class QLabel;
class QProgressBar;

namespace tempodial {

class FlatButton;

/// How far a job of the product is, in place of its form: it takes no focus, and is shown only when the job takes a
/// while.
class JobStrip final : public QWidget
{
public:
    /// The form of the product in whose place it is.
    static constexpr auto FormClass = "ProgressBarForm";

    JobStrip(Desk& desk, QWidget* parent);

    /// Looks at the job.
    void Follow();
    FlatButton& Cancel() { return *mCancel; }
    QString Text() const;

private:
    Desk& mDesk;
    QLabel* mText;
    QProgressBar* mBar;
    FlatButton* mCancel;
    /// Since when the form that is on has been seen, and its number.
    QElapsedTimer mSince;
    std::optional<std::int32_t> mForm;
};

}
