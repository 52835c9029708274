#include "render/Platzhalter.h"
#include "core/state/AppState.h"

#include <gtest/gtest.h>

using namespace zp;

namespace {
const QDateTime Jetzt(QDate(2026, 11, 22), QTime(14, 5, 9));

QString Ersetze(AppState& s, const QString& text) {
    return ErsetzePlatzhalter(s, text, Jetzt);
}
} // namespace

TEST(Platzhalter, DatumZeitSeriennummerNurBeimErstenAuftreten) {
    AppState s;
    s.Seriennummer = 1;
    EXPECT_EQ(Ersetze(s, QStringLiteral("Heute #Datum um #Zeit")),
              QStringLiteral("Heute 22.11.2026 um 14:05:09"));
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Datum#Datum")), QStringLiteral("22.11.2026#Datum"));
    EXPECT_EQ(Ersetze(s, QStringLiteral("Nr. #Seriennummer")), QStringLiteral("Nr. 1"));
    s.Seriennummer = 12.5;
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Seriennummer")), QStringLiteral("12,5"));
    // Lower case is not a keyword; texts without "#" stay as they are.
    EXPECT_EQ(Ersetze(s, QStringLiteral("#datum #zeit")), QStringLiteral("#datum #zeit"));
    EXPECT_EQ(Ersetze(s, QString()), QString());
}

TEST(Platzhalter, FeldErsetztSiebenZeichen) {
    AppState s;
    s.Panel.Text1(3) = QStringLiteral("Müller");
    s.Panel.Text1(12) = QStringLiteral("Köln");
    EXPECT_EQ(Ersetze(s, QStringLiteral("Herr #Feld03, #Feld12")), QStringLiteral("Herr Müller, Köln"));
    // The keyword swallows the two characters behind it, blank or not.
    s.Panel.Text1(5) = QStringLiteral("12");
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Feld5 Euro")), QStringLiteral("12Euro"));
    // At the very end with one character: left as typed.
    EXPECT_EQ(Ersetze(s, QStringLiteral("x #Feld3")), QStringLiteral("x #Feld3"));
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Feld03")), QStringLiteral("Müller"));
}

TEST(Platzhalter, FeldAusserhalbNimmtDenZuletztGelesenenText) {
    AppState s;
    EXPECT_EQ(Ersetze(s, QStringLiteral("[#Feld00]")), QStringLiteral("[]")); // nothing read before
    s.Panel.Text1(7) = QStringLiteral("Sieben");
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Feld07 #Feld31")), QStringLiteral("Sieben Sieben"));
    // The field text is kept from one text to the next.
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Feldxy")), QStringLiteral("Sieben"));
}

TEST(Platzhalter, FeldtextMitSchluesselwortEndetNachNeunundneunzigLaeufen) {
    AppState s;
    s.Panel.Text1(1) = QStringLiteral("a#Feld01");
    // Each pass puts the keyword back: 99 passes, 99 a's, and the keyword stays.
    const QString r = Ersetze(s, QStringLiteral("#Feld01"));
    EXPECT_EQ(r, QString(99, QLatin1Char('a')) + QStringLiteral("#Feld01"));
    s.Panel.Text1(2) = QStringLiteral("<#Feld03>");
    s.Panel.Text1(3) = QStringLiteral("drei");
    EXPECT_EQ(Ersetze(s, QStringLiteral("#Feld02")), QStringLiteral("<drei>"));
}
