#include "core/Dokumentbefehle.h"

#include "calendar/data/Kalenderdateien.h"
#include "calendar/data/Tagesdaten.h"
#include "core/Befehlsrahmen.h"
#include "core/Seitennavigation.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Design.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

namespace zp {

namespace {

// The last three letters of a name: they decide what the calendar loads or saves.
QString Endung(const QString& name) {
    return name.right(3);
}

// Loads the design while the controls' change handlers stand still, then brings the panel and
// the selection up to date at once.
void LadeDesignInsFenster(AppState& s, Oberflaeche& ui) {
    s.LadeSperre = 255;
    Sicher(ui, [&] { return LoadDesign(s, ui); });
    s.LadeSperre = 0;
    ui.Geaendert(Aenderung::Panel | Aenderung::Auswahl);
}

} // namespace

QString Dateifilter(const AppState& s, Dateidialog art) {
    if (s.IstBriefkopf != 0) return QStringLiteral("ZP Briefkopf (*.zpb)|*.zpb");
    if (s.IstVisitenkarte != 0) return QStringLiteral("ZP Visitenkarte (*.zpv)|*.zpv");
    if (s.IstEtikett != 0) {
        if (art == Dateidialog::Oeffnen)
            return QStringLiteral(
                "ZP Etikett (*.zpe)|*.zpe|ZP Etikett 3 (*.eti)|*.eti|Textdatei (*.txt)|*.txt");
        return QStringLiteral("ZP Etikett (*.zpe)|*.zpe");
    }
    if (s.IstKalender != 0) {
        switch (art) {
        case Dateidialog::Oeffnen:
            return QStringLiteral("Termine und Daten (*.zpd)|*.zpd|Kalenderdesign (*.zpk)|*.zpk|"
                                  "Version 5/6  (*.kal)|*.kal");
        case Dateidialog::SpeichernUnter:
            return QStringLiteral("Kalenderdesign (*.zpk)|*.zpk|Termine und Daten (*.zpd)|*.zpd");
        case Dateidialog::SpeichernUnter2:
            return QStringLiteral("Termine und Daten (*.zpd)|*.zpd|Kalenderdesign (*.zpk)|*.zpk");
        }
    }
    return {};
}

QString QtDateifilter(const QString& filter) {
    if (filter.isEmpty()) return {};
    const QStringList teile = filter.split(QLatin1Char('|'));
    QStringList qt;
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        const QString& name = teile[i];
        const QString muster = teile[i + 1];
        // The names carry their pattern already ("ZP Etikett (*.zpe)"); Qt reads the part in brackets.
        qt << (name.contains(QLatin1Char('(')) ? name.simplified()
                                               : name + QStringLiteral(" (") + muster + ')');
    }
    return qt.join(QStringLiteral(";;"));
}

QString MitFilterendung(const QString& name, const QString& filterEintrag) {
    if (name.isEmpty() || !QFileInfo(name).suffix().isEmpty()) return name;
    static const QRegularExpression muster(QStringLiteral("\\*\\.([A-Za-z0-9]+)"));
    const QRegularExpressionMatch m = muster.match(filterEintrag);
    return m.hasMatch() ? name + u'.' + m.captured(1) : name;
}

QString StatusDateitext(const QString& pfad) {
    return QStringLiteral("Aktuelle Datei: ") + pfad;
}

bool BefehlNeu(AppState& s, Oberflaeche& ui) {
    if (s.IstKalender != 0) {
        // The calendar's New empties the day data; the design stays.
        if (!KalenderdatenNeu(s, ui)) return false;
        ui.Neuzeichnen();
        return true;
    }
    if (!ui.Frage(QStringLiteral("Sollen die aktuellen Daten gelöscht werden?"), QStringLiteral("Neu")))
        return false;
    s.Ladevorgabe = QStringLiteral("neu");
    LadeDesignInsFenster(s, ui);
    ui.Neuzeichnen();
    return true;
}

bool BefehlOeffnen(AppState& s, Oberflaeche& ui) {
    const QString name =
        ui.DateiWaehlen(QStringLiteral("Öffnen"), Dateifilter(s, Dateidialog::Oeffnen), false);
    if (name.isEmpty()) return false;
    if (!QFileInfo::exists(name)) {
        ui.Meldung(QStringLiteral("Die Datei wurde nicht gefunden."), QStringLiteral("Öffnen"), name);
        ui.Neuzeichnen();
        return true;
    }
    // A file that is rejected leaves both current files and the status bar as they were, so that
    // the next Save never goes over it.
    const QString designVorher = s.AktuelleDatei;
    const QString datenVorher = s.Datendatei;
    const QString statusVorher = s.IstKalender != 0 ? s.Datendatei : s.AktuelleDatei;
    const auto laden = [&](QString& ziel, auto&& lesen) {
        ziel = name;
        return Sicher(ui, lesen);
    };
    const auto design = [&] { return LoadDesign(s, ui); };
    s.LadeSperre = 255;
    bool geladen = false;
    if (s.IstKalender == 0) {
        // Old label formats go the same way: the loader decides by the file.
        geladen = laden(s.AktuelleDatei, design);
    } else {
        const QString endung = Endung(name).toLower();
        if (endung == QLatin1String("zpk")) {
            geladen = laden(s.AktuelleDatei, design);
            if (geladen) {
                // The design may bring another type: the page comes back into its range.
                Seitenbereich(s);
                ui.SeitentitelAktualisieren();
            }
        } else if (endung == QLatin1String("zpd")) {
            geladen = laden(s.Datendatei, [&] { return LadeDaten(s, ui) == Ladeergebnis::Geladen; });
        } else if (endung == QLatin1String("kal")) {
            geladen =
                laden(s.Datendatei, [&] { return KalOeffnen(s, ui, s.Datendatei) == Ladeergebnis::Geladen; });
        }
    }
    if (geladen) {
        ui.StatusDatei(s.IstKalender != 0 ? s.Datendatei : s.AktuelleDatei);
        ui.Geaendert(Aenderung::Panel | Aenderung::Auswahl);
    } else {
        s.AktuelleDatei = designVorher;
        s.Datendatei = datenVorher;
        ui.StatusDatei(statusVorher);
    }
    s.LadeSperre = 0;
    ui.Neuzeichnen();
    return true;
}

bool BefehlSpeichern(AppState& s, Oberflaeche& ui) {
    bool gut = Sicher(ui, [&] { return SaveDesign(s, ui); });
    if (s.IstKalender != 0) gut = Sicher(ui, [&] { return SpeichereDaten(s, ui); }) && gut;
    return gut;
}

bool BefehlSpeichernUnter(AppState& s, Oberflaeche& ui, Dateidialog art) {
    const QString name = ui.DateiWaehlen(QStringLiteral("speichern"), Dateifilter(s, art), true);
    if (name.isEmpty()) return false;
    // Exact comparison: a data ending typed in capitals saves a design under that name.
    if (s.IstKalender != 0 && Endung(name) == QLatin1String("zpd")) {
        s.Datendatei = name;
        const bool gut = Sicher(ui, [&] { return SpeichereDaten(s, ui); });
        ui.StatusDatei(s.Datendatei);
        return gut;
    }
    s.AktuelleDatei = name;
    const bool gut = Sicher(ui, [&] { return SaveDesign(s, ui); });
    ui.StatusDatei(s.AktuelleDatei);
    return gut;
}

void GalerieLaden(AppState& s, Oberflaeche& ui, int zeile) {
    if (s.IstVisitenkarte == 0 || zeile < 0) return;
    const QString gemerkt = s.AktuelleDatei;
    s.AktuelleDatei =
        s.Programmpfad + QStringLiteral("daten/design") + QString::number(zeile + 1) + QStringLiteral(".zpv");
    if (QFileInfo::exists(s.AktuelleDatei)) {
        // Loaded as a template: the card's layout comes, the texts in the panel stay.
        s.Ladevorgabe = s.AktuelleDatei;
        LadeDesignInsFenster(s, ui);
        s.Ladevorgabe.clear();
    }
    ui.Neuzeichnen();
    s.AktuelleDatei = gemerkt;
    ui.StatusDatei(s.AktuelleDatei);
}

} // namespace zp
