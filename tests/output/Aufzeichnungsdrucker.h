#pragma once
// A printer for tests: the recording canvas that also notes the job's pages and, through the test
// composition, every piece with the window origin and the state it was composed with.

#include "compose/canvas/RecordingCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Druckausgabe.h"
#include "output/PrintDocument.h"

#include <string>
#include <vector>

namespace zp::test {

// A 3 x 8 sheet of 66 x 33.8 mm labels on A4, 7.2 mm from the left and 13 mm from the top.
inline AppState Etikettenbogen(bool visitenkarte = false) {
    AppState s;
    (visitenkarte ? s.IstVisitenkarte : s.IstEtikett) = -1;
    s.AktuelleSeite.Breite = 2100;
    s.AktuelleSeite.Höhe = 2970;
    s.AktuelleSeite.Randlinks = 72;
    s.AktuelleSeite.Randoben = 130;
    s.AktuellesEtikett.Breite = 660;
    s.AktuellesEtikett.Höhe = 338;
    s.AktuellesEtikett.Abstand_x = 25;
    s.AktuellesEtikett.Abstand_y = 0;
    s.AktuellesEtikett.Anzahl_x = 3;
    s.AktuellesEtikett.Anzahl_y = 8;
    return s;
}

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

struct Stueck {
    int Seite = 0;   // page of the request, 1-based
    QPoint Ursprung; // window origin after the composition's shift
    double Datensatz = 0, Seriennummer = 0, Seitennummer = 0;
    double WocheTag = 0, WocheMonat = 0;
    double EtikettX = 0, EtikettY = 0;
    double Randlinks = 0, Randoben = 0;
    double TwipsProPixelX = 0;
};

class Aufzeichnungsdrucker : public RecordingCanvas, public Druckausgabe {
public:
    // A printer at 600 dpi; `datei`: a PDF file rather than paper.
    explicit Aufzeichnungsdrucker(bool datei = false, int physischerVersatz = 0)
        : RecordingCanvas(CanvasArt::Drucker, 2.4, 2.4, QSize(4960, 7016)), m_datei(datei),
          m_versatz(physischerVersatz) {}

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

    // One print run on this printer with the test composition; what it asks the user goes to `o`.
    Druckergebnis Drucke(AppState& s, const Druckwahl& w = {}) {
        return PrintDocument(s, o, *this, w, Hilfen());
    }
    Mitschrift o;

    // Druckausgabe
    Canvas& Leinwand() override { return *this; }
    bool Oeffne() override {
        if (!OeffnenGelingt) return false;
        Ereignisse.push_back("Oeffne");
        SetWindowOrgEx(0, 0);
        ++m_seiten;
        return true;
    }
    void NeueSeite() override {
        Ereignisse.push_back("NeueSeite");
        SetWindowOrgEx(0, 0);
        ++m_seiten;
    }
    void Schliesse() override { Ereignisse.push_back("Schliesse"); }
    bool IstDatei() const override { return m_datei; }
    bool KopienSelbst() const override { return !m_datei; }
    void SetzeKopien(int k) override { Kopien = k; }
    int Seiten() const override { return m_seiten; }
    QString Fehlertext() const override { return QStringLiteral("kein Drucker"); }

    int GetDeviceCaps(int index) const override {
        return index == PHYSICALOFFSETX ? m_versatz : RecordingCanvas::GetDeviceCaps(index);
    }

private:
    bool m_datei;
    int m_versatz;
    int m_seiten = 0;
};

} // namespace zp::test
