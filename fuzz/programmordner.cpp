// A whole program folder at start and exit: the input is a packed folder, each file as one byte
// for its name, two bytes for its length (little-endian) and its bytes. The batch run starts on
// it and ends with `--beenden`. No input may crash, and a file moved aside as damaged must hold
// exactly the bytes it had.
#include "FuzzHilfe.h"
#include "app/Kommandozeile.h"
#include "core/state/AppState.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

namespace {

const char* const Dateinamen[] = {"zp.ini",   "kalender.ini", "etikett.ini", "daten.dat",   "neu.lay",
                                  "kal1.zpk", "auto.zpd",     "neu.zpd",     "Layout1.lay", "kal5.zpk"};
constexpr size_t DateiAnzahl = sizeof Dateinamen / sizeof *Dateinamen;

QByteArray Inhalt(const QString& pfad) {
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    zp::fuzz::StarteAnwendung(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    QTemporaryDir tmp;
    QMap<QString, QByteArray> vorher;
    for (size_t pos = 0; pos + 3 <= size;) {
        const QString name = QString::fromLatin1(Dateinamen[data[pos] % DateiAnzahl]);
        const size_t laenge = std::min<size_t>(data[pos + 1] | (data[pos + 2] << 8), size - pos - 3);
        const QByteArray bytes(reinterpret_cast<const char*>(data + pos + 3), static_cast<qsizetype>(laenge));
        QFile f(tmp.filePath(name));
        if (f.open(QIODevice::WriteOnly)) f.write(bytes);
        vorher[name] = bytes;
        pos += 3 + laenge;
    }
    if (!vorher.contains(QStringLiteral("zp.ini"))) return 0; // a folder without settings is seeded instead

    QString fehler;
    auto zeile = zp::LeseKommandozeile(
        {QStringLiteral("--programmpfad"), tmp.path(), QStringLiteral("--beenden")}, &fehler);
    if (!zeile) __builtin_trap();
    zeile->datenquelle = QStringLiteral("/nicht/vorhanden");
    zp::AppState s;
    zp::BatchOberflaeche ui;
    (void)zp::FuehreStapellaufAus(*zeile, s, ui);

    for (auto it = vorher.cbegin(); it != vorher.cend(); ++it) {
        const QString defekt = tmp.filePath(it.key() + QStringLiteral(".defekt"));
        if (QFile::exists(defekt) && Inhalt(defekt) != it.value())
            __builtin_trap(); // the user's bytes changed
    }
    return 0;
}
