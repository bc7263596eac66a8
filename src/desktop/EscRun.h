// Esc pressed again and again: what one has closed, the next must not take for the end of the
// program.
#pragma once

class QKeyEvent;

namespace tessaryn {

// Begins to watch the key, with no run under way. Comes behind WatchInput.
void WatchEsc();

// The key comes again because it is held down.
bool IsRepeated(const QKeyEvent& key);
// Asked once for each Esc in the main window: has it closed something, or does it belong to a run
// of Escs that began elsewhere?
bool EscIsSpent();
// Tell that an Esc has closed something, where that is not to be seen from outside; and that it has
// left the menu bar along with a menu, for which a person may press it once more.
void EscHasClosedSomething();
void EscHasLeftMenuBar();

}  // namespace tessaryn
