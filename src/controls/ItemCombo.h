#pragma once

#include <QComboBox>

#include <cstdint>
#include <string>

namespace controls {

/// A list of texts, each with a number of its own. Nothing is picked unseen: the keys that would change the pick open
/// the list, and letters go to it there.
class ItemCombo : public QComboBox {
    Q_OBJECT
public:
    explicit ItemCombo(QWidget* parent = nullptr);

    void addItem(const std::string& text, std::int32_t data);

    /// From 0; -1 while none is picked.
    int ListIndex() const { return currentIndex(); }
    /// Of the item picked. Error 381 where none is.
    std::int32_t ItemData() const;
    /// The item's, or the text for none.
    std::string Text() const;
    /// Picks none and shows this text.
    void setText(const std::string& text);

signals:
    void Click(); ///< the user has picked an item, the same one included

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace controls
