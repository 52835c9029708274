#include "PanelGalerie.h"
#include "Benannt.h"
#include "Fensterantworten.h"

#include "core/Dokumentbefehle.h"
#include "core/state/AppState.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace zp {

namespace {

// The 19 sample designs of the business-card gallery, in the order of daten/design<n>.zpv.
const char* const Galerienamen[] = {
    "Korkstreifen",       "Blauer Pfeil",   "Grüne Streifen",  "Grüne Zacken",
    "Bunte Balken",       "Blaue Ecke",     "Wasserkarte",     "Rote Karte",
    "Grüne Karte",        "Gelbes Quadrat", "Lila Dreieck",    "Schwarze Ecke",
    "Blauer Streife",     "Gelber Kreis",   "Bunte Rechtecke", "Gelber Kreis im blauen Rahmen",
    "Roter Balken unten", "Grünes Dreieck", "Rotes Dach"};

} // namespace

PanelGalerie::PanelGalerie(Panelumgebung u) : Seitenpanel(QStringLiteral("Frame1_5"), u) {
    auto* v = new QVBoxLayout;
    v->addWidget(new QLabel(QStringLiteral("Vorlage wählen:")));
    m_list1 = Benannt<QListWidget>(QStringLiteral("List1"));
    v->addWidget(m_list1);
    Inhalt(v);
    connect(m_list1, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (s.LadeSperre == 0) GalerieLaden(s, ui, zeile);
    });
}

void PanelGalerie::Laden() {
    m_list1->clear();
    for (const char* name : Galerienamen)
        m_list1->addItem(QString::fromUtf8(name));
}

} // namespace zp
