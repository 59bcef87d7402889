// The widgets of lists: plain ones, folders and files as lists, drives and pick lists as boxes that
// open.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QListView>
#include <QWheelEvent>
#include <memory>

#include "platform/desktop/field_view.h"
#include "shared/place_lists.h"

namespace brooklander::desktop {

// A list's entries as they were when the widget last followed its field.
class EntryModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void set_entries(QStringList entries);
    const QStringList& entries() const { return entries_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    QStringList entries_;
};

class ListWidget : public QListView {
  public:
    explicit ListWidget(QWidget* parent);

    EntryModel& entries() { return model_; }
    const EntryModel& entries() const { return model_; }

    // What stands in the list while it has no entries.
    void set_empty_text(const QString& text) { empty_text_ = text; }

    // Called with the row that a user has clicked, or chosen by a key. Where arrows click, every
    // row that a key leads to is one; elsewhere Enter and the space bar click.
    std::function<void(int row)> on_click;
    bool arrows_click = true;

    // How far a row is moved to the right, in steps.
    std::function<int(int row)> indent;

    // The row that stands for where the list is; -1 for none.
    int open_row = -1;

    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void click(const QModelIndex& index);

    EntryModel model_;
    QString empty_text_;
};

// A box that the wheel scrolls over: turning it chooses nothing.
class PickListBox : public QComboBox {
  public:
    using QComboBox::QComboBox;

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

std::unique_ptr<FieldView> list_view(EntryList& list, ListWidget* widget, Acts& acts);
std::unique_ptr<FieldView> folder_list_view(FolderList& list, ListWidget* widget, Acts& acts);

// For drives and pick lists. A text that no entry says stands in the box all the same.
std::unique_ptr<FieldView> pick_list_view(EntryList& list, QComboBox* widget, Acts& acts);

}  // namespace brooklander::desktop
