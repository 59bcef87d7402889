#include "platform/desktop/job_menu.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>

namespace brooklander::desktop {
namespace {

const QString suffix = QStringLiteral(".scn");

// Whether the user lets a file be written over that is there already.
bool may_replace(QWidget& window, const QString& path) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Save as Scenario"),
                    QStringLiteral("\"%1\" is there already. Is it to be replaced?")
                        .arg(QFileInfo(path).fileName()),
                    QMessageBox::NoButton, &window);
    box.setObjectName(QStringLiteral("replaceScenario"));
    box.setTextFormat(Qt::PlainText);
    const QPushButton* const replace =
        box.addButton(QStringLiteral("&Replace"), QMessageBox::AcceptRole);
    QPushButton* const keep = box.addButton(QStringLiteral("&Keep it"), QMessageBox::RejectRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    return box.clickedButton() == replace;
}

void tell_failure(QWidget& window, const QString& sentence) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("The scenario is not saved"), sentence,
                    QMessageBox::Close, &window);
    box.setObjectName(QStringLiteral("scenarioNotSaved"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// The file that the user names; empty when none is wanted after all.
QString asked_path(QWidget& window, const QString& suggested) {
    QFileDialog dialog(&window, QStringLiteral("Save as Scenario"));
    dialog.setObjectName(QStringLiteral("saveScenario"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(QStringLiteral("Scenarios (*%1)").arg(suffix));
    // The name is completed below, and only then is it known what would be written over.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(suggested);
    if (dialog.exec() != QDialog::Accepted) return {};
    QString path = dialog.selectedFiles().value(0);
    if (!path.isEmpty() && !path.endsWith(suffix, Qt::CaseInsensitive)) path += suffix;
    return path;
}

}  // namespace

void JobMenu::add_to(ScreenWindow& window) const {
    QMenuBar& bar = *window.menuBar();
    bar.addSeparator();
    // The one letter that no control of any window has.
    QMenu* const menu = bar.addMenu(QStringLiteral("&Job"));
    menu->menuAction()->setObjectName(QStringLiteral("job"));
    QAction* const save = menu->addAction(QStringLiteral("Save as &Scenario\u2026"));
    save->setObjectName(QStringLiteral("saveAsScenario"));
    save->setMenuRole(QAction::NoRole);
    QObject::connect(save, &QAction::triggered, &window,
                     [this, &window] { save_as_scenario(window); });
    bar.setVisible(true);
}

void JobMenu::save_as_scenario(QWidget& window) const {
    const scenario::Recording recording = recorder_.recording();
    const QString path = asked_path(window, QString::fromStdString(recording.suggested_name()));
    if (path.isEmpty() || (QFileInfo::exists(path) && !may_replace(window, path))) return;
    if (const QString failure = save_recording(recording, path); !failure.isEmpty()) {
        tell_failure(window, failure);
    }
}

QString save_recording(const scenario::Recording& recording, const QString& path) {
    const std::string own_name = QFileInfo(path).fileName().toStdString();
    const std::string text = recording.text(own_name);
    const auto size = static_cast<qint64>(text.size());
    // Writes beside the file, and takes its place at the end. Behind a buffer it would not see that
    // the disk took a part only.
    QSaveFile file(path);
    const bool is_open = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const bool is_whole = is_open && file.write(text.data(), size) == size;
    if (is_whole && file.commit()) return {};
    const QString reason = file.error() == QFileDevice::NoError
                               ? QStringLiteral("There is not enough room for it")
                               : file.errorString();
    return QStringLiteral("\"%1\" cannot be written: %2.").arg(path, reason);
}

}  // namespace brooklander::desktop
