#pragma once

#include <cstdint>
#include <string>

class QWidget;

namespace tempodial {

class FormWindow;

/// The pointer and the keys in the window of a form. What the window doesn't let a person do fails with
/// `RequestError`.
class FormPointer
{
public:
    /// The window must outlive it.
    explicit FormPointer(FormWindow& window)
        : mWindow(window)
    {
    }

    /// Types a text in the place of what a field holds; false when no key does that.
    bool Type(const std::string& control, const std::string& text);
    /// Opens the list of a combo box and clicks on an entry.
    void Choose(const std::string& control, std::int32_t entry);
    /// Clicks on a check box or an option button unless it is as it is to be.
    void Check(const std::string& control, bool isChecked);
    void Click(const std::string& control);
    /// Closes the window by its frame.
    void Close();

private:
    /// The widget of a control that can be worked.
    QWidget& WidgetOf(const std::string& control) const;

    FormWindow& mWindow;
};

}
