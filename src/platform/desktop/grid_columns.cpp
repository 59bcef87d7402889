// How wide the columns of a grid are, and which of them are in sight.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "platform/desktop/grid_widget.h"
#include "platform/desktop/texts.h"

namespace brooklander::desktop {
namespace {

constexpr int widest_by_content = 260;  // a column is drawn wider only by hand, or where they share
constexpr int widest_of_shared = 640;
constexpr int rows_to_measure = 40;
constexpr int rows_to_look_at = 20000;  // in a list that shares its width
constexpr int narrowest_shared = 40;
constexpr double most_of_text_to_cut = 0.3;
constexpr qreal twips_of_a_pixel = 15;
constexpr int usual_line = 16;  // pixels of a line of text that a pixel of a width was meant for

}  // namespace

// Where columns can get a caption, room for a short one is kept from the start, so that no column
// moves under the mouse when its neighbour gets one.
int GridWidget::least_width() const { return marks_ ? fontMetrics().averageCharWidth() * 12 : 0; }

// A text is first looked at letter by letter, which takes no time; only the widest of a column is
// measured as it will be drawn.
void GridWidget::measure_letters() {
    if (letters_measured_) return;
    for (std::size_t byte = 0; byte < letters_.size(); ++byte) {
        letters_[byte] =
            fontMetrics().horizontalAdvance(shown(std::string(1, static_cast<char>(byte))));
    }
    letters_measured_ = true;
}

int GridWidget::width_of_letters(std::string_view text) const {
    return std::accumulate(text.begin(), text.end(), 0, [this](int width, char letter) {
        return width + letters_[static_cast<unsigned char>(letter)];
    });
}

// What the texts of each column need, without the blanks that they are padded with: those of the
// first rows, or, where the columns share the width, of all rows of a list of a usual length.
std::vector<int> GridWidget::needs_of_texts() {
    std::vector<std::string> widest(static_cast<std::size_t>(columns_));
    std::vector<int> widths(widest.size(), -1);
    measure_letters();
    RowCells cells;
    const int last = std::min(rows_, shares_width_ ? rows_to_look_at : rows_to_measure);
    for (int row = fixed_rows_; row < last; ++row) {
        grid_.read_row(row, cells);
        for (int column = 0; column < columns_; ++column) {
            const auto at = static_cast<std::size_t>(column);
            const std::string_view text = without_padding(cells[column]);
            const int width = width_of_letters(text);
            if (width <= widths[at]) continue;
            widths[at] = width;
            widest[at] = text;
        }
    }
    for (std::size_t at = 0; at < widest.size(); ++at) {
        const int text =
            widest[at].empty() ? 0 : fontMetrics().horizontalAdvance(shown(widest[at]));
        widths[at] = text == 0 ? 0 : text + 2 * cell_margin + 1;
    }
    return widths;
}

// A column is as wide as the grid says, wider where its heading and its texts need it. One of no
// width is hidden.
void GridWidget::measure_columns() {
    const qreal to_pixels = fontMetrics().height() / twips_of_a_pixel / usual_line;
    const int most = shares_width_ ? widest_of_shared : widest_by_content;
    const int least = shares_width_ ? narrowest_shared : 0;
    needs_ = needs_of_texts();
    wishes_.assign(needs_.size(), 0);
    for (int column = 0; column < columns_; ++column) {
        const auto at = static_cast<std::size_t>(column);
        const int twips = grid_.column_width(column);
        needs_[at] = twips <= 0 ? 0 : std::clamp(needs_[at], least, most);
        if (twips <= 0) continue;
        const bool is_named = fixed_rows_ > 0 || !column_name(column).isEmpty();
        const QString heading = is_named ? heading_of(column) : QString::number(column + 1);
        const int of_heading = fontMetrics().horizontalAdvance(heading) + 2 * cell_margin + 1;
        // A name that a screen gives a column is as good as a text in it.
        if (!column_name(column).isEmpty()) needs_[at] = std::max(needs_[at], of_heading);
        wishes_[at] = std::max({static_cast<int>(std::lround(twips * to_pixels)), least_width(),
                                std::min(most, of_heading), needs_[at]});
    }
    place_columns();
}

void GridWidget::place_columns() {
    std::vector<int> widths = wishes_;
    if (shares_width_) fill_width(widths);
    for (const auto& [column, width] : widths_by_hand_) {
        const auto at = static_cast<std::size_t>(column);
        if (at < widths.size() && widths[at] > 0) widths[at] = width;
    }
    lefts_.assign(1, 0);
    lefts_.reserve(widths.size() + 1);
    for (const int width : widths) lefts_.push_back(lefts_.back() + width);
}

int GridWidget::kept_width() const {
    if (!keeps_first_column_ || columns_ < 2) return 0;
    return lefts_[1] <= widest_kept() ? lefts_[1] : 0;
}

void GridWidget::read_page_columns() {
    page_columns_.clear();
    first_column_ = kept_width() > 0 ? 1 : 0;
    while (first_column_ < columns_ &&
           column_left(first_column_) + column_width(first_column_) <= scrolled_left()) {
        ++first_column_;
    }
    for (int column = first_column_; column < columns_ && column_left(column) < viewport()->width();
         ++column) {
        page_columns_.push_back(column);
    }
    if (kept_width() > 0) page_columns_.push_back(0);
}

std::optional<std::size_t> GridWidget::place_on_page(int column) const {
    const auto found = std::find(page_columns_.begin(), page_columns_.end(), column);
    if (found == page_columns_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - page_columns_.begin());
}

// Where there is not room for all wishes, what is left beyond the needs is shared in the proportion
// of what the columns would have beyond theirs. Where there is not even room for the needs, the
// widest column's texts are cut a little; where that does not help, the grid is scrolled.
void GridWidget::fill_width(std::vector<int>& widths) const {
    const auto last = std::find_if(widths.rbegin(), widths.rend(), [](int width) { return width; });
    if (last == widths.rend()) return;
    const int room = viewport()->width() - row_heading_;
    const int needed = std::accumulate(needs_.begin(), needs_.end(), 0);
    const int wished = std::accumulate(widths.begin(), widths.end(), 0);
    if (wished > room && needed <= room) {
        for (std::size_t at = 0; at < widths.size(); ++at) {
            const qint64 more = widths[at] - needs_[at];
            widths[at] = needs_[at] + static_cast<int>(more * (room - needed) / (wished - needed));
        }
    } else if (wished > room) {
        widths = needs_;
        int& widest = *std::max_element(widths.begin(), widths.end());
        const int cut = needed - room;
        if (cut <= widest * most_of_text_to_cut) widest -= cut;
    }
    *last += std::max(0, room - std::accumulate(widths.begin(), widths.end(), 0));
}

}  // namespace brooklander::desktop
