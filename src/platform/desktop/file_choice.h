// The choice of a file by drive, folder and name, which three screens have.
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
    // What is done with a file once it has been viewed, where that is done here: it moves the work
    // on then, and to view is a quiet button before it.
    Button* convert = nullptr;
};

// What the card is wide where it has the window for itself, for those that stand in a column with
// it.
inline constexpr int file_choice_in_letters = 100;

// How much room the card takes. Its lists take the height that it gets beyond that.
struct FileChoiceRoom {
    int letters = file_choice_in_letters;
    int folder_lines = 18;
};

Card* file_choice_card(const FileChoice& choice, Draw& draw, FileChoiceRoom room = {});

}  // namespace brooklander::desktop
