// The step before the first window: what is told of a script that fails, and how.

#include "platform/desktop/first_start.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

namespace brooklander::desktop {
namespace {

class FirstStart : public testing::Test {
  protected:
    // A script of these lines.
    QString script(const QByteArray& lines,
                   QFile::Permissions permissions = QFile::ReadOwner | QFile::ExeOwner) {
        QFile file(folder_.filePath(QStringLiteral("first_start")));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("#!/bin/sh\n" + lines);
        file.close();
        file.setPermissions(permissions);
        return file.fileName();
    }

    QTemporaryDir folder_;
};

TEST_F(FirstStart, OfAProgramThatIsNotInstalledIsNothing) {
    EXPECT_EQ(run_first_start(folder_.filePath(QStringLiteral("none"))), QString());
}

TEST_F(FirstStart, ThatHasDoneItsWorkIsNotTold) {
    const QString made = folder_.filePath(QStringLiteral("made"));
    EXPECT_EQ(run_first_start(script("echo said; echo noise >&2; : >\"" + made.toUtf8() + "\"\n")),
              QString());
    EXPECT_TRUE(QFile::exists(made));
}

TEST_F(FirstStart, ThatFailsIsToldInItsOwnWords) {
    EXPECT_EQ(run_first_start(script("echo said\necho 'The lake is \xc3\xa0 sec.' >&2\nexit 1\n")),
              QString::fromUtf8("The lake is \xc3\xa0 sec."));
}

TEST_F(FirstStart, ThatFailsWithoutAWordIsTold) {
    const QString file = script("kill -9 $$\n");
    EXPECT_EQ(run_first_start(file), '"' + file + "\" has failed.");
}

TEST_F(FirstStart, ThatCannotBeRunIsTold) {
    const QString file = script("exit 0\n", QFile::ReadOwner);
    const QString told = run_first_start(file);
    EXPECT_TRUE(told.startsWith('"' + file + "\" cannot be run: ")) << told.toStdString();
}

TEST_F(FirstStart, ThatDoesNotEndIsNotWaitedFor) {
    const QString file = script("exec sleep 60\n");
    EXPECT_EQ(run_first_start(file, std::chrono::milliseconds(50)),
              '"' + file + "\" has not ended in time.");
}

TEST_F(FirstStart, IsToldOverTheWindowUntilTheUserClosesIt) {
    QWidget window;
    window.show();
    tell_first_start(QStringLiteral("The lake is <b>dry</b>."), window);
    auto* const box = window.findChild<QMessageBox*>(QStringLiteral("firstStart"));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), box);
    EXPECT_TRUE(box->text().endsWith(QStringLiteral("\nThe lake is <b>dry</b>.")));
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    QTest::keyClick(box, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window.findChild<QMessageBox*>(), nullptr);
}

}  // namespace
}  // namespace brooklander::desktop
