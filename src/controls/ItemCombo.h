#pragma once

#include <QComboBox>

#include <cstdint>
#include <string>

namespace controls {

/// A list of texts, each with its own number. Nothing is picked while the list is closed: the keys that would do so
/// open it, and letters open it and search there.
class ItemCombo : public QComboBox {
    Q_OBJECT
public:
    explicit ItemCombo(QWidget* parent = nullptr);

    void addItem(const std::string& text, std::int32_t data);

    /// The place of the item picked, counted from 0; -1 while none is picked.
    int ListIndex() const { return currentIndex(); }
    /// The number of the item picked. Raises error 381 where none is.
    std::int32_t ItemData() const;
    /// The text of the item picked, or the one shown while none is.
    std::string Text() const;
    /// Picks no item and shows this text.
    void setText(const std::string& text);

signals:
    void Click(); ///< the user has picked an item, also where it is the same one

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace controls
