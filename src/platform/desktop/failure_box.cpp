#include "platform/desktop/failure_box.h"

#include <QPushButton>

namespace brooklander::desktop {

FailureBox::FailureBox(const QString& sentence)
    : QMessageBox(QMessageBox::Critical, QStringLiteral("Brooklander has to end"), sentence) {
    setObjectName(QStringLiteral("failure"));
    setTextFormat(Qt::PlainText);
    setInformativeText(QStringLiteral("What is on disk already stays there."));
    QPushButton* const close = addButton(QStringLiteral("&Close"), QMessageBox::AcceptRole);
    setDefaultButton(close);
    setEscapeButton(close);
    setModal(true);
}

}  // namespace brooklander::desktop
