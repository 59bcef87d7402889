// The menu that saves what was done as a scenario, on the real windows and by its real dialogs.

#include "platform/desktop/job_menu.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "desktop/drawn_program.h"
#include "platform/desktop/grid_widget.h"

namespace brooklander::desktop {
namespace {

class JobMenuTest : public testing::Test, protected test::DrawnProgram {
  protected:
    JobMenuTest() {
        folder.write("data/lake.txt", "Station\tDate\tpH\r\nL1\t05/04/2021\t7.2\r\n");
        act([this] { program.start(); });
    }

    QAction* job_of(const ScreenWindow& window) const {
        const QList<QAction*> all = window.menuBar()->actions();
        return all.isEmpty() ? nullptr : all.last();
    }

    // Opens the menu by the mouse and chooses its entry; `at_dialogs` works each dialog that comes.
    void choose_save(const std::function<void(QDialog&)>& at_dialogs) {
        ScreenWindow& window = *windows.foremost();
        QMenuBar* const bar = window.menuBar();
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr && dialog->isVisible()) at_dialogs(*dialog);
        });
        timer.start(20);
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                          bar->actionGeometry(job_of(window)).center());
        QMenu* const menu = job_of(window)->menu();
        ASSERT_TRUE(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(menu->actions().first()).center());
        rest();
    }

    // Saves under a name, a path of the machine or one in the test's folder; the other dialogs that
    // come are told and answered by the button of that caption.
    void save_as(const QString& name, const QString& answer = {}) {
        choose_save([&](QDialog& dialog) {
            if (auto* const chooser = qobject_cast<QFileDialog*>(&dialog)) {
                suggested = chooser->selectedFiles().value(0);
                auto* const box = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                box->setText(name);
                QTest::keyClick(box, Qt::Key_Return);
                return;
            }
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            told += box.objectName().toStdString() + "|";
            for (QAbstractButton* const button : box.buttons()) {
                if (without_mnemonic(button->text()) == answer) {
                    button->click();
                    return;
                }
            }
            box.reject();
        });
    }

    QString in_folder(const char* name) const {
        return QString::fromStdString((folder.path() / name).string());
    }

    void log_on_at_the_windows() {
        auto* const user = widget<QLineEdit>(start_screen().txtOracleID);
        auto* const password = widget<QLineEdit>(start_screen().txtOraclePassWord);
        QTest::mouseClick(user, Qt::LeftButton);
        QTest::keyClicks(user, "brendx");
        QTest::keyClick(user, Qt::Key_Backspace);
        QTest::keyClicks(user, "a");
        password->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(password, "Forelle7");
        QTest::keyClick(password, Qt::Key_Return);
        rest();
    }

    std::string lines() const {
        const std::string text = recorder.recording().text("a.scn");
        return text.substr(text.find("\nstart\n") + 7);
    }

    QString suggested;
    std::string told;
};

TEST_F(JobMenuTest, StandsAtTheRightEndOfEveryWindowsMenus) {
    for (Screen* const screen : screens().desk.screens()) {
        if (screen != &start_screen()) act([screen] { screen->show(); });
        ScreenWindow& window = *windows.window_of(*screen);
        const QAction* const job_action = job_of(window);
        ASSERT_NE(job_action, nullptr) << screen->name();
        EXPECT_EQ(job_action->objectName(), "job") << screen->name();
        EXPECT_TRUE(window.menuBar()->isVisibleTo(&window)) << screen->name();
        const QRect place = window.menuBar()->actionGeometry(job_of(window));
        EXPECT_GE(place.right(), window.menuBar()->width() - 16) << screen->name();
    }
    EXPECT_EQ(windows.difference().toStdString(), "");
}

TEST_F(JobMenuTest, IsReachedByTheKeyboard) {
    ScreenWindow& window = *windows.foremost();
    window.activateWindow();
    QTest::keyClick(&window, Qt::Key_J, Qt::AltModifier);
    EXPECT_TRUE(job_of(window)->menu()->isVisible());
    job_of(window)->menu()->close();
}

TEST_F(JobMenuTest, IsNotRecordedItself) {
    const std::string before = lines();
    save_as(in_folder("month.scn"));
    EXPECT_EQ(lines(), before);
}

TEST_F(JobMenuTest, SavesWhatWasDoneAtTheWindows) {
    log_on_at_the_windows();
    save_as(in_folder("month.scn"));
    const std::string saved = folder.read("month.scn");
    EXPECT_NE(saved.find("\nstart\n"
                         "click frmStart.txtOracleID\n"
                         "type frmStart.txtOracleID \"${user}\"\n"
                         "type frmStart.txtOraclePassWord \"${password}\"\n"
                         "click frmStart.cmdUIDok\n"),
              std::string::npos)
        << saved;
    EXPECT_NE(saved.find("brooklander-scenario --secret user --secret password month.scn\n"),
              std::string::npos);
    EXPECT_EQ(saved.find("brenda"), std::string::npos);
    EXPECT_EQ(saved.find("Forelle7"), std::string::npos);
    EXPECT_EQ(told, "");
}

TEST_F(JobMenuTest, SuggestsTheNameOfTheFileWorkedOn) {
    log_on_at_the_windows();
    act([this] {
        start_screen().mnuImport.choose();
        select(start_screen().Dir1, "data");
        select(start_screen().lstImportFileBox, "lake.txt");
    });
    save_as(in_folder("month"));
    EXPECT_EQ(QFileInfo(suggested).fileName(), "lake.scn");
    EXPECT_NE(folder.read("month.scn"), "") << "the name ends in .scn of itself";
}

TEST_F(JobMenuTest, AsksBeforeItWritesOverAFile) {
    folder.write("month.scn", "old");
    save_as(in_folder("month"), "Keep it");
    EXPECT_EQ(folder.read("month.scn"), "old");
    save_as(in_folder("month.scn"), "Replace");
    EXPECT_NE(folder.read("month.scn").find("start\n"), std::string::npos);
    EXPECT_EQ(told, "replaceScenario|replaceScenario|");
}

TEST_F(JobMenuTest, NothingIsWrittenWhenTheDialogIsLeft) {
    choose_save([](QDialog& dialog) { dialog.reject(); });
    EXPECT_TRUE(QDir(in_folder("")).entryList({"*.scn"}).isEmpty());
}

TEST_F(JobMenuTest, TellsThatItCannotWrite) {
    save_as(in_folder("nowhere/month.scn"), "Close");
    EXPECT_EQ(told, "scenarioNotSaved|");
}

// A disk that is full after a few bytes.
class FullDisk {
  public:
    FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit little = before_;
        little.rlim_cur = 8;
        setrlimit(RLIMIT_FSIZE, &little);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST_F(JobMenuTest, AFailingWriteLeavesTheOldFileAndNothingElse) {
    folder.write("saved/month.scn", "old");
    QString sentence;
    {
        const FullDisk full;
        sentence = save_recording(recorder.recording(), in_folder("saved/month.scn"));
    }
    EXPECT_TRUE(sentence.contains("cannot be written")) << sentence.toStdString();
    EXPECT_EQ(folder.read("saved/month.scn"), "old");
    EXPECT_EQ(QDir(in_folder("saved")).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(JobMenuTest, AWindowClosedByItsFrameIsItsExit) {
    windows.foremost()->close();
    EXPECT_EQ(lines(), "force click frmStart.mnuExit\n");
}

TEST_F(JobMenuTest, PagesOfATableAreMovesOfItsCurrentCell) {
    act([this] { view("Station\tDate\tpH\r\nL1\t05/04/2021\t7.2\r\nL2\t05/04/2021\t7.3\r\n"); });
    const std::string before = lines();
    auto* const grid = widget<GridWidget>(table());
    QTest::keyClick(grid, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(grid, Qt::Key_Home);
    EXPECT_EQ(lines(), before + "keys frmImportFileDisplay.MSFlexKeldarIN \"{Down 2}\"\n");
}

// The help cannot take these words from a field, as it does all others.
TEST_F(JobMenuTest, HasTheWordsThatTheHelpTells) {
    std::ifstream file(std::filesystem::path(BROOKLANDER_ROOT) / "samples/help/82_again.guide");
    const std::string guide{std::istreambuf_iterator<char>(file), {}};
    QMenu* const menu = job_of(*windows.foremost())->menu();
    const auto words = [](const QAction* action) {
        return '"' + action->text().remove('&').toStdString() + '"';
    };
    EXPECT_NE(guide.find("menu " + words(menu->menuAction())), std::string::npos);
    EXPECT_NE(guide.find("Choose " + words(menu->actions().first())), std::string::npos);
}

}  // namespace
}  // namespace brooklander::desktop
