// The functions of the other areas bound for the document commands: design and day-data files,
// settings, catalogues, records, holidays, printing, export. The window and the command line use
// the same table, so that both go through the same commands.
#include "core/Programmdienste.h"

#include "calendar/data/Feiertage.h"
#include "calendar/data/Kalenderdateien.h"
#include "calendar/data/Tagesdaten.h"
#include "compose/Seitenmaler.h"
#include "compose/ZeichneSeite.h"
#include "core/Datensatzbefehle.h"
#include "core/Sitzung.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Bitmapexport.h"
#include "output/Druckauftrag.h"
#include "output/Druckercanvas.h"
#include "output/Druckerliste.h"
#include "output/PrintDocument.h"
#include "output/WordExport.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"

#include <QFile>
#include <QImage>
#include <algorithm>
#include <memory>

namespace zp {

namespace {

void Komponieren(AppState& s, Zeichenziele& ziele) {
    ZeichneSeite(s, ziele);
}

// frmDrucken's boxes as the print request of the print run.
Druckauftrag AlsAuftrag(const Druckdialogwerte& w) {
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

bool DruckeAuf(AppState& s, Oberflaeche& ui, const Druckdialogwerte& w, Druckercanvas& ausgabe,
               const std::function<bool(int, int)>& fortschritt);

bool Drucken(AppState& s, Oberflaeche& ui, const Druckdialogwerte& w,
             const std::function<bool(int, int)>& fortschritt) {
    QString pdf;
    if (w.Drucker == kPdfDatei) {
        pdf = w.PdfDatei.isEmpty() ? PdfDateiWaehlen(ui) : w.PdfDatei;
        if (pdf.isEmpty()) return false;
    }
    s.ErstesEtikett = std::max(1.0, basic::Val(w.TextStart));
    // The pages go to a draft beside the file; only a whole job takes the user's name, so that a
    // cancelled run leaves no half file and an older file of that name stays.
    const QString entwurf = pdf.isEmpty() ? QString() : pdf + QStringLiteral(".teil");
    bool gedruckt = false;
    {
        Druckercanvas ausgabe(w.Drucker, entwurf, s.AktuelleSeite);
        gedruckt = DruckeAuf(s, ui, w, ausgabe, fortschritt);
    }
    if (entwurf.isEmpty()) return gedruckt;
    if (gedruckt) {
        QFile::remove(pdf);
        if (QFile::rename(entwurf, pdf)) return true;
        ui.Meldung(QStringLiteral("Die PDF-Datei konnte nicht geschrieben werden."),
                   QStringLiteral("Drucken"), pdf);
    }
    QFile::remove(entwurf);
    return false;
}

bool DruckeAuf(AppState& s, Oberflaeche& ui, const Druckdialogwerte& w, Druckercanvas& ausgabe,
               const std::function<bool(int, int)>& fortschritt) {
    Druckhilfen hilfen;
    hilfen.Komposition = [](AppState& st, Canvas& c) {
        Zeichenziele ziele;
        ziele.Printer = &c;
        ZeichneSeite(st, ziele);
    };
    hilfen.ZeigeDatensatz = [&ui](AppState& st) { ZeigeDatensatz(st, ui); };
    return CommandDrucken(s, ui, ausgabe, AlsAuftrag(w), hilfen, fortschritt) == Druckergebnis::Gedruckt;
}

} // namespace

QString PdfDateiWaehlen(Oberflaeche& ui) {
    QString pdf = ui.DateiWaehlen(QStringLiteral("In PDF-Datei drucken"),
                                  QStringLiteral("PDF-Datei (*.pdf)|*.pdf"), true);
    if (!pdf.isEmpty() && !pdf.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        pdf += QStringLiteral(".pdf");
    return pdf;
}

Dokumentdienste ProgrammDienste() {
    Dokumentdienste d;
    d.LoadDesign = [](AppState& s, Oberflaeche& ui) { return LoadDesign(s, ui); };
    d.SaveDesign = [](AppState& s, Oberflaeche& ui) { return SaveDesign(s, ui); };
    // One painter for the window's page picture, kept by every copy of the table.
    d.Seitenbild = [maler = std::make_shared<Seitenmaler>()](AppState& s) { return maler->Zeichne(s); };
    d.BildSpeichern = [](AppState& s, Oberflaeche& ui, const QString& datei) {
        Zeichenziele ziele;
        QString fehler;
        const bool gut = BildSpeichern(s, ziele, datei, Komponieren, &fehler);
        if (!gut) ui.Meldung(fehler, QStringLiteral("Bild speichern"), datei);
        return gut;
    };
    d.Word = [](AppState& s, Oberflaeche& ui) {
        const Exportbild bild = [](AppState& st) {
            Zeichenziele ziele;
            return ExportBild(st, ziele, Komponieren);
        };
        // Asked where, with a new name in the documents folder as the suggestion.
        const QString ziel =
            ui.SpeicherDateiWaehlen(QStringLiteral("in Word exportieren"),
                                    QStringLiteral("Textdokument (*.odt)|*.odt"), NeuerDokumentpfad());
        if (ziel.isEmpty()) return false;
        return !mnuWord(s, ui, bild, ziel, true).isEmpty();
    };
    d.Drucken = Drucken;
    d.LadeDaten = [](AppState& s, Oberflaeche& ui) { return LadeDaten(s, ui) == Ladeergebnis::Geladen; };
    d.SpeichereDaten = [](AppState& s, Oberflaeche& ui) { return SpeichereDaten(s, ui); };
    d.ImportKal = [](AppState& s, Oberflaeche& ui) {
        return KalOeffnen(s, ui, s.Datendatei) == Ladeergebnis::Geladen;
    };
    d.SaveSettings = [](AppState& s, Oberflaeche& ui) { return SaveSettings(s, ui); };
    d.SaveKalenderIni = [](AppState& s, Oberflaeche& ui) { return SaveKalenderIni(s, ui); };
    d.SaveKartenformate = [](AppState& s, Oberflaeche& ui) { return SaveKartenformate(s, ui); };
    d.LadeDatensaetze = [](AppState& s, Oberflaeche& ui) { return LadeDatensaetze(s, ui); };
    d.SpeichereDatensaetze = [](AppState& s, Oberflaeche& ui) { return SpeichereDatensaetze(s, ui); };
    d.SitzungSichern = [](AppState& s, Oberflaeche& ui) { return SitzungSichern(s, ui); };
    d.CommandBerechnen = [](AppState& s, Oberflaeche&) {
        CommandBerechnen(s);
        return true;
    };
    d.KalenderNeu = [](AppState& s, Oberflaeche& ui) { return KalenderdatenNeu(s, ui); };
    return d;
}

} // namespace zp
