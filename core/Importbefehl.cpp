#include "core/Importbefehl.h"

#include "core/Datensatzbefehle.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Dateimeldungen.h"
#include "persist/Import.h"

#include <QFileInfo>

namespace zp {

QString ImportFilter(const AppState& s) {
    // The other editions offer their old formats in the dialog, but only ".eti" and ".txt" are read.
    if (s.IstKalender != 0) return QStringLiteral("ZP Kalender 6 (*.kal)");
    if (s.IstEtikett != 0) return QStringLiteral("ZP Etikett 3 (*.eti);;Textdatei (*.txt)");
    if (s.IstVisitenkarte != 0) return QStringLiteral("ZP Visitenkarte 6(*.vis)");
    if (s.IstBriefkopf != 0) return QStringLiteral("ZP Briefkopf 3(*.bri)");
    return {};
}

bool Importieren(AppState& s, Oberflaeche& ui, const QString& datei) {
    const QString endung = datei.right(3);
    const bool txt = endung == u"txt";
    if (!txt && endung != u"eti") return false;
    if (!QFileInfo::exists(datei)) return false; // the file dialog offers only files that are there
    QString grund;
    const auto bytes = LeseDatei(datei, GroessteDatei, &grund);
    if (!bytes) {
        ui.Meldung(QStringLiteral("Die Datei kann nicht gelesen werden."), QStringLiteral("Warnung!"),
                   datei + QStringLiteral(": ") + grund);
        return false;
    }

    ImportDaten d;
    try {
        d = txt ? LeseTextImport(*bytes) : LeseEtiImport(*bytes);
    } catch (const FormatFehler& f) {
        MeldeFalschesFormat(ui, datei, {f.zeile, f.grund});
        return false;
    }
    if (d.DatensatzAnzahl < 1) {
        ui.Statusmeldung(QStringLiteral("Die Datei %1 enthält keine Adressen.").arg(datei));
        return false;
    }

    // An old label file brings its first eight texts; the panel boxes show the text objects again.
    for (int i = 1; i <= d.Texte.size(); ++i)
        if (s.Schriftliste.Gueltig(i)) s.Schriftliste(i).Textstring = d.Texte[i - 1];
    if (!d.Texte.isEmpty()) {
        for (int i = 1; i <= 20 && i <= s.Schriftliste.Obergrenze(); ++i)
            s.Panel.Text1(i) = s.Schriftliste(i).Textstring;
        ui.PanelAktualisieren();
    }
    s.Datensaetze = std::move(d.Datensaetze);
    s.DatensatzAnzahl = d.DatensatzAnzahl;
    s.DatensatzNummer = 1;
    ZeigeDatensatz(s, ui);
    return true;
}

} // namespace zp
