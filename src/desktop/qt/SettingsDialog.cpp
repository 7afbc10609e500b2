#include "desktop/qt/SettingsDialog.h"

#include "desktop/qt/QtText.h"
#include "desktop/qt/WindowRoom.h"
#include "session/KnownLocale.h"
#include "terminal/TerminalText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDBusConnection>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSystemTrayIcon>

namespace tempodial {

namespace {

constexpr auto TrayText = "&Keep running in the tray when the last window closes";
constexpr auto NoBusText = "No session bus is there, so the program can't hear when the desktop becomes dark or light: "
                           "choose an appearance here, or start it within a desktop session.";
constexpr auto NoTrayText = "This desktop has no tray now, so closing the last window quits.";

template <class Value> int Position(Value value)
{
    return static_cast<int>(value);
}

}

SettingsDialog::SettingsDialog(Desk& desk, Autostart autostart, QWidget* parent)
    : QDialog(parent)
    , mDesk(desk)
    , mAutostart(std::move(autostart))
{
    setWindowTitle("Settings");
    setAttribute(Qt::WA_DeleteOnClose);
    // What it shows is changed nowhere else meanwhile.
    setModal(true);
    const auto& settings = desk.Settings();
    auto* layout = new QFormLayout(this);
    mAppearance = AddChoice(*layout, "appearance",
        "&Appearance:", { "As the system", "Light", "Dark", "High contrast" }, Position(settings.appearance));
    mColours = AddChoice(*layout, "colours",
        "&Colours:", { "By project, by application while few have one", "By project", "By application" },
        Position(settings.colours));
    mFirstDay = AddChoice(*layout, "first-day", "&Week begins on:", { "As the locale", "Monday", "Saturday", "Sunday" },
        Position(settings.firstDay));
    mLocale = new QLineEdit(ToQt(settings.locale), this);
    mLocale->setObjectName("locale");
    mLocale->setPlaceholderText("As the system");
    mLocale->setToolTip("A locale such as en_GB or de_DE; it takes effect when the program starts again.");
    layout->addRow("&Dates and times as in:", mLocale);
    mHidesTitles = AddCheck(*layout, "hide-titles", "&Hide titles", settings.hidesTitles);
    mFoldsShortOnes = AddCheck(*layout, "fold-short", "&Fold short ones", settings.foldsShortOnes);
    mHasLetterKeys = AddCheck(*layout, "letter-keys", "Single &letters choose views", settings.hasLetterKeys);
    mNotifies = AddCheck(*layout, "notify", "Say when the &tracker is silent for two hours of work", settings.notifies);
    mAutostarts = AddCheck(*layout, "autostart", "&Start with the desktop session", mAutostart.IsOn());
    mHasTray = AddCheck(*layout, "tray", TrayText, settings.hasTray);
    mStartsHidden = AddCheck(*layout, "start-hidden", "&Begin in the tray", settings.startsHidden);
    mStartsHidden->setEnabled(settings.hasTray);
    connect(mHasTray, &QCheckBox::toggled, mStartsHidden, &QWidget::setEnabled);
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        AddHint(*layout, NoTrayText);
    }
    if (!QDBusConnection::sessionBus().isConnected()) {
        AddHint(*layout, NoBusText);
    }
    auto* buttons
        = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, [this] { Apply(); });
    layout->addRow(buttons);
    GiveRoom(*this);
}

void SettingsDialog::AddHint(QFormLayout& layout, const char* text)
{
    auto* hint = new QLabel(text, this);
    hint->setWordWrap(true);
    layout.addRow(hint);
}

QComboBox* SettingsDialog::AddChoice(
    QFormLayout& layout, const char* name, const char* label, const QStringList& words, int chosen)
{
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    box->addItems(words);
    box->setCurrentIndex(chosen);
    layout.addRow(label, box);
    return box;
}

QCheckBox* SettingsDialog::AddCheck(QFormLayout& layout, const char* name, const char* text, bool isOn)
{
    auto* box = new QCheckBox(text, this);
    box->setObjectName(name);
    box->setChecked(isOn);
    layout.addRow(box);
    return box;
}

bool SettingsDialog::Apply()
{
    const auto locale = FromQt(mLocale->text().trimmed());
    if (!locale.empty() && !IsKnownLocale(locale)) {
        mDesk.Fail("There is no locale " + InQuotes(locale) + ": give one such as en_GB or de_DE, or none.");
        mLocale->setFocus();
        return false;
    }
    mDesk.Change([this, &locale](DesktopSettings& settings) {
        settings.appearance = static_cast<DesktopSettings::Appearance>(mAppearance->currentIndex());
        settings.colours = static_cast<ColourChoice>(mColours->currentIndex());
        settings.firstDay = static_cast<DesktopSettings::FirstDay>(mFirstDay->currentIndex());
        settings.locale = locale;
        settings.hidesTitles = mHidesTitles->isChecked();
        settings.foldsShortOnes = mFoldsShortOnes->isChecked();
        settings.hasLetterKeys = mHasLetterKeys->isChecked();
        settings.notifies = mNotifies->isChecked();
        settings.hasTray = mHasTray->isChecked();
        settings.startsHidden = mHasTray->isChecked() && mStartsHidden->isChecked();
    });
    bool isKept = false;
    mDesk.Do([&] {
        mAutostart.Set(mAutostarts->isChecked());
        isKept = true;
    });
    return isKept;
}

void SettingsDialog::accept()
{
    if (Apply()) {
        QDialog::accept();
    }
}

}
