// Open and Save As from the command line go through the File menu's commands.
#include "app/Kommandozeile.h"
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
int Lauf(const QStringList& args) {
    QString fehler;
    auto z = LeseKommandozeile(args, &fehler);
    EXPECT_TRUE(z.has_value()) << fehler.toStdString();
    if (!z) return -1;
    z->datenquelle = QStringLiteral(ZP_DATEN_DIR);
    return FuehreStapellaufAus(*z);
}
} // namespace

TEST(DokumentOptionen, SaveAsThenOpenAndRefuseWhatCantBeRead) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("karten"));
    const QString karte = tmp.filePath(QStringLiteral("karte.zpv"));
    ASSERT_EQ(Lauf({"--programmpfad", ordner, "--edition", "Visitenkarte", "--speichern-unter", karte}), 0);
    const auto bytes = LeseDatei(karte);
    ASSERT_TRUE(bytes.has_value());
    EXPECT_TRUE(bytes->startsWith("ZP Datenfile\r\n"));

    // The saved card opens again and saves under its own name unchanged.
    ASSERT_EQ(Lauf({"--programmpfad", ordner, "--oeffnen", karte, "--speichern"}), 0);
    EXPECT_EQ(LeseDatei(karte), bytes);

    // A missing file and a file of another format end the run with status 1; the file stays.
    EXPECT_EQ(Lauf({"--programmpfad", ordner, "--oeffnen", tmp.filePath(QStringLiteral("fehlt.zpv"))}), 1);
    const QString falsch = tmp.filePath(QStringLiteral("falsch.zpv"));
    QFile f(falsch);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("kein Design\r\n");
    f.close();
    EXPECT_EQ(Lauf({"--programmpfad", ordner, "--oeffnen", falsch}), 1);
    EXPECT_EQ(LeseDatei(karte), bytes);
}
