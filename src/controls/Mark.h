#pragma once

#include <QIcon>
#include <QPixmap>
#include <QWidget>

namespace controls {

/// The product's logo, drawn sharp at any scale: three bars on a rounded square.
class Mark : public QWidget {
    Q_OBJECT
public:
    explicit Mark(QWidget* parent = nullptr);
    QSize sizeHint() const override;

    /// Side in pixels; transparent outside the rounded square.
    static QPixmap picture(int side);
    static QIcon icon();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace controls
