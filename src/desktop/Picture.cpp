#include "desktop/Picture.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

namespace tessaryn {

namespace {

constexpr double Side = 64;  // of the square that the picture is drawn in

// Tiles that fit without a gap, as the lines of a proof do.
void DrawTiles(QPainter& painter) {
    constexpr int count = 4;
    constexpr double tile = Side / count;
    const std::array colours = {QColor(0x1f, 0x3a, 0x6e), QColor(0x2f, 0x5d, 0x9e),
                                QColor(0xe0, 0xb0, 0x4a), QColor(0xf4, 0xe6, 0xc3)};
    for (int row = 0; row < count; ++row) {
        for (int column = 0; column < count; ++column) {
            const QRectF square(column * tile, row * tile, tile, tile);
            const auto place = static_cast<std::size_t>(row + column);
            painter.fillRect(square, colours[place % 2]);
            const bool falling = (row + column) % 2 == 0;
            QPainterPath half(falling ? square.topLeft() : square.topRight());
            half.lineTo(falling ? square.bottomRight() : square.bottomLeft());
            half.lineTo(falling ? square.bottomLeft() : square.bottomRight());
            painter.fillPath(half, colours[2 + place / 2 % 2]);
        }
    }
}

// "For all", in white on a dark disc.
void DrawSign(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x12, 0x23, 0x45));
    painter.drawEllipse(QRectF(14, 14, 36, 36));
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({QPointF(22, 22), QPointF(32, 44), QPointF(42, 22)}));
    painter.drawLine(QPointF(26.5, 32), QPointF(37.5, 32));
}

}  // namespace

QPixmap ProgramPicture(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / Side, size / Side);
    QPainterPath frame;
    frame.addRoundedRect(QRectF(0, 0, Side, Side), 8, 8);
    painter.setClipPath(frame);
    DrawTiles(painter);
    DrawSign(painter);
    return picture;
}

}  // namespace tessaryn
