// The text of the help with its pictures, as the help window shows it.
#pragma once

#include <QTextBrowser>
#include <QTimer>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/files.h"

namespace brooklander::desktop {

class HelpPage : public QTextBrowser {
  public:
    struct Heading {
        QString text;
        int level;     // 1 for the title of the whole
        int position;  // in the text
    };

    // Pictures are read from these files, too.
    explicit HelpPage(const Files& files);

    // Shows a help file from its top. Its pictures are looked for beside it; one that cannot be
    // read is told in its words. A file that cannot be read is told in the page.
    void show_file(std::string_view path);

    const std::vector<Heading>& headings() const { return headings_; }

    // Goes to a place in the text, and remembers the one before for back().
    void go_to(int position);
    void go_to_name(const QString& name);
    void back();
    bool can_go_back() const { return !places_.empty(); }

    // Where the text at the upper edge of the window stands.
    int position_in_sight() const { return place().position; }

    // Selects the next place with these words, from the start again behind the last; false where
    // there is none. Case does not count.
    bool find_next(const QString& words, bool backward = false);

    std::function<void()> on_moved;  // the place in sight, or the way back, is another

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // A place that stays the same when the lines break elsewhere.
    struct Place {
        int position;  // in the text
        int beyond;    // so many pixels below the top of its paragraph
    };

    void show_page();
    Place place() const;
    void scroll_to(const Place& place);
    int top_of_paragraph(int position) const;
    void fit_pictures();
    QByteArray picture_bytes(const QString& name) const;
    QImage fitted(const QByteArray& bytes) const;
    void read_pictures();

    const Files& files_;
    std::string folder_;
    QString html_;                            // with words for the pictures that are missing
    std::map<QString, QByteArray> pictures_;  // their files, read once
    std::vector<Heading> headings_;
    std::vector<Place> places_;
    int fitted_width_ = 0;
    QTimer fitting_;
    bool showing_ = false;
};

}  // namespace brooklander::desktop
