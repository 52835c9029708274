#include "persist/Import.h"

#include "core/runtime/TextDatei.h"
#include "persist/Datensaetze.h"

namespace zp {

ImportDaten LeseTextImport(const QByteArray& bytes) {
    const QStringList zeilen = ZeilenAusBytes(bytes);
    qsizetype anzahl = 0;
    while (anzahl < zeilen.size() && !zeilen[anzahl].isEmpty())
        ++anzahl;

    ImportDaten d;
    d.DatensatzAnzahl = static_cast<int>(anzahl);
    d.Datensaetze.Redim(DatensatzFelder, d.DatensatzAnzahl);
    QChar trenner = u';';
    for (int r = 1; r <= d.DatensatzAnzahl; ++r) {
        QStringView rest = zeilen[r - 1];
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
    const int platz = static_cast<int>(in.Restzeilen() / DatensatzFelderAlt) + 1;
    d.Datensaetze.Redim(DatensatzFelder, platz);
    int r = 1;
    while (!in.AtEndOfStream()) {
        bool leer = true;
        for (int f = 1; f <= DatensatzFelderAlt; ++f) {
            d.Datensaetze(f, r) = in.ReadLine();
            if (!d.Datensaetze(f, r).isEmpty()) leer = false;
        }
        if (leer) break;
        ++r;
    }
    d.DatensatzAnzahl = r;
    d.Datensaetze.RedimPreserve(DatensatzFelder, r);
    return d;
}

} // namespace zp
