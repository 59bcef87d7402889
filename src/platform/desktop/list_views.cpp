#include "platform/desktop/list_views.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/desktop/colours.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr int row_height = 24;
constexpr int indent_step = 14;

QStringList entries_of(const EntryList& list) {
    QStringList entries;
    entries.reserve(static_cast<qsizetype>(list.count()));
    for (const std::string& entry : list.entries()) entries.push_back(shown(entry));
    return entries;
}

// Draws a row without asking the style for it, which would take long in lists of thousands.
class RowPainter : public QStyledItemDelegate {
  public:
    explicit RowPainter(ListWidget& list) : QStyledItemDelegate(&list), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Colours colours = own_colours();
        const bool selected = (option.state & QStyle::State_Selected) != 0;
        const bool cursor = list_.hasFocus() && index == list_.currentIndex();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF row = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (selected) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(colours.accent);
            painter->drawRoundedRect(row, 3, 3);
        }
        if (cursor) {
            painter->setPen(QPen(selected ? colours.text : colours.accent, 1, Qt::DotLine));
            painter->setBrush(Qt::NoBrush);
            painter->drawRoundedRect(row, 3, 3);
        }
        const bool enabled = (option.state & QStyle::State_Enabled) != 0;
        painter->setPen(selected ? colours.accent_text : enabled ? colours.text : colours.edge);
        if (index.row() == list_.open_row) {
            QFont bold = painter->font();
            bold.setWeight(QFont::DemiBold);
            painter->setFont(bold);
        }
        const int indent = list_.indent ? list_.indent(index.row()) * indent_step : 0;
        const QRect place = option.rect.adjusted(8 + indent, 0, -8, 0);
        painter->drawText(
            place, Qt::AlignVCenter | Qt::TextSingleLine,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width()));
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const int indent = list_.indent ? list_.indent(index.row()) * indent_step : 0;
        return {option.fontMetrics.horizontalAdvance(index.data().toString()) + 16 + indent,
                std::max(row_height, option.fontMetrics.height() + 6)};
    }

  private:
    ListWidget& list_;
};

class ListView : public WidgetView<EntryList, ListWidget> {
  public:
    ListView(EntryList& list, ListWidget* widget, Acts& acts) : WidgetView(list, widget) {
        widget->on_click = [this, &acts](int row) {
            acts.act(*this, [this, row] {
                const auto index = static_cast<std::size_t>(row);
                if (index < field_.count()) field_.click_entry(index);
            });
        };
    }

  protected:
    void follow_content() override {
        const QStringList entries = entries_of(field_);
        if (widget()->entries().entries() != entries) {
            const int cursor = widget()->currentIndex().row();
            widget()->entries().set_entries(entries);
            set_cursor(std::min(cursor, static_cast<int>(entries.size()) - 1));
        }
        if (!field_.selected()) {
            widget()->selectionModel()->clearSelection();
        } else if (selected_row() != static_cast<int>(*field_.selected())) {
            const auto index = widget()->entries().index(static_cast<int>(*field_.selected()));
            widget()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        }
    }

    // The row at which the arrow keys go on, without a selection.
    void set_cursor(int row) {
        widget()->selectionModel()->setCurrentIndex(widget()->entries().index(row),
                                                    QItemSelectionModel::NoUpdate);
    }

    QString says() const override { return {}; }

    QString content_difference() const override {
        if (widget()->entries().entries() != entries_of(field_)) {
            return QStringLiteral("shows other entries on the screen");
        }
        const int wanted = field_.selected() ? static_cast<int>(*field_.selected()) : -1;
        if (selected_row() == wanted) return {};
        return QStringLiteral("has entry %1 selected on the screen instead of %2")
            .arg(selected_row())
            .arg(wanted);
    }

  private:
    int selected_row() const {
        const QModelIndexList rows = widget()->selectionModel()->selectedIndexes();
        return rows.isEmpty() ? -1 : rows.front().row();
    }
};

// Arrows only look around here: a click on a folder opens it.
class FolderListView : public ListView {
  public:
    FolderListView(FolderList& list, ListWidget* widget, Acts& acts)
        : ListView(list, widget, acts), folders_(list) {
        widget->arrows_click = false;
        widget->setSelectionMode(QAbstractItemView::NoSelection);
        widget->indent = [this](int row) { return std::min(row, depth_ + 1); };
    }

  protected:
    void follow_content() override {
        const bool moved = path_ != folders_.path();
        path_ = folders_.path();
        const auto slashes = std::count(path_.begin(), path_.end(), '\\');
        depth_ = path_.ends_with('\\') ? 0 : static_cast<int>(slashes);
        widget()->open_row = depth_;
        ListView::follow_content();
        if (moved) set_cursor(depth_);
        widget()->viewport()->update();
    }

    // Rows are not selected here, since the list is read anew by a click.
    QString content_difference() const override {
        if (widget()->entries().entries() == entries_of(field_)) return {};
        return QStringLiteral("shows other folders on the screen");
    }

  private:
    FolderList& folders_;
    std::string path_;
    int depth_ = 0;  // of the open folder below its drive's root, which is its row, too
};

class PickListView : public WidgetView<EntryList, QComboBox> {
  public:
    PickListView(EntryList& list, QComboBox* widget, Acts& acts) : WidgetView(list, widget) {
        QObject::connect(widget, &QComboBox::activated, widget, [this, &acts](int row) {
            acts.act(*this, [this, row] {
                const auto index = static_cast<std::size_t>(row);
                if (index < field_.count()) field_.click_entry(index);
            });
        });
    }

  protected:
    void follow_content() override {
        const QSignalBlocker quiet(widget());
        const QStringList entries = entries_of(field_);
        if (entries_ != entries) {
            entries_ = entries;
            widget()->clear();
            widget()->addItems(entries);
        }
        widget()->setPlaceholderText(shown(field_.text()));
        widget()->setCurrentIndex(wanted_row());
    }

    QString says() const override {
        return widget()->currentIndex() < 0 ? widget()->placeholderText() : widget()->currentText();
    }

    QString content_difference() const override {
        QStringList entries;
        for (int row = 0; row < widget()->count(); ++row)
            entries.push_back(widget()->itemText(row));
        if (entries != entries_of(field_))
            return QStringLiteral("offers other entries on the screen");
        return WidgetView::content_difference();
    }

  private:
    // The entry that the text is: the selected one, or the first of that text.
    int wanted_row() const {
        if (field_.selected() && field_.entry(*field_.selected()) == field_.text()) {
            return static_cast<int>(*field_.selected());
        }
        const auto found = field_.empty() ? std::nullopt : field_.find(field_.text());
        return found ? static_cast<int>(*found) : -1;
    }

    QStringList entries_;
};

}  // namespace

void EntryModel::set_entries(QStringList entries) {
    beginResetModel();
    entries_ = std::move(entries);
    endResetModel();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= entries_.size()) return {};
    switch (role) {
        case Qt::DisplayRole: return entries_[index.row()];
        case Qt::ToolTipRole: return tip(entries_[index.row()]);
        default: return {};
    }
}

ListWidget::ListWidget(QWidget* parent) : QListView(parent) {
    setModel(&model_);
    setItemDelegate(new RowPainter(*this));
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { click(index); });
}

void ListWidget::click(const QModelIndex& index) {
    if (index.isValid() && on_click) on_click(index.row());
}

QSize ListWidget::sizeHint() const { return {240, 8 * row_height + 8}; }

void ListWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: click(currentIndex()); return;
        default: break;
    }
    const QModelIndex before = currentIndex();
    const bool steps = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (arrows_click && steps && before.isValid() && !selectionModel()->hasSelection()) {
        click(before);  // the one that the cursor stands at, before any other
        return;
    }
    QListView::keyPressEvent(event);
    const bool moves = event->text().isEmpty() && event->key() != Qt::Key_Shift;
    const bool picks = currentIndex() != before || (moves && !selectionModel()->hasSelection());
    if (arrows_click && picks) click(currentIndex());
}

// A press below the last entry changes nothing.
void ListWidget::mousePressEvent(QMouseEvent* event) {
    if (indexAt(event->pos()).isValid()) QListView::mousePressEvent(event);
}

// Under the second press of a double click may stand another entry than under the first.
void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void ListWidget::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (!model_.entries().isEmpty() || empty_text_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(own_colours().quiet);
    painter.drawText(viewport()->rect().adjusted(12, 8, -12, -8),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, empty_text_);
}

std::unique_ptr<FieldView> list_view(EntryList& list, ListWidget* widget, Acts& acts) {
    return std::make_unique<ListView>(list, widget, acts);
}

std::unique_ptr<FieldView> folder_list_view(FolderList& list, ListWidget* widget, Acts& acts) {
    return std::make_unique<FolderListView>(list, widget, acts);
}

std::unique_ptr<FieldView> pick_list_view(EntryList& list, QComboBox* widget, Acts& acts) {
    return std::make_unique<PickListView>(list, widget, acts);
}

}  // namespace brooklander::desktop
