#include "conversion/file_management.h"

#include <string>

#include "shared/workspace.h"

namespace brooklander {
namespace {

// As this list spells the folders; they are the workspace's own.
constexpr std::string_view listed_converted_files = "c:\\BrookLander\\voxoutfiles\\";
constexpr std::string_view listed_batch_files = "c:\\BrookLander\\batchoutfiles\\";

void choose_format(FrmImportFileDisplay& display, std::string_view folder, std::string_view type) {
    display.fileConvertedFiles.set_path(folder);
    display.lblFileType.set_text(type);
    display.cmdFormatContinue.enable();
}

}  // namespace

void optVox_Click(FrmImportFileDisplay& display) {
    choose_format(display, workspace::converted_files, "VOX");
}

void optBatch_Click(FrmImportFileDisplay& display) {
    choose_format(display, workspace::batch_files, "Batch");
}

void fileConvertedFiles_Click(FrmImportFileDisplay& display) {
    display.cmdSave.disable();
    display.cmdExistingFileDelete.disable();
    const std::string_view folder =
        display.optBatch.on() ? listed_batch_files : listed_converted_files;
    display.lblDeletedFile.set_text(std::string(folder) + display.fileConvertedFiles.text());
    display.cmdExistingFileDelete.enable();
}

void cmdExistingFileDelete_Click(FrmImportFileDisplay& display) {
    display.frameKillFileConfirm.show();
    display.cmdExistingFileDelete.disable();
}

void cmdKillYes_Click(FrmImportFileDisplay& display, Files& files) {
    if (display.optVox.on() || display.optBatch.on()) files.remove(display.lblDeletedFile.text());
    display.frameKillFileConfirm.hide();
    display.frameExistingFile.hide();
    display.fileConvertedFiles.refresh();
}

void cmdOverwriteNo_Click(FrmImportFileDisplay& display) {
    display.frameExistingFile.hide();
    display.cmdSave.disable();
    display.txtSave.clear_text();
    display.txtSave.set_focus();
}

}  // namespace brooklander
