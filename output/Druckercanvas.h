#pragma once
// The printer canvas: the QPainter canvas on a QPrinter, at the printer's resolution, so that the
// twips per pixel are the printer's and a point stays a point. It prints to a queue of the print
// system or, as "PDF-Datei", through a QPdfWriter into a PDF file that replaces the target only once
// it is complete; a file needs nothing of the print system.

#include "compose/canvas/PainterCanvas.h"
#include "model/SeiteEtikett.h"
#include "output/Druckausgabe.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <memory>

class QPdfWriter;
class QPrinter;

namespace zp {

// Device and painter exist before the canvas that draws with them.
struct DruckerHalter {
    DruckerHalter(const QString& drucker, const QString& pdfDatei, const ClassSeite& seite);
    ~DruckerHalter();
    std::unique_ptr<QPrinter> m_drucker;    // a queue of the print system
    std::unique_ptr<QPdfWriter> m_pdfDatei; // "PDF-Datei"
    QPagedPaintDevice* m_geraet = nullptr;  // whichever of the two
    int m_aufloesung = 600;                 // dots per inch
    QPainter m_maler;
    bool m_pdf = false;
    QString m_ziel;         // the PDF file the user named
    QString m_zwischen;     // the file being written until the request is complete
    QString m_anlegefehler; // why the file being written could not be created
};

class Druckercanvas : private DruckerHalter, public PainterCanvas, public Druckausgabe {
public:
    // `drucker`: a queue name or "PDF-Datei"; `pdfDatei`: the file for "PDF-Datei". The paper is
    // that of `seite` (its width and height, tenths of a millimetre), A4 when it has none.
    Druckercanvas(const QString& drucker, const QString& pdfDatei, const ClassSeite& seite);
    ~Druckercanvas() override;

    // Druckausgabe
    Canvas& Leinwand() override { return *this; }
    bool Oeffne() override;
    void NeueSeite() override;
    void Schliesse() override;
    bool Abschliessen() override;
    bool IstDatei() const override { return m_pdf; }
    bool KopienSelbst() const override;
    void SetzeKopien(int kopien) override;
    int Seiten() const override { return m_seiten; }
    QString Fehlertext() const override { return m_fehler; }

    // Canvas: the page operations and the device's measures.
    void NewPage() override { NeueSeite(); }
    void EndDoc() override { Schliesse(); }
    [[nodiscard]] int GetDeviceCaps(int index) const override;

private:
    void SeiteEinrichten();

    int m_seiten = 0;
    bool m_auftragOffen = false; // a job of the request is running (a PDF keeps one file open)
    QString m_fehler;
};

} // namespace zp
