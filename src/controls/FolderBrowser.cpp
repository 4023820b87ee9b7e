#include "controls/FolderBrowser.h"

#include "controls/Captions.h"
#include "os/Paths.h"
#include "platform/Workstation.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace controls {

namespace fs = std::filesystem;

namespace {

constexpr const char* kRoot = "C:\\";
constexpr int kPath = Qt::UserRole;

std::string pathOf(const QTreeWidgetItem& folder) {
    return folder.data(0, kPath).toString().toStdString();
}

QString nameOf(const fs::path& folder) {
    return QString::fromStdString(os::utf8Of(folder.filename()));
}

/// The folders in a folder of the drive, in the order of their names, in any case; none where it can't be read.
std::vector<fs::path> foldersIn(const std::string& path) {
    std::vector<fs::path> folders;
    std::error_code ignored;
    const fs::path place = platform::workstation().driveC.real(path);
    for (fs::directory_iterator entry(place, ignored), end; entry != end; entry.increment(ignored)) {
        if (entry->is_directory(ignored)) {
            folders.push_back(entry->path());
        }
    }
    std::sort(folders.begin(), folders.end(), [](const fs::path& one, const fs::path& other) {
        return QString::compare(nameOf(one), nameOf(other), Qt::CaseInsensitive) < 0;
    });
    return folders;
}

} // namespace

FolderBrowser::FolderBrowser(QWidget* parent, const QString& title) : QDialog(parent), tree_(new QTreeWidget(this)) {
    constexpr QSize kSize(480, 420);
    setWindowTitle(title);
    resize(kSize);
    tree_->setHeaderHidden(true);
    tree_->setAccessibleName(title);
    auto* path = new QLabel(this);
    path->setObjectName(QStringLiteral("percorso"));
    path->setTextFormat(Qt::PlainText);
    path->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(kOk, QDialogButtonBox::AcceptRole);
    buttons->addButton(kAnnulla, QDialogButtonBox::RejectRole);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tree_);
    layout->addWidget(path);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(tree_, &QTreeWidget::itemExpanded, this, &FolderBrowser::open);
    connect(tree_, &QTreeWidget::currentItemChanged, path,
            [this, path] { path->setText(QString::fromStdString(chosen())); });

    add(tree_->invisibleRootItem(), QString::fromUtf8(kRoot), kRoot);
    tree_->setCurrentItem(tree_->topLevelItem(0));
    tree_->topLevelItem(0)->setExpanded(true);
}

std::string FolderBrowser::chosen() const {
    return pathOf(*tree_->currentItem());
}

void FolderBrowser::add(QTreeWidgetItem* parent, const QString& name, const std::string& path) {
    auto* folder = new QTreeWidgetItem(parent, {name});
    folder->setData(0, kPath, QString::fromStdString(path));
    folder->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
}

// A folder without folders loses its mark when that is known.
void FolderBrowser::open(QTreeWidgetItem* folder) {
    if (folder->childCount() > 0) {
        return;
    }
    const platform::DriveC& drive = platform::workstation().driveC;
    for (const fs::path& place : foldersIn(pathOf(*folder))) {
        if (const auto path = drive.pathOf(place)) {
            add(folder, nameOf(place), *path);
        }
    }
    folder->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

} // namespace controls
