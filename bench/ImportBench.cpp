// Import of a text file with 10 000 addresses: the whole command as the menu runs it, from the
// file to the record on view. The goal is well under a second.
#include "core/Importbefehl.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Import.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {
QByteArray Adressliste(int zeilen) {
    QByteArray inhalt;
    for (int i = 1; i <= zeilen; ++i)
        inhalt += "Firma M\xfcller Nr. " + QByteArray::number(i) + ";Hauptstra\xdf" + "e " +
                  QByteArray::number(i) + ";12345 Musterstadt;0123/456789;info@example.de;Abteilung " +
                  QByteArray::number(i % 17) + "\r\n";
    return inhalt;
}

void TextImportAusBytes(benchmark::State& state) {
    const QByteArray inhalt = Adressliste(10000);
    for (auto _ : state) {
        zp::ImportDaten d = zp::LeseTextImport(inhalt);
        benchmark::DoNotOptimize(d.DatensatzAnzahl);
    }
}
BENCHMARK(TextImportAusBytes)->Unit(benchmark::kMillisecond);

void TextImportBefehl(benchmark::State& state) {
    QTemporaryDir dir;
    const QString datei = dir.filePath(QStringLiteral("adressen.txt"));
    zp::SchreibeDateiAtomar(datei, Adressliste(10000));
    zp::Oberflaeche ui;
    for (auto _ : state) {
        zp::AppState s;
        benchmark::DoNotOptimize(zp::Importieren(s, ui, datei));
    }
}
BENCHMARK(TextImportBefehl)->Unit(benchmark::kMillisecond);
} // namespace
