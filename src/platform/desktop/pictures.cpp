#include "platform/desktop/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>
#include <numbers>

namespace brooklander::desktop {
namespace {

constexpr int tile_width = 240;
constexpr int tile_height = 120;

// A wave of whole lengths across `width`, from its left edge on.
QPainterPath wave(qreal width, qreal height, qreal rise, qreal lengths, qreal shift) {
    QPainterPath path;
    constexpr int steps = 96;
    for (int step = 0; step <= steps; ++step) {
        const qreal share = static_cast<qreal>(step) / steps;
        const qreal angle = 2 * std::numbers::pi * (share * lengths + shift);
        const QPointF point(share * width, height + rise * std::sin(angle));
        if (step == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    return path;
}

}  // namespace

QPixmap water(const Colours& colours, qreal pixels_to_one) {
    const QSizeF size = QSizeF(tile_width, tile_height) * pixels_to_one;
    QPixmap tile(size.toSize());
    tile.setDevicePixelRatio(pixels_to_one);
    tile.fill(colours.page);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    struct Line {
        qreal height, rise, lengths, shift, thickness;
    };
    constexpr std::array<Line, 4> lines{{
        {18, 7, 1, 0, 1.5},
        {46, 5, 2, 0.3, 1},
        {76, 8, 1, 0.55, 1.5},
        {104, 4, 3, 0.1, 1},
    }};
    for (const Line& line : lines) {
        painter.setPen(QPen(colours.wave, line.thickness));
        painter.drawPath(wave(tile_width, line.height, line.rise, line.lengths, line.shift));
    }
    return tile;
}

// A drop with two waves in it, on a square of teal.
QImage icon_picture(int size) {
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x0a, 0x6e, 0x8c));
    painter.drawRoundedRect(QRectF(1, 1, 62, 62), 13, 13);

    QPainterPath drop;
    drop.moveTo(32, 8);
    drop.cubicTo(38, 19, 51, 28, 51, 40);
    drop.cubicTo(51, 50, 42.5, 57, 32, 57);
    drop.cubicTo(21.5, 57, 13, 50, 13, 40);
    drop.cubicTo(13, 28, 26, 19, 32, 8);
    painter.setBrush(Qt::white);
    painter.drawPath(drop);

    painter.setClipPath(drop);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x0a, 0x6e, 0x8c), 4));
    painter.drawPath(wave(64, 38, 2.5, 2, 0));
    painter.drawPath(wave(64, 47, 2.5, 2, 0.5));
    return picture;
}

QIcon program_icon() {
    QIcon icon;
    for (const int size : icon_sizes) icon.addPixmap(QPixmap::fromImage(icon_picture(size)));
    return icon;
}

}  // namespace brooklander::desktop
