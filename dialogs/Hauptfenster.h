#pragma once
// The main window frmMain: shows the state's document and binds the menus and panels to the commands.

namespace zp {
struct AppState;
// Shows frmMain on `s` (start-up has run) and runs the event loop; returns the exit status.
int StarteHauptfenster(AppState& s);
} // namespace zp
