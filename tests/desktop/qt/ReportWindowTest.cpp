#include "desktop/qt/ReportWindow.h"

#include "DesktopFixture.h"
#include "base/Failure.h"
#include "desktop/ReportPage.h"
#include "desktop/qt/BrowserPages.h"
#include "desktop/qt/ReportDocument.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocumentFragment>

namespace tempodial {

class ReportWindowTest : public DesktopFixture
{
protected:
    /// The window of a report on that November, by projects.
    ReportWindow& ShowReport(bool isHtml = true)
    {
        Open();
        mDesk->Do(
            [&] { mDesk->Session().AddIn().CreateReport(On(1, 0), On(30, 0), ByProject, true, true, isHtml, false); });
        auto* window = mWindows->WindowOf(mDesk->Windows().OpenInspectors().back());
        window->activateWindow();
        Settle();
        return dynamic_cast<ReportWindow&>(*window);
    }
    const MailDraft& Mail() { return mDesk->Session().ShownMail()->Draft(); }
    static QByteArray Content(const std::string& path)
    {
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return file.readAll();
    }
    /// The widths of the images in a document, in their order.
    static std::vector<int> ImageWidths(const QTextDocument& document)
    {
        std::vector<int> widths;
        for (auto block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (const auto format = part.fragment().charFormat(); format.isImageFormat()) {
                    widths.push_back(static_cast<int>(format.toImageFormat().width()));
                }
            }
        }
        return widths;
    }

    static constexpr std::int32_t ByProject = 1;
};

TEST_F(ReportWindowTest, Report_Made_IsShownWithItsBars)
{
    Add("Riverside", "Plan", "Writer", On(15, 9), On(15, 12));
    Add("Annual review", "Goals", "Kate", On(15, 13), On(15, 14));
    auto& window = ShowReport();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.Viewer().verticalScrollBar()->value(), 0);
    const auto text = window.Document().toPlainText();
    EXPECT_TRUE(text.contains("75%") && text.contains("25%")) << text.toStdString();
    EXPECT_EQ(
        ImageWidths(window.Document()), (std::vector<int> { ReportPage::BarWidth(75), ReportPage::BarWidth(25) }));
}

TEST_F(ReportWindowTest, Bars_AsDrawn_AreAsLongAsTheirShares)
{
    Add("Riverside", "Plan", "Writer", On(15, 9), On(15, 12));
    Add("Annual review", "Goals", "Kate", On(15, 13), On(15, 14));
    auto& window = ShowReport();
    const auto picture = window.Viewer().viewport()->grab().toImage();
    std::vector<int> lengths;
    for (int y = 0; y < picture.height(); ++y) {
        int length = 0;
        for (int x = 0; x < picture.width(); ++x) {
            length += picture.pixelColor(x, y) == QColor("#3d7cae") ? 1 : 0;
        }
        if (length > 0 && (lengths.empty() || lengths.back() != length)) {
            lengths.push_back(length);
        }
    }
    ASSERT_EQ(lengths.size(), 2U);
    EXPECT_NEAR(lengths[0], 3.0 * lengths[1], 2);
}

TEST_F(ReportWindowTest, Save_EachForm_IsAFileOfThatKind)
{
    AddWeek();
    auto& window = ShowReport();
    const auto path = mFolder.Path("report");
    window.Save(ReportWindow::Form::Pdf, path);
    EXPECT_TRUE(Content(path).startsWith("%PDF-"));
    window.Save(ReportWindow::Form::Mail, path);
    EXPECT_TRUE(Content(path).contains("Content-Type: text/html"));
    EXPECT_TRUE(Content(path).contains("text/csv"));
    window.Save(ReportWindow::Form::Table, path);
    EXPECT_EQ(Content(path).toStdString(), Mail().attachments.front().content);
}

TEST_F(ReportWindowTest, Save_WhereNothingCanBe_FailsAndLeavesNothing)
{
    auto& window = ShowReport();
    EXPECT_THROW(window.Save(ReportWindow::Form::Pdf, mFolder.Path("absent/report.pdf")), Failure);
    mDesk->Windows().OpenMail(mDesk->Windows().CreateItem().As<HostMail>());
    mDesk->Show();
    auto& other = dynamic_cast<ReportWindow&>(*mWindows->WindowOf(mDesk->Windows().OpenInspectors().back()));
    EXPECT_FALSE(other.CommandOf("Save Table")->isEnabled());
    EXPECT_THROW(other.Save(ReportWindow::Form::Table, mFolder.Path("table.csv")), Failure);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(mFolder.Path("table.csv"))));
}

TEST_F(ReportWindowTest, Copy_IsTheProductsOwn)
{
    auto& window = ShowReport();
    window.CommandOf("Copy")->trigger();
    EXPECT_EQ(QApplication::clipboard()->mimeData()->html().toStdString(), Mail().body);
    EXPECT_EQ(window.Notice(), "Copied");
}

TEST_F(ReportWindowTest, PlainReport_IsShownAsItIs)
{
    Add("Riverside", "a <b> & c", "Writer", On(15, 9), On(15, 12));
    auto& window = ShowReport(false);
    EXPECT_TRUE(window.Document().toPlainText().contains("a <b> & c"));
}

TEST_F(ReportWindowTest, Document_WithAddressesOutside_LoadsNothing)
{
    ReportDocument document(nullptr);
    const auto file = QString::fromStdString(mFolder.Path("picture.png"));
    QImage picture(40, 40, QImage::Format_RGB32);
    ASSERT_TRUE(picture.save(file));
    document.Show({ .body = "<link rel=\"stylesheet\" href=\"http://example.org/a.css\"><img src=\"file://"
            + file.toStdString() + "\"><img src=\"http://example.org/a.png\"><img src=\"bar:\">",
        .isHtml = true });
    for (const auto& name : { QUrl::fromLocalFile(file), QUrl("http://example.org/a.png") }) {
        EXPECT_TRUE(document.resource(QTextDocument::ImageResource, name).isNull()) << name.toString().toStdString();
    }
    EXPECT_FALSE(document.resource(QTextDocument::ImageResource, QUrl("bar:")).isNull());
}

TEST_F(ReportWindowTest, BrowserPages_Opened_AreFilesThatGoWithThem)
{
    std::string opened;
    {
        BrowserPages pages([&](const std::string& path) { opened = path; });
        pages.Open({ .body = "<p>one</p>", .isHtml = true });
        EXPECT_TRUE(opened.ends_with("report-1.html"));
        EXPECT_EQ(Content(opened), "<p>one</p>");
        pages.Open({ .body = "two" });
        EXPECT_TRUE(opened.ends_with("report-2.txt"));
    }
    EXPECT_FALSE(QFile::exists(QString::fromStdString(opened)));
}

TEST_F(ReportWindowTest, Frame_Closed_TheModelGoes)
{
    auto& window = ShowReport();
    window.close();
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty());
}

TEST_F(ReportWindowTest, Report_InAllColours_IsPaper)
{
    AddWeek();
    auto& window = ShowReport();
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, name] : { std::pair(Look::Light, "light"), std::pair(Look::Dark, "dark") }) {
        mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
        Picture(window, std::string("report-") + name);
        EXPECT_EQ(window.Viewer().viewport()->grab().toImage().pixelColor(2, 2), QColor(Qt::white));
    }
}

}
