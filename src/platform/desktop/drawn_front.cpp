#include "platform/desktop/drawn_front.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "platform/desktop/application.h"
#include "platform/desktop/drawn_user.h"
#include "platform/desktop/failure_box.h"
#include "platform/desktop/help_window.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/warnings.h"
#include "platform/desktop/windows.h"
#include "platform/fatal_failure.h"
#include "platform/files/host_system.h"
#include "scenario/scenario_error.h"

namespace brooklander::desktop {
namespace {

using scenario::Unmet;

class DrawnFront : public scenario::Front {
  public:
    DrawnFront(const Files& files, std::filesystem::path shots)
        : shots_(std::move(shots)), help_(files) {}
    ~DrawnFront() override { DrawnFront::end(); }

    Help& help() override { return help_; }

    void start(Program& program) override {
        take_warning();  // of an earlier program's end
        windows_ = std::make_unique<Windows>(program.screens(), lay_out);
        windows_->on_failure = [this](const QString& sentence) {
            failure_ = std::make_unique<FailureBox>(sentence);
            failure_->open();
        };
        windows_->act([&program] { program.start(); });
        settle();
    }

    void end() override {
        failure_.reset();
        windows_.reset();
    }

    void click(Field& field) override {
        DrawnUser(*windows_).click(field);
        settle();
    }
    void type(TextBox& box, const std::string& text) override {
        DrawnUser(*windows_).type(box, text);
        settle();
    }
    void click_entry(EntryList& list, std::size_t index) override {
        DrawnUser(*windows_).click_entry(list, static_cast<int>(index));
        settle();
    }
    void click_cell(Grid& grid, GridCell cell) override {
        DrawnUser(*windows_).click_cell(grid, cell);
        settle();
    }
    void press_keys(Field& field, const std::vector<Key>& keys) override {
        DrawnUser(*windows_).press_keys(field, keys);
        settle();
    }

    void check() override {
        windows_->settle();
        QApplication::processEvents();
        if (const QString difference = windows_->difference(); !difference.isEmpty()) {
            throw Unmet(difference.toStdString());
        }
        if (const QString warning = take_warning(); !warning.isEmpty()) {
            throw Unmet("The windows complain: " + warning.toStdString());
        }
    }

    void take_picture(const std::string& name) override {
        if (shots_.empty()) return;
        windows_->settle();
        QApplication::processEvents();
        QWidget* window = windows_->foremost();
        if (help_.window() != nullptr && help_.window()->isActiveWindow()) window = help_.window();
        if (window == nullptr) throw Unmet("No window is there to take a picture of.");
        std::error_code fault;
        std::filesystem::create_directories(shots_, fault);
        const auto file = shots_ / host_system::path_of((shown(name) + ".png").toStdString());
        const std::string told = host_system::utf8_of(file);
        if (!window->grab().save(QString::fromStdString(told))) {
            throw Unmet("The picture \"" + told + "\" cannot be written.");
        }
    }

  private:
    // Lets the windows come to rest. A dialog that tells a failure is read and closed.
    void settle() {
        QApplication::processEvents();
        if (!failure_) return;
        const QString sentence = failure_->text();
        const bool is_up = failure_->isVisible();
        QTest::mouseClick(failure_->defaultButton(), Qt::LeftButton);
        if (!is_up || failure_->isVisible()) throw Unmet("The dialog of the failure is amiss.");
        failure_.reset();
        throw FatalFailure(sentence.toStdString());
    }

    std::filesystem::path shots_;
    HelpWindow help_;
    std::unique_ptr<Windows> windows_;
    std::unique_ptr<FailureBox> failure_;
};

}  // namespace

std::unique_ptr<scenario::Front> drawn_front(const Files& files,
                                             const std::filesystem::path& shots) {
    return std::make_unique<DrawnFront>(files, shots);
}

scenario::DrawnFrontMaker drawn_front_maker(char** argv) {
    struct Setup {
        // The application reads its own options from a command line that has none.
        int no_arguments = 1;
        std::unique_ptr<QApplication> application;
    };
    return [argv, setup = std::make_shared<Setup>()](const std::filesystem::path& shots) {
        if (!has_display()) qputenv("QT_QPA_PLATFORM", "offscreen");
        collect_warnings();
        setup->application = make_application(setup->no_arguments, argv);
        return [shots](const Files& files) { return drawn_front(files, shots); };
    };
}

}  // namespace brooklander::desktop
