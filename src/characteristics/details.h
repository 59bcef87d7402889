// The details screen: picked values, the save, and the ways out.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// A pick from one of the lists. The fraction is taken from its list itself, the others from a
// label.
void cmbFraction_Click(FrmCharacteristicDetails& details);
void take_picked(const PickList& list, Label& label, Button& for_all);
void cmbLab_Click(FrmCharacteristicDetails& details);

// Asks whether to save as soon as one name, the heading among them, is found; only a grid without
// any name is refused.
void cmdSave_Click(FrmCharacteristicDetails& details);
void cmdNo_Click(FrmCharacteristicDetails& details);

// Writes the characteristics' file and takes every screen back to its beginning. A file that cannot
// be written is passed over; more characteristics than one can hold are a FatalFailure, with
// nothing written.
void cmdYes_Click(Screens& screens, Files& files);

// Back to the screen before: the sample options while a configuration is edited, the translation
// otherwise, from which the details are found again as they are.
void mnuExit_Click(Screens& screens, FrmCharacteristicDetails& details);

}  // namespace brooklander
