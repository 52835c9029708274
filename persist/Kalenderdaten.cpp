#include "persist/Kalenderdaten.h"

#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"

#include <QRegularExpression>

namespace zp {

namespace {
const QString kEnde = QStringLiteral("-1");
const QString kZeilenumbruch = QStringLiteral("\r\n");
// Any of the three line ends a text box may hand over.
const QRegularExpression kZeilenwechsel(QStringLiteral("\r\n|\r|\n"));
} // namespace

Kalenderdaten KalenderdatenAus(const AppState& s) {
    Kalenderdaten d;
    d.Termine = s.Termine;
    d.TerminSchrift = s.TerminSchrift;
    d.TerminBack = s.TerminBack;
    d.Feiertage = s.Feiertage;
    d.FeiertagSchrift = s.FeiertagSchrift;
    d.FeiertagBack = s.FeiertagBack;
    d.Monatsbilder = s.Monatsbilder;
    d.Monatsbildtexte = s.Monatsbildtexte;
    d.TextTitel = s.Panel.TextTitel;
    d.TextUnterschrift = s.Panel.TextUnterschrift;
    return d;
}

void KalenderdatenUebernehmen(AppState& s, Kalenderdaten d) {
    s.Termine = std::move(d.Termine);
    s.TerminSchrift = std::move(d.TerminSchrift);
    s.TerminBack = std::move(d.TerminBack);
    s.Feiertage = std::move(d.Feiertage);
    s.FeiertagSchrift = std::move(d.FeiertagSchrift);
    s.FeiertagBack = std::move(d.FeiertagBack);
    s.Monatsbilder = std::move(d.Monatsbilder);
    s.Monatsbildtexte = std::move(d.Monatsbildtexte);
    s.Panel.TextTitel = std::move(d.TextTitel);
    s.Panel.TextUnterschrift = std::move(d.TextUnterschrift);
}

QByteArray ZpdBytes(const Kalenderdaten& d) {
    ZeilenSchreiber w;
    for (int m = 1; m <= 12; ++m)
        for (int t = 1; t <= 31; ++t) {
            // The text's own line breaks become lines of the file; "-1" ends the slot. A line of
            // the text that reads "-1" itself would end it early, so it gets a trailing blank.
            QStringList zeilen = d.Termine(t, m).split(kZeilenwechsel);
            for (QString& z : zeilen)
                if (z == kEnde) z += QLatin1Char(' ');
            w.WriteLine(zeilen.join(kZeilenumbruch));
            w.WriteLine(kEnde);
            w.WriteLine(d.TerminSchrift(t, m));
            w.WriteLine(d.TerminBack(t, m));
        }
    for (int m = 1; m <= 12; ++m)
        for (int t = 1; t <= 31; ++t) {
            w.WriteLine(EinzeiligesFeld(d.Feiertage(t, m)));
            w.WriteLine(d.FeiertagSchrift(t, m));
            w.WriteLine(d.FeiertagBack(t, m));
        }
    for (int m = 1; m <= 12; ++m) {
        w.WriteLine(EinzeiligesFeld(d.Monatsbilder(m)));
        w.WriteLine(EinzeiligesFeld(d.Monatsbildtexte(m)));
    }
    w.WriteLine(EinzeiligesFeld(d.TextTitel));
    w.WriteLine(EinzeiligesFeld(d.TextUnterschrift));
    // ZeilenSchreiber joins the list with CR LF; a slot's inner breaks are part of its one entry.
    return w.Bytes();
}

Kalenderdaten ZpdLesen(const QByteArray& bytes) {
    ZeilenLeser r(bytes);
    Kalenderdaten d;
    for (int m = 1; m <= 12; ++m)
        for (int t = 1; t <= 31; ++t) {
            QString text = r.ReadLine();
            for (QString zeile = r.ReadLine(); zeile != kEnde; zeile = r.ReadLine())
                text += kZeilenumbruch + zeile;
            d.Termine(t, m) = text;
            d.TerminSchrift(t, m) = r.LeseInt32();
            d.TerminBack(t, m) = r.LeseInt32();
        }
    for (int m = 1; m <= 12; ++m)
        for (int t = 1; t <= 31; ++t) {
            d.Feiertage(t, m) = r.ReadLine();
            d.FeiertagSchrift(t, m) = r.LeseInt32();
            d.FeiertagBack(t, m) = r.LeseInt32();
        }
    for (int m = 1; m <= 12; ++m) {
        d.Monatsbilder(m) = r.ReadLine();
        d.Monatsbildtexte(m) = r.ReadLine();
    }
    d.TextTitel = r.ReadLine();
    d.TextUnterschrift = r.ReadLine();
    // Anything but blank lines after the footer means a record ran over its lines somewhere.
    while (!r.AtEndOfStream())
        if (!r.ReadLine().trimmed().isEmpty())
            r.Fehler(QStringLiteral("Unerwartete Zeile nach der Fußzeile"));
    return d;
}

} // namespace zp
