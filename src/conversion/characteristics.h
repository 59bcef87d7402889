// The characteristics of a conversion, and what of a line each of them supplies.
#pragma once

#include <string_view>
#include <vector>

#include "conversion/line_writer.h"
#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// The pieces of a line around its result: the characteristic's name and details up to the result's
// place, and what stands behind it with the line's end.
struct CharacteristicPieces {
    BlockText before;
    BlockText behind;
};

// Fills lstRows with the headings of the table from a column on; lstChar is left empty, and with
// it all details. The cell read last becomes the table's current one.
void take_characteristics_from_headings(FrmImportFileDisplay& display, int first_column);

// Fills lstRows with the names and lstChar with the whole lines of a characteristic defaults file.
// A file that cannot be read leaves both empty and is no failure.
void take_characteristics_from_file(FrmImportFileDisplay& display, const Files& files,
                                    std::string_view path);

// The pieces of each entry of lstRows.
std::vector<CharacteristicPieces> characteristic_pieces(const FrmImportFileDisplay& display);

}  // namespace brooklander
