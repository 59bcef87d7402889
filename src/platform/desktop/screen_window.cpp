#include "platform/desktop/screen_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "platform/desktop/colours.h"
#include "platform/desktop/pictures.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr int frame_height = 40;  // what a window's frame takes at most
constexpr QSize first_size(1024, 768 - frame_height);

// A platform without a display has one of any size.
QSize size_on_this_display() {
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) return first_size;
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    return first_size.boundedTo(room - QSize(0, frame_height));
}

// The surface that the cards lie on.
class Water : public QWidget {
  public:
    explicit Water(QWidget* parent) : QWidget(parent) { setObjectName(QStringLiteral("page")); }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (tile_.isNull() || tile_.devicePixelRatio() != devicePixelRatioF()) mix();
        QPainter(this).drawTiledPixmap(rect(), tile_);
    }
    // A layout does not tell a scroll area how high texts get that are broken into lines.
    bool event(QEvent* event) override {
        const bool handled = QWidget::event(event);
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
            const bool breaks_lines = layout()->hasHeightForWidth();
            setMinimumHeight(breaks_lines ? layout()->totalMinimumHeightForWidth(width()) : 0);
        }
        return handled;
    }
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) mix();
        QWidget::changeEvent(event);
    }

  private:
    void mix() { tile_ = water(own_colours(), devicePixelRatioF()); }

    QPixmap tile_;
};

}  // namespace

ScreenWindow::ScreenWindow(const Screen& screen)
    : screen_(screen),
      area_(new QScrollArea(this)),
      surface_(new Water(area_)),
      page_layout_(new QVBoxLayout(surface_)) {
    setObjectName(shown(screen.name()));
    setContextMenuPolicy(Qt::NoContextMenu);
    page_layout_->setContentsMargins(between_cards, between_cards, between_cards, between_cards);
    page_layout_->setSpacing(between_cards);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidgetResizable(true);
    area_->setWidget(surface_);
    setCentralWidget(area_);
    menuBar()->setNativeMenuBar(false);
    resize(size_on_this_display());
}

void ScreenWindow::asks(QWidget* card, QWidget* first, QWidget* no) {
    questions_.push_back({card, first, no});
}

void ScreenWindow::settled(QWidget* had_keyboard, bool may_give_keyboard) {
    const bool lost =
        had_keyboard == nullptr || !had_keyboard->isVisible() || !had_keyboard->isEnabled();
    const bool asked = ask(had_keyboard, may_give_keyboard);
    if (lost && may_give_keyboard && !asked) give_keyboard_on();
    for (CardPlace& place : cards_) place.was_up = place.card->isVisible();
    for (Mover& mover : movers_) {
        const bool is_ready = mover.button->isVisible() && mover.button->isEnabled();
        if (is_ready && !mover.was_ready) next_by_tab_ = mover.button;
        if (!is_ready && next_by_tab_ == mover.button) next_by_tab_ = nullptr;
        mover.was_ready = is_ready;
    }
}

// Gives the keyboard to a question that has come up; says whether one has got it.
bool ScreenWindow::ask(QWidget* had_keyboard, bool may_give_keyboard) {
    bool asked = false;
    for (Question& question : questions_) {
        const bool is_up = question.card->isVisible();
        if (is_up && !question.was_up && may_give_keyboard) {
            before_question_ = had_keyboard;
            question.first->setFocus(Qt::OtherFocusReason);
            asked = true;
        }
        question.was_up = is_up;
    }
    return asked;
}

namespace {

bool takes_keyboard(const QWidget* widget) {
    return widget != nullptr && widget->isVisible() && widget->isEnabled() &&
           (widget->focusPolicy() & Qt::TabFocus) != 0;
}

// The first control on a card in the order of the Tab key; null where there is none.
QWidget* first_control_on(QWidget* card) {
    for (QWidget* at = card->nextInFocusChain(); at != card; at = at->nextInFocusChain()) {
        if (takes_keyboard(at) && card->isAncestorOf(at)) return at;
    }
    return nullptr;
}

}  // namespace

// To a card that has come up, or back to where it was before a question; otherwise it stays where
// it has got by itself, or goes to the first card.
void ScreenWindow::give_keyboard_on() {
    QWidget* next = nullptr;
    for (const CardPlace& place : cards_) {
        if (next != nullptr || place.was_up || !place.card->isVisible()) continue;
        next = takes_keyboard(place.first) ? place.first : first_control_on(place.card);
    }
    if (next == nullptr && takes_keyboard(before_question_)) next = before_question_;
    before_question_ = nullptr;
    if (next == nullptr && takes_keyboard(focusWidget())) return;
    for (const CardPlace& place : cards_) {
        if (next == nullptr && place.card->isVisible()) next = first_control_on(place.card);
    }
    if (next != nullptr) next->setFocus(Qt::OtherFocusReason);
}

bool ScreenWindow::focusNextPrevChild(bool next) {
    QWidget* const target = std::exchange(next_by_tab_, nullptr);
    if (!next || target == nullptr || target == focusWidget()) {
        return QMainWindow::focusNextPrevChild(next);
    }
    target->setFocus(Qt::TabFocusReason);
    bring_into_view(target);
    return true;
}

// The place is told to the window manager, which would choose one of its own otherwise.
void ScreenWindow::stand_in_for(const ScreenWindow& other) {
    setAttribute(Qt::WA_Moved);
    setWindowState(Qt::WindowNoState);
    setGeometry(other.isMaximized() ? other.normalGeometry() : other.geometry());
    setWindowState(other.windowState() & ~Qt::WindowMinimized);
}

// A window manager places a window that comes back by itself, whatever it is told; a new one it
// places as it is told.
void ScreenWindow::leave() {
    hide();
    if (windowHandle() != nullptr) windowHandle()->destroy();
}

void ScreenWindow::holds(QWidget* card) { cards_.push_back({card, nullptr, false}); }

void ScreenWindow::begins(QWidget* card, QWidget* first) {
    for (CardPlace& place : cards_) {
        if (place.card == card) place.first = first;
    }
}

void ScreenWindow::moves_on(QWidget* button) { movers_.push_back({button}); }

void ScreenWindow::lead_tab_into(QWidget* card) { next_by_tab_ = first_control_on(card); }

void ScreenWindow::bring_into_view(QWidget* widget) {
    if (surface_->isAncestorOf(widget)) area_->ensureWidgetVisible(widget, 8, 8);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (on_close) on_close();
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    const QWidget* const focus = QApplication::focusWidget();
    for (const Question& question : questions_) {
        if (question.no == nullptr || !question.card->isVisible()) continue;
        if (qobject_cast<const QLineEdit*>(focus) != nullptr &&
            !question.card->isAncestorOf(focus)) {
            continue;
        }
        qobject_cast<QAbstractButton*>(question.no)->click();
        return;
    }
}

// The keyboard begins at the first control, so that nobody has to look for it.
void ScreenWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    for (Question& question : questions_) question.was_up = false;  // it is asked anew
    if (focusWidget() == nullptr) focusNextChild();
}

}  // namespace brooklander::desktop
