#include "characteristics/source_selection.h"

namespace brooklander {

void offer_sample_files(FrmCharSource& source) {
    source.framChar.show();
    source.frameFile.show();
    source.frameFiles.show();
    source.frameFiles.set_text("Select File");
    source.cmdView.disable();
    source.lblSelectedFile.clear_text();
    source.show();
}

}  // namespace brooklander
