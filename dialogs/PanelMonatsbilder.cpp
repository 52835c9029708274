#include "PanelMonatsbilder.h"
#include "Benannt.h"
#include "Fensterantworten.h"

#include "calendar/data/Tagesdaten.h"
#include "core/state/AppState.h"

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zp {

PanelMonatsbilder::PanelMonatsbilder(Panelumgebung u) : Seitenpanel(QStringLiteral("Frame1_9"), u) {
    auto* f = new QFormLayout;
    m_comboMonat = Benannt<QComboBox>(QStringLiteral("ComboMonat"));
    f->addRow(QStringLiteral("&Monat"), m_comboMonat);
    auto* datei = new QHBoxLayout;
    m_textbilddatei = Benannt<QLineEdit>(QStringLiteral("Textbilddatei"));
    auto* durchsuchen = Benannt<QPushButton>(QStringLiteral("CommandDurchsuchen"), QStringLiteral("..."));
    durchsuchen->setMaximumWidth(30);
    datei->addWidget(m_textbilddatei);
    datei->addWidget(durchsuchen);
    f->addRow(QStringLiteral("Bild"), datei);
    m_textBildbeschreibung = Benannt<QLineEdit>(QStringLiteral("TextBildbeschreibung"));
    f->addRow(QStringLiteral("Bes&chreibung"), m_textBildbeschreibung);
    m_leadKalender = Benannt<QLabel>(QStringLiteral("LeadKalender"));
    m_leadKalender->setFixedSize(200, 150);
    m_leadKalender->setAlignment(Qt::AlignCenter);
    m_leadKalender->hide();
    f->addRow(m_leadKalender);
    Inhalt(f);

    connect(m_comboMonat, &QComboBox::activated, this, [this](int i) {
        MonatsbildWaehlen(s, i);
        ui.Geaendert(Aenderung::Panel);
    });
    connect(m_textBildbeschreibung, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre == 0) BildbeschreibungGeaendert(s, t);
    });
    connect(m_textbilddatei, &QLineEdit::textChanged, this, [this](const QString& t) {
        if (s.LadeSperre != 0) return;
        const bool neuzeichnen = BilddateiGeaendert(s, t);
        Vorschaubild();
        if (neuzeichnen) ui.Geaendert(Aenderung::Seite);
    });
    connect(durchsuchen, &QPushButton::clicked, this, [this] {
        const QString datei = ui.DateiWaehlen(QStringLiteral("Öffnen"),
                                              QStringLiteral("BMP (*.bmp)|*.bmp|JPG (*.jpg)|*.jpg"), false);
        if (!datei.isEmpty()) m_textbilddatei->setText(datei);
    });
}

void PanelMonatsbilder::Laden() {
    if (s.IstKalender == 0) return;
    m_comboMonat->clear();
    for (int m = 1; m <= 12; ++m)
        m_comboMonat->addItem(s.Monatsnamen(m));
}

void PanelMonatsbilder::Zeigen(unsigned was) {
    if (!(was & Aenderung::Panel)) return;
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    const Seitenleiste& p = s.Panel;
    if (m_comboMonat->count() == 12 && m_comboMonat->currentIndex() != p.ComboMonat)
        m_comboMonat->setCurrentIndex(std::clamp(p.ComboMonat, 0, 11));
    if (m_textbilddatei->text() != p.Textbilddatei) m_textbilddatei->setText(p.Textbilddatei);
    if (m_textBildbeschreibung->text() != p.TextBildbeschreibung)
        m_textBildbeschreibung->setText(p.TextBildbeschreibung);
    Vorschaubild();
    s.LadeSperre = sperre;
}

void PanelMonatsbilder::Vorschaubild() {
    // LeadKalender: a thumbnail of the month's picture while its file exists.
    const QString datei = m_textbilddatei->text();
    QImage bild;
    if (QFileInfo::exists(datei)) {
        QImageReader leser(datei);
        leser.setAutoTransform(true);
        bild = leser.read();
    }
    if (bild.isNull()) {
        m_leadKalender->hide();
        return;
    }
    m_leadKalender->setPixmap(QPixmap::fromImage(
        bild.scaled(m_leadKalender->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    m_leadKalender->show();
}

} // namespace zp
