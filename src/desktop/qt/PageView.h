#pragma once

#include "desktop/qt/Desk.h"
#include "host/windows/HostInspector.h"

#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

class QGridLayout;

namespace tempodial {

/// The page of an activity's form: its rows as they are laid out. What is typed goes to the item when the field is left
/// or after a pause, so that what is saved is what is seen; a moment, which half typed would be none, only when left.
class PageView final : public QWidget
{
public:
    /// After such a pause what was typed is written, in milliseconds.
    static constexpr int Pause = 300;

    /// The window must have a page.
    PageView(Desk& desk, Ref<HostInspector> inspector, QWidget* parent);

    /// Shows the item as it is now, but for what was typed and isn't written yet.
    void Follow();
    /// Writes what was typed; false when some of it can't be taken, which is told.
    bool WriteTyped();
    /// The widget of a control; null for an unknown one.
    QWidget* WidgetOf(const std::string& control) const;
    /// The labels, without their keys, and what is shown behind them.
    std::vector<std::pair<std::string, std::string>> Texts() const;

private:
    struct Field
    {
        Ref<HostPageControl> control;
        QWidget* widget = nullptr;
        /// True while what was typed isn't written.
        bool isPending = false;
        bool isMoment = false;
    };

    void AddField(QGridLayout& grid, int row, int column, int columns, const Ref<HostPageControl>& control);
    QWidget* NewWidget(std::size_t place, const FormPageLayout::Field& layout);
    void Typed(std::size_t place);
    bool Write(Field& field);
    static void Show(const Field& field);

    Desk& mDesk;
    Ref<HostInspector> mInspector;
    std::vector<Field> mFields;
    QTimer mPause;
};

}
