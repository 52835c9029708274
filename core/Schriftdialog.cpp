#include "Schriftdialog.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Verlauf.h"

namespace zp {

bool IstSchraeg(int angle) {
    return angle >= 1 && angle != 90 && angle != 180 && angle != 270;
}

int16_t WinkelAusEingabe(const QString& text) {
    const double wert = basic::Val(text.trimmed());
    if (wert > 360 || wert < 0) return 0;
    return static_cast<int16_t>(wert);
}

bool SchriftdialogOk(AppState& s, Oberflaeche& ui, const ClassSchrift& werk, const QString& schrifttext) {
    const int n = static_cast<int>(s.SchriftNummer);
    if (n < 1 || !s.Schriftliste.Gueltig(n)) return false;

    if (s.Auswahlmodus == 0) VerlaufMerken(s); // while inserting, the insertion's step holds it
    // 1. The main window takes input again: the modal dialog has closed by now.
    // 2. The work copy replaces the list object, field by field.
    ClassSchrift& ziel = s.Schriftliste(n);
    ziel = werk;

    // 3. An oblique text is centred whatever the dialog showed.
    if (IstSchraeg(ziel.Angle)) {
        ziel.AusrichtungH = 1;
        ziel.AusrichtungV = 1;
    }

    // 4. The text of the box and the visibility of the work copy.
    ziel.Textstring = schrifttext;
    ziel.Sichtbar = werk.Sichtbar;

    // 5. The side panel's box shows the text; its change event stays quiet.
    s.LadeSperre = 255;
    if (n <= s.Panel.Text1.Obergrenze()) {
        s.Panel.Text1(n) = schrifttext;
        ui.PanelAktualisieren();
    }

    // 6. Every frame showing this text object shows or hides with it.
    for (int i = 1; i <= s.Rahmenliste.Obergrenze(); ++i) {
        ClassRahmen& r = s.Rahmenliste(i);
        if (r.Objekttyp == QLatin1String("Schrift") && static_cast<int>(r.Objektnummer) == n)
            r.Sichtbar = werk.Sichtbar;
    }

    // 7. Back to the page: the format bar follows the text, the locks are released.
    s.Vorschaumodus = 0;
    ui.FormatleisteAktualisieren();
    s.LadeSperre = 0;
    s.Auswahlmodus = 0;
    ui.Neuzeichnen();
    return true;
}

void SchriftdialogAbbruch(AppState& s) {
    s.Vorschaumodus = 0;
    s.Auswahlmodus = 0;
}

} // namespace zp
