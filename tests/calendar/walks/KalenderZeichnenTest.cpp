// The walks through the real renderers on the recording canvas: one text output per day cell,
// the day's colour reaching the device, the angle of the second half of the folding sheet.
#include "calendar/walks/KalenderZeichnen.h"
#include "calendar/data/Standarddesign.h"
#include "compose/canvas/RecordingCanvas.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
AppState Kalender(int typ, int jahr, int seite) {
    AppState s;
    s.IstKalender = -1;
    s.Zeichenfaktor = 1;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.Kalenderjahr = jahr;
    s.Seitennummer = seite;
    BaueStandarddesign(s, typ, 1);
    const char* tage[] = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"};
    for (int w = 1; w <= 8; ++w)
        s.Wochentagsnamen(w) = QString::fromUtf8(tage[w - 1]);
    return s;
}
} // namespace

TEST(KalenderZeichnen, DayNumbersOfAMonthReachTheCanvasInTheirColours) {
    AppState s = Kalender(4, 2004, 2); // February 2004: 1st a Sunday, 29 days
    s.FarbeSonntag = basic::RGB(200, 0, 0);
    s.FarbeSamstag = basic::RGB(0, 0, 200);
    RecordingCanvas c;
    ZeichneKalenderRahmen(s, c, 38); // the month group sets the grid measures
    ZeichneKalenderText(s, c, 3);
    const auto texte = c.Alle("Print");
    ASSERT_EQ(texte.size(), 29u);
    EXPECT_EQ(texte[0].Text, u"1");
    EXPECT_EQ(texte[28].Text, u"29");
    EXPECT_EQ(texte[0].ForeColor, basic::RGB(200, 0, 0));
    EXPECT_EQ(texte[6].ForeColor, basic::RGB(0, 0, 200)); // Saturday 7 February
    EXPECT_EQ(texte[1].ForeColor, s.Schriftliste(3).Color1);
    // Sunday the 1st stands in the last column, Monday the 2nd at the start of the next row.
    EXPECT_GT(texte[0].Werte[0], texte[1].Werte[0]);
    EXPECT_GT(texte[1].Werte[1], texte[0].Werte[1]);
    EXPECT_EQ(c.OffeneObjekte(), 0u);
    EXPECT_EQ(s.Farbvorgabe, -1);
}

TEST(KalenderZeichnen, DayBoxesAndTheFoldingSheetsUprightHalf) {
    AppState s = Kalender(2, 2025, 1);
    RecordingCanvas boxen;
    ZeichneKalenderRahmen(s, boxen, 32);
    const size_t vorher = boxen.Aufrufe.size();
    ZeichneKalenderRahmen(s, boxen, 35);
    EXPECT_GE(boxen.Aufrufe.size() - vorher, 12u * 31u); // a box for every slot, 31 per month

    RecordingCanvas c(CanvasArt::Export);
    s.ExportAktiv = -1;
    ZeichneKalenderText(s, c, 3);
    const auto texte = c.Alle("TextOutA");
    ASSERT_EQ(texte.size(), 365u);
    EXPECT_EQ(texte[0].Schrift.lfEscapement, 1800); // January upside down
    EXPECT_EQ(texte[181].Schrift.lfEscapement, 0);  // 1 July upright
    EXPECT_EQ(s.Schriftliste(3).Angle, 180);        // the design keeps its angle
}
