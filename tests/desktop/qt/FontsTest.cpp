#include "ScreensFixture.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace tempodial {

/// The screens with letters as small and as large as desktops have them.
class FontsTest : public ScreensFixture, public testing::WithParamInterface<std::tuple<int, std::size_t>>
{
public:
    static std::size_t Count() { return Screens().size(); }
    static std::string NameOf(const testing::TestParamInfo<std::tuple<int, std::size_t>>& place)
    {
        return std::to_string(std::get<0>(place.param)) + "_" + TestName(Screens()[std::get<1>(place.param)]);
    }

protected:
    FontsTest()
    {
        auto font = mFont;
        font.setPointSize(std::get<0>(GetParam()));
        QApplication::setFont(font);
    }
    ~FontsTest() override { QApplication::setFont(mFont); }

    /// The words of a control, as failures name it.
    static std::string WordsOf(const QWidget& control)
    {
        const auto* label = dynamic_cast<const QLabel*>(&control);
        const auto* button = dynamic_cast<const QAbstractButton*>(&control);
        const auto words = label != nullptr ? label->text() : (button != nullptr ? button->text() : "");
        return words.toStdString() + " (" + control.metaObject()->className() + ")";
    }
    /// What is seen of a window and holds words.
    static std::vector<QWidget*> ControlsOf(const QWidget& window)
    {
        std::vector<QWidget*> controls;
        for (auto* widget : window.findChildren<QWidget*>()) {
            const bool holdsWords = dynamic_cast<QAbstractButton*>(widget) != nullptr
                || dynamic_cast<QLabel*>(widget) != nullptr || dynamic_cast<QComboBox*>(widget) != nullptr
                || dynamic_cast<QAbstractSpinBox*>(widget) != nullptr
                || (dynamic_cast<QLineEdit*>(widget) != nullptr
                    && dynamic_cast<QComboBox*>(widget->parentWidget()) == nullptr
                    && dynamic_cast<QAbstractSpinBox*>(widget->parentWidget()) == nullptr);
            if (holdsWords && widget->isVisible() && widget->window() == &window) {
                controls.push_back(widget);
            }
        }
        return controls;
    }
    /// True when all words of a control have room in it.
    static bool HasRoom(const QWidget& control)
    {
        if (const auto* label = dynamic_cast<const QLabel*>(&control); label != nullptr && label->wordWrap()) {
            return label->height() >= label->heightForWidth(label->width());
        }
        if (const auto* line = dynamic_cast<const QLineEdit*>(&control); line != nullptr) {
            constexpr int Margins = 6;
            if (line->fontMetrics().horizontalAdvance(line->text()) + Margins > line->width()) {
                return false;
            }
        }
        const bool isLabel = dynamic_cast<const QLabel*>(&control) != nullptr;
        const auto needed = isLabel ? control.sizeHint() : control.minimumSizeHint();
        return control.width() >= needed.width() && control.height() >= needed.height();
    }

    const QFont mFont = QApplication::font();
};

TEST_P(FontsTest, Screen_CutsAndCoversNoWords)
{
    const auto& [size, place] = GetParam();
    const auto& screen = Screens()[place];
    auto& window = screen.open(*this);
    // What comes into a window settles turn by turn.
    for (int turn = 0; turn < 3; ++turn) {
        Settle();
    }
    const auto controls = ControlsOf(window);
    for (const auto* control : controls) {
        EXPECT_TRUE(HasRoom(*control)) << WordsOf(*control) << " has " << control->width() << " x " << control->height()
                                       << " and needs " << control->sizeHint().width() << " x "
                                       << control->sizeHint().height();
        for (const auto* other : controls) {
            if (other != control && other->parentWidget() == control->parentWidget()) {
                EXPECT_FALSE(control->geometry().intersects(other->geometry()))
                    << WordsOf(*control) << " lies on " << WordsOf(*other);
            }
        }
    }
    Picture(window, screen.name + "-" + std::to_string(size) + "pt");
}

INSTANTIATE_TEST_SUITE_P(Screens, FontsTest,
    testing::Combine(testing::Values(8, 16, 24), testing::Range<std::size_t>(0, FontsTest::Count())),
    FontsTest::NameOf);

}
