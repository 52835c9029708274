// Stacking, deletion with its renumbering, anchoring, insertion, placeholders and undo of the
// commands on frames.
#include "tests/core/state/ProtokollOberflaeche.h"

#include "core/Formatbefehle.h"
#include "core/Rahmenbefehle.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Objekte.h"
#include "persist/Design.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

// Frames with the given stacking levels, all shapes, the first current.
AppState Stapel(std::initializer_list<int> ebenen) {
    AppState s;
    s.RahmenAnzahl = 0;
    int n = 0;
    for (int z : ebenen) {
        ErzeugeRahmen(s, ++n, QStringLiteral("Linie"), 1);
        s.Rahmenliste(n).z = static_cast<int16_t>(z);
    }
    s.RahmenNummer = 1;
    return s;
}

std::vector<int> Ebenen(const AppState& s) {
    std::vector<int> z;
    for (int f = 1; f <= s.RahmenAnzahl; ++f)
        z.push_back(s.Rahmenliste(f).z);
    return z;
}

TEST(Stapel, DieVierBefehleUndIhreRaender) {
    using Befehl = bool (*)(AppState&, Oberflaeche&);
    struct Fall {
        const char* was;
        Befehl befehl;
        std::initializer_list<int> vorher;
        std::vector<int> nachher;
        bool aendert;
    } faelle[] = {
        {"nach vorn", BringToFront, {2, 4, 1, 3}, {4, 3, 1, 2}, true},
        {"schon oben", BringToFront, {4, 1, 2, 3}, {4, 1, 2, 3}, false},
        {"nach hinten", SendToBack, {3, 4, 1, 2}, {1, 4, 2, 3}, true},
        {"schon unten", SendToBack, {1, 2, 3, 4}, {1, 2, 3, 4}, false},
        {"eins vor", OneForward, {2, 3, 1, 4}, {3, 2, 1, 4}, true},
        {"eins vor ganz oben", OneForward, {4, 3, 1, 2}, {4, 3, 1, 2}, false},
        {"eins zurück", OneBack, {3, 2, 1, 4}, {2, 3, 1, 4}, true},
        {"eins zurück ganz unten", OneBack, {1, 3, 2, 4}, {1, 3, 2, 4}, false},
        // Doubles from a file: only the first other frame on the new level moves.
        {"eins vor mit Doppelten", OneForward, {1, 2, 2, 4}, {2, 1, 2, 4}, true},
        // A gap: the level above is empty, so nothing comes down.
        {"eins vor über eine Lücke", OneForward, {2, 4, 1, 5}, {3, 4, 1, 5}, true},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.was);
        AppState s = Stapel(f.vorher);
        ProtokollOberflaeche ui;
        EXPECT_EQ(f.befehl(s, ui), f.aendert);
        EXPECT_EQ(Ebenen(s), f.nachher);
        EXPECT_EQ(ui.neuzeichnen, f.aendert ? 1 : 0);
        EXPECT_EQ(s.Verlauf.Zurueck.size(), f.aendert ? 1u : 0u);
    }
}

AppState Dokument(const QString& programmname = QStringLiteral("ZP Briefkopf")) {
    AppState s;
    ProtokollOberflaeche ui;
    QTemporaryDir leer;
    Main(s, leer.path(), ui);
    s.Programmname = programmname;
    SetzeEditionsflags(s);
    s.Programmpfad = QDir::tempPath() + QStringLiteral("/");
    return s;
}

TEST(DeleteFrame, JedeArtRuecktNachUndDieEbenenSchliessen) {
    for (const char* art : {"Schrift", "Bild", "Linie", "RTF"}) {
        SCOPED_TRACE(art);
        AppState s = Dokument();
        QTemporaryDir ordner;
        s.AktuelleDatei = ordner.filePath(QStringLiteral("brief.zpb"));
        ProtokollOberflaeche ui;
        const QString typ = QString::fromLatin1(art);
        const int erster = BefehlEinfuegen(s, ui, typ);
        s.Auswahlmodus = 0;
        const int zweiter = BefehlEinfuegen(s, ui, typ);
        s.Auswahlmodus = 0;
        const double objekt = s.Rahmenliste(zweiter).Objektnummer;
        s.Rahmenliste(zweiter).Sichtbar = -1;
        s.Rahmenliste(zweiter).Breite = 777;
        // The first inserted frame goes to the bottom, and is deleted from there.
        s.RahmenNummer = erster;
        SendToBack(s, ui);
        s.Rahmenliste(zweiter).bilddaten = 5; // stays with its place, which is emptied
        s.Hilfswert = 9999;
        ASSERT_EQ(DeleteFrame(s, ui), Loeschergebnis::Geloescht);
        EXPECT_TRUE(ui.fragen.isEmpty());
        EXPECT_EQ(s.Hilfswert, 0);
        EXPECT_EQ(s.RahmenAnzahl, 32);
        const ClassRahmen& r = s.Rahmenliste(erster);
        EXPECT_EQ(r.Breite, 777);
        EXPECT_EQ(r.Objektnummer, objekt - 1);
        EXPECT_EQ(r.bilddaten, 0); // the place kept its own, not that of the frame moved into it
        EXPECT_EQ(r.z, 32);        // it stood on top, and the levels closed up below it
        std::vector<int> z = Ebenen(s);
        std::sort(z.begin(), z.end());
        for (int i = 0; i < 32; ++i)
            EXPECT_EQ(z[i], i + 1);
        EXPECT_EQ(s.RahmenNummer, erster); // the last visible frame
    }
}

TEST(DeleteFrame, VorlagenrahmenJeEdition) {
    ProtokollOberflaeche ui;
    // Kalender: a template frame stays as it is, without a word.
    AppState k = Dokument(QStringLiteral("ZP Kalender"));
    k.FesteRahmen = 38;
    k.RahmenNummer = 5;
    k.Schriftliste(5).Textstring = QStringLiteral("Mai");
    EXPECT_EQ(DeleteFrame(k, ui), Loeschergebnis::Unveraendert);
    EXPECT_EQ(k.Schriftliste(5).Textstring, QStringLiteral("Mai"));
    EXPECT_TRUE(ui.meldungen.isEmpty());
    EXPECT_FALSE(KannRueckgaengig(k));
    // A letterhead's text is emptied, and its frame hides with it; undo brings it back.
    AppState b = Dokument();
    b.RahmenNummer = b.SchriftNummer = 4;
    b.Schriftliste(4).Textstring = b.Panel.Text1(4) = QStringLiteral("Firma");
    b.Rahmenliste(4).Sichtbar = -1;
    EXPECT_EQ(DeleteFrame(b, ui), Loeschergebnis::Geleert);
    EXPECT_EQ(b.Schriftliste(4).Textstring, QString());
    EXPECT_EQ(b.Rahmenliste(4).Sichtbar, 0);
    ASSERT_TRUE(BefehlRueckgaengig(b, ui));
    EXPECT_EQ(b.Panel.Text1(4), QStringLiteral("Firma"));
    EXPECT_EQ(b.Rahmenliste(4).Sichtbar, -1);
}

TEST(Verankern, EinzelnUndAlle) {
    AppState s = Stapel({1, 2, 3});
    ProtokollOberflaeche ui;
    EXPECT_TRUE(VerankernUmschalten(s, ui));
    EXPECT_EQ(s.Rahmenliste(1).Verankert, -1);
    EXPECT_EQ(ui.neuzeichnen, 1); // the corner squares show it at once
    EXPECT_FALSE(VerankernUmschalten(s, ui));
    AlleVerankern(s, ui, true);
    for (int f = 1; f <= 3; ++f)
        EXPECT_EQ(s.Rahmenliste(f).Verankert, -1);
    AlleVerankern(s, ui, true); // changes nothing: no step
    EXPECT_EQ(s.Verlauf.Zurueck.size(), 3u);
    AlleVerankern(s, ui, false);
    EXPECT_EQ(s.Rahmenliste(3).Verankert, 0);
    BefehlRueckgaengig(s, ui);
    EXPECT_EQ(s.Rahmenliste(3).Verankert, -1);
}

TEST(Einfuegen, BriefnamenUndDieGrenzeDerListen) {
    QTemporaryDir ordner;
    EXPECT_EQ(NeuerBriefname(ordner.path()), QStringLiteral("RTF1.rtf"));
    for (const char* name : {"RTF1.rtf", "RTF3.rtf"}) {
        QFile f(ordner.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(NeuerBriefname(ordner.path()), QStringLiteral("RTF2.rtf"));

    AppState s = Dokument();
    s.AktuelleDatei = ordner.filePath(QStringLiteral("brief.zpb"));
    ProtokollOberflaeche ui;
    const int n = BefehlEinfuegen(s, ui, QStringLiteral("RTF"));
    EXPECT_EQ(s.RTFAnzahl, 2);
    EXPECT_EQ(s.RTFliste(2), QStringLiteral("RTF2.rtf"));
    EXPECT_EQ(s.Rahmenliste(n).Objektnummer, 2);
    EXPECT_EQ(s.Rahmenliste(n).Sichtbar, 0);
    // A second insertion waits until the first has its box.
    EXPECT_EQ(BefehlEinfuegen(s, ui, QStringLiteral("Linie")), 0);

    // A full list: a message, and nothing changes.
    s.Auswahlmodus = 0;
    s.SchriftMax = GroessteAnzahl;
    const double rahmen = s.RahmenAnzahl;
    EXPECT_EQ(BefehlEinfuegen(s, ui, QStringLiteral("Schrift")), 0);
    EXPECT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(s.RahmenAnzahl, rahmen);
    EXPECT_EQ(s.Auswahlmodus, 0);
}

TEST(Platzhalter, VorDenTextMitUndOhneFeld) {
    AppState s = Dokument();
    ProtokollOberflaeche ui;
    s.SchriftNummer = 5;
    s.RahmenNummer = 5;
    s.Panel.Text1(5) = s.Schriftliste(5).Textstring = QStringLiteral("Berlin, ");
    EXPECT_TRUE(PlatzhalterEinfuegen(s, ui, QStringLiteral("#Datum")));
    EXPECT_EQ(s.Panel.Text1(5), QStringLiteral("#DatumBerlin, "));
    EXPECT_EQ(s.Schriftliste(5).Textstring, QStringLiteral("#DatumBerlin, "));
    EXPECT_EQ(s.Rahmenliste(5).Sichtbar, -1);
    // A text without a box of the panel takes the keyword itself.
    const int n = BefehlEinfuegen(s, ui, QStringLiteral("Schrift"));
    s.Auswahlmodus = 0;
    s.SchriftNummer = s.Rahmenliste(n).Objektnummer;
    EXPECT_TRUE(PlatzhalterEinfuegen(s, ui, QStringLiteral("#Seriennummer")));
    EXPECT_EQ(s.Schriftliste(31).Textstring, QStringLiteral("#Seriennummer"));
    BefehlRueckgaengig(s, ui);
    EXPECT_EQ(s.Schriftliste(31).Textstring, QString());
}

TEST(Rueckgaengig, FormatleisteUndSchriftgroesse) {
    AppState s = Dokument();
    ProtokollOberflaeche ui;
    s.RahmenNummer = 3;
    s.LadeSperre = 0; // the window is shown
    ASSERT_TRUE(Toolbar3Knopf(s, ui, QStringLiteral("fett")));
    ASSERT_TRUE(SchriftgroesseSetzen(s, ui, QStringLiteral("24")));
    EXPECT_FALSE(Toolbar3Knopf(s, ui, QStringLiteral("unbekannt"))); // keeps no step
    EXPECT_EQ(s.Verlauf.Zurueck.size(), 2u);
    BefehlRueckgaengig(s, ui);
    EXPECT_EQ(s.Schriftliste(3).FontSize, ClassSchrift{}.FontSize);
    EXPECT_EQ(s.Schriftliste(3).Bold, -1);
    BefehlRueckgaengig(s, ui);
    EXPECT_EQ(s.Schriftliste(3).Bold, 0);
}

TEST(Rueckgaengig, FuenfzigSchritteUndLadenLeert) {
    AppState s = Stapel({1, 2});
    ProtokollOberflaeche ui;
    for (int i = 0; i < 60; ++i)
        VerankernUmschalten(s, ui);
    int zurueck = 0;
    while (BefehlRueckgaengig(s, ui))
        ++zurueck;
    EXPECT_GE(zurueck, 50);
    EXPECT_EQ(s.Rahmenliste(1).Verankert, 0);
    EXPECT_TRUE(KannWiederholen(s));
    VerankernUmschalten(s, ui); // a new edit gives up what was undone
    EXPECT_FALSE(KannWiederholen(s));

    // Loading a design empties the history.
    AppState d = Dokument();
    QTemporaryDir ordner;
    d.AktuelleDatei = ordner.filePath(QStringLiteral("a.zpb"));
    d.Ladevorgabe.clear();
    ASSERT_TRUE(SaveDesign(d, ui));
    VerankernUmschalten(d, ui);
    ASSERT_TRUE(KannRueckgaengig(d));
    ASSERT_TRUE(LoadDesign(d, ui));
    EXPECT_FALSE(KannRueckgaengig(d));
}

} // namespace
} // namespace zp::test
