// --importieren, --datensatz, --layout: the record panel of the card and label editions.
#include "app/Kommandozeile.h"

#include "core/Datensatzbefehle.h"
#include "core/Importbefehl.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <QFileInfo>

#include <cmath>

namespace {

using zp::Batchlauf;

// Like the menu's import; unlike the menu, a run without a window names what it can't import,
// since nobody sees that nothing came in.
bool Importiere(Batchlauf& lauf, const QString& datei) {
    if (const QString fehlt = zp::KeineDatei(datei); !fehlt.isEmpty()) {
        lauf.Fehler(fehlt);
        return false;
    }
    const QString endung = datei.right(3);
    if (endung != u"txt" && endung != u"eti") {
        lauf.Fehler(QStringLiteral("Importiert werden nur Textdateien (.txt) und Etikettendateien (.eti): %1")
                        .arg(datei));
        return false;
    }
    return zp::Importieren(lauf.s, lauf.ui, datei);
}

// A whole number in 1..hoechstens, else a message naming the range.
bool Nummer(const Batchlauf& lauf, const QString& text, int hoechstens, const QString& was, int* n) {
    const auto wert = zp::basic::ParseDouble(text);
    if (!wert || *wert != std::floor(*wert) || *wert < 1 || *wert > hoechstens) {
        lauf.Fehler(QStringLiteral("%1 \"%2\" gibt es nicht (1 bis %3).").arg(was, text).arg(hoechstens));
        return false;
    }
    *n = static_cast<int>(*wert);
    return true;
}

bool ZeigeDatensatzNummer(Batchlauf& lauf, const QString& text) {
    int n = 0;
    const int anzahl = std::max(1, static_cast<int>(lauf.s.DatensatzAnzahl));
    if (!Nummer(lauf, text, anzahl, QStringLiteral("Datensatz"), &n)) return false;
    zp::DatensatzNummerEingegeben(lauf.s, lauf.ui, QString::number(n));
    return true;
}

bool WendeLayoutAn(Batchlauf& lauf, const QString& text) {
    int k = 0;
    if (!Nummer(lauf, text, 5, QStringLiteral("Layout"), &k)) return false;
    return zp::LayoutKnopf(lauf.s, lauf.ui, k);
}

const bool importieren = zp::RegistriereOption(
    {QStringLiteral("--importieren"), QStringLiteral("DATEI"),
     QStringLiteral("Adressen aus einer Textdatei (.txt) oder alten Etikettendatei (.eti) übernehmen"),
     zp::OptionArt::Aktion, Importiere});
const bool datensatz = zp::RegistriereOption({QStringLiteral("--datensatz"), QStringLiteral("N"),
                                              QStringLiteral("den Datensatz N zeigen (Adressen)"),
                                              zp::OptionArt::Aktion, ZeigeDatensatzNummer});
const bool layout = zp::RegistriereOption({QStringLiteral("--layout"), QStringLiteral("K"),
                                           QStringLiteral("die Texte nach Layout K (1 bis 5) anordnen"),
                                           zp::OptionArt::Aktion, WendeLayoutAn});

} // namespace
