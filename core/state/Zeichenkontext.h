#pragma once
// The drawing context of one print, export or preview run: the composition's mode, its scale and
// the surface's twips per pixel are set for the guard's lifetime and put back on every way out,
// an exception included.

namespace zp {
struct AppState;

class Zeichenkontext {
public:
    enum class Art {
        Bildschirm, // no mode of its own: a preview on a picture box
        Druck,      // DruckenAktiv
        Export      // ExportAktiv
    };
    // Keeps the surface's twips per pixel of the state.
    Zeichenkontext(AppState& s, Art art);
    Zeichenkontext(AppState& s, Art art, double twipsProPixelX, double twipsProPixelY);
    ~Zeichenkontext();
    Zeichenkontext(const Zeichenkontext&) = delete;
    Zeichenkontext& operator=(const Zeichenkontext&) = delete;

    // A preview drawn at its own scale: Zeichenfaktor and Geraetefaktor for the run.
    void SetzeFaktoren(double zeichenfaktor, double geraetefaktor);

private:
    AppState& m_s;
    float m_druckenAktiv, m_exportAktiv;
    double m_twipsProPixelX, m_twipsProPixelY;
    double m_zeichenfaktor, m_geraetefaktor, m_zoomfaktor;
};

} // namespace zp
