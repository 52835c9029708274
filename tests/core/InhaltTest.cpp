#include "core/state/Inhalt.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <set>

using namespace zp;

namespace {
AppState Dokument() {
    AppState s;
    test::ProtokollOberflaeche ui;
    QTemporaryDir leer;
    Main(s, leer.path(), ui);
    return s;
}

bool ZIstPermutation(const AppState& s) {
    std::set<int> ebenen;
    for (int f = 1; f <= static_cast<int>(s.RahmenAnzahl); ++f)
        ebenen.insert(s.Rahmenliste(f).z);
    return static_cast<int>(ebenen.size()) == s.RahmenAnzahl && *ebenen.begin() == 1 &&
           *ebenen.rbegin() == s.RahmenAnzahl;
}
} // namespace

TEST(FuegeInhaltEin, NewObjectOnTopAndWaitingForPlacement) {
    AppState s = Dokument();
    const int n = FuegeInhaltEin(s, QStringLiteral("Bild"));
    EXPECT_EQ(n, 32);
    EXPECT_EQ(s.RahmenNummer, 32);
    EXPECT_EQ(s.BildAnzahl, 1);
    EXPECT_EQ(s.Bildliste.Obergrenze(), 1); // slot 1 was free
    const ClassRahmen& r = s.Rahmenliste(32);
    EXPECT_EQ(r.Objekttyp, u"Bild");
    EXPECT_EQ(r.Objektnummer, 1);
    EXPECT_EQ(r.z, 32);
    EXPECT_EQ(r.Proportional, -1);
    EXPECT_EQ(r.Sichtbar, 0);
    EXPECT_EQ(s.Auswahlmodus, 1);
    FuegeInhaltEin(s, QStringLiteral("Bild"));
    EXPECT_EQ(s.Bildliste.Obergrenze(), 2);
    EXPECT_EQ(s.BildNummer, 2);

    EXPECT_EQ(FuegeInhaltEin(s, QStringLiteral("Schrift")), 34);
    EXPECT_EQ(s.SchriftMax, 31);
    EXPECT_EQ(s.Schriftliste.Obergrenze(), 31);
    EXPECT_EQ(s.Schriftliste(31).fontname, u"Arial");
    EXPECT_TRUE(ZIstPermutation(s));
    EXPECT_EQ(FuegeInhaltEin(s, QStringLiteral("Kreis")), 0);
    EXPECT_EQ(s.RahmenAnzahl, 34);
}

TEST(LoescheRahmen, RenumbersObjectsFramesAndLevels) {
    AppState s = Dokument();
    for (int i = 0; i < 9; ++i)
        FuegeInhaltEin(s, QStringLiteral("Schrift")); // frames 32..40, texts 31..39
    for (int f = 1; f <= 40; ++f)
        s.Rahmenliste(f).Sichtbar = f > 30 ? -1 : 0;
    // Frame 35 (text 34) goes down to level 5; the frames of levels 5 to 34 move up by one.
    for (int f = 5; f <= 34; ++f)
        s.Rahmenliste(f).z += 1;
    s.Rahmenliste(35).z = 5;
    ASSERT_TRUE(ZIstPermutation(s));
    s.Schriftliste(35).Textstring = QStringLiteral("fünfunddreißig");
    s.RahmenNummer = 35;

    test::ProtokollOberflaeche ui;
    EXPECT_EQ(LoescheRahmen(s, ui), Loeschergebnis::Geloescht);
    EXPECT_EQ(s.RahmenAnzahl, 39);
    EXPECT_TRUE(ZIstPermutation(s));
    EXPECT_EQ(s.SchriftMax, 38);
    // The text after the deleted one moved down, and so did its frame's reference.
    EXPECT_EQ(s.Schriftliste(34).Textstring, QStringLiteral("fünfunddreißig"));
    EXPECT_EQ(s.Rahmenliste(35).Objektnummer, 34);
    EXPECT_EQ(s.Rahmenliste(39).Objektnummer, 38);
    EXPECT_EQ(s.Rahmenliste(40).Objekttyp, QString()); // released
    EXPECT_EQ(s.RahmenNummer, 39);                     // the last visible frame
    EXPECT_EQ(s.SchriftNummer, 38);                    // and its text
}

TEST(LoescheRahmen, LastPictureNeedsNoRenumbering) {
    AppState s = Dokument();
    FuegeInhaltEin(s, QStringLiteral("Bild"));
    test::ProtokollOberflaeche ui;
    EXPECT_EQ(LoescheRahmen(s, ui), Loeschergebnis::Geloescht);
    EXPECT_EQ(s.BildAnzahl, 0);
    EXPECT_EQ(s.Bildliste.Obergrenze(), 1); // one empty slot stays
    EXPECT_EQ(s.RahmenAnzahl, 31);
}

TEST(LoescheRahmen, TemplateFramesAreEmptiedNotDeleted) {
    test::ProtokollOberflaeche ui;
    AppState k = Dokument();
    k.IstKalender = -1;
    k.RahmenNummer = 3;
    EXPECT_EQ(LoescheRahmen(k, ui), Loeschergebnis::Unveraendert);

    AppState v = Dokument();
    v.IstVisitenkarte = -1;
    v.RahmenNummer = 22;
    v.SchriftNummer = 22;
    v.Schriftliste(22).Textstring = QStringLiteral("Musterstraße 1");
    v.Panel.Text1(22) = QStringLiteral("Musterstraße 1");
    EXPECT_EQ(LoescheRahmen(v, ui), Loeschergebnis::Geleert);
    EXPECT_EQ(v.Schriftliste(22).Textstring, QString());
    EXPECT_EQ(v.Panel.Text1(22), QString());
    EXPECT_EQ(v.RahmenAnzahl, 31);

    v.RahmenNummer = 31; // the letter body can't even be emptied
    EXPECT_EQ(LoescheRahmen(v, ui), Loeschergebnis::Verweigert);
    ASSERT_EQ(ui.meldungen.size(), 1);
    EXPECT_EQ(ui.meldungen[0], QStringLiteral("Sie können nur eingefügte Rahmen löschen"));
    EXPECT_EQ(ui.titel_, u"Hinweis");

    // A record picture above the template frames empties the record's picture column.
    FuegeInhaltEin(v, QStringLiteral("Bild"));
    v.Rahmenliste(32).bilddaten = 1;
    v.Datensaetze.Redim(30, 3);
    v.DatensatzNummer = 2;
    v.Datensaetze(21, 2) = QStringLiteral("logo.jpg");
    EXPECT_EQ(LoescheRahmen(v, ui), Loeschergebnis::Geleert);
    EXPECT_EQ(v.Datensaetze(21, 2), QString());
    EXPECT_EQ(v.RahmenAnzahl, 32);
}

TEST(LoescheRahmen, NoKeepsTheFrame) {
    AppState s = Dokument();
    FuegeInhaltEin(s, QStringLiteral("Linie"));
    test::ProtokollOberflaeche ui;
    ui.standardAntwort = false;
    EXPECT_EQ(LoescheRahmen(s, ui), Loeschergebnis::Abgebrochen);
    EXPECT_EQ(s.RahmenAnzahl, 32);
    // A caller that has asked already passes over the question.
    EXPECT_EQ(LoescheRahmen(s, ui, true), Loeschergebnis::Geloescht);
    EXPECT_EQ(s.LinieAnzahl, 1);
}
