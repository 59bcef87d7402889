// Walks the windows as a user meets them, in light and dark, and looks at every control.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <cmath>
#include <map>

#include "desktop/drawn_program.h"
#include "desktop/window_states.h"
#include "platform/desktop/colours.h"
#include "platform/desktop/grid_widget.h"
#include "platform/desktop/plain_views.h"
#include "platform/desktop/texts.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

using test::DrawnProgram;

struct Scheme {
    std::string name;
    QColor base;
    QColor text;
};

const std::vector<Scheme>& schemes() {
    static const std::vector<Scheme> both{
        {"light", Qt::white, Qt::black},
        {"dark", QColor(0x1e, 0x1f, 0x22), QColor(0xe4, 0xe6, 0xe8)}};
    return both;
}

void put_on(const Scheme& scheme) {
    QPalette palette(scheme.base == Qt::white ? QColor(0xf0, 0xf0, 0xf0)
                                              : QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::Base, scheme.base);
    palette.setColor(QPalette::Text, scheme.text);
    palette.setColor(QPalette::WindowText, scheme.text);
    palette.setColor(QPalette::ButtonText, scheme.text);
    QApplication::setPalette(palette);
    QApplication::processEvents();
}

// All widgets of a window that a user can see.
std::vector<QWidget*> seen_in(const QWidget& window) {
    std::vector<QWidget*> seen;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == &window) seen.push_back(widget);
    }
    return seen;
}

bool is_control(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus && !widget.objectName().startsWith("qt_");
}

std::string name_of(const QWidget& widget) {
    return widget.objectName().isEmpty() ? widget.metaObject()->className()
                                         : widget.objectName().toStdString();
}

// The keys of a window that lead somewhere with Alt, each with what it leads to.
std::multimap<QChar, std::string> letters_of(const QMainWindow& window) {
    std::multimap<QChar, std::string> letters;
    const auto add = [&letters](const QString& text, const std::string& whose) {
        const QKeySequence sequence = QKeySequence::mnemonic(text);
        if (!sequence.isEmpty()) letters.emplace(sequence.toString().back(), whose);
    };
    for (const QAction* const action : window.menuBar()->actions()) {
        if (action->isVisible() && action->isEnabled()) {
            add(action->text(), action->objectName().toStdString());
        }
    }
    for (const QWidget* const widget : seen_in(window)) {
        if (!widget->isEnabled()) continue;
        if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
            add(button->text(), name_of(*widget));
        } else if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
            if (label->buddy() != nullptr) add(label->text(), name_of(*widget));
        }
    }
    return letters;
}

class Windows : public testing::TestWithParam<std::tuple<std::string, Scheme>> {
  protected:
    Windows() {
        put_on(std::get<Scheme>(GetParam()));
        drawn_.act([this] { drawn_.program.start(); });
        test::roads().at(std::get<std::string>(GetParam()))(drawn_);
        DrawnProgram::rest();
    }
    ~Windows() override { put_on(schemes().front()); }

    ScreenWindow& window() { return *drawn_.windows.foremost(); }

    DrawnProgram drawn_;
};

TEST_P(Windows, ShowWhatTheFieldsHoldWithoutAWarning) {
    EXPECT_EQ(drawn_.failure, "");
    EXPECT_EQ(drawn_.windows.difference().toStdString(), "");
    EXPECT_EQ(take_warning(), "");
}

void expect_named_controls(const QWidget& window) {
    for (QWidget* const widget : seen_in(window)) {
        if (!is_control(*widget)) continue;
        const QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(read, nullptr) << name_of(*widget);
        EXPECT_FALSE(read->text(QAccessible::Name).isEmpty()) << name_of(*widget);
    }
}

TEST_P(Windows, HaveANameOnEveryControl) { expect_named_controls(window()); }

// The card on the page that a control lies on, or the control itself where it lies on none.
const QWidget* card_of(const QWidget* control) {
    const QWidget* outermost = control;
    for (const QWidget* at = control; at != nullptr; at = at->parentWidget()) {
        if (dynamic_cast<const Card*>(at) != nullptr) outermost = at;
    }
    return outermost;
}

// Whether the second comes behind the first for a reader: in rows, or down a column to the next.
bool reads_on(const QRect& first, const QRect& second) {
    const bool same_row = second.top() < first.bottom() && second.bottom() > first.top();
    return same_row ? second.left() > first.left()
                    : second.top() > first.top() || second.left() > first.right();
}

void expect_tab_order_of_reading(const QWidget& window) {
    std::vector<QWidget*> chain;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
        if (at->isVisible() && at->isEnabled() && is_control(*at) &&
            (at->focusPolicy() & Qt::TabFocus) != 0) {
            chain.push_back(at);
        }
    }
    const auto place_of = [&window](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint(0, 0)), widget->size());
    };
    std::vector<const QWidget*> left;
    for (std::size_t at = 1; at < chain.size(); ++at) {
        const QWidget* const before = card_of(chain[at - 1]);
        const QWidget* const here = card_of(chain[at]);
        const bool same = before == here;
        EXPECT_TRUE(same ? reads_on(place_of(chain[at - 1]), place_of(chain[at]))
                         : reads_on(place_of(before), place_of(here)))
            << name_of(*chain[at - 1]) << " before " << name_of(*chain[at]);
        if (!same) left.push_back(before);
        EXPECT_EQ(std::count(left.begin(), left.end(), here), 0)
            << name_of(*chain[at]) << " comes when its card has been left";
    }
}

TEST_P(Windows, HaveATabOrderThatFollowsTheReading) { expect_tab_order_of_reading(window()); }

void expect_no_clipped_text(const QWidget& window) {
    for (const QWidget* const widget : seen_in(window)) {
        if (qobject_cast<const QAbstractButton*>(widget) != nullptr) {
            EXPECT_GE(widget->width(), widget->sizeHint().width()) << name_of(*widget);
            EXPECT_GE(widget->height(), widget->sizeHint().height()) << name_of(*widget);
        } else if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
            const int needed = label->wordWrap() ? label->heightForWidth(label->width())
                                                 : label->sizeHint().height();
            EXPECT_GE(label->height(), needed) << label->text().toStdString();
            if (!label->wordWrap()) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
            }
        }
    }
}

TEST_P(Windows, ClipNoText) { expect_no_clipped_text(window()); }

// A display of 1024 x 768 shows a window whole.
TEST_P(Windows, FitASmallDisplay) {
    const auto* const area = window().findChild<QScrollArea*>();
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
}

TEST_P(Windows, LeaveNoTwoControlsTheSameLetter) {
    const auto letters = letters_of(window());
    for (auto at = letters.begin(); at != letters.end(); ++at) {
        const auto next = std::next(at);
        if (next != letters.end()) {
            EXPECT_NE(at->first, next->first) << at->second << " and " << next->second;
        }
    }
}

// But for those whose caption stands on several buttons at once: there is no letter for each.
TEST_P(Windows, GiveEveryButtonALetter) {
    std::map<QString, int> captions;
    for (const QWidget* const widget : seen_in(window())) {
        if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
            ++captions[without_mnemonic(button->text())];
        }
    }
    for (const QWidget* const widget : seen_in(window())) {
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        if (button == nullptr || captions[without_mnemonic(button->text())] > 1) continue;
        EXPECT_FALSE(QKeySequence::mnemonic(button->text()).isEmpty()) << name_of(*widget);
    }
}

// Saves a picture of each state, for those who want to look at them.
void save_picture(QWidget& window, const std::string& state, const Scheme& scheme,
                  const QString& display) {
    const QString folder = qEnvironmentVariable("BROOKLANDER_PICTURES");
    if (folder.isEmpty()) return;
    QDir().mkpath(folder);
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", "1");
    const QString file = QStringLiteral("%1/%2 %3 %4 x%5.png")
                             .arg(folder, QString::fromStdString(state), display,
                                  QString::fromStdString(scheme.name), scale);
    EXPECT_TRUE(window.grab().save(file)) << file.toStdString();
}

TEST_P(Windows, GrowWithTheDisplayAndClipNoTextThere) {
    const auto& [state, scheme] = GetParam();
    save_picture(window(), state, scheme, "small");
    window().resize(2200, 1240);
    DrawnProgram::rest();
    expect_no_clipped_text(window());
    save_picture(window(), state, scheme, "large");
}

// Every screen with all its panels up, as no road leads to.
TEST(WholeWindows, ShowEveryFieldByNameInReadingOrderWithoutClipping) {
    DrawnProgram drawn;
    drawn.act([&] { drawn.program.start(); });
    for (Screen* const screen : drawn.screens().desk.screens()) {
        if (screen == &drawn.start_screen() || screen == &drawn.import_screen()) continue;
        drawn.act([&] {
            screen->show();
            for (Field* const field : screen->fields()) {
                if (field->kind() == FieldKind::panel) field->show();
            }
        });
        const QWidget& window = *drawn.windows.window_of(*screen);
        SCOPED_TRACE(screen->name());
        EXPECT_EQ(drawn.windows.difference().toStdString(), "");
        expect_named_controls(window);
        expect_tab_order_of_reading(window);
        expect_no_clipped_text(window);
        save_picture(*drawn.windows.window_of(*screen), screen->name(), schemes().front(), "whole");
        drawn.act([&] { screen->hide(); });
    }
}

std::vector<std::string> states() {
    std::vector<std::string> names;
    for (const auto& [name, road] : test::roads()) names.push_back(name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, Windows,
                         testing::Combine(testing::ValuesIn(states()),
                                          testing::ValuesIn(schemes())),
                         [](const auto& parameters) {
                             std::string name = std::get<std::string>(parameters.param) + " " +
                                                std::get<Scheme>(parameters.param).name;
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });

// The contrast of two colours, from 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto light_of = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const double lighter = std::max(light_of(one), light_of(other));
    const double darker = std::min(light_of(one), light_of(other));
    return (lighter + 0.05) / (darker + 0.05);
}

constexpr double readable = 4.5;
constexpr double readable_at_rest = 3.5;

TEST(Colours, TextCanBeReadOnEveryTintInLightAndDark) {
    for (const Scheme& scheme : schemes()) {
        QPalette palette;
        palette.setColor(QPalette::Base, scheme.base);
        palette.setColor(QPalette::Text, scheme.text);
        const auto colours = colours_of(palette);
        for (int number = 0; number < 8; ++number) {
            EXPECT_GE(contrast(colours.text, tint(colours, number)), readable) << scheme.name;
            EXPECT_GE(contrast(colours.quiet, tint(colours, number)), readable) << scheme.name;
        }
        EXPECT_GE(contrast(colours.text, colours.card), readable) << scheme.name;
        EXPECT_GE(contrast(colours.text, colours.soft), readable) << scheme.name;
        EXPECT_GE(contrast(colours.quiet, colours.card), readable) << scheme.name;
        EXPECT_GE(contrast(colours.quiet, colours.page), readable) << scheme.name;
        EXPECT_GE(contrast(colours.title, colours.card), readable) << scheme.name;
        EXPECT_GE(contrast(colours.title, colours.page), readable) << scheme.name;
        EXPECT_GE(contrast(colours.accent_text, colours.accent), readable) << scheme.name;
        for (const QColor& behind : {colours.card, colours.page, colours.rest}) {
            EXPECT_GE(contrast(colours.faint, behind), readable_at_rest) << scheme.name;
        }
    }
}

TEST(Colours, TheMarksOfBoxesAndOptionsCanBeSeenOnACard) {
    constexpr double to_be_seen = 3;
    for (const Scheme& scheme : schemes()) {
        put_on(scheme);
        Card card(nullptr);
        card.content()->addWidget(new QCheckBox(&card));
        card.content()->addWidget(new QRadioButton(&card));
        card.show();
        for (const QAbstractButton* const mark : card.findChildren<QAbstractButton*>()) {
            const QImage picture = card.grab(mark->geometry()).toImage();
            double strongest = 1;
            for (int x = 0; x < picture.width(); ++x) {
                for (int y = 0; y < picture.height(); ++y) {
                    strongest =
                        std::max(strongest, contrast(picture.pixelColor(x, y), own_colours().card));
                }
            }
            EXPECT_GE(strongest, to_be_seen) << scheme.name << mark->metaObject()->className();
        }
    }
    put_on(schemes().front());
}

}  // namespace
}  // namespace brooklander::desktop
