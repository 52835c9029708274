// --pdf and --drucker with the print dialog's values (--von, --bis, --prozent, --kopien,
// --erstes-etikett, --seriennummer, --seite-drucken, --adressen, --schnittmarken,
// --schnittrahmen, --abgleich); --word.
#include "app/Druckoptionen.h"
#include "app/Kommandozeile.h"
#include "core/Druckbefehle.h"

#include <QElapsedTimer>
#include <cstdio>

namespace zp {
namespace {

bool PruefeZahl(Batchlauf& lauf, const QString& name, const QString& wert) {
    if (LeseZahl(wert)) return true;
    lauf.Fehler(QStringLiteral("%1 erwartet eine ganze Zahl, nicht \"%2\".").arg(name, wert));
    return false;
}

// Page n of m on standard error, at most every half second, and the last one always.
Druckfortschritt FortschrittAufStderr() {
    auto uhr = std::make_shared<QElapsedTimer>();
    auto letzte = std::make_shared<int>(0);
    uhr->start();
    return [uhr, letzte](int seite, int gesamt) {
        if (gesamt > 1 && seite != *letzte && (uhr->elapsed() > 500 || seite >= gesamt)) {
            std::fprintf(stderr, "zp: Seite %d von %d\n", seite, gesamt);
            *letzte = seite;
            uhr->restart();
        }
        return true;
    };
}

bool DruckeAusKommandozeile(Batchlauf& lauf, const QString& drucker, const QString& pdf) {
    Druckdialogwerte werte = DruckwerteAusOptionen(lauf);
    werte.Drucker = drucker;
    werte.PdfDatei = pdf;
    // Without a window nobody can agree to a run of more than 10 000 pages.
    const bool antwort = lauf.ui.standardAntwort;
    lauf.ui.standardAntwort = false;
    const Druckergebnis e = BefehlDrucken(lauf.s, lauf.ui, werte, FortschrittAufStderr());
    lauf.ui.standardAntwort = antwort;
    if (e == Druckergebnis::Abgebrochen) lauf.Fehler(QStringLiteral("Der Druck wurde nicht ausgeführt."));
    return e == Druckergebnis::Gedruckt;
}

bool Pdf(Batchlauf& lauf, const QString& datei) {
    return DruckeAusKommandozeile(lauf, QStringLiteral("PDF-Datei"), datei);
}

bool Drucker(Batchlauf& lauf, const QString& name) {
    return DruckeAusKommandozeile(lauf, name, {});
}

bool Word(Batchlauf& lauf, const QString& datei) {
    return BefehlWord(lauf.s, lauf.ui, datei, false);
}

Option Zahl(const char* name, const char* hilfe) {
    const QString n = QString::fromLatin1(name);
    return {n, QStringLiteral("N"), QString::fromUtf8(hilfe), OptionArt::Einstellung,
            [n](Batchlauf& lauf, const QString& wert) { return PruefeZahl(lauf, n, wert); }};
}

Option Schalter(const char* name, const char* hilfe) {
    return {QString::fromLatin1(name), {}, QString::fromUtf8(hilfe), OptionArt::Einstellung, nullptr};
}

const bool registriert = [] {
    RegistriereOption({QStringLiteral("--pdf"), QStringLiteral("DATEI"),
                       QStringLiteral("drucken wie mit \"Drucken\", in eine PDF-Datei"), OptionArt::Aktion,
                       Pdf});
    RegistriereOption({QStringLiteral("--drucker"), QStringLiteral("NAME"),
                       QStringLiteral("drucken wie mit \"Drucken\", auf dem Drucker NAME"), OptionArt::Aktion,
                       Drucker});
    RegistriereOption({QStringLiteral("--word"), QStringLiteral("DATEI"),
                       QStringLiteral("die Seite als OpenDocument-Text für die Textverarbeitung schreiben"),
                       OptionArt::Aktion, Word});
    RegistriereOption(Zahl("--von", "Drucke Seite von (Kalender)"));
    RegistriereOption(Zahl("--bis", "Drucke Seite bis (Kalender)"));
    RegistriereOption(Zahl("--prozent", "Ausdruckgröße in % (Kalender)"));
    RegistriereOption(Zahl("--kopien", "Anzahl der Kopien"));
    RegistriereOption(Zahl("--erstes-etikett", "erste zu bedruckende Etikett"));
    RegistriereOption(Zahl("--seriennummer", "erste Seriennummer"));
    RegistriereOption(Schalter("--seite-drucken", "Kopien zählen ganze Bogen (\"Seite drucken\")"));
    RegistriereOption(Schalter("--schnittmarken", "Schnittmarken drucken"));
    RegistriereOption(Schalter("--schnittrahmen", "Schnittrahmen drucken"));
    RegistriereOption({QStringLiteral("--adressen"), QStringLiteral("aktiv|alle|VON-BIS|kategorie:TEXT"),
                       QStringLiteral("welche Adressen gedruckt werden"), OptionArt::Einstellung,
                       [](Batchlauf& lauf, const QString& wert) {
                           Druckwahl w;
                           QString fehler;
                           if (LeseAdressen(wert, w, fehler)) return true;
                           lauf.Fehler(fehler);
                           return false;
                       }});
    RegistriereOption({QStringLiteral("--abgleich"), QStringLiteral("X,Y"),
                       QStringLiteral("Druckerjustierung in 1/10 mm, waagerecht und senkrecht"),
                       OptionArt::Einstellung, [](Batchlauf& lauf, const QString& wert) {
                           if (LeseAbgleich(wert)) return true;
                           lauf.Fehler(
                               QStringLiteral("--abgleich erwartet X,Y in 1/10 mm, nicht \"%1\".").arg(wert));
                           return false;
                       }});
    return true;
}();

} // namespace
} // namespace zp
