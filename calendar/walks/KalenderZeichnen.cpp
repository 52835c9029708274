// The calendar walks on a canvas: each cell goes through the text or shape renderer.
#include "calendar/walks/KalenderZeichnen.h"

#include "calendar/walks/KalenderLauf.h"
#include "render/ZeichneLinie.h"
#include "render/ZeichneSchrift.h"

namespace zp {

namespace {
class Renderer final : public KalenderZeichner {
public:
    explicit Renderer(Canvas& ziel) : m_ziel(ziel) {}
    void Schrift(AppState& s, ClassSchrift& schrift, ClassRahmen& rahmen) override {
        ZeichneSchrift(s, m_ziel, schrift, rahmen);
    }
    void Linie(AppState& s, ClassLinie& linie, ClassRahmen& rahmen) override {
        ZeichneLinie(s, m_ziel, linie, rahmen);
    }

private:
    Canvas& m_ziel;
};
} // namespace

void ZeichneKalenderText(AppState& s, Canvas& ziel, int n) {
    Renderer r(ziel);
    KalenderTextLauf(s, r, n);
}

void ZeichneKalenderRahmen(AppState& s, Canvas& ziel, int n) {
    Renderer r(ziel);
    KalenderRahmenLauf(s, r, n);
}

} // namespace zp
