#include "platform/desktop/first_start.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>

namespace brooklander::desktop {
namespace {

QString failure_of(QProcess& process) {
    QString said = QString::fromUtf8(process.readAllStandardError()).trimmed();
    if (!said.isEmpty()) return said;
    return QStringLiteral("\"%1\" has failed.").arg(process.program());
}

}  // namespace

QString first_start_script() {
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../share/brooklander/tools/first_start");
}

QString run_first_start(const QString& script, std::chrono::milliseconds patience) {
    if (!QFileInfo::exists(script)) return {};
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(script, QStringList());
    if (!process.waitForFinished(static_cast<int>(patience.count()))) {
        if (process.error() != QProcess::Timedout) {
            return QStringLiteral("\"%1\" cannot be run: %2.").arg(script, process.errorString());
        }
        process.kill();
        process.waitForFinished();
        return QStringLiteral("\"%1\" has not ended in time.").arg(script);
    }
    const bool is_done =
        process.exitStatus() == QProcess::NormalExit && process.exitCode() == EXIT_SUCCESS;
    return is_done ? QString() : failure_of(process);
}

void tell_first_start(const QString& sentences, QWidget& window) {
    auto* const box = new QMessageBox(
        QMessageBox::Warning, QStringLiteral("Not everything is in place"),
        QStringLiteral("Brooklander could not lay down all that it starts with.\n\n") + sentences,
        QMessageBox::NoButton, &window);
    box->setObjectName(QStringLiteral("firstStart"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(
        QStringLiteral("What is there can be used all the same. The next start tries again."));
    auto* const close = box->addButton(QStringLiteral("&Close"), QMessageBox::AcceptRole);
    box->setDefaultButton(close);
    box->setEscapeButton(close);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

}  // namespace brooklander::desktop
