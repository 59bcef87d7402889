// The choice of a file by drive, folder and name, which two screens have.
#pragma once

#include "platform/desktop/draw.h"
#include "shared/place_lists.h"

namespace brooklander::desktop {

// The fields that a choice is drawn of.
struct FileChoice {
    Panel& panel;
    DriveList& drives;
    FolderList& folders;
    Label& files_caption;
    FileList& files;
    Label& chosen_caption;
    Label& chosen;
    Button& view;
    // Null where the screen has no field for it: the captions then are the layout's own words.
    Label* drives_caption = nullptr;
    Label* folders_caption = nullptr;
    Label* hint = nullptr;
};

// A card of one width on every screen; its lists take the height that it gets.
Card* file_choice_card(const FileChoice& choice, Draw& draw);

// Gives a widget so many letters of its own font, so that it grows with it, and no more height than
// its texts need.
void keep_width(QWidget* widget, int letters);

// What the card is wide, for those that stand in a column with it.
inline constexpr int file_choice_in_letters = 100;

}  // namespace brooklander::desktop
