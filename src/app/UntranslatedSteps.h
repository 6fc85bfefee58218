#pragma once

#include "project/ProjectWindowController.h"

namespace glossmill {

/// Whether the selected language lacks any string.
bool hasUntranslated(const ProjectWindowController& project);

// Select the next one of the strings that the table shows and the selected language lacks, and go on at the other end;
// the keyboard goes to the editor. Nothing happens when there is none.

void selectNextUntranslated(ProjectWindowController& project);
void selectPreviousUntranslated(ProjectWindowController& project);

}  // namespace glossmill
