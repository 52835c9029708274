// The record options of a run without a window.
#include "app/Kommandozeile.h"
#include "common/TestHilfe.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace zp;

namespace {
int Lauf(const QString& ordner, QStringList args, AppState& s) {
    args = QStringList{QStringLiteral("--programmpfad"), ordner, QStringLiteral("--edition"),
                       QStringLiteral("Visitenkarte")} +
           args;
    QString fehler;
    auto zeile = LeseKommandozeile(args, &fehler);
    EXPECT_TRUE(zeile.has_value()) << fehler.toStdString();
    if (!zeile) return -1;
    zeile->datenquelle = QStringLiteral(ZP_DATEN_DIR);
    BatchOberflaeche ui;
    return FuehreStapellaufAus(*zeile, s, ui);
}
} // namespace

TEST(AdressOptionen, ImportRecordLayoutAndExit) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("karten"));
    const QString liste = tmp.filePath(QStringLiteral("kunden.txt"));
    ASSERT_TRUE(SchreibeDateiAtomar(liste, "Anna Berg;Weg 1;11111 A-Dorf\r\n"
                                           "Bernd Carl;Gasse 2;22222 B-Stadt\r\n"));
    AppState s;
    ASSERT_EQ(
        Lauf(ordner,
             {QStringLiteral("--importieren"), liste, QStringLiteral("--datensatz"), QStringLiteral("2"),
              QStringLiteral("--layout"), QStringLiteral("4"), QStringLiteral("--beenden")},
             s),
        0);
    EXPECT_EQ(s.DatensatzNummer, 2);
    EXPECT_EQ(s.Panel.Text1(21), u"Bernd Carl");
    EXPECT_EQ(s.Schriftliste(23).Textstring, u"22222 B-Stadt");
    // Layout 4 on a card puts the frames after the name into the right half.
    EXPECT_EQ(s.Rahmenliste(22).X, s.AktuellesEtikett.Breite / 2);
    EXPECT_EQ(s.Rahmenliste(22).Breite, s.AktuellesEtikett.Breite / 2);

    Datenbank db;
    ASSERT_EQ(LeseDatenbank(LeseDatei(ordner + QStringLiteral("/daten.dat")).value_or(QByteArray()), db),
              DatenbankLesung::Gelesen);
    EXPECT_EQ(db.DatensatzAnzahl, 2);
    EXPECT_EQ(db.Datensaetze(1, 1), u"Anna Berg");
}

TEST(AdressOptionen, ShippedAddressesAreOnViewAtStart) {
    QTemporaryDir tmp;
    AppState s;
    ASSERT_EQ(
        Lauf(tmp.filePath(QStringLiteral("k")), {QStringLiteral("--datensatz"), QStringLiteral("3")}, s), 0);
    EXPECT_GE(s.DatensatzAnzahl, 3);
    EXPECT_FALSE(s.Panel.Text1(21).isEmpty());
    EXPECT_EQ(s.Schriftliste(21).Textstring, s.Panel.Text1(21));
}

TEST(AdressOptionen, WrongValuesEndTheRunWithAnError) {
    QTemporaryDir tmp;
    const QString ordner = tmp.filePath(QStringLiteral("k"));
    for (const QStringList& args :
         {QStringList{QStringLiteral("--datensatz"), QStringLiteral("999")},
          QStringList{QStringLiteral("--datensatz"), QStringLiteral("zwei")},
          QStringList{QStringLiteral("--layout"), QStringLiteral("6")},
          QStringList{QStringLiteral("--importieren"), tmp.filePath(QStringLiteral("fehlt.txt"))}}) {
        AppState s;
        EXPECT_EQ(Lauf(ordner, args, s), 1) << args.join(u' ').toStdString();
    }
    // A damaged old label file is warned about, and the run fails.
    const QString eti = tmp.filePath(QStringLiteral("alt.eti"));
    ASSERT_TRUE(SchreibeDateiAtomar(eti, "zu kurz\r\n"));
    AppState s;
    EXPECT_EQ(Lauf(ordner, {QStringLiteral("--importieren"), eti}, s), 1);
}
