// The executable `zp`: the main window, or a headless batch run when options say what to do.
#include "app/Kommandozeile.h"

#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "dialogs/Hauptfenster.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    QStringList argumente;
    for (int i = 1; i < argc; ++i)
        argumente << QString::fromLocal8Bit(argv[i]);
    QString fehler;
    const auto zeile = zp::LeseKommandozeile(argumente, &fehler);
    if (!zeile) {
        zp::MeldeFehler(fehler);
        return 1;
    }
    if (zeile->hilfe) {
        std::fputs(zp::Hilfetext().toLocal8Bit().constData(), stdout);
        return 0;
    }
    if (zeile->HatAktionen()) {
        // A batch run never needs a display; fonts and pictures work offscreen.
        if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
        QGuiApplication app(argc, argv);
        return zp::FuehreStapellaufAus(*zeile);
    }

    QApplication app(argc, argv);
    zp::AppState s;
    // Before the window exists, messages go to stderr and into a message box of their own.
    struct Startmeldungen : zp::BatchOberflaeche {
        void Meldung(const QString& text, const QString& titel, const QString& detail) override {
            BatchOberflaeche::Meldung(text, titel, detail);
            QMessageBox box(titel == u"Hinweis" ? QMessageBox::Information : QMessageBox::Warning, titel,
                            text);
            box.setInformativeText(detail);
            box.exec();
        }
    } startmeldungen;
    const QString ordner = zp::WaehleProgrammordner(zeile->programmpfad, zeile->edition);
    if (!zp::RichteProgrammordnerEin(ordner, zeile->edition, zp::MitgelieferteDaten(), &fehler)) {
        zp::MeldeFehler(fehler);
        return 1;
    }
    zp::Main(s, ordner, startmeldungen);
    return zp::StarteHauptfenster(s);
}
