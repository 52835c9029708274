#pragma once
// A window stand-in that keeps what the core tells it; questions get the preset standardAntwort.

#include "core/state/Oberflaeche.h"

#include <QStringList>

namespace zp::test {

struct ProtokollOberflaeche : Oberflaeche {
    void Meldung(const QString& text, const QString& titel, const QString& detail) override {
        meldungen << text;
        ganz << titel + u'|' + text + u'|' + detail;
        titel_ = titel;
        detail_ = detail;
    }
    bool Frage(const QString& text, const QString& titel) override {
        fragen << text;
        return Oberflaeche::Frage(text, titel);
    }
    void Statusmeldung(const QString& text) override { status << text; }
    void StatusDatei(const QString& text) override { datei = text; }
    void Geaendert(unsigned was) override {
        neuzeichnen += (was & Aenderung::Seite) != 0;
        anzeigen += (was & Aenderung::Datensatz) != 0;
    }
    void FokusFeldbox(int i) override { fokus = i; }

    QStringList meldungen, fragen, status;
    QStringList ganz;               // each message as "title|text|detail"
    QString titel_, detail_, datei; // title and detail of the last message; the last file shown
    int neuzeichnen = 0, anzeigen = 0, fokus = 0;
};

} // namespace zp::test
