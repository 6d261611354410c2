// Windows that controls keep on the screen for themselves: tips, and the lists that boxes drop.
#pragma once

namespace vistrel::controls {

/// Has those of this thread pass over WM_CLOSE. Whoever ends the program from outside asks every
/// window, and these do not know that the program may stay: its user has said so.
void LetHelpersStayOpen();

}  // namespace vistrel::controls
