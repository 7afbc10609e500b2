#include "desktop/qt/WelcomePage.h"

#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>

namespace tempodial {

WelcomePage::WelcomePage(Desk& desk, QWidget* parent)
    : QWidget(parent)
    , mCopy(new FlatButton(desk.Look(), "Copy Path", this))
    , mExample(new FlatButton(desk.Look(), "Look at an Example", this))
{
    constexpr int Spacing = 14;
    constexpr double TitleSize = 1.6;
    setAccessibleName("Welcome");
    const auto path = desk.Profile().DataFolder();
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(Spacing);
    const auto add = [&](const QString& text) {
        auto* label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignHCenter);
        layout->addWidget(label);
        return label;
    };
    layout->addStretch(1);
    auto* title = add("Tempodial keeps your work log from what a tracker writes.");
    auto large = font();
    large.setPointSizeF(large.pointSizeF() * TitleSize);
    title->setFont(large);
    add("It reads the tracker's files from");
    auto* place = add(ToQt(path));
    place->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* buttons = new QHBoxLayout;
    auto* open = new FlatButton(desk.Look(), "Open Folder", this);
    buttons->addStretch(1);
    buttons->addWidget(open);
    buttons->addWidget(mCopy);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    add("No tracker file is there yet. This page goes as soon as one is.");
    layout->addSpacing(Spacing);
    layout->addWidget(mExample, 0, Qt::AlignHCenter);
    add("The example opens in a second window with two weeks of made-up work; nothing of it comes into your log.");
    layout->addStretch(2);
    connect(open, &QPushButton::clicked, this, [this, path] { mOpenFolder(path); });
    connect(mCopy, &QPushButton::clicked, this, [path] { QGuiApplication::clipboard()->setText(ToQt(path)); });
    connect(mExample, &QPushButton::clicked, this, [this] { mShowExample(); });
}

}
