// Opens the text and shape dialogs on sample objects, as a user would see them, and writes each
// window as a PNG into the folder given.

#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "dialogs/FrmLinie.h"
#include "dialogs/FrmSchrift.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>

namespace {
bool Aufnehmen(QDialog& dialog, const QString& datei) {
    dialog.show();
    for (int i = 0; i < 20; ++i) {
        QApplication::processEvents();
        QThread::msleep(20);
    }
    return dialog.grab().save(datei);
}
} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "Aufruf: zp_dialogbilder ORDNER\n");
        return 1;
    }
    const QDir ziel(QString::fromLocal8Bit(argv[1]));
    QTemporaryDir programm;
    zp::AppState s;
    zp::Oberflaeche ui;
    zp::Main(s, programm.path(), ui);
    zp::LeseSchriftenliste(s);

    zp::ClassSchrift text;
    text.Textstring = QStringLiteral("Frohes Fest 2027");
    text.fontname = QStringLiteral("DejaVu Serif");
    text.FontSize = 26;
    text.Bold = -1;
    text.Angle = 8;
    text.Color1 = 0x202080;
    text.Color2 = 0x2080FF;
    text.ColorCircle = 1;
    text.ShadowDeep = 20;
    text.ShadowAngle = 315;
    zp::FrmSchrift schrift(s, text);
    schrift.SeiteWaehlen(2);

    zp::ClassLinie form;
    form.Form = 17;
    form.Füllung = -1;
    form.Stärke = 8;
    form.Color1 = 0x804000;
    form.Color2 = 0x40C0FF;
    form.ColorCircle = 2;
    form.ShadowDeep = 12;
    form.ShadowType = 1;
    form.ShadowAngle = 315;
    zp::FrmLinie linie(s, form);
    linie.SeiteWaehlen(3);

    const bool ok = Aufnehmen(schrift, ziel.filePath(QStringLiteral("dialog-schrift.png"))) &&
                    Aufnehmen(linie, ziel.filePath(QStringLiteral("dialog-linie.png")));
    return ok ? 0 : 1;
}
