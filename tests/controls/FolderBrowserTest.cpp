// The folder browser, as a user sees and uses it.

#include "SeenBox.h"
#include "controls/QtDialogs.h"
#include "support/TestWorkstation.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using support::pressKey;
using support::TestWorkstation;

class FolderBrowser : public testing::Test {
protected:
    FolderBrowser() {
        std::filesystem::create_directories(root() / "vabo" / "Città di prova");
        std::filesystem::create_directories(root() / "con\\barra");
    }
    std::filesystem::path root() const { return workstation.driveC().root(); }

    /// What the browser gives after `answer`; a browser that is still open then is cancelled.
    std::string pick(const std::function<void(QFileDialog&)>& answer) {
        return support::withBox(
            seen,
            [&](QDialog& box) {
                answer(dynamic_cast<QFileDialog&>(box));
                stayed = box.isVisible();
                if (stayed) {
                    pressKey(box, Qt::Key_Escape);
                }
            },
            [this] { return dialogs.folder("Seleziona la cartella VABO sul Server"); });
    }
    static void typePath(QFileDialog& box, const std::string& path) {
        auto* line = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(line, nullptr);
        line->setFocus();
        line->setText(QString::fromStdString(path));
        QTest::keyClick(line, Qt::Key_Return);
    }
    static std::filesystem::path place(const QFileDialog& box) { return box.directory().absolutePath().toStdString(); }

    TestWorkstation workstation{TestWorkstation::DriveC::Empty};
    controls::QtDialogs dialogs;
    support::Seen seen;
    bool stayed = false; ///< whether the browser was still open after the answer
};

TEST_F(FolderBrowser, HasItsTitleAndButtonsAndStartsInTheDrivesRoot) {
    std::filesystem::path start;
    QList<QUrl> sides;
    pick([&](QFileDialog& box) {
        start = place(box);
        sides = box.sidebarUrls();
    });
    EXPECT_EQ(seen.title, "Seleziona la cartella VABO sul Server");
    EXPECT_THAT(seen.buttons, testing::IsSupersetOf({"OK", "Annulla"}));
    EXPECT_EQ(start, root());
    ASSERT_EQ(sides.size(), 1);
    EXPECT_EQ(sides.first().toLocalFile().toStdString(), root().string());
}

TEST_F(FolderBrowser, AFolderPickedIsAPathOfTheDrive) {
    EXPECT_EQ(pick([](QFileDialog& box) { typePath(box, "vabo/Città di prova"); }), "C:\\vabo\\Città di prova");
    EXPECT_FALSE(stayed);
    const std::string whole = (root() / "vabo").string();
    EXPECT_EQ(pick([&](QFileDialog& box) { typePath(box, whole); }), "C:\\vabo");
}

TEST_F(FolderBrowser, TheRootIsPickedByItsPath) {
    const std::string whole = root().string();
    EXPECT_EQ(pick([&](QFileDialog& box) { typePath(box, whole); }), "C:\\");
}

TEST_F(FolderBrowser, OkAloneIsTheFolderThatIsOpen) {
    const auto ok = [](QFileDialog& box) {
        for (auto* button : box.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String("OK")) {
                button->click();
            }
        }
    };
    EXPECT_EQ(pick(ok), "C:\\");
    EXPECT_EQ(pick([&](QFileDialog& box) {
                  box.setDirectory(QString::fromStdString((root() / "vabo").string()));
                  ok(box);
              }),
              "C:\\vabo");
}

TEST_F(FolderBrowser, AFolderElsewhereIsNotTakenAndLeadsBackToTheRoot) {
    std::filesystem::path after;
    EXPECT_EQ(pick([&](QFileDialog& box) {
                  box.setDirectory(QString::fromStdString((root() / "vabo").string()));
                  typePath(box, "/usr");
                  after = place(box);
              }),
              "");
    EXPECT_TRUE(stayed);
    EXPECT_EQ(after, root());
}

TEST_F(FolderBrowser, AFolderWhoseNameHoldsASeparatorIsNotTaken) {
    EXPECT_EQ(pick([](QFileDialog& box) { typePath(box, "con\\barra"); }), "");
    EXPECT_TRUE(stayed);
}

TEST_F(FolderBrowser, GoingUpEndsInTheRoot) {
    std::vector<std::filesystem::path> places;
    pick([&](QFileDialog& box) {
        box.setDirectory(QString::fromStdString((root() / "vabo").string()));
        auto* up = box.findChild<QToolButton*>(QStringLiteral("toParentButton"));
        ASSERT_NE(up, nullptr);
        for (int i = 0; i < 3; ++i) {
            up->click();
            places.push_back(place(box));
        }
    });
    EXPECT_THAT(places, testing::Each(root()));
}

TEST_F(FolderBrowser, CancelledIsTheEmptyText) {
    EXPECT_EQ(pick([](QFileDialog& box) { pressKey(box, Qt::Key_Escape); }), "");
    EXPECT_FALSE(stayed);
}

} // namespace
