// Starting the window: German texts in Qt's own dialogs, the functions of the other areas bound
// to the commands, then the load handler and the event loop.
#include "Hauptfenster.h"
#include "FrmMain.h"

#include "calendar/Feiertage.h"
#include "calendar/Kalenderdateien.h"
#include "calendar/Tagesdaten.h"
#include "core/AppState.h"
#include "core/Dokumentdienste.h"
#include "persist/Datensaetze.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace zp {

Dokumentdienste VorhandeneDienste() {
    Dokumentdienste d;
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
    d.CommandBerechnen = [](AppState& s, Oberflaeche&) {
        CommandBerechnen(s);
        return true;
    };
    d.KalenderNeu = [](AppState& s, Oberflaeche& ui) { return KalenderdatenNeu(s, ui); };
    return d;
}

int StarteHauptfenster(AppState& s) {
    auto* app = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!app) return 1;
    QApplication::setApplicationDisplayName(s.Programmname);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zp")));
    QTranslator qtDeutsch;
    if (qtDeutsch.load(QLocale(QLocale::German, QLocale::Germany), QStringLiteral("qtbase"),
                       QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        app->installTranslator(&qtDeutsch);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    FrmMain fenster(s, VorhandeneDienste());
    fenster.Laden();
    fenster.show();
    return app->exec();
}

} // namespace zp
