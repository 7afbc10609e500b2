#pragma once

#include <QLabel>
#include <functional>

class QAbstractScrollArea;

namespace tempodial {

/// Says in the middle of a view why there is nothing in it, with the one step that helps.
class EmptyNote final : public QLabel
{
public:
    explicit EmptyNote(QAbstractScrollArea& view);

    /// A person takes the step that is offered.
    std::function<void()> mFollowLink;

    /// Shows a sentence, and a step unless that is empty; no sentence ends it.
    void Say(const QString& text, const QString& link);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Place();

    QAbstractScrollArea& mView;
};

}
