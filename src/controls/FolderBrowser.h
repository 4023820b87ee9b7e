#pragma once

#include <QDialog>

#include <string>

class QTreeWidget;
class QTreeWidgetItem;

namespace controls {

/// The folders of drive C as a tree, of which one is picked. A folder's content is read when it is opened. Folders
/// elsewhere aren't offered: they have no path that the programs of the workstation could read.
class FolderBrowser : public QDialog {
    Q_OBJECT
public:
    FolderBrowser(QWidget* parent, const QString& title);

    /// The path of the folder on which the tree is.
    std::string chosen() const;

private:
    void add(QTreeWidgetItem* parent, const QString& name, const std::string& path);
    void open(QTreeWidgetItem* folder);

    QTreeWidget* tree_;
};

} // namespace controls
