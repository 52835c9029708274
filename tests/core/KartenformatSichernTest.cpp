// The user's own catalogue rows survive the exit in every edition that has read the catalogue.
#include "core/Beenden.h"
#include "core/Programmordner.h"
#include "core/Seitenbefehle.h"
#include "core/Start.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "tests/core/state/ProtokollOberflaeche.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zp::test {
namespace {

struct Lauf {
    Lauf(const QTemporaryDir& ordner, const QString& edition) {
        QString fehler;
        EXPECT_TRUE(RichteProgrammordnerEin(ordner.path(), edition, QStringLiteral(ZP_DATEN_DIR), &fehler));
        Main(s, ordner.path(), ui);
    }
    AppState s;
    ProtokollOberflaeche ui;
};

TEST(KartenformatSichern, AnOwnRowEditedInTheCdEditionIsThereAtTheNextStart) {
    QTemporaryDir ordner;
    const QString katalog = ordner.filePath(QStringLiteral("etikett.ini"));
    {
        Lauf cd(ordner, QStringLiteral("CD-Hülle"));
        const QByteArray vorher = LeseDatei(katalog).value_or(QByteArray());
        ASSERT_FALSE(vorher.isEmpty());
        ASSERT_TRUE(Beenden(cd.s, cd.ui)); // the dialog never opened: the file is left alone
        EXPECT_EQ(LeseDatei(katalog).value_or(QByteArray()), vorher);
    }
    {
        Lauf cd(ordner, QStringLiteral("CD-Hülle"));
        SeiteDialogOeffnen(cd.s, cd.ui);
        ASSERT_GT(cd.s.KartenformatAnzahl, 5);
        ASSERT_TRUE(KartenformatGewaehlt(cd.s, 1));
        KartenfeldGetippt(cd.s, Kartenfeld::Breite, QStringLiteral("1180"), 1);
        KreisGesetzt(cd.s, true, 1);
        ASSERT_TRUE(Beenden(cd.s, cd.ui));
    }
    Lauf danach(ordner, QStringLiteral("CD-Hülle"));
    SeiteDialogOeffnen(danach.s, danach.ui);
    EXPECT_EQ(danach.s.KartenformatWerte(1, 1).trimmed(), u"1180");
    EXPECT_EQ(danach.s.KartenformatWerte(9, 1).trimmed(), u"1");
    EXPECT_TRUE(danach.s.KartenformatNamen(6).contains(u"70 x 37")); // the rows behind stay
    EXPECT_GT(danach.s.KartenformatAnzahl, 60);
}

} // namespace
} // namespace zp::test
