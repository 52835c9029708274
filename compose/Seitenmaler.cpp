#include "compose/Seitenmaler.h"

#include "compose/Seitenbild.h"
#include "compose/ZeichneSeite.h"
#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"

namespace zp {

void LeinwandGrundzustand(Canvas& c) {
    c.StufenEnde(); // a run of steps cut short by an error is closed, not carried on
    c.ForeColor = 0;
    c.FillColor = 0;
    c.BackColor = 0xFFFFFF;
    c.FillStyle = 1;
    c.DrawStyle = 0;
    c.DrawWidth = 1;
    c.DrawMode = 13;
    c.FontName = QStringLiteral("Arial");
    c.FontSize = 10;
    c.FontBold = false;
    c.FontItalic = false;
    c.FontUnderline = false;
    c.FontStrikethru = false;
    c.FontTransparent = true;
    c.CurrentX = 0;
    c.CurrentY = 0;
    c.SelectClipRgn(0);
    c.SetWindowOrgEx(0, 0);
    c.SelectObject(0);
    c.SetTextCharacterExtra(0);
    c.SetBkMode(true);
}

Seitenmaler::Seitenmaler() = default;
Seitenmaler::~Seitenmaler() = default;

ImageCanvas& Seitenmaler::BereiteLeinwand(const AppState& s) {
    const QSize groesse = SeitenbildGroesse(s);
    if (!m_seite || groesse != m_groesse || s.TwipsProPixelX != m_tppX || s.TwipsProPixelY != m_tppY) {
        m_seite.reset(); // the old picture goes before the new one is made
        m_seite =
            std::make_unique<ImageCanvas>(groesse, CanvasArt::Bildschirm, s.TwipsProPixelX, s.TwipsProPixelY);
        m_groesse = groesse;
        m_tppX = s.TwipsProPixelX;
        m_tppY = s.TwipsProPixelY;
    } else {
        LeinwandGrundzustand(*m_seite);
    }
    return *m_seite;
}

QImage Seitenmaler::Zeichne(AppState& s) {
    ImageCanvas& seite = BereiteLeinwand(s);
    Zeichenziele ziele;
    ziele.PictureSeite = &seite;
    ZeichneSeite(s, ziele);
    return seite.Bild();
}

} // namespace zp
