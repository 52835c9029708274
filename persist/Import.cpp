#include "persist/Import.h"

#include "core/runtime/TextDatei.h"
#include "persist/Datensaetze.h"

#include <QLocale>

#include <algorithm>

namespace zp {

ImportDaten LeseTextImport(const QByteArray& bytes) {
    // First the count: the records run up to the first empty line. The table is sized once, and
    // never beyond what the program can hold.
    int anzahl = 0;
    {
        ZeilenLeser zaehler(bytes);
        while (!zaehler.AtEndOfStream() && !zaehler.ReadLine().isEmpty())
            if (++anzahl > DatensatzHoechstzahl)
                zaehler.Fehler(
                    QStringLiteral("Die Datei hat mehr als %1 Adressen; so viele kann das Programm "
                                   "nicht verwalten.")
                        .arg(QLocale(QLocale::German).toString(DatensatzHoechstzahl)));
    }

    ImportDaten d;
    d.DatensatzAnzahl = anzahl;
    d.Datensaetze.Redim(DatensatzFelder, d.DatensatzAnzahl);
    ZeilenLeser zeilen(bytes);
    QChar trenner = u';';
    for (int r = 1; r <= d.DatensatzAnzahl; ++r) {
        const QString zeile = zeilen.ReadLine();
        QStringView rest = zeile;
        if (rest.contains(u'\t'))
            trenner = u'\t';
        else if (rest.contains(u';'))
            trenner = u';';
        for (int f = 1; f <= DatensatzFelderAlt; ++f) {
            const qsizetype p = rest.indexOf(trenner);
            if (p < 0) {
                d.Datensaetze(f, r) = rest.toString();
                break;
            }
            // Fields past the 20th are not taken: the rest of the line is dropped.
            d.Datensaetze(f, r) = rest.left(p).toString();
            rest = rest.mid(p + 1);
        }
    }
    return d;
}

ImportDaten LeseEtiImport(const QByteArray& bytes) {
    ZeilenLeser in(bytes);
    for (int i = 0; i < 13; ++i)
        in.ReadLine();
    ImportDaten d;
    for (int i = 0; i < 8; ++i)
        d.Texte << in.ReadLine();
    for (int i = 0; i < 492; ++i)
        in.ReadLine();

    // Whole records only: the table never grows beyond what the rest of the file can hold.
    const int platz =
        static_cast<int>(std::min<qsizetype>(in.Restzeilen() / DatensatzFelderAlt, DatensatzHoechstzahl)) + 1;
    d.Datensaetze.Redim(DatensatzFelder, platz);
    int r = 1;
    while (!in.AtEndOfStream()) {
        bool leer = true;
        for (int f = 1; f <= DatensatzFelderAlt; ++f) {
            d.Datensaetze(f, r) = in.ReadLine();
            if (!d.Datensaetze(f, r).isEmpty()) leer = false;
        }
        if (leer) break;
        if (r == platz)
            in.Fehler(QStringLiteral("Die Datei hat mehr Adressen, als das Programm verwalten kann."));
        ++r;
    }
    d.DatensatzAnzahl = r;
    d.Datensaetze.RedimPreserve(DatensatzFelder, r);
    return d;
}

} // namespace zp
