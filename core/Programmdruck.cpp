#include "core/Programmdruck.h"

#include "compose/ZeichneSeite.h"
#include "core/Datensatzbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Bitmapexport.h"
#include "output/Druckercanvas.h"
#include "output/Druckerliste.h"
#include "output/WordExport.h"

namespace zp {

Druckhilfen ProgrammDruckhilfen(Oberflaeche& ui) {
    Druckhilfen h;
    h.Komposition = [&ui](AppState& s, Canvas& c) {
        Zeichenziele ziele;
        ziele.Printer = &c;
        ziele.Fenster = &ui;
        ZeichneSeite(s, ziele);
    };
    h.ZeigeDatensatz = [&ui](AppState& s) { ZeigeDatensatz(s, ui); };
    return h;
}

Druckergebnis Drucke(AppState& s, Oberflaeche& ui, const QString& drucker, const QString& pdfDatei,
                     const Druckauftrag& auftrag, const Druckfortschritt& fortschritt) {
    const QString titel = QStringLiteral("Drucken");
    QString meldung;
    // A PDF file needs no word from the print system.
    const QString name =
        drucker.trimmed() == kPdfDatei ? kPdfDatei : WaehleDrucker(drucker, Druckerliste(), meldung);
    if (name.isEmpty()) {
        ui.Meldung(meldung, titel);
        return Druckergebnis::Fehler;
    }
    if (name == kPdfDatei && pdfDatei.trimmed().isEmpty()) {
        ui.Meldung(QStringLiteral("Bitte geben Sie an, in welche PDF-Datei gedruckt werden soll."), titel);
        return Druckergebnis::Fehler;
    }
    Druckercanvas canvas(name, pdfDatei, s.AktuelleSeite);
    return CommandDrucken(s, ui, canvas, auftrag, ProgrammDruckhilfen(ui), fortschritt);
}

QString WordExportieren(AppState& s, Oberflaeche& ui, const QString& ziel, bool oeffnen) {
    const Exportbild bild = [](AppState& st) {
        Zeichenziele ziele;
        QString fehler;
        return ExportBild(
            st, ziele, [](AppState& a, Zeichenziele& z) { ZeichneSeite(a, z); }, &fehler);
    };
    return mnuWord(s, ui, bild, ziel, oeffnen);
}

} // namespace zp
