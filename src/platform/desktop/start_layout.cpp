#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "platform/desktop/file_choice.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

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
    return file_choice_card({.panel = start.frameFiles,
                             .drives = start.Drive1,
                             .folders = start.Dir1,
                             .files_caption = start.lblAvailableFiles,
                             .files = start.lstImportFileBox,
                             .chosen_caption = start.lblSelectedFileCaption,
                             .chosen = start.lblSelectedFile,
                             .view = start.cmdView,
                             .drives_caption = &start.lblDrive,
                             .folders_caption = &start.lblDirectory,
                             .hint = &start.lblTabDelimited},
                            draw);
}

// What to do, as long as nothing else stands on the screen.
QLabel* what_to_do(FrmStart& start, Draw& draw) {
    QLabel* const sentence = draw.text(
        QStringLiteral("Open the Files menu to convert files or to set up configurations."),
        draw.window().surface());
    sentence->setWordWrap(false);
    const std::array<Panel*, 5> panels{&start.frameOracleLogon, &start.frameOracleError,
                                       &start.frameExit, &start.frameAbout, &start.frameFiles};
    std::vector<Field*> fields(panels.begin(), panels.end());
    fields.push_back(&start.mnuFiles);
    tell_of(sentence, fields, [&start, panels, sentence] {
        sentence->setVisible(start.mnuFiles.enabled() &&
                             std::none_of(panels.begin(), panels.end(),
                                          [](const Panel* panel) { return panel->visible(); }));
    });
    return sentence;
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
    page->addWidget(what_to_do(start, draw), 0, Qt::AlignHCenter);
    page->addLayout(in_the_middle(logon_card(start, draw)));
    page->addLayout(in_the_middle(refusal_card(start, draw)));
    page->addLayout(in_the_middle(exit_card(start, draw)));
    page->addLayout(in_the_middle(about_card(start, draw)));
    Card* const files = files_card(start, draw);
    page->addLayout(in_the_middle(files));
    constexpr int most_of_it = 100;
    share_while_shown(page, page->count() - 1, most_of_it, {files});
    page->addStretch();
}

}  // namespace brooklander::desktop
