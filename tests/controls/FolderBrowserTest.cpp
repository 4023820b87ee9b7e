// The folder browser, as a user sees and uses it.

#include "SeenBox.h"
#include "controls/QtDialogs.h"
#include "support/TestWorkstation.h"

#include <QLabel>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using support::pressKey;
using support::TestWorkstation;
using testing::ElementsAre;

class FolderBrowser : public testing::Test {
protected:
    FolderBrowser() {
        for (const char* folder : {"vabo/Server", "vabo/Città di prova", "Zeta", "altra", "con\\barra"}) {
            std::filesystem::create_directories(root() / folder);
        }
        workstation.putFile("C:\\file.txt", "x");
        workstation.putFile("C:\\vabo\\file.txt", "x");
    }
    std::filesystem::path root() const { return workstation.driveC().root(); }

    /// What the browser gives after `answer`; a browser that is still open then is cancelled.
    std::string pick(const std::function<void(QDialog&)>& answer) {
        return support::withBox(
            seen,
            [&](QDialog& box) {
                support::Gui::waitFor("the browser", [] { return QApplication::focusWidget() != nullptr; });
                answer(box);
                stayed = box.isVisible();
                if (stayed) {
                    pressKey(box, Qt::Key_Escape);
                }
            },
            [this] { return dialogs.folder("Seleziona la cartella VABO sul Server"); });
    }
    std::string pickByKeys(const std::vector<Qt::Key>& keys) {
        return pick([&](QDialog& box) {
            for (const Qt::Key key : keys) {
                pressKey(box, key);
            }
        });
    }
    static QTreeWidget& tree(QDialog& box) { return *box.findChild<QTreeWidget*>(); }
    static std::vector<std::string> children(const QTreeWidgetItem& folder) {
        std::vector<std::string> names;
        for (int i = 0; i < folder.childCount(); ++i) {
            names.push_back(folder.child(i)->text(0).toStdString());
        }
        return names;
    }

    TestWorkstation workstation{TestWorkstation::DriveC::Empty};
    controls::QtDialogs dialogs;
    support::Seen seen;
    bool stayed = false; ///< whether the browser was still open after the answer
};

TEST_F(FolderBrowser, HasItsTitleAndButtonsAndShowsTheFoldersOfTheDrive) {
    std::vector<std::string> disks;
    std::vector<std::string> folders;
    pick([&](QDialog& box) {
        disks = children(*tree(box).invisibleRootItem());
        folders = children(*tree(box).topLevelItem(0));
        EXPECT_EQ(tree(box).accessibleName().toStdString(), "Seleziona la cartella VABO sul Server");
        EXPECT_TRUE(tree(box).hasFocus());
    });
    EXPECT_EQ(seen.title, "Seleziona la cartella VABO sul Server");
    EXPECT_THAT(seen.buttons, testing::UnorderedElementsAre("OK", "Annulla"));
    EXPECT_THAT(disks, ElementsAre("C:\\"));
    EXPECT_THAT(folders, ElementsAre("altra", "vabo", "Zeta")) << "no file, and none that has no path";
}

TEST_F(FolderBrowser, EnterPicksTheFolderOnWhichItIs) {
    EXPECT_EQ(pickByKeys({Qt::Key_Return}), "C:\\");
    EXPECT_FALSE(stayed);
    EXPECT_EQ(pickByKeys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}), "C:\\vabo");
    EXPECT_EQ(pickByKeys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return}),
              "C:\\vabo\\Città di prova");
    EXPECT_EQ(pickByKeys({Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}), "C:\\");
}

TEST_F(FolderBrowser, EscIsTheEmptyText) {
    EXPECT_EQ(pickByKeys({Qt::Key_Down, Qt::Key_Escape}), "");
    EXPECT_FALSE(stayed);
}

TEST_F(FolderBrowser, ItsButtonsWorkToo) {
    for (const auto& [caption, path] : {std::pair{"OK", "C:\\altra"}, std::pair{"Annulla", ""}}) {
        EXPECT_EQ(pick([name = caption](QDialog& box) {
                      pressKey(box, Qt::Key_Down);
                      for (auto* button : box.findChildren<QAbstractButton*>()) {
                          if (button->text() == QLatin1String(name)) {
                              button->click();
                          }
                      }
                  }),
                  path);
        EXPECT_FALSE(stayed);
    }
}

TEST_F(FolderBrowser, ShowsThePathAsItWillBeWritten) {
    std::vector<std::string> paths;
    pick([&](QDialog& box) {
        const auto& path = *box.findChild<QLabel*>(QStringLiteral("percorso"));
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down}) {
            pressKey(box, key);
            paths.push_back(path.text().toStdString());
        }
    });
    EXPECT_THAT(paths, ElementsAre("C:\\", "C:\\altra", "C:\\vabo"));
}

TEST_F(FolderBrowser, AFolderIsReadWhenItIsOpenedAndOnce) {
    pick([&](QDialog& box) {
        QTreeWidgetItem& vabo = *tree(box).topLevelItem(0)->child(1);
        EXPECT_EQ(vabo.childCount(), 0);
        EXPECT_EQ(vabo.childIndicatorPolicy(), QTreeWidgetItem::ShowIndicator);
        for (int time = 0; time < 2; ++time) {
            vabo.setExpanded(true);
            EXPECT_THAT(children(vabo), ElementsAre("Città di prova", "Server"));
            vabo.setExpanded(false);
        }
        QTreeWidgetItem& empty = *vabo.child(1);
        empty.setExpanded(true);
        EXPECT_EQ(empty.childCount(), 0);
        EXPECT_EQ(empty.childIndicatorPolicy(), QTreeWidgetItem::DontShowIndicatorWhenChildless);
    });
}

TEST_F(FolderBrowser, AFolderThatIsGoneMeanwhileIsEmpty) {
    pick([&](QDialog& box) {
        QTreeWidgetItem& vabo = *tree(box).topLevelItem(0)->child(1);
        std::filesystem::remove_all(root() / "vabo");
        vabo.setExpanded(true);
        EXPECT_EQ(vabo.childCount(), 0);
    });
}

TEST_F(FolderBrowser, OnADriveThatIsNotThereOnlyTheRootIsOffered) {
    std::filesystem::remove_all(root());
    EXPECT_EQ(pickByKeys({Qt::Key_Down, Qt::Key_Return}), "C:\\");
}

} // namespace
