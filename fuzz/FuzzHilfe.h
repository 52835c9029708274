#pragma once
// Shared set-up of the reader fuzzers: a GUI application on the offscreen platform (the printer
// list and fonts need one) and a quiet user interface.

#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"

#include <QGuiApplication>
#include <cstdlib>

namespace zp::fuzz {

inline void StarteAnwendung(int* argc, char*** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static QGuiApplication app(*argc, *argv);
}

inline QByteArray Bytes(const uint8_t* data, size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

// One of the five editions by a number the input gives, so that every edition gets exercised.
inline void WaehleAusgabe(AppState& s, uint8_t wahl) {
    float* flags[] = {&s.IstKalender, &s.IstVisitenkarte, &s.IstBriefkopf, &s.IstEtikett, &s.IstCDHuelle};
    *flags[wahl % 5] = -1;
}

} // namespace zp::fuzz
