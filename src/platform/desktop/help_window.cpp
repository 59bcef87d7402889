#include "platform/desktop/help_window.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "platform/desktop/draw.h"
#include "platform/desktop/help_page.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr int contents_in_letters = 46;
constexpr int find_in_letters = 31;
constexpr int least_entry_height = 24;
constexpr int lowest_level_listed = 3;

}  // namespace

// The chapters beside the page, and above it the way back and the search.
class HelpWindow::Viewer : public QWidget {
  public:
    explicit Viewer(const Files& files)
        : contents_(new QListWidget(this)),
          page_(new HelpPage(files)),
          back_(new QPushButton(QStringLiteral("<= &Back"), this)),
          find_(new QLineEdit(this)),
          found_(new QLabel(this)) {
        setObjectName(QStringLiteral("page"));
        setAttribute(Qt::WA_StyledBackground);
        setWindowTitle(QStringLiteral("Help"));
        setAccessibleName(QStringLiteral("Help"));
        lay_out();
        connect_all();
        add_shortcuts();
        resize(1100, 760);
    }

    void show_file(std::string_view path) {
        show();
        raise();
        activateWindow();
        page_->show_file(path);
        list_headings();
        page_->setFocus();
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Escape) {
            QWidget::keyPressEvent(event);
        } else if (find_->hasFocus()) {
            page_->setFocus();
        } else {
            close();
        }
    }

  private:
    void lay_out() {
        contents_->setObjectName(QStringLiteral("helpContents"));
        contents_->setAccessibleName(QStringLiteral("Contents"));
        contents_->setFixedWidth(contents_->fontMetrics().averageCharWidth() * contents_in_letters);
        contents_->setTextElideMode(Qt::ElideRight);
        contents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        back_->setObjectName(QStringLiteral("helpBack"));
        find_->setObjectName(QStringLiteral("helpFind"));
        find_->setAccessibleName(QStringLiteral("Find"));
        find_->setPlaceholderText(QStringLiteral("Find"));
        keep_width(find_, find_in_letters);
        found_->setObjectName(QStringLiteral("helpFound"));
        mark(*found_, "quiet");

        auto* const bar = new QHBoxLayout;
        bar->setSpacing(between_controls);
        bar->addWidget(back_);
        bar->addStretch();
        bar->addWidget(found_);
        bar->addWidget(find_);
        auto* const sheet = new QHBoxLayout;
        sheet->setSpacing(between_cards);
        sheet->addWidget(contents_);
        sheet->addWidget(page_);
        auto* const all = new QVBoxLayout(this);
        all->setContentsMargins(between_cards, between_cards, between_cards, between_cards);
        all->setSpacing(between_cards);
        all->addLayout(bar);
        all->addLayout(sheet);
        setTabOrder(page_, contents_);
        setTabOrder(contents_, back_);
        setTabOrder(back_, find_);
    }

    void connect_all() {
        page_->on_moved = [this] { follow_page(); };
        connect(back_, &QPushButton::clicked, page_, [this] { page_->back(); });
        connect(contents_, &QListWidget::itemClicked, this, [this] { go_to_chosen(); });
        connect(contents_, &QListWidget::itemActivated, this, [this] { go_to_chosen(); });
        connect(find_, &QLineEdit::returnPressed, this, [this] { find_next(false); });
        connect(find_, &QLineEdit::textChanged, found_, [this] { found_->clear(); });
    }

    void add_shortcuts() {
        const auto add = [this](const QKeySequence& keys, const std::function<void()>& act) {
            connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
        };
        add(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { page_->back(); });
        add(QKeySequence::Find, [this] {
            find_->setFocus();
            find_->selectAll();
        });
        add(Qt::Key_F3, [this] { find_next(false); });
        add(Qt::SHIFT | Qt::Key_F3, [this] { find_next(true); });
        for (const Qt::Key plus : {Qt::Key_Plus, Qt::Key_Equal})
            add(Qt::CTRL | plus, [this] { zoom(1); });
        add(Qt::CTRL | Qt::Key_Minus, [this] { zoom(-1); });
        add(Qt::CTRL | Qt::Key_0, [this] { zoom(-zoomed_); });
    }

    void zoom(int steps) {
        constexpr int most = 10;
        constexpr int least = -3;
        steps = qBound(least, zoomed_ + steps, most) - zoomed_;
        zoomed_ += steps;
        page_->zoomIn(steps);
    }

    void find_next(bool backward) {
        const bool found = page_->find_next(find_->text(), backward);
        found_->setText(found || find_->text().isEmpty() ? QString() : QStringLiteral("Not found"));
    }

    void list_headings() {
        contents_->clear();
        const int height = std::max(least_entry_height, contents_->fontMetrics().height() + 8);
        for (const HelpPage::Heading& heading : page_->headings()) {
            if (heading.level > lowest_level_listed) continue;
            const QString indent(heading.level == lowest_level_listed ? 4 : 0, u' ');
            auto* const item = new QListWidgetItem(indent + heading.text, contents_);
            item->setSizeHint(QSize(0, height));
            item->setData(Qt::UserRole, heading.position);
            if (heading.level < lowest_level_listed) {
                item->setFont(font_larger_by(0, QFont::DemiBold));
            }
        }
        follow_page();
    }

    void go_to_chosen() {
        if (const auto* const item = contents_->currentItem(); item != nullptr)
            page_->go_to(item->data(Qt::UserRole).toInt());
    }

    // Marks the chapter that is in sight.
    void follow_page() {
        back_->setEnabled(page_->can_go_back());
        if (contents_->hasFocus()) return;
        const int place = page_->position_in_sight();
        int row = 0;
        while (row + 1 < contents_->count() &&
               contents_->item(row + 1)->data(Qt::UserRole).toInt() <= place) {
            ++row;
        }
        contents_->setCurrentRow(row);
    }

    QListWidget* contents_;
    HelpPage* page_;
    QPushButton* back_;
    QLineEdit* find_;
    QLabel* found_;
    int zoomed_ = 0;
};

HelpWindow::HelpWindow(const Files& files) : files_(files) {}
HelpWindow::~HelpWindow() = default;

void HelpWindow::show(std::string_view path) {
    if (!viewer_) viewer_ = std::make_unique<Viewer>(files_);
    viewer_->show_file(path);
}

QWidget* HelpWindow::window() const { return viewer_.get(); }

}  // namespace brooklander::desktop
