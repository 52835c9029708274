#include "persist/Layout.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "persist/Dateimeldungen.h"
#include "persist/Rahmensatz.h"

#include <QFileInfo>

#include <cmath>

namespace zp {

namespace {

const QString Kopf = QStringLiteral("ZP Datenfile");
// A layout's frame record has no picture-data line: the ten lines of version 700.
constexpr double Satzversion = 700;
constexpr int RahmenZeilen = 10;
constexpr int SchriftZeilen = 27;

struct Anpassung {
    QString datei;
    bool visitenkarte;
    bool etikett;
    int w;          // width of the card or label
    int blatthoehe; // its height
};

// Width of frame n. Returns the file's value for layouts of the user's own; the shipped ones are
// fitted to the card or label at hand, and Layout1/Layout2 leave frames from 31 on as they stand.
double RahmenBreite(const Anpassung& a, int n, double ausDatei, double bisher) {
    const int w = a.w;
    if (a.datei == u"Layout5.lay") return a.visitenkarte ? w - 100 : w;
    if (a.datei == u"Layout3.lay") return w;
    if (a.datei == u"Layout1.lay" || a.datei == u"Layout2.lay") {
        if (a.visitenkarte) return w - 100;
        if (n < 11) return w / 3 - 50;
        if (n <= 30) return (w / 3) * 2;
        return bisher;
    }
    if (a.datei == u"Layout4.lay") return n <= 21 ? w - 100 : w / 2;
    return ausDatei;
}

double RahmenX(const Anpassung& a, int n, double x) {
    if (a.datei == u"Layout4.lay" && a.visitenkarte && n > 21) return a.w / 2;
    const bool layout12 = a.datei == u"Layout1.lay" || a.datei == u"Layout2.lay";
    if (layout12 && a.etikett && n >= 21 && n <= 30) return a.w / 3;
    if (a.datei == u"Layout2.lay" && a.etikett && n < 21) return 0;
    return x;
}

double RahmenY(const Anpassung& a, int n, double y) {
    // On a label the texts must stay inside it.
    if (a.etikett && n < 31 && y > a.blatthoehe - 30) return a.blatthoehe - 30;
    return y;
}

double Abgeschnitten(double v) {
    return std::floor(v);
}

} // namespace

LayoutLesung WendeLayoutAn(AppState& s, const QByteArray& bytes, const QString& dateiname) {
    ZeilenLeser in(bytes);
    if (in.AtEndOfStream() || in.ReadLine() != Kopf) return LayoutLesung::FremderKopf;
    for (int i = 2; i <= 10; ++i) // the rest of the head and the title "Rahmen"
        in.ReadLine();

    const bool karte = s.IstEtikett != 0 || s.IstVisitenkarte != 0;
    const Anpassung a{dateiname, s.IstVisitenkarte != 0, s.IstEtikett != 0, s.AktuellesEtikett.Breite,
                      s.AktuellesEtikett.Höhe};

    // Work on copies: the document changes only when the whole file has been read.
    Liste<ClassRahmen> rahmen = s.Rahmenliste;
    Liste<ClassSchrift> schriften = s.Schriftliste;
    const int rahmenImDokument = std::min(static_cast<int>(s.RahmenAnzahl), rahmen.Obergrenze());

    const int rahmenAnzahl = in.LeseAnzahl(RahmenZeilen);
    for (int n = 1; n <= rahmenAnzahl; ++n) {
        const ClassRahmen r = LeseRahmensatz(in, Satzversion);
        // Outside the card editions the frames from 21 on aren't the layout's to move.
        if (!karte && n >= 21) continue;
        if (n > rahmenImDokument) continue; // a layout arranges frames, it doesn't make them
        ClassRahmen& ziel = rahmen(n);
        ziel.Breite = RahmenBreite(a, n, r.Breite, ziel.Breite);
        ziel.Höhe = r.Höhe;
        ziel.Objektnummer = r.Objektnummer;
        ziel.Objekttyp = r.Objekttyp;
        ziel.Sichtbar = r.Sichtbar;
        ziel.Proportional = r.Proportional;
        ziel.Verankert = r.Verankert;
        ziel.X = RahmenX(a, n, r.X);
        ziel.Y = RahmenY(a, n, r.Y);
        ziel.z = r.z;
    }

    in.ReadLine(); // "Schrift"
    const int schriftAnzahl = in.LeseAnzahl(SchriftZeilen);
    for (int n = 1; n <= schriftAnzahl; ++n) {
        ClassSchrift t;
        t.Angle = in.LeseInt16();
        t.AusrichtungH = in.LeseInt16();
        t.AusrichtungV = in.LeseInt16();
        for (int z = 4; z <= 10; ++z)
            in.ReadLine();
        t.FontSize = in.LeseDouble();
        for (int z = 12; z <= 21; ++z)
            in.ReadLine();
        t.Top = in.LeseVal();
        in.ReadLine(); // Underline
        t.widht = Abgeschnitten(in.LeseDouble());
        t.X = Abgeschnitten(in.LeseDouble());
        t.z = in.LeseInt16();
        in.ReadLine(); // Sichtbar
        if (!(karte || n < 21) || !schriften.Gueltig(n) || n > static_cast<int>(s.SchriftMax)) continue;
        ClassSchrift& ziel = schriften(n);
        ziel.Angle = t.Angle;
        ziel.AusrichtungH = t.AusrichtungH;
        ziel.AusrichtungV = t.AusrichtungV;
        ziel.FontSize = t.FontSize;
        ziel.Top = t.Top;
        ziel.widht = t.widht;
        ziel.X = t.X;
        ziel.z = t.z;
    }

    s.Rahmenliste = std::move(rahmen);
    s.Schriftliste = std::move(schriften);
    return LayoutLesung::Gelesen;
}

bool LadeLayout(AppState& s, Oberflaeche& ui) {
    const QString pfad = s.Ladevorgabe;
    s.Ladevorgabe.clear();
    QString grund;
    const auto bytes = LeseDatei(pfad, GroessteDatei, &grund);
    if (!bytes) {
        ui.Meldung(QStringLiteral("Das Layout kann nicht gelesen werden."), QStringLiteral("Warnung!"),
                   pfad + QStringLiteral(": ") + grund);
        return false;
    }
    try {
        if (WendeLayoutAn(s, *bytes, QFileInfo(pfad).fileName()) == LayoutLesung::FremderKopf) {
            MeldeFalschesFormat(ui, pfad, {1, QStringLiteral("Die Datei ist kein Layout.")});
            return false;
        }
    } catch (const FormatFehler& f) {
        MeldeFalschesFormat(ui, pfad, {f.zeile, f.grund});
        return false;
    }
    s.RahmenNummer = 1;
    if (s.RahmenAnzahl >= 1 && s.Rahmenliste(1).Objekttyp == u"Schrift")
        s.SchriftNummer = s.Rahmenliste(1).Objektnummer;
    ui.AuswahlAktualisieren();
    if (s.LadeSperre == 0) ui.Neuzeichnen();
    return true;
}

QByteArray SchreibeLayout(const AppState& s) {
    using basic::DoubleText;
    ZeilenSchreiber out;
    out.WriteLine(Kopf);
    out.WriteLine(s.Programmname);
    out.WriteLine(QString::number(Satzversion)); // the old frame record without the picture-data line
    out.WriteLine(QString::number(s.Kalendertyp));
    out.WriteLine(QStringLiteral("Vorlage")); // a shipped template, never the user's document
    for (int i = 6; i <= 9; ++i)
        out.WriteLine(QStringLiteral("Reserve"));

    const int rahmenAnzahl = std::min(static_cast<int>(s.RahmenAnzahl), s.Rahmenliste.Obergrenze());
    out.WriteLine(QStringLiteral("Rahmen"));
    out.WriteLine(rahmenAnzahl);
    for (int n = 1; n <= rahmenAnzahl; ++n) {
        SchreibeRahmensatz(out, s.Rahmenliste(n), Satzversion);
    }

    const int schriftAnzahl = std::min(static_cast<int>(s.SchriftMax), s.Schriftliste.Obergrenze());
    out.WriteLine(QStringLiteral("Schrift"));
    out.WriteLine(schriftAnzahl);
    for (int n = 1; n <= schriftAnzahl; ++n) {
        const ClassSchrift& t = s.Schriftliste(n);
        out.WriteLine(t.Angle);
        out.WriteLine(t.AusrichtungH);
        out.WriteLine(t.AusrichtungV);
        out.WriteBool(t.Bold != 0);
        out.WriteLine(t.CharSpace);
        out.WriteLine(t.Color1);
        out.WriteLine(t.Color2);
        out.WriteLine(t.ColorCircle);
        out.WriteLine(t.Data);
        out.WriteLine(t.fontname);
        out.WriteDouble(t.FontSize);
        out.WriteDouble(t.Height);
        out.WriteBool(t.Italic != 0);
        out.WriteLine(t.ShadowAngle);
        out.WriteLine(t.ShadowColor1);
        out.WriteLine(t.ShadowColor2);
        out.WriteLine(t.ShadowDeep);
        out.WriteLine(t.ShadowType);
        out.WriteLine(t.ShadowWay);
        out.WriteBool(t.Strike != 0);
        out.WriteLine(EinzeiligesFeld(t.Textstring)); // the record has exactly 27 lines
        // Top is read back by its numeric prefix, so it goes with a point, not the regional comma.
        out.WriteLine(QString::number(t.Top, 'g', 15));
        out.WriteBool(t.Underline != 0);
        out.WriteDouble(t.widht);
        out.WriteDouble(t.X);
        out.WriteLine(t.z);
        out.WriteBool(t.Sichtbar != 0);
    }
    // The remaining sections of the design file, empty, so that the file stays one of its kind.
    out.WriteLine(QStringLiteral("Bild"));
    out.WriteLine(0);
    out.WriteLine(QStringLiteral("Linie"));
    out.WriteLine(0);
    out.WriteLine(QStringLiteral("RTF"));
    out.WriteLine(1);
    out.WriteLine(QStringLiteral("RTF1.rtf"));
    out.WriteLine(QStringLiteral("-1"));
    return out.Bytes();
}

} // namespace zp
