#pragma once

#include "desktop/Autostart.h"
#include "desktop/qt/Desk.h"

#include <QDialog>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

namespace tempodial {

/// The settings of the desktop program. Those of the product have their own form.
class SettingsDialog final : public QDialog
{
public:
    SettingsDialog(Desk& desk, Autostart autostart, QWidget* parent);

    void accept() override;
    /// The control of a setting, by its name in the file of settings; null for an unknown one.
    QWidget* ControlOf(const QString& name) const { return findChild<QWidget*>(name); }

private:
    QComboBox* AddChoice(
        QFormLayout& layout, const char* name, const char* label, const QStringList& words, int chosen);
    void AddHint(QFormLayout& layout, const char* text);
    QCheckBox* AddCheck(QFormLayout& layout, const char* name, const char* text, bool isOn);
    /// Takes over what was chosen; false when some of it couldn't be kept, which is told.
    bool Apply();

    Desk& mDesk;
    Autostart mAutostart;
    QComboBox* mAppearance;
    QComboBox* mColours;
    QComboBox* mFirstDay;
    QLineEdit* mLocale;
    QCheckBox* mHidesTitles;
    QCheckBox* mFoldsShortOnes;
    QCheckBox* mHasLetterKeys;
    QCheckBox* mNotifies;
    QCheckBox* mAutostarts;
    QCheckBox* mHasTray;
    QCheckBox* mStartsHidden;
};

}
