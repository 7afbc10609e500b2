#pragma once

#include "desktop/qt/BrowserPages.h"
#include "desktop/qt/Desk.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

class QWidget;

namespace tempodial {

class FormWindow;
class ItemWindow;
class MainWindow;

/// The windows on the screen: one for each window of the host and each form of the product, made when that comes into
/// being and gone when it goes.
class HostWindows
{
public:
    /// Whether the windows come to the screen at once, or wait to be raised.
    enum class Beginning { Shown, Hidden };

    explicit HostWindows(Desk& desk, Beginning beginning = Beginning::Shown);
    ~HostWindows();
    HostWindows(const HostWindows&) = delete;
    HostWindows& operator=(const HostWindows&) = delete;

    /// Called when the last main window has gone.
    std::function<void()> mWhenAllClosed;

    /// True when a person wants the example to go that was shown, once the program has ended.
    bool RemovesExample() const { return mRemovesExample; }
    /// Makes the windows that are missing and lets those go whose model is gone.
    void Follow();
    /// Brings the window that was in front last to the front, wherever it is.
    void Raise();
    /// The window of an explorer, null when it has none.
    MainWindow* WindowOf(const Ref<HostExplorer>& explorer) const;
    /// The window of a form, null when it has none.
    FormWindow* WindowOf(const Ref<FormModel>& form) const;
    /// The window of an inspector, null when it has none.
    ItemWindow* WindowOf(const Ref<HostInspector>& inspector) const;

private:
    /// A window may be handling an event of its own when it goes.
    struct Later
    {
        void operator()(QWidget* window) const;
    };
    template <class Window> using Numbered = std::map<std::int32_t, std::unique_ptr<Window, Later>>;

    /// Asks the windows of items to close, the newest first; false when one stays, which then is in front.
    bool CloseItems();
    /// Ends the program so that the example goes, unless a window stays.
    void RemoveExample();
    void FollowForms();
    void FollowItems();
    ItemWindow* NewWindow(const Ref<HostInspector>& inspector);
    OwnerCommands ForModels();

    Desk& mDesk;
    bool mIsHidden;
    bool mRemovesExample = false;
    Numbered<MainWindow> mExplorers;
    Numbered<FormWindow> mForms;
    BrowserPages mPages;
    Numbered<ItemWindow> mItems;
    Subscription mEvents;
};

}
