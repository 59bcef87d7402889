#include "platform/desktop/help_window.h"

#include <QKeyEvent>
#include <QTextBrowser>

#include "platform/desktop/texts.h"
#include "platform/fatal_failure.h"

namespace brooklander::desktop {
namespace {

class Browser : public QTextBrowser {
  public:
    Browser() {
        setObjectName(QStringLiteral("help"));
        setWindowTitle(QStringLiteral("Help"));
        setAccessibleName(QStringLiteral("Help"));
        setOpenLinks(false);
        document()->setDocumentMargin(20);
        connect(this, &QTextBrowser::anchorClicked, this,
                [this](const QUrl& link) { scrollToAnchor(link.fragment()); });
        resize(720, 640);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) close();
        QTextBrowser::keyPressEvent(event);
    }
};

QString page_of(const Files& files, std::string_view path) {
    try {
        const FileText text = files.read(path);
        return QString::fromUtf8(text.view().data(), static_cast<qsizetype>(text.size()));
    } catch (const FatalFailure& failure) {
        return QStringLiteral("<h2>There is no help to show</h2><p>%1</p>")
            .arg(QString::fromStdString(failure.what()).toHtmlEscaped());
    }
}

}  // namespace

HelpWindow::HelpWindow(const Files& files) : files_(files) {}
HelpWindow::~HelpWindow() = default;

void HelpWindow::show(std::string_view path) {
    if (!browser_) browser_ = std::make_unique<Browser>();
    browser_->setHtml(page_of(files_, path));
    browser_->show();
    browser_->raise();
    browser_->activateWindow();
}

QWidget* HelpWindow::window() const { return browser_.get(); }

}  // namespace brooklander::desktop
