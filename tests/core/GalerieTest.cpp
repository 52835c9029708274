// The business-card gallery: every entry loads its shipped card and keeps the user's addresses.
#include "common/TestHilfe.h"
#include "core/Dokumentbefehle.h"
#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "persist/Design.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace zp;

TEST(Galerie, JederEintragLaedtSeineKarte) {
    QTemporaryDir ordner;
    QString fehler;
    ASSERT_TRUE(RichteProgrammordnerEin(ordner.path(), QStringLiteral("Visitenkarte"),
                                        QStringLiteral(ZP_DATEN_DIR), &fehler));
    AppState s;
    test::ProtokollOberflaeche ui;
    Main(s, ordner.path(), ui);
    ASSERT_TRUE(LadeStartzustand(s, ui));
    s.LadeSperre = 0;
    s.Datensaetze(1, 1) = QStringLiteral("Erika Mustermann");
    s.Panel.Text1(1) = s.Schriftliste(1).Textstring = QStringLiteral("Mein Gruß");
    const double adressen = s.DatensatzAnzahl;
    const QString eigene = s.AktuelleDatei;

    QSet<QByteArray> karten{SchreibeDesign(s)};
    for (int zeile = 0; zeile < 19; ++zeile) {
        GalerieLaden(s, ui, zeile);
        EXPECT_TRUE(ui.ganz.isEmpty()) << zeile << ui.ganz.join(u'\n').toStdString();
        // Each card differs from the start document and from every card before it.
        const QByteArray karte = SchreibeDesign(s);
        EXPECT_FALSE(karten.contains(karte)) << "Eintrag " << zeile + 1;
        karten.insert(karte);
        EXPECT_GT(s.LinieAnzahl + s.BildAnzahl + s.AktuellesEtikett.Farbüberlauf + s.AktuellesEtikett.Design,
                  0)
            << zeile;
        // A template never takes the addresses or the user's file name.
        EXPECT_EQ(s.Datensaetze(1, 1), u"Erika Mustermann") << zeile;
        EXPECT_EQ(s.DatensatzAnzahl, adressen) << zeile;
        EXPECT_EQ(s.AktuelleDatei, eigene) << zeile;
        EXPECT_EQ(s.Schriftliste(1).Textstring, u"Mein Gruß") << zeile;
    }
}
