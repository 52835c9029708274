#include "Eigenschaftsdialoge.h"

#include "core/Liniendialog.h"
#include "core/Positionsdialog.h"
#include "core/Schriftdialog.h"
#include "core/state/AppState.h"
#include "dialogs/FrmLinie.h"
#include "dialogs/FrmPosition.h"
#include "dialogs/FrmSchrift.h"

namespace zp {

void SchriftdialogAusfuehren(QWidget* eltern, AppState& s, Oberflaeche& ui, int seite) {
    const int n = static_cast<int>(s.SchriftNummer);
    if (n < 1 || !s.Schriftliste.Gueltig(n)) return;
    FrmSchrift dialog(s, s.Schriftliste(n), eltern);
    dialog.SeiteWaehlen(seite);
    if (dialog.exec() == QDialog::Accepted)
        SchriftdialogOk(s, ui, dialog.Werk(), dialog.Schrifttext());
    else
        SchriftdialogAbbruch(s);
}

void LiniendialogAusfuehren(QWidget* eltern, AppState& s, Oberflaeche& ui, int seite) {
    const int n = static_cast<int>(s.LinieNummer);
    if (n < 1 || !s.Linienliste.Gueltig(n)) return;
    FrmLinie dialog(s, s.Linienliste(n), eltern);
    dialog.SeiteWaehlen(seite);
    if (dialog.exec() == QDialog::Accepted)
        LiniendialogOk(s, ui, dialog.Werk());
    else
        LiniendialogAbbruch(s);
}

void PositionsdialogAusfuehren(QWidget* eltern, AppState& s, Oberflaeche& ui) {
    const int n = static_cast<int>(s.RahmenNummer);
    if (n < 1 || !s.Rahmenliste.Gueltig(n)) return;
    FrmPosition dialog(PositionsdialogOeffnen(s), s.AktuelleSeite, eltern);
    if (dialog.exec() == QDialog::Accepted)
        PositionsdialogOk(s, ui, dialog.Felder());
    else
        PositionsdialogAbbruch(s);
}

} // namespace zp
