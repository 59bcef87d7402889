#include "platform/desktop/help_page.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "platform/desktop/colours.h"
#include "platform/desktop/texts.h"
#include "platform/fatal_failure.h"

namespace brooklander::desktop {
namespace {

constexpr int page_margin = 20;
constexpr int item_indent = 40;   // the toolkit's, where pictures stand within items
constexpr int until_fitted = 80;  // milliseconds in which further changes of the width are awaited

QString style_sheet(const Colours& colours) {
    return QStringLiteral(
               "h1, h2, h3 { color: %1; } h2 { margin-top: 28px; } h3 { margin-top: 18px; }"
               "p, li { margin-bottom: 6px; } a { color: %2; }"
               "table { margin-top: 8px; margin-bottom: 8px; border-collapse: collapse; "
               "border-style: solid; border-color: %3; }"
               "th { background-color: %4; } tt { font-family: 'DejaVu Sans Mono', monospace; }")
        .arg(colours.title.name(), colours.title.name(), colours.edge.name(), colours.soft.name());
}

const QRegularExpression& picture_element() {
    static const QRegularExpression element(
        QStringLiteral("<img src=\"([^\"]*)\" alt=\"([^\"]*)\">"));
    return element;
}

}  // namespace

HelpPage::HelpPage(const Files& files) : files_(files) {
    setObjectName(QStringLiteral("helpPage"));
    setAccessibleName(QStringLiteral("Help text"));
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // it would narrow the pictures' room
    document()->setDocumentMargin(page_margin);
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { go_to_name(link.fragment()); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (on_moved) on_moved();
    });
    fitting_.setSingleShot(true);
    fitting_.setInterval(until_fitted);
    connect(&fitting_, &QTimer::timeout, this, [this] { fit_pictures(); });
}

void HelpPage::show_file(std::string_view path) {
    folder_ = path.substr(0, path.find_last_of("\\/") + 1);
    try {
        const FileText text = files_.read(path);
        html_ = QString::fromUtf8(text.view().data(), static_cast<qsizetype>(text.size()));
    } catch (const FatalFailure& failure) {
        html_ = QStringLiteral("<h2>There is no help to show</h2><p>%1</p>")
                    .arg(QString::fromStdString(failure.what()).toHtmlEscaped());
    }
    read_pictures();
    places_.clear();
    show_page();
    verticalScrollBar()->setValue(0);
    if (on_moved) on_moved();
}

void HelpPage::show_page() {
    const bool was_showing = std::exchange(showing_, true);
    fitted_width_ = viewport()->width();
    document()->setDefaultStyleSheet(style_sheet(own_colours()));
    setHtml(html_);
    headings_.clear();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (const int level = block.blockFormat().headingLevel(); level > 0)
            headings_.push_back({block.text(), level, block.position()});
    }
    showing_ = was_showing;
}

// Those that are missing give way to their words in the text.
void HelpPage::read_pictures() {
    pictures_.clear();
    qsizetype from = 0;
    for (;;) {
        const auto match = picture_element().match(html_, from);
        if (!match.hasMatch()) return;
        from = match.capturedEnd();
        const QString name = QUrl(match.captured(1)).toString();  // as the toolkit asks for it
        if (pictures_.contains(name)) continue;
        if (QByteArray bytes = picture_bytes(name); !bytes.isEmpty()) {
            pictures_[name] = std::move(bytes);
            continue;
        }
        const QString words = QStringLiteral("<i>[%1]</i>").arg(match.captured(2));
        from = match.capturedStart() + words.size();
        html_.replace(match.capturedStart(), match.capturedLength(), words);
    }
}

// Names lead on from the help file's own folder, and to nowhere else.
QByteArray HelpPage::picture_bytes(const QString& name) const {
    if (name.contains(u':') || name.startsWith(u'/') || name.startsWith(u'\\')) return {};
    try {
        const FileText bytes = files_.read(folder_ + typed(name));
        return {bytes.view().data(), static_cast<qsizetype>(bytes.size())};
    } catch (const FatalFailure&) {
        return {};
    }
}

// No wider than the text, and never larger than it is; on a fine screen with all the dots that
// there are.
QImage HelpPage::fitted(const QByteArray& bytes) const {
    // What is painted on must not have a table of colours.
    QImage image = QImage::fromData(bytes).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    const int room = std::max(viewport()->width() - 2 * page_margin - item_indent, 100);
    const int width = std::min(image.width(), room);
    const int dots = std::min(image.width(), qRound(width * devicePixelRatioF()));
    QImage scaled =
        dots == image.width() ? image : image.scaledToWidth(dots, Qt::SmoothTransformation);
    QPainter painter(&scaled);
    painter.setPen(own_colours().edge);
    painter.drawRect(scaled.rect().adjusted(0, 0, -1, -1));
    painter.end();
    scaled.setDevicePixelRatio(static_cast<qreal>(dots) / width);
    return scaled;
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) return {};
    const auto picture = pictures_.find(name.toString());
    return picture == pictures_.end() ? QVariant() : fitted(picture->second);
}

void HelpPage::resizeEvent(QResizeEvent* event) {
    const Place before = place();
    QTextBrowser::resizeEvent(event);
    if (showing_) return;
    scroll_to(before);
    if (viewport()->width() != fitted_width_) fitting_.start();
}

void HelpPage::fit_pictures() {
    if (viewport()->width() == fitted_width_) return;
    const Place before = place();
    fitted_width_ = viewport()->width();
    for (const auto& [name, bytes] : pictures_) {
        document()->addResource(QTextDocument::ImageResource, QUrl(name), fitted(bytes));
    }
    document()->markContentsDirty(0, document()->characterCount());
    scroll_to(before);
}

// The colours of a page are set when it is made.
void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || showing_ || html_.isEmpty()) return;
    const Place before = place();
    show_page();
    scroll_to(before);
}

HelpPage::Place HelpPage::place() const {
    const int position = cursorForPosition(QPoint(page_margin, 1)).position();
    return {position, verticalScrollBar()->value() - top_of_paragraph(position)};
}

int HelpPage::top_of_paragraph(int position) const {
    const QTextBlock block = document()->findBlock(position);
    return static_cast<int>(document()->documentLayout()->blockBoundingRect(block).top());
}

void HelpPage::scroll_to(const Place& place) {
    verticalScrollBar()->setValue(top_of_paragraph(place.position) + place.beyond);
}

void HelpPage::go_to(int position) {
    places_.push_back(place());
    scroll_to({position, 0});
    if (on_moved) on_moved();
}

void HelpPage::go_to_name(const QString& name) {
    const Place before = place();
    scrollToAnchor(name);
    places_.push_back(before);
    if (on_moved) on_moved();
}

void HelpPage::back() {
    if (places_.empty()) return;
    const Place before = places_.back();
    places_.pop_back();
    scroll_to(before);
    if (on_moved) on_moved();
}

bool HelpPage::find_next(const QString& words, bool backward) {
    if (words.isEmpty()) return false;
    const auto flags = backward ? QTextDocument::FindFlags(QTextDocument::FindBackward)
                                : QTextDocument::FindFlags();
    if (find(words, flags)) return true;
    const QTextCursor before = textCursor();
    moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (find(words, flags)) return true;
    setTextCursor(before);
    return false;
}

}  // namespace brooklander::desktop
