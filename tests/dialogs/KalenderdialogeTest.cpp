// The calendar's options and design dialogs, opened on a state, one control of each kind changed,
// then Ok or Cancel.
#include "calendar/data/Standarddesign.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "dialogs/FrmFeiertage.h"
#include "dialogs/FrmKalenderdesign.h"
#include "persist/Datensaetze.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QToolButton>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

template <typename W> W* Kind(QWidget& w, const char* name) {
    W* k = w.findChild<W*>(QString::fromLatin1(name));
    EXPECT_NE(k, nullptr) << name;
    return k;
}

AppState Kalender() {
    AppState s;
    s.IstKalender = -1;
    s.Kalenderjahr = 2027;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    BaueStandarddesign(s, 4, 1);
    for (int m = 1; m <= 12; ++m)
        s.Monatsnamen(m) = QStringLiteral("M%1").arg(m);
    for (int w = 1; w <= 8; ++w)
        s.Wochentagsnamen(w) = QStringLiteral("W%1").arg(w);
    s.FeiertagWahl(1) = 1;
    s.FeiertagWahl(26) = 1;
    return s;
}

// Bayern chosen, Nikolaus ticked by hand, Sunday's colour and the ISO count changed, Sunday
// renamed through the name box.
void AllesAendern(FrmFeiertage& d, std::optional<Farbe> farbe) {
    d.farbeWaehlen = [farbe](Farbe) { return farbe; };
    Kind<QComboBox>(d, "ComboBundesland")->setCurrentText(QStringLiteral("Bayern"));
    Kind<QCheckBox>(d, "Check1_19")->click();
    Kind<QToolButton>(d, "PictureSonntag")->click();
    Kind<QRadioButton>(d, "OptionWochenIso")->click();
    Kind<QComboBox>(d, "ComboWochentag")->setCurrentIndex(0);
    Kind<QLineEdit>(d, "TextWochentag")->setText(QStringLiteral("So"));
}

TEST(FrmFeiertage, OkHandsOverSwitchesColoursAndWeekCount) {
    AppState s = Kalender();
    ProtokollOberflaeche ui;
    FrmFeiertage d(s, ui);
    EXPECT_EQ(d.windowTitle(), u"Optionen");
    EXPECT_TRUE(Kind<QCheckBox>(d, "Check1_0")->isChecked());
    EXPECT_EQ(Kind<QCheckBox>(d, "Check1_10")->text(), u"Chriti Himmelfahrt");
    EXPECT_EQ(Kind<QCheckBox>(d, "Check1_25")->text(), u"Reformationstag");
    EXPECT_TRUE(Kind<QCheckBox>(d, "Check1_25")->isChecked());
    EXPECT_EQ(Kind<QLineEdit>(d, "TextMonat")->text(), u"M1");
    EXPECT_FALSE(Kind<QLabel>(d, "PictureVorschau")->pixmap().isNull());

    AllesAendern(d, 0x0000C0);
    EXPECT_TRUE(Kind<QCheckBox>(d, "Check1_1")->isChecked());   // Hl. drei Könige in Bayern
    EXPECT_FALSE(Kind<QCheckBox>(d, "Check1_25")->isChecked()); // no Reformationstag there
    EXPECT_EQ(s.Wochentagsnamen(1), u"So");                     // names take effect as typed
    EXPECT_EQ(s.Wochentagsnamen(8), u"W8");
    EXPECT_EQ(s.FeiertagWahl(2), 0); // switches wait for Ok

    Kind<QPushButton>(d, "CommandOk")->click();
    EXPECT_EQ(d.result(), QDialog::Accepted);
    for (int schalter : {1, 2, 14, 15, 17, 20})
        EXPECT_EQ(s.FeiertagWahl(schalter), 1) << schalter;
    EXPECT_EQ(s.FeiertagWahl(26), 0);
    EXPECT_EQ(s.FarbeSonntag, 0x0000C0);
    EXPECT_TRUE(s.WochennummernIso);
    EXPECT_EQ(s.Bundesland, u"Bayern");
    EXPECT_EQ(s.Wochentagsnamen(8), u"So");
    EXPECT_TRUE(s.Feiertage(1, 1).isEmpty()); // nothing computed on Ok
}

TEST(FrmFeiertage, CancelKeepsSwitchesAndColoursButNotTypedNames) {
    AppState s = Kalender();
    const Farbe sonntag = s.FarbeSonntag;
    ProtokollOberflaeche ui;
    FrmFeiertage d(s, ui);
    AllesAendern(d, std::nullopt); // the colour dialog cancelled
    EXPECT_EQ(Kind<QToolButton>(d, "PictureSonntag")->property("farbe").toInt(), sonntag);
    Kind<QPushButton>(d, "CommandAbbrechen")->click();
    EXPECT_EQ(d.result(), QDialog::Rejected);
    EXPECT_EQ(s.FeiertagWahl(2), 0);
    EXPECT_EQ(s.FeiertagWahl(26), 1);
    EXPECT_EQ(s.FarbeSonntag, sonntag);
    EXPECT_FALSE(s.WochennummernIso);
    EXPECT_TRUE(s.Bundesland.isEmpty());
    EXPECT_EQ(s.Wochentagsnamen(1), u"So");
}

TEST(FrmFeiertage, BirthdaysFromAPickedFileAreCounted) {
    QTemporaryDir tmp;
    qputenv("XDG_DATA_HOME", tmp.filePath(QStringLiteral("leer")).toUtf8());
    AppState karten;
    karten.DatensatzAnzahl = 2;
    karten.Datensaetze.Redim(DatensatzFelder, 2);
    karten.Datensaetze(1, 1) = QStringLiteral("Eva");
    karten.Datensaetze(9, 1) = QStringLiteral("03.07.1990");
    karten.Datensaetze(1, 2) = QStringLiteral("Max");
    karten.Datensaetze(9, 2) = QStringLiteral("31.02.1990");
    const QString datei = tmp.filePath(QStringLiteral("adressen.dat"));
    ASSERT_TRUE(SchreibeDateiAtomar(datei, SchreibeDatenbank(karten)));

    AppState s = Kalender();
    s.Programmpfad = tmp.filePath(QStringLiteral("Kalender")) + u'/';
    s.Termine(3, 7) = QStringLiteral("Urlaub");
    ProtokollOberflaeche ui;
    ui.vorgabeDatei = datei;
    FrmFeiertage d(s, ui);
    Kind<QPushButton>(d, "CommandGeburtstage")->click();
    EXPECT_EQ(Kind<QLabel>(d, "LabelGeburtstage")->text(),
              u"1 Geburtstag übernommen. 1 ungültiges Datum ausgelassen.");
    EXPECT_EQ(s.Termine(3, 7), u"Urlaub\r\nEva (37)");
    EXPECT_GE(ui.neuzeichnen, 1);
}

TEST(FrmKalenderdesign, RowsPreviewsAndTheHookOfTheEditDialogs) {
    AppState s = Kalender();
    {
        FrmKalenderdesign ohne(s, {}, {});
        EXPECT_EQ(ohne.windowTitle(), u"Kalenderdesign");
        EXPECT_EQ(Kind<QPushButton>(ohne, "CommandOk")->text(), u"Ende");
        auto* tabs = Kind<QTabBar>(ohne, "TabStrip1");
        EXPECT_EQ(tabs->tabText(1), u"Rahmen");
        // Without the text and shape dialogs "ändern" is disabled and says why.
        EXPECT_FALSE(Kind<QPushButton>(ohne, "Command1_0")->isEnabled());
        EXPECT_FALSE(Kind<QPushButton>(ohne, "Command2_1")->toolTip().isEmpty());
        for (int i = 0; i < 7; ++i) {
            const QString name = QStringLiteral("Picture1_%1").arg(i);
            EXPECT_FALSE(ohne.findChild<QLabel*>(name)->pixmap().isNull()) << i;
        }
        // The title frame of Monat 1 is a thin rule under the title: the preview shows a rule, not
        // a filled box.
        const QImage titel = Kind<QLabel>(ohne, "Picture2_1")->pixmap().toImage();
        int dunkleZeilen = 0;
        for (int y = 0; y < titel.height(); ++y) {
            bool dunkel = false;
            for (int x = 0; x < titel.width(); ++x)
                dunkel = dunkel || QColor(titel.pixel(x, y)).lightness() < 128;
            dunkleZeilen += dunkel ? 1 : 0;
        }
        EXPECT_GE(dunkleZeilen, 1);
        EXPECT_LE(dunkleZeilen, 4);
        tabs->setCurrentIndex(1);
        Kind<QPushButton>(ohne, "CommandOk")->click();
        EXPECT_EQ(ohne.result(), QDialog::Accepted);
    }

    std::vector<int> geoeffnet;
    QImage vorher, zifferVorher;
    {
        FrmKalenderdesign d(s, {}, {});
        vorher = Kind<QLabel>(d, "Picture2_2")->pixmap().toImage();
        zifferVorher = Kind<QLabel>(d, "Picture1_2")->pixmap().toImage();
    }
    auto schrift = [&](AppState& st, int rahmen) {
        geoeffnet.push_back(rahmen);
        st.Schriftliste(rahmen).Color1 = 0xFF0000; // day numbers blue
        return st.SchriftNummer == rahmen;
    };
    auto linie = [&](AppState& st, int rahmen) {
        geoeffnet.push_back(rahmen);
        st.Linienliste(static_cast<int>(st.LinieNummer)).Color2 = 0xD0D0D0; // month frame light grey
        st.Linienliste(static_cast<int>(st.LinieNummer)).Füllung = -1;
        return true;
    };
    FrmKalenderdesign d(s, schrift, linie);
    EXPECT_FALSE(Kind<QPushButton>(d, "Command2_6")->isEnabled()); // Monat 1 has no week line
    Kind<QPushButton>(d, "Command1_2")->click();
    Kind<QPushButton>(d, "Command2_3")->click();
    EXPECT_EQ(geoeffnet, (std::vector<int>{3, 34}));
    EXPECT_EQ(s.SchriftNummer, 3);
    EXPECT_EQ(s.LinieNummer, 3);
    EXPECT_EQ(s.RahmenNummer, 34);
    EXPECT_NE(Kind<QLabel>(d, "Picture2_2")->pixmap().toImage(), vorher); // drawn again after Ok
    const QImage ziffer = Kind<QLabel>(d, "Picture1_2")->pixmap().toImage();
    EXPECT_NE(ziffer, zifferVorher);
    int blau = 0;
    for (int y = 0; y < ziffer.height(); ++y)
        for (int x = 0; x < ziffer.width(); ++x)
            blau += ziffer.pixelColor(x, y) == QColor(0, 0, 255) ? 1 : 0;
    EXPECT_GT(blau, 20); // the day number of the preview is blue now
    Kind<QPushButton>(d, "CommandOk")->click();
}

} // namespace
} // namespace zp::test
