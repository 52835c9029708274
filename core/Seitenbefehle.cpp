#include "core/Seitenbefehle.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Papier.h"
#include "core/state/Verlauf.h"
#include "persist/Katalogdateien.h"

#include <QRegularExpression>
#include <cmath>
#include <limits>

namespace zp {

namespace {

int32_t Ganzzahl(double wert) {
    const double r = basic::RoundHalfEven(wert);
    if (!(r >= std::numeric_limits<int32_t>::min())) return std::numeric_limits<int32_t>::min();
    if (r > std::numeric_limits<int32_t>::max()) return std::numeric_limits<int32_t>::max();
    return static_cast<int32_t>(r);
}

// The numeric prefix of a box, rounded to a whole number.
int32_t Zahl(const QString& text) {
    return Ganzzahl(basic::Val(text));
}

int32_t& Feld(AppState& s, Kartenfeld feld) {
    ClassEtikett& e = s.EtikettKopie;
    switch (feld) {
    case Kartenfeld::Seitelinks:
        return e.Links;
    case Kartenfeld::SeiteOben:
        return e.Oben;
    case Kartenfeld::Breite:
        return e.Breite;
    case Kartenfeld::Hoehe:
        return e.Höhe;
    case Kartenfeld::AnzahlX:
        return e.Anzahl_x;
    case Kartenfeld::AnzahlY:
        return e.Anzahl_y;
    case Kartenfeld::AbstandX:
        return e.Abstand_x;
    case Kartenfeld::AbstandY:
        return e.Abstand_y;
    }
    return e.Breite;
}

constexpr int Arten[] = {0, 1, 4, 5, 3, 2};

QString Millimeter(double zehntel) {
    return QString::number(zehntel / 10, 'f', zehntel == std::floor(zehntel / 10) * 10 ? 0 : 1)
        .replace(u'.', u',');
}

// What keeps the copies from being printed: a paper or label without size, a sheet without labels,
// or a label that doesn't fit on the paper from its place. Empty when all is well.
QString Bogenfehler(const AppState& s) {
    const ClassSeite& seite = s.SeiteKopie;
    if (seite.Breite <= 0 || seite.Höhe <= 0)
        return QStringLiteral("Breite und Höhe des Papiers müssen größer als 0 sein.");
    const bool bogen = s.IstEtikett != 0 || s.IstVisitenkarte != 0 || s.IstCDHuelle != 0 ||
                       (s.IstKalender != 0 && s.Kalendertyp == 3);
    if (!bogen) return {};
    const ClassEtikett& e = s.EtikettKopie;
    const bool etikett = s.IstEtikett != 0;
    if (e.Breite <= 0 || e.Höhe <= 0)
        return etikett ? QStringLiteral("Breite und Höhe des Etiketts müssen größer als 0 sein.")
                       : QStringLiteral("Breite und Höhe der Karte müssen größer als 0 sein.");
    if (e.Anzahl_x < 1 || e.Anzahl_y < 1)
        return QStringLiteral("Die Anzahl waagerecht und senkrecht muss mindestens 1 sein.");
    if (static_cast<double>(seite.Randlinks) + e.Breite > seite.Breite ||
        static_cast<double>(seite.Randoben) + e.Höhe > seite.Höhe)
        return QStringLiteral(
                   "%1 von %2 x %3 mm passt ab %4 mm links und %5 mm oben nicht auf das Papier von "
                   "%6 x %7 mm.")
            .arg(etikett ? QStringLiteral("Ein Etikett") : QStringLiteral("Eine Karte"), Millimeter(e.Breite),
                 Millimeter(e.Höhe), Millimeter(seite.Randlinks), Millimeter(seite.Randoben),
                 Millimeter(seite.Breite), Millimeter(seite.Höhe));
    return {};
}

} // namespace

Seitendialogtexte SeitendialogTexte(Edition e) {
    Seitendialogtexte t;
    t.tabs = {QStringLiteral("Seite"), QStringLiteral("Kartendesign"), QStringLiteral("Kartenformat"),
              QStringLiteral("Raster")};
    t.Kartenformat = QStringLiteral("Kartenformat");
    t.Kartenbreite = QStringLiteral("Kartenbreite");
    t.Kartenhoehe = QStringLiteral("Kartenhöhe");
    t.AbstandX = QStringLiteral("Abstand zur rechten Karte");
    t.AbstandY = QStringLiteral("Abstand zur unteren Karte");
    if (e == Edition::Kalender) {
        t.tabs[1] = QStringLiteral("Taschenkalender");
        t.sichtbar[2] = false;
    } else if (e == Edition::Etikett) {
        t.tabs = {QStringLiteral("Etikettenformat"), QStringLiteral("Etikettendesign"), t.tabs[2],
                  QStringLiteral("Text")};
        t.sichtbar[2] = false;
        t.etikettenAufFormat = true;
        t.Kartenformat = QStringLiteral("Etikettenformat");
        t.Kartenbreite = QStringLiteral("Etikettenbreite");
        t.Kartenhoehe = QStringLiteral("Etikettenhöhe");
        t.AbstandX = QStringLiteral("Abstand zum rechten Etikett");
        t.AbstandY = QStringLiteral("Abstand zum linken Etikett");
    }
    return t;
}

int KatalogSpalte(Kartenfeld feld) {
    static constexpr int spalten[KartenfeldAnzahl] = {7, 8, 1, 2, 3, 4, 5, 6};
    return spalten[static_cast<int>(feld)];
}

int32_t Kartenwert(const AppState& s, Kartenfeld feld) {
    // The first label's place is the page's margin on a sheet.
    if (feld == Kartenfeld::Seitelinks) return s.SeiteKopie.Randlinks;
    if (feld == Kartenfeld::SeiteOben) return s.SeiteKopie.Randoben;
    return Feld(const_cast<AppState&>(s), feld);
}

void SeiteDialogOeffnen(AppState& s, Oberflaeche& ui) {
    s.SeiteKopie = s.AktuelleSeite;
    s.EtikettKopie = s.AktuellesEtikett;
    if (s.IstEtikett == 0 && s.KartenformatAnzahl == 0) LoadKartenformate(s, ui);
}

std::optional<Kartenboxen> KartenformatGewaehlt(AppState& s, int zeile) {
    if (zeile < 1 || !WendeKartenformatAn(s, zeile)) return std::nullopt;
    s.EtikettKopie.Links = s.SeiteKopie.Randlinks;
    s.EtikettKopie.Oben = s.SeiteKopie.Randoben;
    s.EtikettKopie.Vorlage = zeile;
    Kartenboxen boxen;
    for (int i = 0; i < KartenfeldAnzahl; ++i)
        boxen.texte[static_cast<size_t>(i)] = QString::number(Kartenwert(s, static_cast<Kartenfeld>(i)));
    boxen.kreis = s.EtikettKopie.Form == 1;
    return boxen;
}

void KartenfeldGetippt(AppState& s, Kartenfeld feld, const QString& text, int zeile) {
    const int32_t wert = Zahl(text);
    Feld(s, feld) = wert;
    // The first label's place is what the sheet geometry reads.
    if (feld == Kartenfeld::Seitelinks) s.SeiteKopie.Randlinks = wert;
    if (feld == Kartenfeld::SeiteOben) s.SeiteKopie.Randoben = wert;
    MerkeKartenformatwert(s, zeile, KatalogSpalte(feld), wert);
}

void KreisGesetzt(AppState& s, bool rund, int zeile) {
    s.EtikettKopie.Form = rund ? 1 : 0;
    MerkeKartenformatwert(s, zeile, 9, s.EtikettKopie.Form);
}

bool PapierGewaehlt(AppState& s, const QString& papier) {
    s.SeiteKopie.Papier = papier;
    return WendePapierAn(s.SeiteKopie);
}

void PapiergroesseGetippt(AppState& s, bool breite, const QString& text) {
    (breite ? s.SeiteKopie.Breite : s.SeiteKopie.Höhe) = Zahl(text);
    s.SeiteKopie.Papier = Papiernamen().last();
}

void RandGetippt(AppState& s, Seitenrand rand, const QString& text) {
    const int32_t wert = Zahl(text);
    switch (rand) {
    case Seitenrand::Links:
        s.SeiteKopie.Randlinks = wert;
        break;
    case Seitenrand::Rechts:
        s.SeiteKopie.Randrechts = wert;
        break;
    case Seitenrand::Oben:
        s.SeiteKopie.Randoben = wert;
        break;
    case Seitenrand::Unten:
        s.SeiteKopie.Randunten = wert;
        break;
    }
}

QStringList Hintergrundarten() {
    return {QStringLiteral("kein Hintergrund"),
            QStringLiteral("Hintergrundfarbe"),
            QStringLiteral("Bilddatei"),
            QStringLiteral("Muster"),
            QStringLiteral("Farbverlauf oben/unten"),
            QStringLiteral("Farbverlauf links/rechts")};
}

int HintergrundartVonOption(int option) {
    return option >= 0 && option < 6 ? Arten[option] : 0;
}

int OptionVonHintergrundart(int art) {
    for (int i = 0; i < 6; ++i)
        if (Arten[i] == art) return i;
    return 0;
}

void HintergrundartGewaehlt(AppState& s, int option) {
    const int art = HintergrundartVonOption(option);
    s.EtikettKopie.Farbüberlauf = art;
    s.SeiteKopie.BackTyp = static_cast<int16_t>(art);
    // An own picture is drawn only with a pattern number set (the background reads it so).
    if (art == 4 && s.EtikettKopie.Muster < 1) s.EtikettKopie.Muster = 1;
}

void DesignGewaehlt(AppState& s, int design) {
    s.EtikettKopie.Design = design;
    if (design > 0 && s.EtikettKopie.Farbe3 == 0xFFFFFF) s.EtikettKopie.Farbe3 = Designfarbe;
}

bool SeiteUebernehmen(AppState& s, Oberflaeche& ui, const Seitendialogwerte& w) {
    const std::optional<double> rasterX = basic::ParseDouble(w.Textrasterx);
    const std::optional<double> rasterY = basic::ParseDouble(w.Textrastery);
    if (!rasterX || !rasterY || *rasterX <= 0 || *rasterY <= 0) {
        ui.Meldung(QStringLiteral("Rasterbreite und Rasterhöhe müssen Zahlen größer als 0 sein."),
                   QStringLiteral("Hinweis"));
        return false;
    }
    const std::optional<double> export_ = basic::ParseDouble(w.TextExport);
    if (!export_) {
        ui.Meldung(QStringLiteral("Der Zoom für den Export muss eine Zahl sein."), QStringLiteral("Hinweis"));
        return false;
    }
    if (const QString fehler = Bogenfehler(s); !fehler.isEmpty()) {
        ui.Meldung(fehler, QStringLiteral("Hinweis"));
        return false;
    }

    VerlaufMerken(s); // page and sheet go back with Rückgängig
    ClassSeite& seite = s.AktuelleSeite;
    const ClassSeite& k = s.SeiteKopie;
    seite.Breite = k.Breite;
    seite.Höhe = k.Höhe;
    seite.Randlinks = k.Randlinks;
    seite.Randoben = k.Randoben;
    seite.Randrechts = k.Randrechts;
    seite.Randunten = k.Randunten;
    seite.Papier = k.Papier;
    seite.Querformat = k.Querformat;
    seite.BackTyp = k.BackTyp;
    seite.BackFarbe = k.BackFarbe;
    seite.BackFarbe2 = k.BackFarbe2;
    seite.BackFarbverlaufart = k.BackFarbverlaufart;
    seite.BackBereich = k.BackBereich;
    seite.BackBilddatei = k.BackBilddatei;
    s.AktuellesEtikett = s.EtikettKopie;

    s.Rasterbreite = *rasterX;
    s.Rasterhoehe = *rasterY;
    s.GitterX = *rasterX;
    s.GitterY = *rasterY;
    s.ZoomExport = std::max(*export_, 0.5);
    ui.ZoomAktualisieren();
    ui.Neuzeichnen();
    return true;
}

QList<int> SucheKartenformate(const AppState& s, const QString& suche) {
    const int anzahl =
        static_cast<int>(std::min<double>(s.KartenformatAnzahl, s.KartenformatNamen.Obergrenze()));
    const QString text = suche.trimmed();
    static const QRegularExpression groesse(
        QStringLiteral(R"(^(\d+(?:[.,]\d+)?)\s*[xX×]\s*(\d+(?:[.,]\d+)?)$)"));
    const QRegularExpressionMatch m = groesse.match(text);
    QList<int> zeilen;
    for (int z = 1; z <= anzahl; ++z) {
        bool passt = text.isEmpty() || s.KartenformatNamen(z).contains(text, Qt::CaseInsensitive);
        if (!passt && m.hasMatch() && s.KartenformatWerte.Gueltig(2, z)) {
            const double b = basic::ParseDouble(m.captured(1)).value_or(-1) * 10;
            const double h = basic::ParseDouble(m.captured(2)).value_or(-1) * 10;
            const double kb = basic::ParseDouble(s.KartenformatWerte(1, z)).value_or(-100);
            const double kh = basic::ParseDouble(s.KartenformatWerte(2, z)).value_or(-100);
            passt = std::abs(kb - b) <= 5 && std::abs(kh - h) <= 5;
        }
        if (passt) zeilen << z;
    }
    return zeilen;
}

} // namespace zp
