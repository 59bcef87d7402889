// The help window: its page and pictures, and the ways through them.

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextImageFormat>
#include <fstream>

#include "platform/desktop/colours.h"
#include "platform/desktop/help_page.h"
#include "platform/desktop/help_window.h"
#include "platform/desktop/warnings.h"
#include "platform/files/host_files.h"
#include "support/temporary_folder.h"

namespace brooklander::desktop {
namespace {

constexpr int picture_width = 1600;

// A workspace with a help of two chapters, far from each other.
struct Help {
    Help() {
        std::filesystem::create_directories(folder.path() / "Brooklander" / "HELP");
        const std::string filling = [] {
            std::string lines;
            for (int i = 0; i < 80; ++i) lines += "<p>Water &amp; more water.</p>\n";
            return lines;
        }();
        write(
            "<h1>The help</h1>\n<p><a href=\"#sea\">To the sea</a></p>\n"
            "<h2><a name=\"lake\"></a>The lake</h2>\n<p><img src=\"help/lake.png\" alt=\"A "
            "lake\"></p>\n" +
            filling + "<h2><a name=\"sea\"></a>The sea</h2>\n<p>It is salty.</p>\n" + filling);
        QImage picture(picture_width, 400, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        picture.save(
            QString::fromStdString((folder.path() / "Brooklander/HELP/Lake.PNG").string()));
    }

    void write(const std::string& body) const {
        std::ofstream(folder.path() / "Brooklander" / "brooklander.hlp")
            << "<html><body>\n" + body + "</body></html>\n";
    }

    void show() {
        window.show("c:\\brooklander\\BROOKLANDER.HLP");
        QApplication::processEvents();
    }

    template <typename Widget>
    Widget* part(const char* name) {
        return window.window()->findChild<Widget*>(QLatin1String(name));
    }
    HelpPage* page() { return dynamic_cast<HelpPage*>(part<QTextBrowser>("helpPage")); }
    std::string text() { return page()->toPlainText().trimmed().toStdString(); }

    // The width at which the first picture is drawn; 0 where there is none.
    int width_of_picture() {
        for (QTextBlock block = page()->document()->begin(); block.isValid();
             block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
                if (!format.isValid()) continue;
                const auto image = page()
                                       ->document()
                                       ->resource(QTextDocument::ImageResource, QUrl(format.name()))
                                       .value<QImage>();
                return qRound(image.deviceIndependentSize().width());
            }
        }
        return 0;
    }

    test::TemporaryFolder folder;
    HostFiles files{folder.path()};
    HelpWindow window{files};
};

TEST(HelpIsShown, ItsPicturesAreFoundWhateverTheirCapitals) {
    Help help;
    help.show();
    EXPECT_GT(help.width_of_picture(), 0);
    EXPECT_EQ(help.text().find("A lake"), std::string::npos);
    EXPECT_EQ(take_warning(), "");
}

TEST(HelpIsShown, PicturesAreAsWideAsTheTextAndFollowTheWindow) {
    Help help;
    help.show();
    const int width = help.width_of_picture();
    EXPECT_LT(width, help.page()->viewport()->width());
    EXPECT_EQ(help.page()->horizontalScrollBar()->maximum(), 0);
    help.window.window()->resize(700, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return help.width_of_picture() < width; }));
    EXPECT_EQ(help.page()->horizontalScrollBar()->maximum(), 0);
    help.window.window()->resize(2600, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return help.width_of_picture() == picture_width; }));
}

TEST(HelpIsShown, ItsPicturesAreReadOnce) {
    Help help;
    help.show();
    const int width = help.width_of_picture();
    std::filesystem::remove(help.folder.path() / "Brooklander/HELP/Lake.PNG");
    help.window.window()->resize(700, 500);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return help.width_of_picture() > 0 && help.width_of_picture() < width; }));
    help.show();
    EXPECT_TRUE(help.text().find("[A lake]") != std::string::npos) << "and anew with the file";
}

TEST(HelpIsShown, AMissingPictureIsToldInItsWords) {
    Help help;
    help.write(
        "<p><img src=\"help/none.png\" alt=\"A lake &amp; a boat\"></p>"
        "<p><img src=\"/etc/hostname\" alt=\"No way out\"></p>");
    help.show();
    EXPECT_EQ(help.text(), "[A lake & a boat]\n[No way out]");
    EXPECT_EQ(take_warning(), "");
}

TEST(HelpIsShown, AFileThatIsNotThereIsTold) {
    Help help;
    help.window.show("c:\\fenwater\\FENwater.HLP");
    EXPECT_TRUE(help.text().starts_with("There is no help to show\n")) << help.text();
}

TEST(HelpIsShown, ItStartsAtItsTopEachTime) {
    Help help;
    help.show();
    help.page()->verticalScrollBar()->setValue(500);
    help.show();
    EXPECT_EQ(help.page()->verticalScrollBar()->value(), 0);
    EXPECT_FALSE(help.part<QPushButton>("helpBack")->isEnabled());
}

TEST(HelpIsShown, ItFollowsADarkDesktop) {
    Help help;
    help.show();
    const auto colour_of_title = [&] {
        return help.page()
            ->document()
            ->begin()
            .begin()
            .fragment()
            .charFormat()
            .foreground()
            .color();
    };
    EXPECT_EQ(colour_of_title(), own_colours().title);
    const QColor in_the_light = colour_of_title();
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    dark.setColor(QPalette::Text, QColor(0xe4, 0xe6, 0xe8));
    dark.setColor(QPalette::WindowText, QColor(0xe4, 0xe6, 0xe8));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(colour_of_title(), own_colours().title);
    EXPECT_NE(colour_of_title(), in_the_light);
    QApplication::setPalette(before);
    QApplication::processEvents();
    EXPECT_EQ(colour_of_title(), in_the_light);
}

TEST(WaysThroughTheHelp, TheContentsNameTheHeadingsAndMarkTheOneInSight) {
    Help help;
    help.show();
    const auto* const contents = help.part<QListWidget>("helpContents");
    ASSERT_EQ(contents->count(), 3);
    EXPECT_EQ(contents->item(2)->text(), "The sea");
    EXPECT_EQ(contents->currentRow(), 0);
    help.page()->go_to_name("sea");
    EXPECT_EQ(contents->currentRow(), 2);
}

TEST(WaysThroughTheHelp, TheContentsGrowWithALargeFontOfTheDesktop) {
    const QFont before = QApplication::font();
    const auto size_of_contents = [] {
        Help help;
        help.show();
        const auto* const contents = help.part<QListWidget>("helpContents");
        const QSize entry = contents->visualItemRect(contents->item(2)).size();
        EXPECT_GE(entry.height(), contents->fontMetrics().height());
        return QSize(contents->width(), entry.height());
    };
    const QSize usual = size_of_contents();
    QFont large = before;
    large.setPointSizeF(2 * before.pointSizeF());
    QApplication::setFont(large);
    const QSize doubled = size_of_contents();
    QApplication::setFont(before);
    EXPECT_GT(doubled.width(), usual.width() * 3 / 2);
    EXPECT_GT(doubled.height(), usual.height() * 4 / 3);
}

TEST(WaysThroughTheHelp, AClickInTheContentsLeadsThereAndAltLeftBack) {
    Help help;
    help.show();
    auto* const contents = help.part<QListWidget>("helpContents");
    QTest::mouseClick(contents->viewport(), Qt::LeftButton, {},
                      contents->visualItemRect(contents->item(2)).center());
    EXPECT_GT(help.page()->verticalScrollBar()->value(), 500);
    QTest::keyClick(help.window.window(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(help.page()->verticalScrollBar()->value(), 0);
    EXPECT_FALSE(help.part<QPushButton>("helpBack")->isEnabled());
}

TEST(WaysThroughTheHelp, ALinkLeadsToItsNameAndTheButtonBack) {
    Help help;
    help.show();
    emit help.page()->anchorClicked(QUrl("#sea"));
    EXPECT_GT(help.page()->verticalScrollBar()->value(), 500);
    QTest::mouseClick(help.part<QPushButton>("helpBack"), Qt::LeftButton);
    EXPECT_LT(help.page()->verticalScrollBar()->value(), 50);
}

TEST(WaysThroughTheHelp, WordsAreFoundFromTheStartAgainAndWhatIsNotThereIsTold) {
    Help help;
    help.show();
    QTest::keyClick(help.window.window(), Qt::Key_F, Qt::ControlModifier);
    auto* const find = help.part<QLineEdit>("helpFind");
    ASSERT_TRUE(find->hasFocus());
    QTest::keyClicks(find, "SALTY");
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(help.page()->textCursor().selectedText(), "salty");
    EXPECT_GT(help.page()->verticalScrollBar()->value(), 500);
    find->setText("to the sea");
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(help.page()->textCursor().selectedText(), "To the sea");
    find->setText("desert");
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(help.part<QLabel>("helpFound")->text(), "Not found");
    EXPECT_EQ(help.page()->textCursor().selectedText(), "To the sea");
}

TEST(WaysThroughTheHelp, EscapeLeavesTheSearchAndThenTheHelp) {
    Help help;
    help.show();
    QTest::keyClick(help.window.window(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(help.part<QLineEdit>("helpFind"), Qt::Key_Escape);
    EXPECT_TRUE(help.page()->hasFocus());
    QTest::keyClick(help.page(), Qt::Key_Escape);
    EXPECT_FALSE(help.window.window()->isVisible());
}

TEST(WaysThroughTheHelp, LettersGrowAndShrinkByKeys) {
    Help help;
    help.show();
    const auto size = [&] { return help.page()->font().pointSizeF(); };
    const qreal before = size();
    QTest::keyClick(help.window.window(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(help.window.window(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_GT(size(), before + 1.5);
    QTest::keyClick(help.window.window(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), before);
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(help.window.window(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_GT(size(), before / 2);
}

}  // namespace
}  // namespace brooklander::desktop
