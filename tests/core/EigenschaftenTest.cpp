// The commands behind the text, shape and position dialogs and the format bar.

#include "core/Auswahl.h"
#include "core/Dialogvorschau.h"
#include "core/Formatbefehle.h"
#include "core/Liniendialog.h"
#include "core/Positionsdialog.h"
#include "core/Schnappschuss.h"
#include "core/Schriftdialog.h"
#include "core/state/AppState.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zp {
namespace {

// Records which dialogs the core asked the window to open.
struct Fenster : test::ProtokollOberflaeche {
    void SchriftdialogZeigen(int seite) override { geoeffnet << QStringLiteral("Schrift %1").arg(seite); }
    void LiniendialogZeigen(int seite) override { geoeffnet << QStringLiteral("Linie %1").arg(seite); }
    void BilddialogZeigen() override { geoeffnet << QStringLiteral("Bild"); }
    void PositionsdialogZeigen() override { geoeffnet << QStringLiteral("Position"); }
    void RahmenLoeschen() override { geoeffnet << QStringLiteral("Löschen"); }
    void FormatleisteAktualisieren() override { ++formatleiste; }
    QStringList geoeffnet;
    int formatleiste = 0;
};

// Frames 1 and 2 show text 3, frame 3 shows text 4, frame 4 is shape 1.
AppState Dokument() {
    AppState s;
    auto rahmen = [&](int i, const char* typ, int objekt) {
        ClassRahmen& r = s.Rahmenliste(i);
        r.Objekttyp = QString::fromLatin1(typ);
        r.Objektnummer = objekt;
        r.Sichtbar = -1;
        r.X = 100, r.Y = 200, r.Breite = 500, r.Höhe = 100;
    };
    rahmen(1, "Schrift", 3);
    rahmen(2, "Schrift", 3);
    rahmen(3, "Schrift", 4);
    rahmen(4, "Linie", 1);
    s.RahmenAnzahl = 4;
    s.RahmenNummer = 1;
    s.SchriftNummer = 3;
    s.LinieNummer = 1;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    return s;
}

TEST(Schriftdialog, OkWritesTheWorkCopyTextAndVisibilityEverywhere) {
    AppState s = Dokument();
    Fenster ui;
    s.Vorschaumodus = -1;
    s.Auswahlmodus = 2;
    ClassSchrift werk = s.Schriftliste(3);
    werk.fontname = QStringLiteral("DejaVu Serif");
    werk.Bold = -1;
    werk.Sichtbar = 0;
    werk.Textstring = QStringLiteral("alt");

    ASSERT_TRUE(SchriftdialogOk(s, ui, werk, QStringLiteral("Neu")));
    const ClassSchrift& t = s.Schriftliste(3);
    EXPECT_EQ(t.fontname, QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(t.Bold, -1);
    EXPECT_EQ(t.Textstring, QStringLiteral("Neu")); // the box's text, not the copy's
    EXPECT_EQ(s.Panel.Text1(3), QStringLiteral("Neu"));
    EXPECT_EQ(s.Rahmenliste(1).Sichtbar, 0);
    EXPECT_EQ(s.Rahmenliste(2).Sichtbar, 0);
    EXPECT_EQ(s.Rahmenliste(3).Sichtbar, -1); // another text
    EXPECT_EQ(s.Rahmenliste(4).Sichtbar, -1); // a shape with the same number
    EXPECT_EQ(s.Vorschaumodus, 0);
    EXPECT_EQ(s.LadeSperre, 0);
    EXPECT_EQ(s.Auswahlmodus, 0);
    EXPECT_EQ(ui.formatleiste, 1);
    EXPECT_EQ(ui.neuzeichnen, 1);
}

TEST(Schriftdialog, OnlyObliqueTextIsCentred) {
    struct Fall {
        int angle;
        bool zentriert;
    };
    for (const Fall f : {Fall{0, false}, Fall{1, true}, Fall{30, true}, Fall{45, true}, Fall{90, false},
                         Fall{180, false}, Fall{270, false}, Fall{271, true}, Fall{360, true}}) {
        AppState s = Dokument();
        Fenster ui;
        ClassSchrift werk;
        werk.Angle = static_cast<int16_t>(f.angle);
        werk.AusrichtungH = 2;
        werk.AusrichtungV = 0;
        ASSERT_TRUE(SchriftdialogOk(s, ui, werk, QStringLiteral("x")));
        EXPECT_EQ(s.Schriftliste(3).AusrichtungH, f.zentriert ? 1 : 2) << f.angle;
        EXPECT_EQ(s.Schriftliste(3).AusrichtungV, f.zentriert ? 1 : 0) << f.angle;
    }
}

TEST(Schriftdialog, OkOnAMissingTextAndCancelLeaveTheDocument) {
    AppState s = Dokument();
    Fenster ui;
    const QString vorher = s.Schriftliste(3).fontname;
    ClassSchrift werk;
    werk.fontname = QStringLiteral("Anders");
    s.SchriftNummer = 99;
    EXPECT_FALSE(SchriftdialogOk(s, ui, werk, QStringLiteral("x")));
    s.SchriftNummer = 0;
    EXPECT_FALSE(SchriftdialogOk(s, ui, werk, QStringLiteral("x")));
    EXPECT_EQ(ui.neuzeichnen, 0);

    s.SchriftNummer = 3;
    s.Vorschaumodus = -1;
    SchriftdialogAbbruch(s);
    EXPECT_EQ(s.Schriftliste(3).fontname, vorher);
    EXPECT_EQ(s.Vorschaumodus, 0);
}

TEST(Schriftdialog, TypedAngles) {
    EXPECT_EQ(WinkelAusEingabe(QStringLiteral("30")), 30);
    EXPECT_EQ(WinkelAusEingabe(QStringLiteral("360")), 360);
    EXPECT_EQ(WinkelAusEingabe(QStringLiteral("361")), 0);
    EXPECT_EQ(WinkelAusEingabe(QStringLiteral("5000")), 0);
    EXPECT_EQ(WinkelAusEingabe(QStringLiteral("abc")), 0);
    EXPECT_EQ(WinkelAusEingabe(QStringLiteral("-20")), 0);
}

TEST(Liniendialog, OkWritesBackCancelKeeps) {
    AppState s = Dokument();
    Fenster ui;
    ClassLinie werk = s.Linienliste(1);
    werk.Form = 17;
    werk.Füllung = -1;
    werk.ColorCircle = 2;
    s.Vorschaumodus = -1;
    LiniendialogAbbruch(s);
    EXPECT_EQ(s.Linienliste(1).Form, 1);
    EXPECT_EQ(s.Vorschaumodus, 0);

    s.Vorschaumodus = -1;
    ASSERT_TRUE(LiniendialogOk(s, ui, werk));
    EXPECT_EQ(s.Linienliste(1).Form, 17);
    EXPECT_EQ(s.Linienliste(1).Füllung, -1);
    EXPECT_EQ(s.Linienliste(1).ColorCircle, 2);
    EXPECT_EQ(s.Vorschaumodus, 0);
    EXPECT_EQ(ui.neuzeichnen, 1);

    s.LinieNummer = 5;
    EXPECT_FALSE(LiniendialogOk(s, ui, werk));
}

TEST(Positionsdialog, LostFocusRepairsAgainstThePage) {
    ClassSeite seite;
    seite.Breite = 2100;
    seite.Höhe = 2970;
    struct Fall {
        int feld;
        const char *x, *y, *b, *h;
        const char* erwartet;
    };
    const Fall faelle[] = {
        {1, "-5", "0", "100", "100", "0"},      // negative position
        {1, "2050", "0", "100", "100", "2000"}, // pushed back inside
        {1, "50", "0", "3000", "100", "0"},     // wider than the page: at its edge
        {2, "0", "2900", "100", "100", "2870"}, //
        {2, "0", "-1", "100", "100", "0"},      //
        {3, "600", "0", "2000", "100", "1500"}, // size cut to the page
        {3, "0", "0", "-40", "100", "0"},       // negative size
        {4, "0", "2000", "100", "1500", "970"}, //
        {1, "12,5", "0", "100", "100", "12,5"}, // comma as separator
        {1, "abc", "0", "100", "100", "0"},     // letters count as nothing
        {1, "120mm", "0", "100", "100", "120"}, // leading digits count
    };
    for (const Fall& f : faelle) {
        Positionsfelder p;
        p.Text1 = QString::fromLatin1(f.x);
        p.Text2 = QString::fromLatin1(f.y);
        p.Text3 = QString::fromLatin1(f.b);
        p.Text4 = QString::fromLatin1(f.h);
        PositionsfeldReparieren(p, f.feld, seite);
        EXPECT_EQ(p.Feld(f.feld), QString::fromLatin1(f.erwartet)) << f.feld << ' ' << f.x << ' ' << f.b;
    }
}

TEST(Positionsdialog, OpenShowsTheFrameOkRepairsInOrderAndWrites) {
    AppState s = Dokument();
    Fenster ui;
    s.Rahmenliste(1).Proportional = -1;
    Positionsfelder f = PositionsdialogOeffnen(s);
    EXPECT_EQ(s.LadeSperre, 255);
    EXPECT_EQ(f.Text1, QStringLiteral("100"));
    EXPECT_EQ(f.Text3, QStringLiteral("500"));
    EXPECT_TRUE(f.Check1);
    EXPECT_FALSE(f.Check2);

    // Wider than the page: X goes to 0 first, then the width is cut to the page.
    f.Text1 = QStringLiteral("300");
    f.Text3 = QStringLiteral("2500");
    f.Check1 = false;
    f.Check2 = true;
    ASSERT_TRUE(PositionsdialogOk(s, ui, f));
    const ClassRahmen& r = s.Rahmenliste(1);
    EXPECT_EQ(r.X, 0);
    EXPECT_EQ(r.Breite, 2100);
    EXPECT_EQ(r.Y, 200);
    EXPECT_EQ(r.Proportional, 0);
    EXPECT_EQ(r.Verankert, -1);
    EXPECT_EQ(s.LadeSperre, 0);
    EXPECT_EQ(ui.neuzeichnen, 1);
    EXPECT_DOUBLE_EQ(s.Rahmen.Width, ZehntelAlsTwips(s, 2100)); // the handles follow the new box
    EXPECT_DOUBLE_EQ(s.Rahmen.Left, 0);

    s.LadeSperre = 255;
    PositionsdialogAbbruch(s);
    EXPECT_EQ(s.LadeSperre, 0);
    EXPECT_EQ(r.X, 0);
}

TEST(Positionsdialog, BoxesShowTwoDecimalsAndUntouchedOnesKeepTheFramesValue) {
    AppState s = Dokument();
    Fenster ui;
    ClassRahmen& r = s.Rahmenliste(1);
    r.X = 716.845878136201; // where a drag with the mouse leaves a frame
    r.Y = 209.080047789725;
    r.Breite = 512.0327;
    Positionsfelder f = PositionsdialogOeffnen(s);
    EXPECT_EQ(f.Text1, QStringLiteral("716,85"));
    EXPECT_EQ(f.Text2, QStringLiteral("209,08"));
    EXPECT_EQ(f.Text3, QStringLiteral("512,03"));
    f.Text2 = QStringLiteral("150");
    ASSERT_TRUE(PositionsdialogOk(s, ui, f));
    EXPECT_EQ(r.X, 716.845878136201); // untouched: not moved by the rounding
    EXPECT_EQ(r.Y, 150);
    EXPECT_EQ(r.Breite, 512.0327);
}

TEST(Formatleiste, StyleKeysToggleAndAlignmentsAreExclusive) {
    AppState s = Dokument();
    Fenster ui;
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("fett")));
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("italic")));
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("underline")));
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("italic")));
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("rechts")));
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("textunten")));
    const ClassSchrift& t = s.Schriftliste(3);
    EXPECT_EQ(t.Bold, -1);
    EXPECT_EQ(t.Italic, 0);
    EXPECT_EQ(t.Underline, -1);
    EXPECT_EQ(ui.neuzeichnen, 6);

    Formatzustand z = UpdateFormatBar(s);
    EXPECT_TRUE(z.Schrift);
    EXPECT_TRUE(z.Fett);
    EXPECT_FALSE(z.Kursiv);
    EXPECT_TRUE(z.Unterstrichen);
    EXPECT_EQ(z.AusrichtungH, 2);
    EXPECT_EQ(z.AusrichtungV, 2);
    EXPECT_EQ(z.Schriftart, QStringLiteral("Arial"));
    EXPECT_EQ(z.Groesse, 10);

    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("center")));
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("textoben")));
    z = UpdateFormatBar(s);
    EXPECT_EQ(z.AusrichtungH, 1);
    EXPECT_EQ(z.AusrichtungV, 0);

    EXPECT_FALSE(Toolbar3Knopf(s, ui, QStringLiteral("unbekannt")));
}

TEST(Formatleiste, KeysOpenTheDialogOfTheFramesKind) {
    AppState s = Dokument();
    Fenster ui;
    Toolbar3Knopf(s, ui, QStringLiteral("farbe"));
    Toolbar3Knopf(s, ui, QStringLiteral("schatten"));
    Toolbar3Knopf(s, ui, QStringLiteral("winkel"));
    s.RahmenNummer = 4;
    Toolbar3Knopf(s, ui, QStringLiteral("farbe"));
    Toolbar3Knopf(s, ui, QStringLiteral("schatten"));
    EXPECT_FALSE(Toolbar3Knopf(s, ui, QStringLiteral("winkel")));
    EXPECT_FALSE(Toolbar3Knopf(s, ui, QStringLiteral("fett"))); // no text on a shape
    Toolbar3Knopf(s, ui, QStringLiteral("positionieren"));
    Toolbar3Knopf(s, ui, QStringLiteral("löschen"));
    EXPECT_EQ(ui.geoeffnet, (QStringList{"Schrift 2", "Schrift 3", "Schrift 4", "Linie 2", "Linie 3",
                                         "Position", "Löschen"}));
    EXPECT_EQ(s.LinieNummer, 1);

    EXPECT_FALSE(UpdateFormatBar(s).Schrift);
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("gesperrt")));
    EXPECT_EQ(s.Rahmenliste(4).Verankert, -1);
    EXPECT_TRUE(UpdateFormatBar(s).Gesperrt);
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("gesperrt")));
    EXPECT_FALSE(UpdateFormatBar(s).Gesperrt);
}

TEST(Formatleiste, FontAndSizeFromTheLists) {
    AppState s = Dokument();
    Fenster ui;
    EXPECT_TRUE(SchriftartSetzen(s, ui, QStringLiteral("DejaVu Sans")));
    EXPECT_TRUE(SchriftgroesseSetzen(s, ui, QStringLiteral("13")));
    EXPECT_EQ(s.Schriftliste(3).fontname, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(s.Schriftliste(3).FontSize, 13);
    for (const char* falsch : {"0", "5000", "abc", ""}) {
        EXPECT_FALSE(SchriftgroesseSetzen(s, ui, QString::fromLatin1(falsch))) << falsch;
        EXPECT_EQ(s.Schriftliste(3).FontSize, 13);
    }
    EXPECT_EQ(ui.meldungen.size(), 4);
    s.LadeSperre = 255; // the bar is being filled: its own events change nothing
    EXPECT_FALSE(SchriftgroesseSetzen(s, ui, QStringLiteral("20")));
    EXPECT_FALSE(SchriftartSetzen(s, ui, QStringLiteral("Liberation Serif")));
    EXPECT_EQ(s.Schriftliste(3).FontSize, 13);
}

TEST(Formatleiste, OpenPropertyDialogShowsTheFrameAndPicksTheDialog) {
    AppState s = Dokument();
    Fenster ui;
    s.Rahmenliste(3).Sichtbar = 0;
    s.RahmenNummer = 3;
    OpenPropertyDialog(s, ui);
    EXPECT_EQ(s.Rahmenliste(3).Sichtbar, -1);
    EXPECT_EQ(s.SchriftNummer, 4);
    s.RahmenNummer = 4;
    OpenPropertyDialog(s, ui);
    s.Rahmenliste(5).Objekttyp = QStringLiteral("RTF");
    s.RahmenNummer = 5;
    OpenPropertyDialog(s, ui);
    EXPECT_EQ(ui.geoeffnet, (QStringList{"Schrift 1", "Linie 1"}));
}

TEST(Formatleiste, TextboxFocusSelectsUnlessAClickOrADrawingCameFirst) {
    AppState s = Dokument();
    Fenster ui;
    // Frame 2 was clicked; it shows text 3, so the focus that the click moves to box 3 keeps it.
    s.RahmenNummer = 2;
    EXPECT_TRUE(AuswahlZeigtText(s, 3));
    EXPECT_FALSE(AuswahlZeigtText(s, 4));
    EXPECT_FALSE(TextfeldFokus(s, ui, 3, true));
    EXPECT_EQ(s.RahmenNummer, 2);
    s.Auswahlmodus = 1; // a new frame is being drawn
    EXPECT_FALSE(TextfeldFokus(s, ui, 4, false));
    EXPECT_EQ(s.RahmenNummer, 2);
    s.Auswahlmodus = 0;
    s.Zoomfaktor = 100;
    ASSERT_TRUE(TextfeldFokus(s, ui, 3, false));
    EXPECT_EQ(s.RahmenNummer, 3);
    EXPECT_EQ(s.SchriftNummer, 3);
    EXPECT_EQ(s.LadeSperre, 0);
    EXPECT_DOUBLE_EQ(s.Rahmen.Left, 100 * s.Geraetefaktor); // the marker took frame 3's box
    EXPECT_FALSE(AuswahlZeigtText(s, 3));                   // frame 3 is a text of its own: object 4
    s.RahmenNummer = 4;
    EXPECT_FALSE(AuswahlZeigtText(s, 1)); // a shape shows no text
}

// The darkest pixels' bounding box: where the text stands in a preview.
QRect Tinte(const QImage& bild) {
    QRect r;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (qGray(bild.pixel(x, y)) < 128) r |= QRect(x, y, 1, 1);
    return r;
}

TEST(Dialogvorschau, ALargeTextIsShownWholeAndASmallOneAtItsSize) {
    AppState s;
    ClassSchrift t;
    t.fontname = QStringLiteral("DejaVu Sans");
    t.Textstring = QStringLiteral("Familie Muster 2027");
    t.FontSize = 12;
    const QSize box(440, 150);
    const QRect klein = Tinte(Schriftvorschau(s, t, box));
    ASSERT_FALSE(klein.isEmpty());
    t.FontSize = 24;
    const QRect doppelt = Tinte(Schriftvorschau(s, t, box));
    EXPECT_NEAR(doppelt.width(), 2 * klein.width(), klein.width() / 5); // true size while it fits

    // 28 points bold at 30 degrees reach past the box at true size: shown smaller and whole.
    t.FontSize = 28;
    t.Bold = -1;
    t.Angle = 30;
    t.ColorCircle = 1;
    t.Color2 = 0xFF0000; // a gradient to blue
    const QImage bild = Schriftvorschau(s, t, box);
    const QRect schraeg = Tinte(bild);
    int blau = 0;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            blau += qBlue(bild.pixel(x, y)) > 150 && qRed(bild.pixel(x, y)) < 100;
    EXPECT_GT(blau, 50); // the gradient is drawn at the smaller size too
    ASSERT_FALSE(schraeg.isEmpty());
    EXPECT_GT(schraeg.left(), 0);
    EXPECT_GT(schraeg.top(), 0);
    EXPECT_LT(schraeg.right(), box.width() - 1);
    EXPECT_LT(schraeg.bottom(), box.height() - 1);
    // Not shrunk further than it needs: one step less would have reached the edge.
    EXPECT_GT(std::max(schraeg.width() / double(box.width()), schraeg.height() / double(box.height())), 0.75);
    EXPECT_EQ(s.Vorschaumodus, 0);
}

TEST(Dialogvorschau, HairlinesShowAndAShadowStaysInTheBox) {
    AppState s;
    ClassLinie l;
    l.Stärke = 1; // a tenth of a millimetre: thinner than a pixel of the box
    const QSize box(300, 150);
    for (int form : {1, 2, 5, 6, 7, 8, 9, 10, 11}) {
        l.Form = static_cast<int16_t>(form);
        EXPECT_FALSE(Tinte(Linienvorschau(s, l, box)).isEmpty()) << form;
    }
    // Both rules of form 9 show, the bottom one too.
    l.Form = 9;
    EXPECT_GT(Tinte(Linienvorschau(s, l, box)).height(), box.height() / 2);

    // A rectangle with a hard grey shadow down to the right, and one up to the left: the shadow
    // shows, and neither shape nor shadow reaches the box's edge.
    l.Form = 16;
    l.Stärke = 20;
    l.ShadowDeep = 30;
    l.ShadowType = 1;
    l.ShadowColor1 = 0x808080;
    for (int richtung : {315, 135}) {
        l.ShadowAngle = static_cast<int16_t>(richtung);
        const QImage bild = Linienvorschau(s, l, box);
        QRect grau, alles;
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x) {
                const QRgb p = bild.pixel(x, y);
                if (qGray(p) < 250) alles |= QRect(x, y, 1, 1);
                if (qAbs(qGray(p) - 128) < 4) grau |= QRect(x, y, 1, 1);
            }
        ASSERT_FALSE(grau.isEmpty()) << richtung;
        EXPECT_GT(alles.left(), 0) << richtung;
        EXPECT_GT(alles.top(), 0) << richtung;
        EXPECT_LT(alles.right(), box.width() - 1) << richtung;
        EXPECT_LT(alles.bottom(), box.height() - 1) << richtung;
        // The shadow lies on its side: below right of the shape for 315 degrees.
        const QRect form = Tinte(bild);
        if (richtung == 315)
            EXPECT_GT(grau.right(), form.right()) << richtung;
        else
            EXPECT_LT(grau.left(), form.left()) << richtung;
    }
    EXPECT_EQ(s.Vorschaumodus, 0);
}

TEST(Schnappschuss, WritesIntoThePrivateFolderAndKeepsTheFileName) {
    AppState s = Dokument();
    Fenster ui;
    s.AktuelleDatei = QStringLiteral("/home/nutzer/karte.zpv");
    QTemporaryDir ordner;
    ASSERT_TRUE(ordner.isValid());
    const QString datei = Schnappschuss(s, ui, ordner.path());
    EXPECT_EQ(datei, ordner.filePath(QStringLiteral("test.zpb")));
    EXPECT_TRUE(QFile::exists(datei));
    EXPECT_EQ(s.AktuelleDatei, QStringLiteral("/home/nutzer/karte.zpv"));

    // A write that fails (a folder in the way of the file) and a folder that is gone leave the
    // file name too.
    QFile::remove(datei);
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("test.zpb")));
    EXPECT_EQ(Schnappschuss(s, ui, ordner.path()), QString());
    EXPECT_EQ(Schnappschuss(s, ui, ordner.path() + QStringLiteral("/weg")), QString());
    EXPECT_EQ(s.AktuelleDatei, QStringLiteral("/home/nutzer/karte.zpv"));
}

} // namespace
} // namespace zp
