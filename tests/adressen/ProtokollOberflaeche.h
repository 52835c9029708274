#pragma once
// A window stand-in that records what the commands tell it.

#include "core/Oberflaeche.h"

#include <QStringList>

namespace zp::test {

struct ProtokollOberflaeche : Oberflaeche {
    void Meldung(const QString& text, const QString& titel, const QString& detail) override {
        meldungen << text;
        titel_ = titel;
        detail_ = detail;
    }
    bool Frage(const QString& text, const QString& titel) override {
        fragen << text;
        return Oberflaeche::Frage(text, titel);
    }
    void Statusmeldung(const QString& text) override { status << text; }
    void Neuzeichnen() override { ++neuzeichnen; }
    void DatensatzAnzeigen() override { ++anzeigen; }
    void FokusFeldbox(int i) override { fokus = i; }

    QStringList meldungen, fragen, status;
    QString titel_, detail_;
    int neuzeichnen = 0, anzeigen = 0, fokus = 0;
};

} // namespace zp::test
