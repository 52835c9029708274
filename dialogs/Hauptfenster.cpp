// Starting the window: German texts in Qt's own dialogs, then the load handler and the event loop.
#include "dialogs/Hauptfenster.h"
#include "dialogs/FrmMain.h"

#include "core/state/AppState.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace zp {

int StarteHauptfenster(AppState& s) {
    auto* app = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!app) return 1;
    // No display name: the platform would add it to every caption, and the main window's caption
    // is the edition and its version exactly.
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zp"), QIcon(QStringLiteral(":/zp/zp.svg"))));
    QTranslator qtDeutsch;
    if (qtDeutsch.load(QLocale(QLocale::German, QLocale::Germany), QStringLiteral("qtbase"),
                       QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        app->installTranslator(&qtDeutsch);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    FrmMain fenster(s);
    fenster.Laden();
    fenster.show();
    return app->exec();
}

} // namespace zp
