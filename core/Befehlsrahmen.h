#pragma once
// What every command does around a file operation: an exception is told to the user and never
// ends the program.

#include <exception>

namespace zp {
class Oberflaeche;

// Tells the user that an operation broke off, with the reason in the detail.
void VorgangAbgebrochen(Oberflaeche& ui, const std::exception& fehler);

// Runs `vorgang` (returning bool); false after an exception, which the user is told.
template <typename F> bool Sicher(Oberflaeche& ui, F&& vorgang) {
    try {
        return vorgang();
    } catch (const std::exception& e) {
        VorgangAbgebrochen(ui, e);
        return false;
    }
}

} // namespace zp
