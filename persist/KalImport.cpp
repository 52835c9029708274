#include "persist/KalImport.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"

namespace zp {

std::vector<KalEintrag> KalLesen(const QByteArray& bytes) {
    ZeilenLeser r(bytes);
    for (int i = 0; i < 30; ++i)
        (void)r.ReadLine(); // settings of the old version that this program has no use for
    const QString zeile = r.ReadLine();

    std::vector<KalEintrag> eintraege;
    qsizetype anfang = 0;
    for (;;) {
        const qsizetype ende = zeile.indexOf(QLatin1Char('|'), anfang);
        if (ende < 0) break;
        const QString eintrag = zeile.mid(anfang, ende - anfang);
        if (eintrag.size() < 5) break;
        // The day is the first two characters ("5." reads as 5); the month stands behind the point.
        const qsizetype punkt = eintrag.indexOf(QLatin1Char('.'));
        KalEintrag e;
        e.tag = static_cast<int>(basic::Val(eintrag.left(2)));
        e.monat = static_cast<int>(basic::Val(eintrag.mid(punkt + 1, 2)));
        e.text = eintrag.mid(punkt + 3);
        if (e.tag < 1 || e.tag > 31 || e.monat < 1 || e.monat > 12)
            r.Fehler(QStringLiteral("Der Eintrag \"%1\" hat keinen gültigen Tag und Monat.")
                         .arg(eintrag.left(40)));
        eintraege.push_back(std::move(e));
        anfang = ende + 1;
    }
    return eintraege;
}

} // namespace zp
