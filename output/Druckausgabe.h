#pragma once
// Where a print job goes: the canvas the composition draws on, and the job's pages. The printer
// canvas over QPrinter is one; tests put a recording canvas behind it.

#include <QString>

namespace zp {
class Canvas;

class Druckausgabe {
public:
    virtual ~Druckausgabe() = default;

    // The surface of the current page; valid between Oeffne() and Schliesse().
    [[nodiscard]] virtual Canvas& Leinwand() = 0;

    // Starts a job with its first page, window origin at (0, 0) and transparent text background.
    // False when the printer or the file can't be opened; Fehlertext() then says why.
    [[nodiscard]] virtual bool Oeffne() = 0;
    // Ends the page and starts the next one of the same job; the window origin goes back to (0, 0).
    virtual void NeueSeite() = 0;
    // EndDoc: ends the job. A PDF file keeps collecting the pages of further jobs of the same
    // request, so that a whole request lands in one file; Abschliessen() closes it.
    virtual void Schliesse() = 0;
    // End of the whole request: the file is written. False when writing failed.
    [[nodiscard]] virtual bool Abschliessen() { return true; }

    // A file instead of paper: no sheets to turn over, every job lands in the same file.
    [[nodiscard]] virtual bool IstDatei() const = 0;
    // Whether the device prints the copies of a job itself (a CUPS queue); else the request is
    // repeated for each copy.
    [[nodiscard]] virtual bool KopienSelbst() const { return false; }
    virtual void SetzeKopien(int kopien) { (void)kopien; }

    // Pages begun over the whole request, for progress and the page count of a PDF.
    [[nodiscard]] virtual int Seiten() const = 0;
    [[nodiscard]] virtual QString Fehlertext() const { return {}; }
};

} // namespace zp
