// The dialog that tells a failure which ends the program.
#pragma once

#include <QMessageBox>

namespace brooklander::desktop {

class FailureBox : public QMessageBox {
  public:
    // The sentence is told as it stands.
    explicit FailureBox(const QString& sentence);
};

}  // namespace brooklander::desktop
