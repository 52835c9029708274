#include "core/Bildbefehle.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Inhalt.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Verlauf.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <limits>

namespace zp {

namespace {

template <typename T> T Begrenzt(long long wert) {
    return static_cast<T>(
        std::clamp<long long>(wert, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

bool HatAktuellesBild(const AppState& s) {
    return s.Bildliste.Gueltig(static_cast<int>(s.BildNummer)) && s.BildNummer >= 1;
}

bool HatAktuellenRahmen(const AppState& s) {
    const int n = static_cast<int>(s.RahmenNummer);
    return n >= 1 && n <= s.RahmenAnzahl && s.Rahmenliste.Gueltig(n);
}

} // namespace

void SetzeBildregler(ClassBild& b, Bildregler regler, int sliderwert) {
    const long long wert = static_cast<long long>(sliderwert) * 10;
    switch (regler) {
    case Bildregler::Helligkeit:
        b.Helligkeit = Begrenzt<int16_t>(wert);
        break;
    case Bildregler::Kontrast:
        b.Kontrast = Begrenzt<int16_t>(wert);
        break;
    case Bildregler::Farbverschiebung:
        b.Farbverschiebung = Begrenzt<int16_t>(wert);
        break;
    case Bildregler::Farbintensitaet:
        b.Farbintensität = Begrenzt<int32_t>(wert);
        break;
    case Bildregler::Schaerfe:
        b.Schärfe = Begrenzt<int16_t>(wert);
        break;
    case Bildregler::Pixel:
        b.EffektPixel = Begrenzt<int32_t>(wert);
        break;
    case Bildregler::Mosaik:
        b.EffektMosaik = Begrenzt<int32_t>(wert);
        break;
    }
}

int BildreglerStellung(const ClassBild& b, Bildregler regler) {
    switch (regler) {
    case Bildregler::Helligkeit:
        return b.Helligkeit / 10;
    case Bildregler::Kontrast:
        return b.Kontrast / 10;
    case Bildregler::Farbverschiebung:
        return b.Farbverschiebung / 10;
    case Bildregler::Farbintensitaet:
        return b.Farbintensität / 10;
    case Bildregler::Schaerfe:
        return b.Schärfe / 10;
    case Bildregler::Pixel:
        return b.EffektPixel / 10;
    case Bildregler::Mosaik:
        return b.EffektMosaik / 10;
    }
    return 0;
}

void SetzeDrehung(ClassBild& b, int sliderwert) {
    b.Rotate = Begrenzt<int32_t>(static_cast<long long>(sliderwert) * 100);
}

QString WinkelText(const ClassBild& b) {
    return basic::Str(b.Rotate / 100.0).trimmed();
}

QString WinkelGetippt(ClassBild& b, const QString& text) {
    const std::optional<double> grad = basic::ParseDouble(text);
    if (!grad || *grad < 0 || *grad > 360) {
        b.Rotate = 0;
        return QStringLiteral("0");
    }
    b.Rotate = static_cast<int32_t>(basic::RoundHalfEven(*grad * 100));
    return text;
}

void SetzeBilddatei(ClassBild& b, const QString& pfad) {
    const QFileInfo info(pfad);
    b.File = pfad;
    b.File_Name = info.fileName();
    b.File_Path = info.absolutePath();
    b.File_Dir = QDir(info.absolutePath()).dirName();
}

void RahmenNachBild(ClassRahmen& rahmen, int bildBreite, int bildHoehe) {
    if (bildBreite <= 0 || bildHoehe <= 0) return;
    rahmen.Höhe = rahmen.Breite * bildHoehe / static_cast<double>(bildBreite);
}

bool BildUebernehmen(AppState& s, Oberflaeche& ui, const ClassBild& kopie, const ClassRahmen& rahmen) {
    if (s.Auswahlmodus == 0) VerlaufMerken(s); // while inserting, the insertion's step holds it
    if (HatAktuellesBild(s)) s.Bildliste(static_cast<int>(s.BildNummer)) = kopie;
    if (HatAktuellenRahmen(s)) s.Rahmenliste(static_cast<int>(s.RahmenNummer)) = rahmen;
    if (!QFileInfo(kopie.File).isFile()) {
        ui.Meldung(QStringLiteral("Diese Bilddatei existiert nicht. Der Rahmen wird gelöscht!"),
                   QStringLiteral("Hinweis"));
        LoescheRahmen(s, ui, true);
        return false;
    }
    if (rahmen.Proportional != 0) ui.AuswahlAktualisieren();
    ui.Neuzeichnen();
    return true;
}

void BildAbbrechen(AppState& s, Oberflaeche& ui, bool rahmenNeu) {
    if (rahmenNeu) LoescheRahmen(s, ui, true);
}

} // namespace zp
