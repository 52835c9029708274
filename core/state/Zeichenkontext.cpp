#include "core/state/Zeichenkontext.h"

#include "core/state/AppState.h"

namespace zp {

Zeichenkontext::Zeichenkontext(AppState& s, Art art)
    : Zeichenkontext(s, art, s.TwipsProPixelX, s.TwipsProPixelY) {}

Zeichenkontext::Zeichenkontext(AppState& s, Art art, double twipsProPixelX, double twipsProPixelY)
    : m_s(s), m_druckenAktiv(s.DruckenAktiv), m_exportAktiv(s.ExportAktiv),
      m_twipsProPixelX(s.TwipsProPixelX), m_twipsProPixelY(s.TwipsProPixelY),
      m_zeichenfaktor(s.Zeichenfaktor), m_geraetefaktor(s.Geraetefaktor), m_zoomfaktor(s.Zoomfaktor) {
    if (art == Art::Druck) s.DruckenAktiv = -1;
    if (art == Art::Export) s.ExportAktiv = -1;
    s.TwipsProPixelX = twipsProPixelX;
    s.TwipsProPixelY = twipsProPixelY;
}

Zeichenkontext::~Zeichenkontext() {
    m_s.DruckenAktiv = m_druckenAktiv;
    m_s.ExportAktiv = m_exportAktiv;
    m_s.TwipsProPixelX = m_twipsProPixelX;
    m_s.TwipsProPixelY = m_twipsProPixelY;
    m_s.Zeichenfaktor = m_zeichenfaktor;
    m_s.Geraetefaktor = m_geraetefaktor;
    m_s.Zoomfaktor = m_zoomfaktor;
}

void Zeichenkontext::SetzeFaktoren(double zeichenfaktor, double geraetefaktor) {
    m_s.Zeichenfaktor = zeichenfaktor;
    m_s.Geraetefaktor = geraetefaktor;
}

} // namespace zp
