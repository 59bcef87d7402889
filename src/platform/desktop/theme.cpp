#include "platform/desktop/theme.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/desktop/colours.h"
#include "platform/desktop/pictures.h"

namespace brooklander::desktop {
namespace {

QString style_sheet(const Colours& colours) {
    QString sheet = QStringLiteral(R"(
QMainWindow, QWidget#page { background: %page; }
QScrollArea { border: none; background: %page; }
QMenuBar { background: %card; color: %text; border-bottom: 1px solid %line; padding: 2px 4px; }
QMenuBar::item { background: transparent; padding: 4px 10px; border-radius: 4px; }
QMenuBar::item:selected { background: %soft; }
QMenuBar::item:disabled { color: %faint; }
QMenu { background: %card; color: %text; border: 1px solid %edge; padding: 4px; }
QMenu::item { padding: 6px 24px 6px 16px; border-radius: 4px; }
QMenu::item:selected { background: %accent; color: %accentText; }
QMenu::item:disabled { color: %faint; background: transparent; }
QFrame[card="true"] { background: %card; border: 1px solid %line; border-radius: 6px; }
QFrame[rule="true"] { background: %line; }
QLabel { background: transparent; color: %text; }
QLabel[title="true"] { color: %title; }
QLabel[quiet="true"] { color: %quiet; }
QPushButton { background: %button; color: %text; border: 1px solid %edge; border-radius: 4px;
              padding: 0 12px; min-height: 26px; }
QPushButton:hover { background: %soft; }
QPushButton:pressed { background: %pressed; }
QPushButton:focus { border: 2px solid %accent; padding: 0 11px; min-height: 24px; }
QPushButton:disabled { background: %page; color: %faint; border-color: %line; }
QPushButton[filled="true"] { background: %accent; color: %accentText; border-color: %accent;
              font-weight: bold; min-width: 88px; }
QPushButton[filled="true"]:hover { background: %accentOver; border-color: %accentOver; }
QPushButton[filled="true"]:focus { border: 2px solid %text; }
QPushButton[filled="true"]:disabled { background: %rest; color: %faint; border-color: %line; }
QPushButton[active="true"] { background: %soft; border: 2px solid %accent; padding: 0 11px;
              min-height: 24px; }
QLineEdit { background: %card; color: %text; border: 1px solid %edge;
              border-radius: 4px; padding: 0 8px; min-height: 26px;
              selection-background-color: %accent; selection-color: %accentText; }
QLineEdit:focus { border: 2px solid %accent; padding: 0 7px; min-height: 24px; }
QLineEdit:disabled { background: %page; color: %faint; }
QLineEdit { lineedit-password-character: 42; }
QListView { background: %card; color: %text; border: 1px solid %line; border-radius: 4px;
              padding: 2px; outline: none; }
QListView:focus { border: 2px solid %accent; padding: 1px; }
QScrollBar:vertical { background: %page; width: 14px; }
QScrollBar:horizontal { background: %page; height: 14px; }
QScrollBar::handle { background: %edge; border: 3px solid %page; border-radius: 7px; }
QScrollBar::handle:vertical { min-height: 36px; }
QScrollBar::handle:horizontal { min-width: 36px; }
QScrollBar::handle:hover { background: %quiet; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QPushButton[category="true"] { text-align: left; }
QRadioButton:focus, QCheckBox:focus { color: %title; text-decoration: underline; }
QAbstractScrollArea::corner { background: %page; }
QToolTip { background: %card; color: %text; border: 1px solid %edge; padding: 4px; }
)");
    // Longer names first, since a shorter one may begin one.
    const std::array<std::pair<const char*, QColor>, 16> names{{
        {"%accentText", colours.accent_text},
        {"%accentOver", mixed(colours.accent, colours.accent_text, 0.12)},
        {"%accent", colours.accent},
        {"%pressed", mixed(colours.soft, colours.accent, 0.25)},
        {"%button", mixed(colours.card, colours.accent, colours.dark ? 0.12 : 0.04)},
        {"%page", colours.page},
        {"%card", colours.card},
        {"%line", colours.line},
        {"%edge", colours.edge},
        {"%text", colours.text},
        {"%quiet", colours.quiet},
        {"%title", colours.title},
        {"%soft", colours.soft},
        {"%faint", colours.faint},
        {"%rest", colours.rest},
        {"%wave", colours.wave},
    }};
    for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), colour.name());
    return sheet;
}

// A closed list, framed as a box of text is, with a small arrow at its right end.
void draw_pick_list(const QStyleOption& option, QPainter& painter) {
    constexpr qreal radius = 4;
    constexpr qreal arrow_from_right = 14;
    constexpr qreal arrow_half = 4;
    const Colours colours = own_colours();
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool focused = enabled && option.state.testFlag(QStyle::State_HasFocus);
    const qreal thickness = focused ? 2 : 1;
    const QRectF frame =
        QRectF(option.rect).adjusted(thickness / 2, thickness / 2, -thickness / 2, -thickness / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(enabled ? colours.card : colours.page);
    painter.setPen(QPen(focused   ? colours.accent
                        : enabled ? colours.edge
                                  : colours.line,
                        thickness));
    painter.drawRoundedRect(frame, radius, radius);
    const QPointF tip(option.rect.right() - arrow_from_right,
                      option.rect.center().y() + arrow_half / 2 + 0.5);
    painter.setPen(QPen(enabled ? colours.quiet : colours.faint, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{tip + QPointF(-arrow_half, -arrow_half), tip,
                                   tip + QPointF(arrow_half, -arrow_half)});
    painter.restore();
}

// The toolkit's style, but for three things. It draws the marks of boxes and options in a line
// somewhat darker than the window, which nobody sees on a dark one; it draws closed lists as raised
// buttons, unlike everything beside them; and it leaves separators in menu bars out.
class OwnStyle : public QProxyStyle {
    static constexpr int text_in_box = 8;  // from the box's left end

  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool is_mark = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
        if (!is_mark || button == nullptr) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        constexpr int darker_by = 140;  // percent, in that style
        QStyleOptionButton seen = *button;
        const Colours colours = own_colours();
        seen.palette.setColor(QPalette::Window,
                              mixed(colours.card, colours.text, 0.5).lighter(darker_by));
        QProxyStyle::drawPrimitive(element, &seen, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        if (control == CC_ComboBox) {
            draw_pick_list(*option, *painter);
        } else {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        if (type != CT_ComboBox) return size;
        return {size.width() + text_in_box, std::max(size.height(), control_height)};
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        QRect place = QProxyStyle::subControlRect(control, option, part, widget);
        if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
            place.setLeft(option->rect.left() + text_in_box);
        }
        return place;
    }

    // What stands behind a separator in a menu bar stands apart, at its right end.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_DrawMenuBarSeparator) return 1;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

// Dresses the application anew when the desktop's palette has changed.
class PaletteFollower : public QObject {
  public:
    explicit PaletteFollower(QApplication& application) : QObject(&application) {
        application.installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange) follow();
        return QObject::eventFilter(watched, event);
    }

  private:
    // Setting palettes tells of a change again.
    void follow() {
        if (std::exchange(following_, true)) return;
        set_colours();
        following_ = false;
    }

    void set_colours() {
        const QPalette palette = QApplication::palette();
        const Colours colours = colours_of(palette);
        const QString sheet = style_sheet(colours);
        QPalette own = palette;
        own.setColor(QPalette::Highlight, colours.accent);
        own.setColor(QPalette::HighlightedText, colours.accent_text);
        QApplication::setPalette(own);
        if (sheet == sheet_) return;
        sheet_ = sheet;
        qApp->setStyleSheet(sheet);
    }

    QString sheet_;
    bool following_ = false;
};

}  // namespace

QFont font_larger_by(qreal points, QFont::Weight weight) {
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() + points);
    font.setWeight(weight);
    return font;
}

void dress(QApplication& application) {
    QApplication::setStyle(new OwnStyle(QStringLiteral("Fusion")));  // the application owns it
    QApplication::setWindowIcon(program_icon());
    new PaletteFollower(application);  // the application owns it
}

void mark(QWidget& widget, const char* property) { widget.setProperty(property, true); }

void set_mark(QWidget& widget, const char* property, bool on) {
    if (widget.property(property).toBool() == on) return;
    widget.setProperty(property, on);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

}  // namespace brooklander::desktop
