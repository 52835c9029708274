#include "persist/Design.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Objekte.h"
#include "core/state/Verlauf.h"
#include "persist/Rahmensatz.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace zp {

namespace {

const QString Kennung = QStringLiteral("ZP Datenfile");
constexpr double Dateiversion = 800;

// ---- Writing ------------------------------------------------------------------------------

void SchreibeSchrift(ZeilenSchreiber& w, const ClassSchrift& t) {
    w.WriteLine(t.Angle);
    w.WriteLine(t.AusrichtungH);
    w.WriteLine(t.AusrichtungV);
    w.WriteBool(t.Bold != 0);
    w.WriteLine(t.CharSpace);
    w.WriteLine(t.Color1);
    w.WriteLine(t.Color2);
    w.WriteLine(t.ColorCircle);
    w.WriteLine(t.Data);
    w.WriteLine(t.fontname);
    w.WriteDouble(t.FontSize);
    w.WriteDouble(t.Height);
    w.WriteBool(t.Italic != 0);
    w.WriteLine(t.ShadowAngle);
    w.WriteLine(t.ShadowColor1);
    w.WriteLine(t.ShadowColor2);
    w.WriteLine(t.ShadowDeep);
    w.WriteLine(t.ShadowType);
    w.WriteLine(t.ShadowWay);
    w.WriteBool(t.Strike != 0);
    w.WriteLine(t.Textstring); // line breaks of the text go out as they stand
    w.WriteDouble(t.Top);
    w.WriteBool(t.Underline != 0);
    w.WriteDouble(t.widht);
    w.WriteDouble(t.X);
    w.WriteLine(t.z);
    w.WriteBool(t.Sichtbar != 0);
}

void SchreibeBild(ZeilenSchreiber& w, const ClassBild& b) {
    w.WriteLine(b.Effekt);
    w.WriteLine(b.EffektMosaik);
    w.WriteLine(b.EffektPixel);
    w.WriteLine(b.EffektTrapez);
    w.WriteLine(b.Farbintensität);
    w.WriteLine(b.Farbverschiebung);
    w.WriteLine(b.File);
    w.WriteLine(b.File_Dir);
    w.WriteLine(b.File_Name);
    w.WriteLine(b.File_Path);
    w.WriteBool(b.Gray != 0);
    w.WriteLine(b.Helligkeit);
    w.WriteBool(b.Invert != 0);
    w.WriteLine(b.Kontrast);
    w.WriteLine(b.Rotate);
    w.WriteLine(b.Schärfe);
    w.WriteLine(b.bilddaten);
}

void SchreibeLinie(ZeilenSchreiber& w, const ClassLinie& l) {
    w.WriteLine(l.Angle);
    w.WriteLine(l.Color1);
    w.WriteLine(l.Color2);
    w.WriteLine(l.ColorCircle);
    w.WriteLine(l.Form);
    w.WriteBool(l.Füllung != 0);
    w.WriteSingle(static_cast<float>(l.Height));
    w.WriteLine(l.ShadowAngle);
    w.WriteLine(l.ShadowColor1);
    w.WriteLine(l.ShadowColor2);
    w.WriteLine(l.ShadowDeep);
    w.WriteLine(l.ShadowType);
    w.WriteLine(l.ShadowWay);
    w.WriteLine(l.Stärke);
    w.WriteSingle(static_cast<float>(l.widht));
    w.WriteSingle(static_cast<float>(l.X));
    w.WriteSingle(static_cast<float>(l.Y));
}

void SchreibeBogen(ZeilenSchreiber& w, const ClassEtikett& e) {
    w.WriteLine(e.Bilddatei);
    w.WriteLine(e.Design);
    w.WriteLine(e.Designbreite);
    w.WriteLine(e.Drehung);
    w.WriteLine(e.Farbe1);
    w.WriteLine(e.Farbe2);
    w.WriteLine(e.Farbe3);
    w.WriteLine(e.Farbüberlauf);
    w.WriteLine(e.Form);
    w.WriteLine(e.Maskendatei);
    w.WriteLine(e.Muster);
    w.WriteLine(e.Rahmen);
    for (const int32_t v : {e.Abstand_x, e.Abstand_y, e.Anzahl_x, e.Anzahl_y, e.Breite, e.Höhe, e.Links,
                            e.Oben, e.Randlinks, e.Randoben, e.Randrechts, e.Randunten, e.Vorlage})
        w.WriteLine(v);
    w.WriteBool(e.Schnittmarken != 0);
    w.WriteBool(e.Schnittrahmen != 0);
}

// ---- Reading ------------------------------------------------------------------------------

int32_t AlsInt32(ZeilenLeser& r, double v) {
    if (v < std::numeric_limits<int32_t>::min() || v > std::numeric_limits<int32_t>::max())
        r.Fehler(QStringLiteral("Die Zahl ist zu groß."));
    return static_cast<int32_t>(v);
}
// A single stored into a 32-bit integer field: rounded as the runtime rounds.
int32_t SingleAlsInt32(ZeilenLeser& r) {
    return AlsInt32(r, basic::RoundHalfEven(r.LeseSingle()));
}
double Gekappt(double v) {
    return std::floor(v);
}

// Everything the file holds, parsed before the document is touched.
struct Designinhalt {
    double version = 0;
    QString zeile5;
    double kalendertyp = 0;
    std::vector<ClassRahmen> rahmen;
    std::vector<ClassSchrift> schriften;
    std::vector<ClassBild> bilder;
    std::vector<ClassLinie> linien;
    std::vector<QString> rtf;
    std::optional<ClassEtikett> bogen;
    std::optional<Tabelle<QString>> datensaetze;
    double datensatzAnzahl = 0;
};

bool IstVorlagenladung(const AppState& s) {
    return !s.Ladevorgabe.isEmpty() && s.Ladevorgabe != u"neu";
}

// The installed font named `name`, or "Arial" when no row of the font list (1 to 998) holds it.
QString PruefeSchrift(AppState& s, const QString& name) {
    const int grenze = std::min(999, s.Schriftenliste.Obergrenze() + 1);
    for (int k = 1; k < grenze; ++k) {
        QString& zeile = s.Schriftenliste(k);
        zeile = zeile.trimmed();
        if (zeile == name) return name;
    }
    return QStringLiteral("Arial");
}

ClassSchrift LeseSchrift(ZeilenLeser& r, AppState& s, int i) {
    ClassSchrift t;
    t.Angle = r.LeseInt16();
    t.AusrichtungH = r.LeseInt16();
    t.AusrichtungV = r.LeseInt16();
    t.Bold = r.LeseBool();
    t.CharSpace = r.LeseInt16();
    t.Color1 = r.LeseInt32();
    t.Color2 = r.LeseInt32();
    t.ColorCircle = r.LeseInt16();
    t.Data = r.LeseInt16();
    t.fontname = PruefeSchrift(s, r.ReadLine());
    t.FontSize = r.LeseDouble();
    t.Height = Gekappt(r.LeseDouble());
    t.Italic = r.LeseBool();
    t.ShadowAngle = r.LeseInt16();
    t.ShadowColor1 = r.LeseInt32();
    t.ShadowColor2 = r.LeseInt32();
    t.ShadowDeep = r.LeseInt16();
    t.ShadowType = r.LeseInt16();
    t.ShadowWay = r.LeseInt16();
    t.Strike = r.LeseBool();
    const QString text = r.ReadLine();
    // A template keeps what the user has typed into the panel's boxes.
    t.Textstring = IstVorlagenladung(s) && i <= 30 ? s.Panel.Text1(i) : text;
    // Further lines of a multi-line text are passed over up to the `Top` line, which is the first
    // that is "0" or starts with a number other than zero.
    for (;;) {
        const QString zeile = r.ReadLine();
        if (zeile == u"0" || basic::Val(zeile) != 0) {
            t.Top = basic::Val(zeile);
            break;
        }
    }
    t.Underline = r.LeseBool();
    t.widht = Gekappt(r.LeseDouble());
    t.X = Gekappt(r.LeseDouble());
    t.z = r.LeseInt16();
    t.Sichtbar = r.LeseBool();
    return t;
}

ClassBild LeseBild(ZeilenLeser& r, double version) {
    ClassBild b;
    b.Effekt = r.ReadLine();
    b.EffektMosaik = r.LeseInt32();
    b.EffektPixel = r.LeseInt32();
    b.EffektTrapez = r.LeseInt16();
    b.Farbintensität = r.LeseInt32();
    b.Farbverschiebung = r.LeseInt16();
    b.File = r.ReadLine();
    b.File_Dir = r.ReadLine();
    b.File_Name = r.ReadLine();
    b.File_Path = r.ReadLine();
    b.Gray = r.LeseBool();
    b.Helligkeit = r.LeseInt16();
    b.Invert = r.LeseBool();
    b.Kontrast = r.LeseInt16();
    b.Rotate = r.LeseInt32();
    b.Schärfe = r.LeseInt16();
    if (version > 799) b.bilddaten = r.LeseInt16();
    return b;
}

ClassLinie LeseLinie(ZeilenLeser& r) {
    ClassLinie l;
    l.Angle = r.LeseInt16();
    l.Color1 = r.LeseInt32();
    l.Color2 = r.LeseInt32();
    l.ColorCircle = r.LeseInt16();
    l.Form = r.LeseInt16();
    l.Füllung = r.LeseBool();
    l.Height = SingleAlsInt32(r);
    l.ShadowAngle = r.LeseInt16();
    l.ShadowColor1 = r.LeseInt32();
    l.ShadowColor2 = r.LeseInt32();
    l.ShadowDeep = r.LeseInt16();
    l.ShadowType = r.LeseInt16();
    l.ShadowWay = r.LeseInt16();
    l.Stärke = r.LeseInt16();
    l.widht = SingleAlsInt32(r);
    l.X = SingleAlsInt32(r);
    l.Y = SingleAlsInt32(r);
    return l;
}

// The sheet block. Lines that this load doesn't take are read all the same, to stay in step.
ClassEtikett LeseBogen(ZeilenLeser& r, const AppState& s) {
    ClassEtikett e = s.AktuellesEtikett;
    const bool eigeneDatei = s.Ladevorgabe.isEmpty();
    e.Bilddatei = r.ReadLine();
    e.Design = r.LeseInt32();
    e.Designbreite = r.LeseInt32();
    e.Drehung = r.LeseInt32();
    e.Farbe1 = r.LeseInt32();
    e.Farbe2 = r.LeseInt32();
    e.Farbe3 = r.LeseInt32();
    e.Farbüberlauf = r.LeseInt32();
    const int32_t form = r.LeseInt32();
    if (eigeneDatei) e.Form = form;
    e.Maskendatei = r.ReadLine();
    e.Muster = r.LeseInt32();
    e.Rahmen = r.LeseInt32();
    // The geometry belongs to the sheet only in the Etikett edition; elsewhere the settings keep it.
    const bool geometrie = s.IstEtikett != 0 && eigeneDatei;
    for (int32_t* feld : {&e.Abstand_x, &e.Abstand_y, &e.Anzahl_x, &e.Anzahl_y, &e.Breite, &e.Höhe, &e.Links,
                          &e.Oben, &e.Randlinks, &e.Randoben, &e.Randrechts, &e.Randunten, &e.Vorlage}) {
        const int32_t v = r.LeseInt32();
        if (geometrie) *feld = v;
    }
    const int16_t marken = r.LeseBool();
    const int16_t schnittrahmen = r.LeseBool();
    if (geometrie) {
        e.Schnittmarken = marken;
        e.Schnittrahmen = schnittrahmen;
    }
    return e;
}

Designinhalt ParseDesign(AppState& s, const QByteArray& bytes) {
    ZeilenLeser r(bytes);
    Designinhalt d;
    if (r.AtEndOfStream() || r.ReadLine() != Kennung)
        throw FormatFehler(1, QStringLiteral("Die erste Zeile ist nicht „%1“.").arg(Kennung));
    r.ReadLine(); // the edition that wrote the file
    d.version = r.LeseDouble();
    d.kalendertyp = r.LeseVal();
    d.zeile5 = r.ReadLine();
    for (int i = 6; i <= 9; ++i)
        r.ReadLine();

    r.ReadLine(); // "Rahmen"; section titles are not checked
    const int rahmen = r.LeseAnzahl(d.version > 799 ? 11 : 10);
    for (int i = 1; i <= rahmen; ++i)
        d.rahmen.push_back(LeseRahmensatz(r, d.version));

    r.ReadLine(); // "Schrift"
    const int schriften = r.LeseAnzahl(27);
    for (int i = 1; i <= schriften; ++i)
        d.schriften.push_back(LeseSchrift(r, s, i));

    r.ReadLine(); // "Bild"
    const int bilder = r.LeseAnzahl(d.version > 799 ? 17 : 16);
    for (int i = 1; i <= bilder; ++i)
        d.bilder.push_back(LeseBild(r, d.version));

    r.ReadLine(); // "Linie"
    const int linien = r.LeseAnzahl(17);
    for (int i = 1; i <= linien; ++i)
        d.linien.push_back(LeseLinie(r));

    r.ReadLine(); // "RTF"
    const int rtf = r.LeseAnzahl(1);
    for (int i = 1; i <= rtf; ++i)
        d.rtf.push_back(r.ReadLine());

    if (d.version > 700) d.bogen = LeseBogen(r, s);

    // Records: in the Etikett edition always; in the Visitenkarte edition from version 704 on and
    // never from a shipped template, so that a template can't replace the user's addresses.
    if ((s.IstVisitenkarte != 0 && d.zeile5 != u"Vorlage" && d.version > 703) || s.IstEtikett != 0) {
        const int spalten = d.version > 799 ? 30 : 20;
        const int anzahl = r.LeseAnzahl(spalten);
        Tabelle<QString> tabelle(30, anzahl);
        for (int satz = 1; satz <= anzahl; ++satz)
            for (int spalte = 1; spalte <= spalten; ++spalte)
                tabelle(spalte, satz) = r.ReadLine();
        d.datensaetze = std::move(tabelle);
        d.datensatzAnzahl = anzahl;
    }
    return d;
}

// Puts the parsed document in place of the old one (steps after the file has been read).
void UebernehmeDesign(AppState& s, Designinhalt& d) {
    if (d.kalendertyp >= 1.0) s.Kalendertyp = d.kalendertyp;

    // Frames: the list never shrinks; slots above the count are released.
    const int rahmen = static_cast<int>(d.rahmen.size());
    if (rahmen > s.Rahmenliste.Obergrenze()) s.Rahmenliste.RedimPreserve(rahmen);
    for (int i = 1; i <= s.Rahmenliste.Obergrenze(); ++i)
        s.Rahmenliste(i) = i <= rahmen ? d.rahmen[i - 1] : ClassRahmen{};
    s.RahmenAnzahl = rahmen;

    const int schriften = static_cast<int>(d.schriften.size());
    s.Schriftliste.Redim(schriften);
    for (int i = 1; i <= schriften; ++i)
        s.Schriftliste(i) = d.schriften[i - 1];
    s.SchriftMax = schriften;

    // Pictures and shapes: a count of 0 leaves the list's size as it was.
    const int bilder = static_cast<int>(d.bilder.size());
    if (bilder > 0) {
        s.Bildliste.RedimPreserve(bilder);
        for (int i = 1; i <= bilder; ++i)
            s.Bildliste(i) = d.bilder[i - 1];
    }
    s.BildAnzahl = bilder;

    const int linien = static_cast<int>(d.linien.size());
    for (int i = 1; i <= s.Linienliste.Obergrenze(); ++i)
        s.Linienliste(i) = ClassLinie{};
    if (linien > 0) {
        s.Linienliste.RedimPreserve(linien);
        for (int i = 1; i <= linien; ++i)
            s.Linienliste(i) = d.linien[i - 1];
    }
    s.LinieAnzahl = linien;

    const int rtf = static_cast<int>(d.rtf.size());
    s.RTFliste.Redim(rtf);
    for (int i = 1; i <= rtf; ++i)
        s.RTFliste(i) = d.rtf[i - 1];
    s.RTFAnzahl = rtf;

    if (d.bogen) s.AktuellesEtikett = *d.bogen;
    if (d.datensaetze) {
        s.Datensaetze = std::move(*d.datensaetze);
        s.DatensatzAnzahl = d.datensatzAnzahl;
        s.DatensatzNummer = 1;
    }
}

// Card designs from before version 800 get the logo frame that version introduced: a picture
// frame fed from the address record.
void FuegeLogorahmenHinzu(AppState& s) {
    if (s.BildAnzahl >= s.Bildliste.Obergrenze()) s.Bildliste.RedimPreserve(s.Bildliste.Obergrenze() + 1);
    s.BildAnzahl += 1;
    const int bild = static_cast<int>(s.BildAnzahl);
    ErzeugeBild(s, bild);
    const int n = static_cast<int>(s.RahmenAnzahl) + 1;
    ErzeugeRahmen(s, n, QStringLiteral("Bild"), bild);
    ClassBild& b = s.Bildliste(bild);
    b.bilddaten = 1;
    b.File = QStringLiteral("C:\\test.jpg");
    ClassRahmen& r = s.Rahmenliste(n);
    r.bilddaten = 1;
    r.X = 400;
    r.Y = 1;
    r.Breite = 100;
    r.Höhe = 100;
}

void SetzeSichtbar(AppState& s, int rahmen, Wahrheit wert) {
    if (s.Rahmenliste.Gueltig(rahmen) && rahmen >= 1) s.Rahmenliste(rahmen).Sichtbar = wert;
}

} // namespace

QByteArray SchreibeDesign(const AppState& s) {
    ZeilenSchreiber w;
    w.WriteLine(Kennung);
    w.WriteLine(s.Programmname);
    w.WriteDouble(Dateiversion);
    w.WriteLine(basic::Str(s.Kalendertyp).trimmed());
    for (int i = 5; i <= 9; ++i)
        w.WriteLine(QStringLiteral("Reserve"));

    const int rahmen = static_cast<int>(s.RahmenAnzahl);
    w.WriteLine(QStringLiteral("Rahmen"));
    w.WriteDouble(s.RahmenAnzahl);
    for (int i = 1; i <= rahmen; ++i)
        SchreibeRahmensatz(w, s.Rahmenliste(i), Dateiversion);

    w.WriteLine(QStringLiteral("Schrift"));
    w.WriteDouble(s.SchriftMax);
    for (int i = 1; i <= static_cast<int>(s.SchriftMax); ++i)
        SchreibeSchrift(w, s.Schriftliste(i));

    w.WriteLine(QStringLiteral("Bild"));
    w.WriteDouble(s.BildAnzahl);
    for (int i = 1; i <= static_cast<int>(s.BildAnzahl); ++i)
        SchreibeBild(w, s.Bildliste(i));

    w.WriteLine(QStringLiteral("Linie"));
    w.WriteDouble(s.LinieAnzahl);
    for (int i = 1; i <= static_cast<int>(s.LinieAnzahl); ++i)
        SchreibeLinie(w, s.Linienliste(i));

    w.WriteLine(QStringLiteral("RTF"));
    w.WriteDouble(s.RTFAnzahl);
    for (int i = 1; i <= static_cast<int>(s.RTFAnzahl); ++i)
        w.WriteLine(s.RTFliste(i));

    SchreibeBogen(w, s.AktuellesEtikett);

    if (s.IstVisitenkarte != 0 || s.IstEtikett != 0) {
        w.WriteDouble(s.DatensatzAnzahl);
        const Tabelle<QString>& d = s.Datensaetze;
        for (int satz = 1; satz <= static_cast<int>(s.DatensatzAnzahl); ++satz)
            for (int spalte = 1; spalte <= 30; ++spalte)
                w.WriteLine(d.Gueltig(spalte, satz) ? d(spalte, satz) : QString());
    }
    w.WriteLine(QStringLiteral("-1"));
    return w.Bytes();
}

bool DesignLesbar(const AppState& s, const QByteArray& bytes) {
    AppState probe = s; // the parse looks at the edition and the font list, and may note fonts
    try {
        (void)ParseDesign(probe, bytes);
        return true;
    } catch (const FormatFehler&) {
        return false;
    }
}

bool LadeDesignAusBytes(AppState& s, Oberflaeche& ui, const QByteArray& bytes) {
    Designinhalt d;
    try {
        d = ParseDesign(s, bytes);
    } catch (const FormatFehler& f) {
        s.Ladevorgabe.clear();
        MeldeFalschesFormat(ui, s.AktuelleDatei, {f.zeile, f.grund});
        return false;
    }

    // The type may change with the file: its button loses the highlight first.
    if (s.IstKalender != 0) ui.TypKnopfHervorheben(static_cast<int>(s.Kalendertyp), false);
    UebernehmeDesign(s, d);

    const bool karten = s.IstVisitenkarte != 0 || s.IstEtikett != 0;
    const bool neu = s.Ladevorgabe == u"neu";
    const bool vorlage = IstVorlagenladung(s);
    s.RahmenNummer = karten ? 21 : 1;
    s.SchriftNummer = karten ? 21 : 1;
    s.BildNummer = 0;
    s.LinieNummer = 0;
    s.RTFNummer = 1;
    if (neu && s.IstVisitenkarte != 0) s.Panel.Text1(25) = QStringLiteral("Tel.:");
    // The panel's boxes 1 to 20 show the first twenty texts; a template takes them from the boxes.
    for (int i = 1; i <= 20 && i <= s.Schriftliste.Obergrenze(); ++i) {
        if (vorlage)
            s.Schriftliste(i).Textstring = s.Panel.Text1(i);
        else
            s.Panel.Text1(i) = s.Schriftliste(i).Textstring;
    }
    s.NeuzeichnenOffen = 0;
    // A new document never goes back over the file it came from.
    if (neu) {
        if (s.IstBriefkopf != 0)
            s.AktuelleDatei = s.Programmpfad + QStringLiteral("neu.zpb");
        else if (s.IstVisitenkarte != 0)
            s.AktuelleDatei = s.Programmpfad + QStringLiteral("neu.zpv");
        else if (s.IstEtikett != 0)
            s.AktuelleDatei = s.Programmpfad + QStringLiteral("neu.zpe");
    }
    s.Ladevorgabe.clear();
    if (s.IstKalender == 0) ui.StatusDatei(s.AktuelleDatei);
    if (s.IstBriefkopf == 0) SetzeSichtbar(s, 31, basic::Falsch);
    if (s.IstKalender != 0) ui.TypKnopfHervorheben(static_cast<int>(s.Kalendertyp), true);
    if (s.IstEtikett != 0) ui.ZoomAktualisieren();
    if (s.LadeSperre == 0) ui.Neuzeichnen();
    ui.AuswahlAktualisieren();

    if (s.IstKalender != 0) {
        // Calendar designs have 38 or 39 template frames; title and footer come from the panel.
        s.FesteRahmen = s.Kalendertyp < 4 ? 38 : 39;
        if (s.Schriftliste.Obergrenze() >= 1) s.Schriftliste(1).Textstring = s.Panel.TextTitel;
        if (s.Schriftliste.Obergrenze() >= 7) s.Schriftliste(7).Textstring = s.Panel.TextUnterschrift;
        SetzeSichtbar(s, 1, basic::Wahr);
        SetzeSichtbar(s, 7, basic::Wahr);
        ui.SeitentitelAktualisieren();
    }

    if (d.version < 800 && d.version > 100 && karten) {
        FuegeLogorahmenHinzu(s);
        if (s.LadeSperre == 0) ui.Neuzeichnen();
        s.RahmenNummer = 21;
        s.SchriftNummer = 21;
        s.BildNummer = 1;
        ui.AuswahlAktualisieren();
    }
    ui.DateilisteAktualisieren();
    s.NeuzeichnenOffen = 0;
    return true;
}

bool LoadDesign(AppState& s, Oberflaeche& ui) {
    const QString vorher = s.AktuelleDatei;
    if (s.Ladevorgabe == u"neu")
        s.AktuelleDatei = s.Programmpfad + QStringLiteral("neu.lay");
    else if (!s.Ladevorgabe.isEmpty())
        s.AktuelleDatei = s.Ladevorgabe;
    QString grund;
    const auto bytes = LeseDatei(s.AktuelleDatei, GroessteDatei, &grund);
    if (!bytes) {
        ui.Meldung(QStringLiteral("Die Datei %1 kann nicht geöffnet werden.").arg(s.AktuelleDatei),
                   QStringLiteral("Warnung!"), grund);
        s.AktuelleDatei = vorher;
        s.Ladevorgabe.clear();
        return false;
    }
    if (LadeDesignAusBytes(s, ui, *bytes)) {
        VerlaufLeeren(s); // another document: the edits of the last one can't be undone on it
        return true;
    }
    s.AktuelleDatei = vorher;
    return false;
}

bool SaveDesign(const AppState& s, Oberflaeche& ui) {
    QString fehler;
    if (SchreibeDateiAtomar(s.AktuelleDatei, SchreibeDesign(s), &fehler)) return true;
    MeldeSchreibfehler(ui, s.AktuelleDatei, fehler);
    return false;
}

} // namespace zp
