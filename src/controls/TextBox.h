#pragma once

#include <QLineEdit>

#include <string>

namespace controls {

/// A field of one line. Its text is selected whenever it gets the focus, so that typing replaces it.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    explicit TextBox(QWidget* parent = nullptr);

    std::string Text() const { return text().toStdString(); }
    /// Gives it the focus, with the text selected also where it has the focus already.
    void SetFocus();
    /// Selects the text as when the focus comes.
    void Select();
    /// From now on no more than that many characters are selected, from the first on.
    void selectAtMost(int characters) { selectAtMost_ = characters; }
    using QLineEdit::setText;
    /// Shows the text, cut at the field's greatest length.
    void setText(const std::string& text) { setText(QString::fromStdString(text)); }
    void setText(const char* text) { setText(QString::fromUtf8(text)); }

signals:
    void GotFocus();
    void LostFocus(); ///< only when the focus moves to another control of the program

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void takeFocus(const QWidget* control);

    bool byMouse_ = false; ///< the focus came by a press of the mouse
    bool selectAtRelease_ = false;
    int selectAtMost_ = -1; ///< the whole text
};

} // namespace controls
