#pragma once
// Finished bitmaps of picture frames, so that a redraw of the page does not load and correct a
// photograph again. An entry is found only for the same file in the same state (path, size,
// modification time) with the same corrections, so a cached bitmap is the one a fresh load gives.
// The oldest entries leave first once the byte budget is used up.

#include "model/Klassen.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <list>
#include <optional>

namespace zp {

struct BildSchluessel {
    QString pfad; // absolute
    qint64 groesse = 0;
    qint64 geaendert = 0; // modification time, ms since the epoch
    int32_t Rotate = 0;
    int16_t Helligkeit = 0, Kontrast = 0, Farbverschiebung = 0, Schärfe = 0, EffektTrapez = 0;
    int32_t Farbintensität = 0, EffektPixel = 0, EffektMosaik = 0;
    Wahrheit Invert = 0, Gray = 0;
    // The device size a reduced screen copy was made for; empty for the full picture.
    QSize bildschirm;

    bool operator==(const BildSchluessel&) const = default;
};

// The key of a picture object's file as it stands on disk now; none when the file is missing.
[[nodiscard]] std::optional<BildSchluessel> SchluesselFuer(const ClassBild& bild);

class Bildcache {
public:
    explicit Bildcache(qint64 budgetBytes = 256LL * 1024 * 1024) : m_budget(budgetBytes) {}

    // The finished bitmap, or none; a hit becomes the newest entry. `vollgroesse` takes the size
    // of the picture a reduced bitmap stands for.
    [[nodiscard]] std::optional<QImage> Finde(const BildSchluessel& schluessel, QSize* vollgroesse = nullptr);
    // Keeps a bitmap; one larger than the whole budget is not kept.
    void Ablegen(const BildSchluessel& schluessel, const QImage& bild, QSize vollgroesse = {});

    // A file that could not be loaded, remembered so that its message is given once per state of
    // the file and not on every redraw.
    [[nodiscard]] bool IstFehlerhaft(const BildSchluessel& schluessel) const;
    void MerkeFehler(const BildSchluessel& schluessel);

    void Leeren();
    [[nodiscard]] int Anzahl() const { return static_cast<int>(m_eintraege.size()); }
    [[nodiscard]] qint64 Bytes() const { return m_bytes; }

private:
    struct Eintrag {
        BildSchluessel schluessel;
        QImage bild;
        QSize vollgroesse;
    };
    std::list<Eintrag> m_eintraege; // newest first
    std::list<BildSchluessel> m_fehler;
    qint64 m_budget;
    qint64 m_bytes = 0;
};

} // namespace zp
