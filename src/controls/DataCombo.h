#pragma once

#include "controls/DataControl.h"

#include <QComboBox>
#include <QPointer>

#include <string>

namespace controls {

class ListModel;

/// A field with a list of the rows of a data control: it shows ListField, and BoundText is the row's BoundColumn. A
/// pick doesn't move the source's current row.
///
/// Typing searches the list and picks nothing. Enter or Tab on a highlighted row of the search's list is a pick; a row
/// that is the only one found is highlighted. A text that was typed and not picked is replaced by the last one set by
/// the form or picked: when the field is left, at Esc, and before an Enter reaches the form.
class DataCombo : public QComboBox {
    Q_OBJECT
public:
    enum Area { Button = 0, Edit = 1, List = 2 };

    explicit DataCombo(QWidget* parent = nullptr);

    std::string ListField;
    std::string BoundColumn;

    void setRowSource(DataControl* source);
    /// Rebuilds the list; the text stays.
    void ReFill();
    void Refresh() { repaint(); }

    std::string Text() const { return currentText().toStdString(); }
    /// Shows any text, in the list or not.
    void setText(const std::string& text);
    /// The bound column of the row picked, or else of the first row with the present text; empty where there is none.
    std::string BoundText() const;
    /// Shows the row with this key; the empty text where there is none.
    void setBoundText(const std::string& key);
    /// Takes back what was typed and not picked, and closes the search.
    void restoreChosen();
    /// What is typed counts from now on as it stands, in the list or not: it stays when the field is left and at Enter,
    /// and no match is highlighted unless the user goes to it. For lists that grow by what is typed.
    void takeFreeText() { freeText_ = true; }
    /// From now on a text of the list that is typed in full, in whichever case, counts as its first row when the field
    /// is left and at Enter: a Change without a Click. For forms that go by BoundText.
    void takeTypedRow() { typedRow_ = true; }
    /// What the end of an entry does: takes or takes back what was typed and not picked, and closes the search.
    void endEntry();
    /// Whether Tab sets the focus here. A click always does.
    bool TabStop() const;
    void setTabStop(bool stops);

    void hidePopup() override;

signals:
    void GotFocus();
    void LostFocus(); ///< only when the focus moves to another control of the program
    void Click(int area);
    void DblClick(); ///< on the text; or Ctrl+Enter
    /// The text set by the form or picked is another one; emitted before the Click of a pick. Not emitted while the
    /// user searches, which picks nothing, but for each letter where typed text counts.
    void Change();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showPopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeFocus(const QWidget* control);
    void loseFocus(const QWidget* control);
    void takeTyped(const QString& text);
    void setChosen(const QString& text);
    void picked(int row);
    bool keyInSearch(const QKeyEvent& key);
    void highlightOnlyMatch();
    void widenPopup();
    void selectWhole();

    DataControl* source_ = nullptr;
    ListModel* list_;
    int pickedRow_ = -1; ///< tells rows with the same text apart
    QString chosen_;     ///< the text last picked or set by the form, or typed where typed text counts
    bool freeText_ = false;
    bool typedRow_ = false;
    bool leaving_ = false;
    bool byMouse_ = false; ///< the focus came by a press of the mouse
    bool selectAtRelease_ = false;
    QPointer<QWidget> focusOwner_; ///< gets back a focus that came by mistake
};

} // namespace controls
