#include "core/Sitzung.h"

#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Dateimeldungen.h"
#include "persist/Design.h"
#include "persist/Kalenderdaten.h"
#include "persist/Zusatzeinstellungen.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace zp {

namespace {

// Earlier builds kept the session's two keys in a file of their own, sitzung.ini ("key = value",
// UTF-8). It is still read while zusatz.ini has no session keys; it is no longer written.
const QString AlteSitzungsIni = QStringLiteral("sitzung.ini");
const QString SchluesselAn = QStringLiteral("wiederherstellen");
const QString SchluesselDatei = QStringLiteral("sitzungsdatei");

struct Sitzungsangaben {
    bool an = true;
    QString datei;
};

Sitzungsangaben AlteAngaben(const AppState& s) {
    Sitzungsangaben a;
    const auto bytes = LeseDatei(s.Programmpfad + AlteSitzungsIni, GroessteKleineDatei);
    if (!bytes) return a;
    for (const QString& zeile : QString::fromUtf8(*bytes).split(QLatin1Char('\n'))) {
        const qsizetype gleich = zeile.indexOf(QLatin1Char('='));
        if (gleich < 0) continue;
        const QString schluessel = zeile.left(gleich).trimmed();
        const QString wert = zeile.mid(gleich + 1).trimmed();
        if (schluessel == QLatin1String("Wiederherstellen")) a.an = wert != QLatin1String("0");
        if (schluessel == QLatin1String("Datei")) a.datei = wert;
    }
    return a;
}

Sitzungsangaben LeseAngaben(const AppState& s) {
    const auto bytes =
        QFileInfo(ZusatzDatei(s)).isFile() ? LeseDatei(ZusatzDatei(s), GroessteKleineDatei) : std::nullopt;
    const auto an = bytes ? Zusatzwert(*bytes, SchluesselAn) : std::nullopt;
    const auto datei = bytes ? Zusatzwert(*bytes, SchluesselDatei) : std::nullopt;
    if (!an && !datei) return AlteAngaben(s);
    return {!an || *an != QLatin1String("0"), datei.value_or(QString())};
}

bool SchreibeAngaben(const AppState& s, Oberflaeche& ui, const Sitzungsangaben& a,
                     const Zusatzwerte& weitere = {}) {
    Zusatzwerte werte = {{SchluesselAn, a.an ? QStringLiteral("1") : QStringLiteral("0")},
                         {SchluesselDatei, a.datei}};
    werte << weitere;
    return ZusatzwerteSpeichern(s, ui, werte);
}

// A session file that can't be read is moved aside, so that the exit doesn't write over it.
void Beiseitelegen(Oberflaeche& ui, const QString& datei) {
    QString ziel = datei + QStringLiteral(".defekt");
    for (int n = 2; QFileInfo::exists(ziel); ++n)
        ziel = datei + QStringLiteral(".defekt") + QString::number(n);
    if (QFile::rename(datei, ziel))
        ui.Statusmeldung(
            QStringLiteral("Die unlesbare Datei der letzten Sitzung liegt jetzt unter %1.").arg(ziel));
}

bool KalenderZurueck(AppState& s, Oberflaeche& ui, const QString& gemerkt) {
    const QString datei = AutoDaten(s);
    const auto bytes = LeseDatei(datei);
    if (!bytes) return false;
    try {
        KalenderdatenUebernehmen(s, ZpdLesen(*bytes));
    } catch (const FormatFehler& f) {
        MeldeFalschesFormat(ui, datei, {f.zeile, f.grund});
        Beiseitelegen(ui, datei);
        return false;
    }
    if (!gemerkt.isEmpty()) s.Datendatei = gemerkt;
    ui.StatusDatei(s.Datendatei);
    ui.Statusmeldung(
        QStringLiteral("Die Termine, Feiertage und Bilder der letzten Sitzung sind wieder da (%1).")
            .arg(QFileInfo(s.Datendatei).fileName()));
    return true;
}

bool DokumentZurueck(AppState& s, Oberflaeche& ui, const QString& gemerkt) {
    const QString datei = SitzungsDokument(s);
    if (!QFileInfo::exists(datei)) return false;
    const QString vorher = s.AktuelleDatei;
    s.AktuelleDatei = datei;
    s.Ladevorgabe.clear();
    if (!LoadDesign(s, ui)) {
        s.AktuelleDatei = vorher;
        Beiseitelegen(ui, datei);
        return false;
    }
    s.AktuelleDatei = gemerkt.isEmpty() ? vorher : gemerkt;
    ui.StatusDatei(s.AktuelleDatei);
    ui.Statusmeldung(QStringLiteral("Das Dokument der letzten Sitzung ist wieder da (%1).")
                         .arg(QFileInfo(s.AktuelleDatei).fileName()));
    return true;
}

} // namespace

QString SitzungsDokument(const AppState& s) {
    return s.Programmpfad + QStringLiteral("sitzung.zps");
}

QString AutoDaten(const AppState& s) {
    return s.Programmpfad + QStringLiteral("auto.zpd");
}

bool SitzungWiederherstellenAn(const AppState& s) {
    return LeseAngaben(s).an;
}

bool SitzungWiederherstellenSetzen(const AppState& s, Oberflaeche& ui, bool an) {
    Sitzungsangaben a = LeseAngaben(s);
    a.an = an;
    return SchreibeAngaben(s, ui, a);
}

bool SitzungSichern(AppState& s, Oberflaeche& ui, const Zusatzwerte& weitere) {
    Sitzungsangaben a = LeseAngaben(s);
    const bool kalender = s.IstKalender != 0;
    a.datei = kalender ? s.Datendatei : s.AktuelleDatei;
    bool ok = SchreibeAngaben(s, ui, a, weitere);
    if (!kalender && a.an) {
        // The document goes to the session file; the user's own file is written by Save only.
        const QString gemerkt = s.AktuelleDatei;
        s.AktuelleDatei = SitzungsDokument(s);
        ok = SaveDesign(s, ui) && ok;
        s.AktuelleDatei = gemerkt;
    }
    return ok;
}

bool SitzungWiederherstellen(AppState& s, Oberflaeche& ui) {
    const Sitzungsangaben a = LeseAngaben(s);
    if (!a.an) return false;
    return s.IstKalender != 0 ? KalenderZurueck(s, ui, a.datei) : DokumentZurueck(s, ui, a.datei);
}

} // namespace zp
