#pragma once
// A printer for tests: no device, it notes the job's pages and, through the test composition,
// every piece with the window origin and the state it was composed with.

#include "compose/canvas.h"
#include "core/AppState.h"
#include "core/Oberflaeche.h"
#include "output/Druckausgabe.h"
#include "output/PrintDocument.h"

#include <string>
#include <vector>

namespace zp::test {

struct Stueck {
    int Seite = 0;   // page of the request, 1-based
    QPoint Ursprung; // window origin after the composition's shift
    double Datensatz = 0, Seriennummer = 0, Seitennummer = 0;
    double WocheTag = 0, WocheMonat = 0;
    double EtikettX = 0, EtikettY = 0;
    double Randlinks = 0, Randoben = 0;
    double TwipsProPixelX = 0;
};

class Aufzeichnungsdrucker : public Canvas, public Druckausgabe {
public:
    explicit Aufzeichnungsdrucker(bool datei = false, int physischerVersatz = 0, double tpp = 2.4)
        : m_datei(datei), m_versatz(physischerVersatz), m_tpp(tpp) {}

    std::vector<std::string> Ereignisse; // "Oeffne", "NeueSeite", "Schliesse"
    std::vector<Stueck> Stuecke;
    bool OeffnenGelingt = true;
    int Kopien = 0;

    // The composition a test hands to the print run: the origin shift, then the piece noted.
    Druckhilfen Hilfen() {
        Druckhilfen h;
        h.Komposition = [this](AppState& s, Canvas& c) {
            WendeDruckversatzAn(s, c);
            Stuecke.push_back({m_seiten, c.WindowOrg(), s.DatensatzNummer, s.Seriennummer, s.Seitennummer,
                               s.WocheTag, s.WocheMonat, s.EtikettX, s.EtikettY,
                               static_cast<double>(s.AktuelleSeite.Randlinks),
                               static_cast<double>(s.AktuelleSeite.Randoben), s.TwipsProPixelX});
        };
        h.ZeigeDatensatz = [](AppState& s) {
            for (int i = 1; i <= 10; ++i) {
                const int n = static_cast<int>(s.DatensatzNummer);
                s.Panel.Text1(i + 20) = s.Datensaetze.Gueltig(i, n) ? s.Datensaetze(i, n) : QString();
            }
        };
        return h;
    }

    // Druckausgabe
    Canvas& Leinwand() override { return *this; }
    bool Oeffne() override {
        if (!OeffnenGelingt) return false;
        Ereignisse.push_back("Oeffne");
        m_ursprung = {};
        ++m_seiten;
        return true;
    }
    void NeueSeite() override {
        Ereignisse.push_back("NeueSeite");
        m_ursprung = {};
        ++m_seiten;
    }
    void Schliesse() override { Ereignisse.push_back("Schliesse"); }
    bool IstDatei() const override { return m_datei; }
    bool KopienSelbst() const override { return !m_datei; }
    void SetzeKopien(int k) override { Kopien = k; }
    int Seiten() const override { return m_seiten; }
    QString Fehlertext() const override { return QStringLiteral("kein Drucker"); }

    // Canvas: only the window origin and the device's measures matter here.
    CanvasArt Art() const override { return CanvasArt::Drucker; }
    double Width() const override { return 4960 * m_tpp; }
    double Height() const override { return 7016 * m_tpp; }
    double TwipsPerPixelX() const override { return m_tpp; }
    double TwipsPerPixelY() const override { return m_tpp; }
    void Cls() override {}
    void Line(double, double, double, double, CanvasFarbe, LineForm) override {}
    void Circle(double, double, double, CanvasFarbe) override {}
    void Print(const QString&) override {}
    double TextWidth(const QString&) override { return 0; }
    double TextHeight(const QString&) override { return 0; }
    void SetWindowOrgEx(int x, int y) override { m_ursprung = {x, y}; }
    void OffsetWindowOrgEx(int dx, int dy) override { m_ursprung += QPoint(dx, dy); }
    QPoint WindowOrg() const override { return m_ursprung; }
    void SetBkMode(bool) override {}
    GdiHandle CreateFontIndirectA(const LogFont&) override { return 0; }
    GdiHandle SelectObject(GdiHandle) override { return 0; }
    void DeleteObject(GdiHandle) override {}
    QSize GetTextExtentPoint32A(const QString&) override { return {}; }
    int GetDeviceCaps(int index) const override { return index == PHYSICALOFFSETX ? m_versatz : 0; }
    int SetTextCharacterExtra(int) override { return 0; }
    void TextOutA(int, int, const QString&) override {}
    GdiHandle CreateRectRgn(int, int, int, int) override { return 0; }
    GdiHandle CreatePolygonRgn(const std::vector<QPoint>&, PolyFillMode) override { return 0; }
    void SelectClipRgn(GdiHandle) override {}
    void OffsetClipRgn(int, int) override {}
    void Polyline(const std::vector<QPoint>&) override {}
    void Polygon(const std::vector<QPoint>&) override {}
    void Rectangle(int, int, int, int) override {}
    void Ellipse(int, int, int, int) override {}
    void RenderBild(const QImage&, const QRectF&) override {}

private:
    bool m_datei;
    int m_versatz;
    double m_tpp;
    QPoint m_ursprung;
    int m_seiten = 0;
};

// A message or question the run put to the user.
struct Mitschrift : Oberflaeche {
    std::vector<std::pair<QString, QString>> Meldungen; // text, title
    int Fragen = 0;
    bool Frage(const QString&, const QString&) override {
        ++Fragen;
        return standardAntwort;
    }
    void Meldung(const QString& text, const QString& titel, const QString&) override {
        Meldungen.emplace_back(text, titel);
    }
};

} // namespace zp::test
