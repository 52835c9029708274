#include "core/Druckbefehle.h"

#include "core/Befehlsrahmen.h"
#include "core/Programmdruck.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Bitmapexport.h"
#include "output/Druckerliste.h"
#include "output/WordExport.h"

#include <QFile>

#include <algorithm>

namespace zp {

double ErstesEtikettAus(const QString& text) {
    return std::max(1.0, basic::Val(text));
}

Druckauftrag AlsDruckauftrag(const Druckdialogwerte& w) {
    Druckauftrag a;
    a.Wahl.Kopien = w.Kopien;
    a.Wahl.Seriennummer = w.TextSeriennummer;
    a.Wahl.SeiteDrucken = !w.EineKarte;
    a.Wahl.Adressen = static_cast<Adresswahl>(std::clamp(w.Adressen, 1, 4));
    a.Wahl.Von = w.Von;
    a.Wahl.Bis = w.Bis;
    a.Wahl.Kategorie = w.Kategorie;
    a.EineKarte = w.EineKarte;
    a.DruckStart = w.TextDruckStart;
    a.DruckEnde = w.TextDruckEnde;
    a.Prozent = w.TextProzent;
    return a;
}

QString PdfDateiWaehlen(Oberflaeche& ui) {
    QString pdf = ui.DateiWaehlen(QStringLiteral("In PDF-Datei drucken"),
                                  QStringLiteral("PDF-Datei (*.pdf)|*.pdf"), true);
    if (!pdf.isEmpty() && !pdf.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        pdf += QStringLiteral(".pdf");
    return pdf;
}

Druckergebnis BefehlDrucken(AppState& s, Oberflaeche& ui, Druckdialogwerte w,
                            const Druckfortschritt& fortschritt) {
    if (w.Drucker == kPdfDatei && w.PdfDatei.isEmpty()) {
        w.PdfDatei = PdfDateiWaehlen(ui);
        if (w.PdfDatei.isEmpty()) return Druckergebnis::Abgebrochen;
    }
    s.ErstesEtikett = ErstesEtikettAus(w.TextStart);
    const QString pdf = w.Drucker == kPdfDatei ? w.PdfDatei : QString();
    const QString entwurf = pdf.trimmed().isEmpty() ? pdf : pdf + QStringLiteral(".teil");
    Druckergebnis e = Druckergebnis::Fehler;
    Sicher(ui, [&] {
        e = Drucke(s, ui, w.Drucker, entwurf, AlsDruckauftrag(w), fortschritt);
        return true;
    });
    if (entwurf == pdf) return e;
    if (e == Druckergebnis::Gedruckt) {
        QFile::remove(pdf);
        if (QFile::rename(entwurf, pdf)) return e;
        ui.Meldung(QStringLiteral("Die PDF-Datei konnte nicht geschrieben werden."),
                   QStringLiteral("Drucken"), pdf);
        e = Druckergebnis::Fehler;
    }
    QFile::remove(entwurf);
    return e;
}

bool BefehlBildSpeichern(AppState& s, Oberflaeche& ui, const QString& datei) {
    QString fehler;
    const bool gut = Sicher(ui, [&] { return BildSpeichern(s, datei, &fehler); });
    if (!gut && !fehler.isEmpty()) ui.Meldung(fehler, QStringLiteral("Bild speichern"), datei);
    return gut;
}

bool BefehlWord(AppState& s, Oberflaeche& ui, QString ziel, bool oeffnen) {
    if (ziel.isEmpty())
        ziel = ui.SpeicherDateiWaehlen(QStringLiteral("in Word exportieren"),
                                       QStringLiteral("Textdokument (*.odt)|*.odt"), NeuerDokumentpfad());
    if (ziel.isEmpty()) return false;
    return Sicher(ui, [&] { return !WordExportieren(s, ui, ziel, oeffnen).isEmpty(); });
}

} // namespace zp
