#include "core/Befehlsrahmen.h"

#include "core/state/Oberflaeche.h"

namespace zp {

void VorgangAbgebrochen(Oberflaeche& ui, const std::exception& fehler) {
    ui.Meldung(QStringLiteral("Der Vorgang konnte nicht abgeschlossen werden."), QStringLiteral("Warnung!"),
               QString::fromUtf8(fehler.what()));
}

} // namespace zp
