// Writes the shipped data of the card and label editions into the folder given (the repository's
// daten/programm): the gallery daten/design1.zpv ... design19.zpv, Layout1.lay ... Layout5.lay and
// daten.dat.
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Layout.h"
#include "tools/kartendesigns/Kartendesigns.h"

#include <QCoreApplication>
#include <QDir>
#include <cstdio>

namespace {
bool Schreibe(const QString& pfad, const QByteArray& bytes) {
    QString fehler;
    if (zp::SchreibeDateiAtomar(pfad, bytes, &fehler)) return true;
    std::fprintf(stderr, "zp_kartendesigns: %s: %s\n", qPrintable(pfad), qPrintable(fehler));
    return false;
}
} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2) {
        std::fputs("Aufruf: zp_kartendesigns ZIELORDNER\n", stderr);
        return 1;
    }
    QDir ziel(args[1]);
    if (!ziel.mkpath(QStringLiteral("daten"))) {
        std::fprintf(stderr, "zp_kartendesigns: %s kann nicht angelegt werden\n", qPrintable(args[1]));
        return 1;
    }
    bool ok = true;
    for (int n = 1; n <= zp::Galerienamen().size(); ++n) {
        zp::AppState s;
        zp::BaueKartendesign(s, n);
        ok =
            Schreibe(ziel.filePath(QStringLiteral("daten/design%1.zpv").arg(n)), zp::GaleriedesignBytes(s)) &&
            ok;
    }
    for (int k = 1; k <= 5; ++k) {
        zp::AppState s;
        zp::BaueLayout(s, k);
        ok = Schreibe(ziel.filePath(QStringLiteral("Layout%1.lay").arg(k)), zp::SchreibeLayout(s)) && ok;
    }
    zp::AppState s;
    zp::Grunddokument(s);
    zp::BaueBeispieladressen(s);
    ok = Schreibe(ziel.filePath(QStringLiteral("daten.dat")), zp::SchreibeDatenbank(s)) && ok;
    return ok ? 0 : 1;
}
