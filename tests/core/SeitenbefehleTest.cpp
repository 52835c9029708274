#include "core/Seitenbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/ProtokollOberflaeche.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {

// A catalogue of seven rows; row z holds z * 1000 + column in every column, row 3 is round.
AppState MitKatalog() {
    AppState s;
    s.KartenformatAnzahl = 7;
    for (int z = 1; z <= 7; ++z) {
        s.KartenformatNamen(z) = QStringLiteral("Format %1").arg(z);
        for (int spalte = 1; spalte <= 10; ++spalte)
            s.KartenformatWerte(spalte, z) = QString::number(z * 1000 + spalte);
        s.KartenformatWerte(9, z) = z == 3 ? QStringLiteral("1") : QStringLiteral("0");
    }
    return s;
}

} // namespace

TEST(Kartenformat, RowFillsTheEightBoxesInColumnOrder7812345AndTheRoundCheck) {
    AppState s = MitKatalog();
    const auto boxen = KartenformatGewaehlt(s, 3);
    ASSERT_TRUE(boxen);
    const int spalten[] = {7, 8, 1, 2, 3, 4, 5, 6};
    for (int i = 0; i < KartenfeldAnzahl; ++i) {
        EXPECT_EQ(boxen->texte[static_cast<size_t>(i)], QString::number(3000 + spalten[i])) << i;
        EXPECT_EQ(KatalogSpalte(static_cast<Kartenfeld>(i)), spalten[i]);
        EXPECT_EQ(Kartenwert(s, static_cast<Kartenfeld>(i)), 3000 + spalten[i]) << i;
    }
    EXPECT_TRUE(boxen->kreis);
    EXPECT_EQ(s.EtikettKopie.Form, 1);
    EXPECT_EQ(s.SeiteKopie.Randlinks, 3007); // the sheet's geometry takes the first label's place
    EXPECT_EQ(s.EtikettKopie.Links, 3007);

    EXPECT_FALSE(KartenformatGewaehlt(s, 4)->kreis);
    EXPECT_EQ(s.EtikettKopie.Form, 0);
    EXPECT_FALSE(KartenformatGewaehlt(s, 0)); // "Vorgaben"
    EXPECT_FALSE(KartenformatGewaehlt(s, 8)); // past the catalogue
    EXPECT_EQ(s.EtikettKopie.Breite, 4001);   // neither changed the copy
}

TEST(Kartenformat, EditsWriteBackIntoRowsOneToFiveOnly) {
    for (int zeile : {0, 1, 5, 6}) {
        AppState s = MitKatalog();
        const AppState vorher = s;
        KartenfeldGetippt(s, Kartenfeld::Hoehe, QStringLiteral("381,7 mm"), zeile);  // numeric prefix: 381
        KartenfeldGetippt(s, Kartenfeld::SeiteOben, QStringLiteral("151.5"), zeile); // rounded half to even
        KreisGesetzt(s, true, zeile);
        EXPECT_EQ(s.EtikettKopie.Höhe, 381);
        EXPECT_EQ(s.EtikettKopie.Oben, 152);
        EXPECT_EQ(s.SeiteKopie.Randoben, 152);
        EXPECT_EQ(s.EtikettKopie.Form, 1);
        const bool eigen = zeile >= 1 && zeile <= 5;
        for (int z = 1; z <= 7; ++z) {
            const bool geschrieben = eigen && z == zeile;
            EXPECT_EQ(s.KartenformatWerte(2, z),
                      geschrieben ? QStringLiteral("381") : vorher.KartenformatWerte(2, z))
                << zeile;
            EXPECT_EQ(s.KartenformatWerte(8, z),
                      geschrieben ? QStringLiteral("152") : vorher.KartenformatWerte(8, z))
                << zeile;
            EXPECT_EQ(s.KartenformatWerte(9, z),
                      geschrieben ? QStringLiteral("1") : vorher.KartenformatWerte(9, z))
                << zeile;
        }
    }
    AppState s = MitKatalog();
    KartenfeldGetippt(s, Kartenfeld::Breite, QStringLiteral("Breite"), 1); // no number: 0
    EXPECT_EQ(s.EtikettKopie.Breite, 0);
    EXPECT_EQ(s.KartenformatWerte(1, 1), u"0");
}

TEST(SeiteOk, WritesEveryFieldAndTheRasterWhileCancelLeavesThePage) {
    AppState s = MitKatalog();
    test::ProtokollOberflaeche ui;
    s.AktuelleSeite.Papier = QStringLiteral("DIN A4");
    s.AktuellesEtikett.Muster = 3;
    SeiteDialogOeffnen(s, ui);
    EXPECT_EQ(s.EtikettKopie.Muster, 3);

    ASSERT_TRUE(KartenformatGewaehlt(s, 2));
    EXPECT_TRUE(PapierGewaehlt(s, QStringLiteral("Benutzerdefiniert")));
    PapiergroesseGetippt(s, true, QStringLiteral("1000"));
    PapiergroesseGetippt(s, false, QStringLiteral("1500"));
    RandGetippt(s, Seitenrand::Unten, QStringLiteral("77"));
    s.SeiteKopie.Querformat = -1;
    HintergrundartGewaehlt(s, 3); // "Muster"
    s.EtikettKopie.Design = 9;

    // Abbruch: the dialog only closes; the page and sheet are as they were.
    const ClassSeite seiteVorher = s.AktuelleSeite;
    EXPECT_EQ(s.AktuellesEtikett.Breite, 0);
    EXPECT_EQ(s.AktuelleSeite.Breite, seiteVorher.Breite);

    // Ok with a raster of 0 is refused and writes nothing.
    EXPECT_FALSE(SeiteUebernehmen(s, ui, {QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("50")}));
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(s.AktuellesEtikett.Breite, 0);
    EXPECT_FALSE(SeiteUebernehmen(s, ui, {QStringLiteral("1"), QStringLiteral("x"), QStringLiteral("50")}));
    EXPECT_EQ(s.GitterX, 100);

    ASSERT_TRUE(SeiteUebernehmen(s, ui, {QStringLiteral("0,2"), QStringLiteral("25"), QStringLiteral("40")}))
        << ui.meldungen.join(u'\n').toStdString();
    EXPECT_EQ(s.AktuelleSeite.Papier, u"Benutzerdefiniert");
    EXPECT_EQ(s.AktuelleSeite.Breite, 1000);
    EXPECT_EQ(s.AktuelleSeite.Randunten, 77);
    EXPECT_EQ(s.AktuelleSeite.Randlinks, 2007);
    EXPECT_EQ(s.AktuelleSeite.Querformat, -1);
    EXPECT_EQ(s.AktuelleSeite.BackTyp, 5);
    EXPECT_EQ(s.AktuellesEtikett.Breite, 2001);
    EXPECT_EQ(s.AktuellesEtikett.Abstand_y, 2006);
    EXPECT_EQ(s.AktuellesEtikett.Vorlage, 2);
    EXPECT_EQ(s.AktuellesEtikett.Farbüberlauf, 5);
    EXPECT_EQ(s.AktuellesEtikett.Design, 9);
    EXPECT_EQ(s.AktuellesEtikett.Muster, 3);
    EXPECT_EQ(s.Rasterbreite, 25);
    EXPECT_EQ(s.GitterX, 25);
    EXPECT_EQ(s.GitterY, 40);
    EXPECT_EQ(s.ZoomExport, 0.5); // below 0.5 becomes 0.5
}

TEST(Hintergrund, OptionsMapOntoTheKindsBothWays) {
    const int arten[] = {0, 1, 4, 5, 3, 2};
    ASSERT_EQ(Hintergrundarten().size(), 6);
    for (int o = 0; o < 6; ++o) {
        EXPECT_EQ(HintergrundartVonOption(o), arten[o]);
        EXPECT_EQ(OptionVonHintergrundart(arten[o]), o);
    }
    EXPECT_EQ(HintergrundartVonOption(9), 0);
    AppState s;
    s.EtikettKopie.Muster = 0;
    HintergrundartGewaehlt(s, 2); // own picture: needs a pattern number to be drawn
    EXPECT_EQ(s.EtikettKopie.Farbüberlauf, 4);
    EXPECT_EQ(s.EtikettKopie.Muster, 1);
}

TEST(Hintergrund, ADesignChosenInWhiteTakesTheColourOfItsSmallPicture) {
    AppState s;
    ASSERT_EQ(s.EtikettKopie.Farbe3, 0xFFFFFF); // a new sheet's design colour
    DesignGewaehlt(s, 2);
    EXPECT_EQ(s.EtikettKopie.Design, 2);
    EXPECT_EQ(s.EtikettKopie.Farbe3, Designfarbe);
    s.EtikettKopie.Farbe3 = 0x0000FF; // a colour of the user's own stays
    DesignGewaehlt(s, 5);
    EXPECT_EQ(s.EtikettKopie.Farbe3, 0x0000FF);
    s.EtikettKopie.Farbe3 = 0xFFFFFF; // and "no design" touches no colour
    DesignGewaehlt(s, 0);
    EXPECT_EQ(s.EtikettKopie.Design, 0);
    EXPECT_EQ(s.EtikettKopie.Farbe3, 0xFFFFFF);
}

TEST(Katalogsuche, ByNameOrBySizeInMillimetres) {
    AppState s;
    s.KartenformatAnzahl = 3;
    const struct {
        const char *name, *b, *h;
    } zeilen[] = {{"Adressetiketten 70 x 37 mm", "700", "370"},
                  {"Visitenkarten", "850", "540"},
                  {"CD-Etikett rund", "1170", "1170"}};
    for (int z = 1; z <= 3; ++z) {
        s.KartenformatNamen(z) = QString::fromUtf8(zeilen[z - 1].name);
        s.KartenformatWerte(1, z) = QString::fromLatin1(zeilen[z - 1].b);
        s.KartenformatWerte(2, z) = QString::fromLatin1(zeilen[z - 1].h);
    }
    EXPECT_EQ(SucheKartenformate(s, QString()), (QList<int>{1, 2, 3}));
    EXPECT_EQ(SucheKartenformate(s, QStringLiteral("cd")), (QList<int>{3}));
    EXPECT_EQ(SucheKartenformate(s, QStringLiteral("85 x 54")), (QList<int>{2}));
    EXPECT_EQ(SucheKartenformate(s, QStringLiteral("117x117")), (QList<int>{3}));
    EXPECT_EQ(SucheKartenformate(s, QStringLiteral("70,2 X 36,8")), (QList<int>{1}));
    EXPECT_TRUE(SucheKartenformate(s, QStringLiteral("99 x 38")).isEmpty());
}

TEST(Seitendialog, EditionCaptionsAndHiddenTabs) {
    const Seitendialogtexte etikett = SeitendialogTexte(Edition::Etikett);
    EXPECT_EQ(etikett.tabs[0], u"Etikettenformat");
    EXPECT_EQ(etikett.tabs[1], u"Etikettendesign");
    EXPECT_EQ(etikett.tabs[3], u"Text");
    EXPECT_FALSE(etikett.sichtbar[2]);
    EXPECT_TRUE(etikett.etikettenAufFormat); // the labels stay reachable
    EXPECT_EQ(etikett.AbstandY, u"Abstand zum linken Etikett");

    const Seitendialogtexte kalender = SeitendialogTexte(Edition::Kalender);
    EXPECT_EQ(kalender.tabs[1], u"Taschenkalender");
    EXPECT_FALSE(kalender.sichtbar[2]);

    for (Edition e : {Edition::Visitenkarte, Edition::Briefkopf, Edition::CDHuelle}) {
        const Seitendialogtexte t = SeitendialogTexte(e);
        EXPECT_TRUE(t.sichtbar[2]);
        EXPECT_FALSE(t.etikettenAufFormat);
        EXPECT_EQ(t.Kartenbreite, u"Kartenbreite");
    }
}

TEST(SeiteOk, ASheetThatCantBePrintedIsToldAndNothingIsWritten) {
    enum Ed { Etikett, Karte, Cd, Brief, Tasche };
    struct Fall {
        Ed edition;
        int32_t papierBreite, links, breite, hoehe, anzahlY;
        const char* meldung; // empty: Ok goes through
    };
    const Fall faelle[] = {
        {Etikett, 2100, 46, 991, 381, 7, ""}, // 2 x 7 of 99,1 x 38,1 mm on A4
        {Etikett, 2100, 46, 0, 381, 7, "Breite und Höhe des Etiketts müssen größer als 0 sein."},
        {Karte, 2100, 46, 850, 550, 0, "Die Anzahl waagerecht und senkrecht muss mindestens 1 sein."},
        {Etikett, 2100, 1500, 991, 381, 7,
         "Ein Etikett von 99,1 x 38,1 mm passt ab 150 mm links und 15,1 mm oben nicht auf das Papier von 210 "
         "x "
         "297 mm."},
        {Cd, 1000, 0, 1170, 1170, 2, "Eine Karte von 117 x 117 mm passt ab 0 mm links"},
        {Tasche, 2100, 0, 0, 620, 1, "Breite und Höhe der Karte müssen größer als 0 sein."},
        {Brief, 2100, 46, 0, 0, 0, ""}, // a letterhead prints no sheet of labels
        {Brief, 0, 46, 991, 381, 7, "Breite und Höhe des Papiers müssen größer als 0 sein."},
    };
    for (const Fall& f : faelle) {
        AppState s;
        test::ProtokollOberflaeche ui;
        s.IstEtikett = f.edition == Etikett ? -1 : 0;
        s.IstVisitenkarte = f.edition == Karte ? -1 : 0;
        s.IstCDHuelle = f.edition == Cd ? -1 : 0;
        s.IstBriefkopf = f.edition == Brief ? -1 : 0;
        s.IstKalender = f.edition == Tasche ? -1 : 0;
        s.Kalendertyp = 3;
        SeiteDialogOeffnen(s, ui);
        s.SeiteKopie.Breite = f.papierBreite;
        s.SeiteKopie.Höhe = 2970;
        s.SeiteKopie.Randlinks = f.links;
        s.SeiteKopie.Randoben = 151;
        s.EtikettKopie.Breite = f.breite;
        s.EtikettKopie.Höhe = f.hoehe;
        s.EtikettKopie.Anzahl_x = 2;
        s.EtikettKopie.Anzahl_y = f.anzahlY;
        const bool ok =
            SeiteUebernehmen(s, ui, {QStringLiteral("1"), QStringLiteral("50"), QStringLiteral("50")});
        const QString soll = QString::fromUtf8(f.meldung);
        EXPECT_EQ(ok, soll.isEmpty()) << f.meldung;
        if (soll.isEmpty()) continue;
        ASSERT_EQ(ui.meldungen.size(), 1) << f.meldung;
        EXPECT_TRUE(ui.meldungen[0].startsWith(soll)) << ui.meldungen[0].toStdString();
        EXPECT_EQ(s.AktuellesEtikett.Höhe, 0); // the dialog stays open: nothing written yet
        EXPECT_EQ(s.GitterX, 100);
    }
}
