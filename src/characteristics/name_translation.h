// The steps that the two screens that translate names have in common.
#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

inline constexpr std::string_view acidity = "pH";

// The search statements, up to the pattern and its closing quote. Two blanks stand in that for
// taxa.
namespace search_statement {

inline constexpr std::string_view without_taxa =
    "Select Distinct search_name, display_name, d_scr_type_cd from tsrchar Where "
    "d_scr_type_cd <> 'TAXA' And search_name LIKE '";
inline constexpr std::string_view taxa =
    "Select Distinct search_name, display_name, d_scr_type_cd  from tsrchar Where "
    "d_scr_type_cd = 'TAXA' And search_name LIKE '";

}  // namespace search_statement

// Makes the first cell of the clicked row current, puts its name, trimmed, into the search text and
// into lblSelectedCharacteristic, and takes what was on offer before back. Returns the name.
std::string take_clicked_name(NameTranslation& translation);

void begin_search(NameTranslation& translation);

// Searches for the text, in upper case, anywhere in a name; a `%` or `_` in it is a wildcard. A
// FatalFailure when the statement fails, as it does over a quote in the text.
void search(NameTranslation& translation, const FrmStart& start,
            std::string_view statement_before_pattern, Database& database);

// Whether the first row that came back has the very name in work; only then is it translated
// without a choice.
bool names_itself(const NameTranslation& translation);

// Offers what was found for a translation that nobody is asked about.
void offer_of_itself(NameTranslation& translation);

// Puts the picked match beside every row of a name. Where pH is on offer it is that: the box is
// empty then.
void put_translation(NameTranslation& translation, std::string_view name);

void cmbCharacteristics_Click(NameTranslation& translation);
void cmdChange_Click(NameTranslation& translation);
void cmdNo_Click(NameTranslation& translation);

}  // namespace brooklander
