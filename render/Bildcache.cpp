#include "render/Bildcache.h"

#include <QDateTime>
#include <QFileInfo>

namespace zp {

std::optional<BildSchluessel> SchluesselFuer(const ClassBild& bild) {
    if (bild.File.isEmpty()) return std::nullopt;
    const QFileInfo info(bild.File);
    if (!info.isFile()) return std::nullopt;
    BildSchluessel k;
    k.pfad = info.absoluteFilePath();
    k.groesse = info.size();
    k.geaendert = info.lastModified().toMSecsSinceEpoch();
    k.Rotate = bild.Rotate;
    k.Helligkeit = bild.Helligkeit;
    k.Kontrast = bild.Kontrast;
    k.Farbintensität = bild.Farbintensität;
    k.Farbverschiebung = bild.Farbverschiebung;
    k.Schärfe = bild.Schärfe;
    k.EffektPixel = bild.EffektPixel;
    k.EffektMosaik = bild.EffektMosaik;
    k.EffektTrapez = bild.EffektTrapez;
    k.Invert = bild.Invert;
    k.Gray = bild.Gray;
    return k;
}

std::optional<QImage> Bildcache::Finde(const BildSchluessel& schluessel, QSize* vollgroesse) {
    for (auto it = m_eintraege.begin(); it != m_eintraege.end(); ++it) {
        if (it->schluessel == schluessel) {
            m_eintraege.splice(m_eintraege.begin(), m_eintraege, it);
            if (vollgroesse) *vollgroesse = m_eintraege.front().vollgroesse;
            return m_eintraege.front().bild;
        }
    }
    return std::nullopt;
}

void Bildcache::Ablegen(const BildSchluessel& schluessel, const QImage& bild, QSize vollgroesse) {
    for (auto it = m_eintraege.begin(); it != m_eintraege.end(); ++it) {
        if (it->schluessel == schluessel) {
            m_bytes -= it->bild.sizeInBytes();
            m_eintraege.erase(it);
            break;
        }
    }
    const qint64 groesse = bild.sizeInBytes();
    if (bild.isNull() || groesse > m_budget) return;
    while (!m_eintraege.empty() && m_bytes + groesse > m_budget) {
        m_bytes -= m_eintraege.back().bild.sizeInBytes();
        m_eintraege.pop_back();
    }
    m_eintraege.push_front({schluessel, bild, vollgroesse});
    m_bytes += groesse;
}

bool Bildcache::IstFehlerhaft(const BildSchluessel& schluessel) const {
    for (const auto& k : m_fehler)
        if (k.pfad == schluessel.pfad && k.groesse == schluessel.groesse &&
            k.geaendert == schluessel.geaendert)
            return true;
    return false;
}

void Bildcache::MerkeFehler(const BildSchluessel& schluessel) {
    if (IstFehlerhaft(schluessel)) return;
    m_fehler.push_front(schluessel);
    if (m_fehler.size() > 64) m_fehler.pop_back();
}

void Bildcache::Leeren() {
    m_eintraege.clear();
    m_fehler.clear();
    m_bytes = 0;
}

} // namespace zp
