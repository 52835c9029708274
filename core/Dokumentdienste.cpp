#include "core/Dokumentdienste.h"

#include "core/state/Oberflaeche.h"

#include <QString>
#include <exception>

namespace zp {

bool DienstAusfuehren(const Dienst& dienst, AppState& s, Oberflaeche& ui) {
    if (!dienst) return false;
    try {
        return dienst(s, ui);
    } catch (const std::exception& e) {
        ui.Meldung(QStringLiteral("Der Vorgang konnte nicht abgeschlossen werden."),
                   QStringLiteral("Warnung!"), QString::fromUtf8(e.what()));
        return false;
    }
}

} // namespace zp
