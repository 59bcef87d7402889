#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

// So many letters of the application's font, so that cards grow with it.
int letters(int count, const QWidget& widget) {
    return widget.fontMetrics().averageCharWidth() * count;
}

void keep_width(QWidget* widget, int count) {
    widget->setFixedWidth(letters(count, *widget));
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
}

// A card in the middle of the page's width, as high as its texts need it.
QHBoxLayout* in_the_middle(QWidget* card) {
    auto* const line = new QHBoxLayout;
    line->addStretch(1);
    line->addWidget(card);
    line->addStretch(1);
    return line;
}

Card* logon_card(FrmStart& start, Draw& draw) {
    Card* const card = draw.card(start.frameOracleLogon);
    keep_width(card, 56);
    QLabel* const title = draw.heading(start.lblOracle, 2);
    QLabel* const user_caption = draw.caption(start.lblUID, 'U');
    QLabel* const password_caption = draw.caption(start.Label5, 'P');
    auto* const form = new QGridLayout;
    form->setVerticalSpacing(between_controls);
    form->setHorizontalSpacing(inside_card);
    form->addWidget(user_caption, 0, 0);
    form->addWidget(draw.text_box(start.txtOracleID, user_caption), 0, 1);
    form->addWidget(password_caption, 1, 0);
    form->addWidget(draw.text_box(start.txtOraclePassWord, password_caption), 1, 1);
    form->setColumnStretch(1, 1);
    card->content()->addWidget(title);
    card->content()->addLayout(form);
    card->content()->addSpacing(between_controls);
    card->content()->addLayout(row({draw.filled(start.cmdUIDok, 'O')}, Side::right));
    return card;
}

Card* refusal_card(FrmStart& start, Draw& draw) {
    Card* const card = draw.card(start.frameOracleError);
    keep_width(card, 56);
    QPushButton* const ok = draw.filled(start.cmdOracleErrorOk, 'O');
    card->content()->addLayout(row({ok}, Side::right));
    draw.window().asks(card, ok, ok);
    return card;
}

Card* exit_card(FrmStart& start, Draw& draw) {
    Card* const card = draw.card(start.frameExit);
    keep_width(card, 56);
    const auto [yes, no] = draw.to_be_sure(card, start.cmdYes, start.cmdNo);
    card->content()->addLayout(row({yes, no}, Side::right));
    return card;
}

Card* about_card(FrmStart& start, Draw& draw) {
    Card* const card = draw.card(start.frameAbout);
    keep_width(card, 72);
    QPushButton* const close = draw.button(start.mnuAboutClose, 'C');
    card->content()->addWidget(draw.note(start.lblAbout));
    card->content()->addLayout(row({close}, Side::right));
    draw.window().asks(card, close, close);
    return card;
}

Card* files_card(FrmStart& start, Draw& draw) {
    Card* const card = draw.card(start.frameFiles);
    keep_width(card, 100);
    QLabel* const drive = draw.caption(start.lblDrive, 'D');
    QLabel* const folder = draw.caption(start.lblDirectory, 'i');
    QLabel* const files = draw.caption(start.lblAvailableFiles, 'l');
    QComboBox* const drives = draw.pick_list(start.Drive1, shown(start.lblDrive.text()));
    ListWidget* const folders = draw.list(start.Dir1, shown(start.lblDirectory.text()));
    ListWidget* const names =
        draw.list(start.lstImportFileBox, shown(start.lblAvailableFiles.text()));
    names->set_empty_text(QStringLiteral("No text files here. Open another directory."));
    folders->setMinimumHeight(folders->fontMetrics().height() * 18);
    drive->setBuddy(drives);
    folder->setBuddy(folders);
    files->setBuddy(names);

    auto* const lists = new QGridLayout;
    lists->setHorizontalSpacing(inside_card);
    lists->setVerticalSpacing(4);
    lists->addWidget(drive, 0, 0);
    lists->addWidget(drives, 1, 0);
    lists->addWidget(folder, 2, 0);
    lists->addWidget(folders, 3, 0);
    lists->addWidget(files, 0, 1);
    lists->addWidget(names, 1, 1, 3, 1);
    lists->setColumnStretch(0, 1);
    lists->setColumnStretch(1, 1);
    lists->setRowStretch(3, 1);
    card->content()->addLayout(lists, 1);

    auto* const chosen = new QHBoxLayout;
    chosen->setSpacing(between_controls);
    chosen->addWidget(draw.caption(start.lblSelectedFileCaption));
    chosen->addWidget(draw.value(start.lblSelectedFile, shown(start.lblSelectedFileCaption.text())),
                      1);
    chosen->addWidget(draw.filled(start.cmdView, 'V'));
    card->content()->addWidget(draw.note(start.lblTabDelimited));
    card->content()->addLayout(chosen);
    return card;
}

}  // namespace

void lay_out_start(FrmStart& start, Draw& draw) {
    QVBoxLayout* const page = draw.window().page();
    QLabel* const version = draw.heading(start.lblVersion, 9);
    QLabel* const purpose = draw.note(start.lblPurpose);
    purpose->setFont(font_larger_by(1.5));
    purpose->setWordWrap(false);
    page->addStretch();
    page->addWidget(version, 0, Qt::AlignHCenter);
    page->addWidget(purpose, 0, Qt::AlignHCenter);
    page->addSpacing(between_cards);
    page->addLayout(in_the_middle(logon_card(start, draw)));
    page->addLayout(in_the_middle(refusal_card(start, draw)));
    page->addLayout(in_the_middle(exit_card(start, draw)));
    page->addLayout(in_the_middle(about_card(start, draw)));
    Card* const files = files_card(start, draw);
    files->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    page->addLayout(in_the_middle(files));
    constexpr int most_of_it = 100;
    share_while_shown(page, page->count() - 1, most_of_it, {files});
    page->addStretch();
}

}  // namespace brooklander::desktop
