// Until the main window is built, starting without batch options says so and ends.
#include "Hauptfenster.h"

#include <cstdio>

namespace zp {
int StarteHauptfenster(AppState&) {
    std::fputs("zp: Das Programmfenster ist noch nicht eingebaut; siehe zp --help für den Stapelbetrieb.\n", stderr);
    return 1;
}
} // namespace zp
