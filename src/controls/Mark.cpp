#include "controls/Mark.h"

#include <QPainter>

#include <array>

namespace controls {

namespace {

constexpr int kSide = 56;

struct Bar {
    double x, top;
    const char* colour;
};
// In hundredths of the side; all bars end on the same line at the bottom.
constexpr std::array kBars = {Bar{22, 54, "#9cc7e3"}, Bar{43, 24, "#ffffff"}, Bar{64, 40, "#c9e1f1"}};
constexpr double kBarWidth = 14, kFoot = 78, kCorner = 18, kBarCorner = 2;

void draw(QPainter& painter, double side) {
    const double unit = side / 100;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#2f7fb3"));
    painter.drawRoundedRect(QRectF(0, 0, side, side), kCorner * unit, kCorner * unit);
    for (const Bar& bar : kBars) {
        painter.setBrush(QColor(bar.colour));
        const QRectF place(bar.x * unit, bar.top * unit, kBarWidth * unit, (kFoot - bar.top) * unit);
        painter.drawRoundedRect(place, kBarCorner * unit, kBarCorner * unit);
    }
}

} // namespace

Mark::Mark(QWidget* parent) : QWidget(parent) {
    setFixedSize(kSide, kSide);
}

QSize Mark::sizeHint() const {
    return {kSide, kSide};
}

void Mark::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    draw(painter, width());
}

QPixmap Mark::picture(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    draw(painter, side);
    return picture;
}

QIcon Mark::icon() {
    QIcon icon;
    for (const int side : {16, 32, 48, 128}) {
        icon.addPixmap(picture(side));
    }
    return icon;
}

} // namespace controls
