#include <QGridLayout>

#include "platform/desktop/file_choice.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

using Results = FrmDataLoggerResults;

Card* files_card(Results& results, Draw& draw) {
    return file_choice_card({.panel = results.frameLoggerFiles,
                             .drives = results.Drive1,
                             .folders = results.dirLoggerFile,
                             .files_caption = results.lblFileNames,
                             .files = results.fileLogger,
                             .chosen_caption = results.lblSelectedFileCaption,
                             .chosen = results.lblSelectedFile,
                             .view = results.cmdView,
                             .drives_caption = &results.lblDrive,
                             .folders_caption = &results.lblDirectory,
                             .convert = &results.cmdConvert},
                            draw, {.letters = 72, .folder_lines = 8});
}

// What the file is compared with, and its lines.
Card* display_card(Results& results, Draw& draw) {
    Card* const card = draw.card(results.frameDisplay);
    card->content()->addWidget(draw.note(results.lblMatch));
    QGridLayout* const form = chosen_form();
    add_chosen(form, {results.lblInstallationCaption, results.lblInstallationIDConvert}, draw);
    add_chosen(form, {results.lblPeriodCaption, results.lblOperatingPeriodLogConvert}, draw);
    add_chosen(form, {results.lblStartCaption, results.lblStartDateTime}, draw);
    add_chosen(form, {results.lblStopCaption, results.lblStopDateTime}, draw);
    card->content()->addLayout(form);
    ListWidget* const lines =
        draw.list(results.lstLoggerFile, QStringLiteral("Lines of the selected file"));
    lines->set_empty_text(QStringLiteral("Select a file and click Display to see its lines here."));
    card->lead_to(lines, 'p');
    constexpr int fewest_lines = 5;
    lines->setMinimumHeight(lines->fontMetrics().height() * fewest_lines);
    lines->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as high as the choice
    card->content()->addWidget(lines, 1);
    return card;
}

// What has come of the file, and beside it what comes next.
QHBoxLayout* outcome(Results& results, Draw& draw) {
    Card* const converted = draw.sheet();
    ValueLabel* const file =
        draw.value(results.lblSelectedFileConverted, QStringLiteral("Converted file"));
    QLabel* const word = draw.caption(results.lblConvertedFile);
    word->setWordWrap(false);
    auto* const sentence = new QHBoxLayout;
    sentence->setSpacing(between_controls);
    sentence->addWidget(file, 1);
    sentence->addWidget(word);
    converted->content()->addLayout(sentence);
    there_while_shown(converted, {file, word});

    auto* const line = new QHBoxLayout;
    line->setSpacing(between_cards);
    line->addWidget(converted, 3);  // a path and a sentence
    line->addWidget(question(results.frameEnterMoreData, results.cmdEnterMoreDataYes,
                             results.cmdEnterMoreDataNo, draw),
                    2);
    return line;
}

// The labels that go with the conversion stand over the columns until then.
Card* log_sheet(Results& results, Draw& draw) {
    Card* const sheet = draw.sheet();
    GridWidget* const log = draw.grid(results.MSFlexLog, QStringLiteral("Converted records"));
    log->use_all_width();
    log->set_empty_text(QStringLiteral("The records stand here once the file is converted."));
    const auto result = [](int number) { return QStringLiteral("Result %1").arg(number); };
    constexpr int first = Results::first_result_column;
    draw.name_column(log, 0, results.lblRowId, QStringLiteral("Date"));
    draw.name_column(log, 1, results.lblDisplayName, QStringLiteral("Time"));
    draw.name_column(log, first, results.lblUnits, result(1));
    draw.name_column(log, first + 1, results.lblResult, result(2));
    // Behind the labels there are only names.
    tell_of(log, {&results.lblResult}, [&results, log, result] {
        QStringList names;
        for (int number = 3; first + number <= results.MSFlexLog.columns(); ++number) {
            names.push_back(results.lblResult.visible() ? QString() : result(number));
        }
        log->name_columns(first + 2, names);
    });
    sheet->content()->addWidget(log, 1);
    return sheet;
}

}  // namespace

void lay_out_data_logger_results(FrmDataLoggerResults& results, Draw& draw) {
    QVBoxLayout* const page = draw.window().page();
    page->addWidget(draw.title());
    Card* const warning = draw.card(results.frameWarning);
    keep_height(warning);
    page->addWidget(warning);
    auto* const upper = new QHBoxLayout;
    upper->setSpacing(between_cards);
    upper->addWidget(files_card(results, draw));
    upper->addWidget(display_card(results, draw), 1);
    page->addLayout(upper, 3);
    page->addLayout(outcome(results, draw));
    page->addWidget(log_sheet(results, draw), 2);
}

}  // namespace brooklander::desktop
