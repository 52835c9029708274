#pragma once
// The fonts and regions that a device context hands out as handles. Shared by the canvases, so
// that all of them number and free their objects alike.

#include "compose/canvas/Clipflaeche.h"
#include "compose/canvas/canvas.h"

#include <unordered_map>
#include <utility>

namespace zp {

class GdiObjekte {
public:
    GdiHandle NeueSchrift(const LogFont& font) {
        const GdiHandle h = m_naechster++;
        m_schriften.emplace(h, font);
        return h;
    }
    GdiHandle NeueRegion(Clipflaeche region) {
        const GdiHandle h = m_naechster++;
        m_regionen.emplace(h, std::move(region));
        return h;
    }
    [[nodiscard]] const LogFont* Schrift(GdiHandle h) const {
        auto it = m_schriften.find(h);
        return it == m_schriften.end() ? nullptr : &it->second;
    }
    [[nodiscard]] const Clipflaeche* Region(GdiHandle h) const {
        auto it = m_regionen.find(h);
        return it == m_regionen.end() ? nullptr : &it->second;
    }
    [[nodiscard]] bool IstSchrift(GdiHandle h) const { return m_schriften.count(h) != 0; }
    // Frees a font or region; an unknown handle is ignored, as the device does.
    void Loesche(GdiHandle h) {
        m_schriften.erase(h);
        m_regionen.erase(h);
    }
    [[nodiscard]] size_t Anzahl() const { return m_schriften.size() + m_regionen.size(); }

private:
    GdiHandle m_naechster = 1;
    std::unordered_map<GdiHandle, LogFont> m_schriften;
    std::unordered_map<GdiHandle, Clipflaeche> m_regionen;
};

} // namespace zp
