#include "platform/desktop/screen_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include "platform/desktop/colours.h"
#include "platform/desktop/pictures.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr QSize first_size(1024, 728);  // a display of 1024 x 768 with a window's frame taken off

// The surface that the cards lie on.
class Water : public QWidget {
  public:
    explicit Water(QWidget* parent) : QWidget(parent) { setObjectName(QStringLiteral("page")); }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (tile_.isNull() || tile_.devicePixelRatio() != devicePixelRatioF()) mix();
        QPainter(this).drawTiledPixmap(rect(), tile_);
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
    resize(first_size);
}

void ScreenWindow::asks(QWidget* card, QWidget* first, QWidget* no) {
    questions_.push_back({card, first, no});
}

void ScreenWindow::settled() {
    for (Question& question : questions_) {
        const bool is_up = question.card->isVisible();
        if (is_up && !question.was_up) question.first->setFocus(Qt::OtherFocusReason);
        question.was_up = is_up;
    }
}

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
        if (!question.card->isVisible()) continue;
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
    if (focusWidget() == nullptr) focusNextChild();
}

}  // namespace brooklander::desktop
