#include "app/Druckoptionen.h"

#include "app/Kommandozeile.h"
#include "core/state/AppState.h"

#include <QRegularExpression>

namespace zp {

std::optional<double> LeseZahl(const QString& text) {
    bool ok = false;
    const long long wert = text.trimmed().toLongLong(&ok);
    if (!ok) return std::nullopt;
    return static_cast<double>(wert);
}

bool LeseAdressen(const QString& text, Druckwahl& wahl, QString& fehler) {
    const QString t = text.trimmed();
    if (t.compare(QStringLiteral("aktiv"), Qt::CaseInsensitive) == 0) {
        wahl.Adressen = Adresswahl::Aktiv;
        return true;
    }
    if (t.compare(QStringLiteral("alle"), Qt::CaseInsensitive) == 0) {
        wahl.Adressen = Adresswahl::Alle;
        return true;
    }
    if (t.startsWith(QStringLiteral("kategorie:"), Qt::CaseInsensitive)) {
        wahl.Adressen = Adresswahl::Kategorie;
        wahl.Kategorie = t.mid(10);
        return true;
    }
    static const QRegularExpression bereich(QStringLiteral("^(\\d+)\\s*-\\s*(\\d+)$"));
    const QRegularExpressionMatch m = bereich.match(t);
    if (m.hasMatch()) {
        wahl.Adressen = Adresswahl::Bereich;
        wahl.Von = m.captured(1);
        wahl.Bis = m.captured(2);
        return true;
    }
    fehler = QStringLiteral("--adressen erwartet aktiv, alle, VON-BIS oder kategorie:TEXT, nicht \"%1\".")
                 .arg(text);
    return false;
}

std::optional<std::pair<double, double>> LeseAbgleich(const QString& text) {
    const QStringList teile = text.split(u',');
    if (teile.size() != 2) return std::nullopt;
    bool okX = false, okY = false;
    const double x = teile[0].trimmed().toDouble(&okX);
    const double y = teile[1].trimmed().toDouble(&okY);
    if (!okX || !okY) return std::nullopt;
    return std::make_pair(x, y);
}

Druckdialogwerte DruckwerteAusOptionen(const Batchlauf& lauf) {
    AppState& s = lauf.s;
    Druckdialogwerte w;
    w.Kopien = lauf.Wert(QStringLiteral("--kopien"), QStringLiteral("1"));
    w.TextSeriennummer = lauf.Wert(QStringLiteral("--seriennummer"), QStringLiteral("1"));
    w.EineKarte = !lauf.Hat(QStringLiteral("--seite-drucken"));
    Druckwahl wahl;
    QString fehler;
    if (lauf.Hat(QStringLiteral("--adressen")))
        (void)LeseAdressen(lauf.Wert(QStringLiteral("--adressen")), wahl, fehler);
    w.Adressen = static_cast<int>(wahl.Adressen);
    w.Von = wahl.Von;
    w.Bis = wahl.Bis;
    w.Kategorie = wahl.Kategorie;
    w.TextDruckStart = lauf.Wert(QStringLiteral("--von"), QStringLiteral("1"));
    w.TextDruckEnde = lauf.Wert(QStringLiteral("--bis"));
    w.TextProzent = lauf.Wert(QStringLiteral("--prozent"), QStringLiteral("100"));
    // Without the option the box shows the state's first label, as the dialog does.
    w.TextStart = lauf.Wert(QStringLiteral("--erstes-etikett"), QString::number(s.ErstesEtikett));

    if (lauf.Hat(QStringLiteral("--schnittmarken"))) s.AktuellesEtikett.Schnittmarken = -1;
    if (lauf.Hat(QStringLiteral("--schnittrahmen"))) s.AktuellesEtikett.Schnittrahmen = -1;
    if (const auto abgleich = LeseAbgleich(lauf.Wert(QStringLiteral("--abgleich")))) {
        s.AbgleichX = abgleich->first;
        s.AbgleichY = abgleich->second;
    }
    return w;
}

} // namespace zp
