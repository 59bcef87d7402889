#include "platform/desktop/theme.h"

#include <QApplication>
#include <QEvent>
#include <QStyleFactory>
#include <QWidget>
#include <array>

#include "platform/desktop/pictures.h"

namespace brooklander::desktop {
namespace {

QColor mixed(const QColor& one, const QColor& other, qreal share_of_other) {
    const auto part = [share_of_other](int from, int to) {
        return static_cast<int>(from + (to - from) * share_of_other + 0.5);
    };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

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
QPushButton[filled="true"]:disabled { background: %line; color: %faint; border-color: %line; }
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
QToolTip { background: %card; color: %text; border: 1px solid %edge; padding: 4px; }
)");
    // Longer names first, since a shorter one may begin one.
    const std::array<std::pair<const char*, QColor>, 15> names{{
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
        {"%faint", mixed(colours.card, colours.text, 0.45)},
        {"%wave", colours.wave},
    }};
    for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), colour.name());
    return sheet;
}

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
    void follow() {
        const QPalette palette = QApplication::palette();
        const Colours colours = colours_of(palette);
        const QString sheet = style_sheet(colours);
        if (sheet == sheet_) return;
        sheet_ = sheet;
        QPalette own = palette;
        own.setColor(QPalette::Highlight, colours.accent);
        own.setColor(QPalette::HighlightedText, colours.accent_text);
        QApplication::setPalette(own);
        qApp->setStyleSheet(sheet);
    }

    QString sheet_;
};

}  // namespace

Colours colours_of(const QPalette& palette) {
    Colours colours;
    colours.card = palette.color(QPalette::Base);
    colours.text = palette.color(QPalette::Text);
    colours.dark = colours.card.lightness() < colours.text.lightness();
    const QColor teal = colours.dark ? QColor(0x4f, 0xc0, 0xda) : QColor(0x0a, 0x6e, 0x8c);
    colours.page = mixed(colours.card, teal, colours.dark ? 0.07 : 0.09);
    colours.wave = mixed(colours.card, teal, colours.dark ? 0.13 : 0.15);
    colours.line = mixed(colours.card, mixed(colours.text, teal, 0.4), 0.18);
    colours.edge = mixed(colours.card, mixed(colours.text, teal, 0.3), 0.45);
    colours.quiet = mixed(colours.card, colours.text, 0.72);
    colours.title = colours.dark ? QColor(0x7a, 0xd3, 0xe8) : QColor(0x0b, 0x4f, 0x66);
    colours.accent = colours.dark ? QColor(0x0f, 0x77, 0x92) : QColor(0x0a, 0x6e, 0x8c);
    colours.accent_text = Qt::white;
    colours.soft = mixed(colours.card, teal, colours.dark ? 0.22 : 0.12);
    return colours;
}

Colours own_colours() { return colours_of(QApplication::palette()); }

QColor tint(const Colours& colours, int number) {
    static const std::array<QColor, 8> hues{QColor(0x2a, 0x9d, 0xc8), QColor(0x6a, 0xa8, 0x2e),
                                            QColor(0xc2, 0x5b, 0x8f), QColor(0xe6, 0x9a, 0x1f),
                                            QColor(0x1f, 0xa8, 0x8c), QColor(0xb0, 0x7a, 0x4a),
                                            QColor(0x7f, 0x8c, 0x2f), QColor(0x8a, 0x5f, 0xc8)};
    const auto at = static_cast<std::size_t>(number) % hues.size();
    return mixed(colours.card, hues[at], colours.dark ? 0.2 : 0.16);
}

QFont font_larger_by(qreal points, QFont::Weight weight) {
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() + points);
    font.setWeight(weight);
    return font;
}

void dress(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setWindowIcon(program_icon());
    new PaletteFollower(application);  // the application owns it
}

void mark(QWidget& widget, const char* property) { widget.setProperty(property, true); }

}  // namespace brooklander::desktop
