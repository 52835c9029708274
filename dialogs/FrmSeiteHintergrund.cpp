// The background group of the page dialog: kind, colours, own picture, pattern and design band,
// with the live preview of the card.
#include "dialogs/FrmSeite.h"

#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "render/Hintergrundvorschau.h"
#include "render/Lead.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

namespace {

constexpr int Musteranzahl = 14;
constexpr int Designanzahl = 13;
const QSize Kleinbild(64, 40);
const QSize Kartenvorschau(260, 170);

QColor AlsQColor(Farbe f) {
    return QColor(f & 0xFF, (f >> 8) & 0xFF, (f >> 16) & 0xFF);
}

Farbe AlsFarbe(const QColor& c) {
    return c.red() | (c.green() << 8) | (c.blue() << 16);
}

} // namespace

QListWidget* FrmSeite::Bilderreihe(const char* name, int anzahl, int hoehe) {
    auto* l = new QListWidget(this);
    l->setObjectName(QString::fromUtf8(name));
    l->setViewMode(QListView::IconMode);
    l->setFlow(QListView::LeftToRight);
    l->setWrapping(false);
    l->setIconSize(Kleinbild);
    l->setMovement(QListView::Static);
    l->setFixedHeight(hoehe);
    l->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    for (int i = 0; i < anzahl; ++i)
        l->addItem(new QListWidgetItem);
    return l;
}

QWidget* FrmSeite::SeiteHintergrund() {
    auto* w = new QWidget(this);
    auto* l = new QHBoxLayout(w);
    auto* links = new QVBoxLayout;
    links->addWidget(HintergrundartGruppe());
    links->addWidget(FarbenGruppe());
    links->addWidget(MusterGruppe());
    links->addWidget(DesignGruppe());
    l->addLayout(links, 1);

    m_picture2 = new QLabel(w);
    m_picture2->setObjectName(QStringLiteral("Picture2"));
    m_picture2->setAccessibleName(QStringLiteral("Vorschau der Karte"));
    m_picture2->setFixedSize(Kartenvorschau + QSize(10, 10));
    m_picture2->setAlignment(Qt::AlignCenter);
    l->addWidget(m_picture2, 0, Qt::AlignTop);

    HintergrundLaden();
    HintergrundVerbinden();
    return w;
}

QGroupBox* FrmSeite::HintergrundartGruppe() {
    auto* art = new QGroupBox(QStringLiteral("Hintergrundart"), this);
    auto* a = new QGridLayout(art);
    m_verlauf = new QButtonGroup(this);
    const QStringList arten = Hintergrundarten();
    for (int i = 0; i < arten.size(); ++i) {
        auto* o = new QRadioButton(arten[i], art);
        o->setObjectName(QStringLiteral("optverlauf_%1").arg(i));
        m_verlauf->addButton(o, i);
        a->addWidget(o, i % 3, i / 3);
    }
    m_check6 = new QCheckBox(QStringLiteral("Farbverlauf in beide Richtungen"), art);
    m_check6->setObjectName(QStringLiteral("Check6"));
    a->addWidget(m_check6, 3, 0, 1, 2);
    return art;
}

QGroupBox* FrmSeite::FarbenGruppe() {
    auto* farben = new QGroupBox(QStringLiteral("Farben"), this);
    auto* f = new QFormLayout(farben);
    const char* titel[4] = {"", "Farbe 1", "Farbe 2", "Farbe des Designs"};
    for (int i = 1; i <= 3; ++i) {
        m_farbe[i] = new QToolButton(farben);
        m_farbe[i]->setObjectName(QStringLiteral("ImageFarbe_%1").arg(i));
        m_farbe[i]->setFixedSize(40, 20);
        m_farbe[i]->setAccessibleName(QString::fromUtf8(titel[i]));
        auto* zeile = new QHBoxLayout;
        zeile->addWidget(m_farbe[i]);
        if (i <= 2) {
            auto* mehr = new QPushButton(QStringLiteral("Mehr..."), farben);
            mehr->setObjectName(QStringLiteral("ComMehr%1").arg(i));
            connect(mehr, &QPushButton::clicked, this, [this, i] { FarbeWaehlen(i); });
            zeile->addWidget(mehr);
        }
        zeile->addStretch(1);
        f->addRow(QString::fromUtf8(titel[i]), zeile);
        connect(m_farbe[i], &QToolButton::clicked, this, [this, i] { FarbeWaehlen(i); });
    }
    auto* datei = new QHBoxLayout;
    auto* command4 = new QPushButton(QStringLiteral("Datei"), farben);
    command4->setObjectName(QStringLiteral("Command4"));
    m_bilddatei = new QLabel(farben);
    m_bilddatei->setObjectName(QStringLiteral("LabelBilddatei"));
    datei->addWidget(command4);
    datei->addWidget(m_bilddatei, 1);
    f->addRow(QStringLiteral("Bilddatei"), datei);
    connect(command4, &QPushButton::clicked, this, [this] {
        const QString pfad = QFileDialog::getOpenFileName(
            this, QStringLiteral("Bilddatei"), QFileInfo(s.EtikettKopie.Bilddatei).absolutePath(),
            QStringLiteral("Bilder (%1);;Alle Dateien (*)").arg(Bildmuster().join(u' ')));
        if (pfad.isEmpty()) return;
        s.EtikettKopie.Bilddatei = pfad;
        s.SeiteKopie.BackBilddatei = pfad;
        m_bilddatei->setText(QFileInfo(pfad).fileName());
        m_verlauf->button(OptionVonHintergrundart(4))->setChecked(true);
        KarteNeu();
    });
    return farben;
}

QGroupBox* FrmSeite::MusterGruppe() {
    auto* muster = new QGroupBox(QStringLiteral("Muster"), this);
    auto* m = new QVBoxLayout(muster);
    m_muster = Bilderreihe("PicMuster", Musteranzahl, Kleinbild.height() + 30);
    m->addWidget(m_muster);
    return muster;
}

QGroupBox* FrmSeite::DesignGruppe() {
    auto* design = new QGroupBox(QStringLiteral("Designart"), this);
    auto* d = new QFormLayout(design);
    m_design = Bilderreihe("PicDesign", Designanzahl + 1, Kleinbild.height() + 30);
    d->addRow(m_design);
    m_designgroesse = new QSlider(Qt::Horizontal, design);
    m_designgroesse->setObjectName(QStringLiteral("Slider1"));
    m_designgroesse->setRange(0, 600);
    d->addRow(QStringLiteral("Größe des Designs"), m_designgroesse);
    m_hscroll1 = new QScrollBar(Qt::Horizontal, design);
    m_hscroll1->setObjectName(QStringLiteral("HScroll1"));
    m_hscroll1->setRange(0, 360);
    d->addRow(QStringLiteral("Drehung"), m_hscroll1);
    return design;
}

// The controls as the copy stands.
void FrmSeite::HintergrundLaden() {
    const ClassEtikett& e = s.EtikettKopie;
    if (QAbstractButton* o = m_verlauf->button(OptionVonHintergrundart(e.Farbüberlauf))) o->setChecked(true);
    m_check6->setChecked(s.SeiteKopie.BackFarbverlaufart != 0);
    m_designgroesse->setValue(e.Designbreite);
    m_hscroll1->setValue(e.Drehung);
    m_bilddatei->setText(QFileInfo(e.Bilddatei).fileName());
    FarbfelderZeigen();
    MusterUndDesignsZeigen();
    m_muster->setCurrentRow(std::clamp(e.Muster - 1, 0, Musteranzahl - 1));
    m_design->setCurrentRow(std::clamp(e.Design, 0, Designanzahl));
}

// Each control writes the copy and redraws the card.
void FrmSeite::HintergrundVerbinden() {
    connect(m_verlauf, &QButtonGroup::idToggled, this, [this](int option, bool an) {
        if (m_fuellen || !an) return;
        HintergrundartGewaehlt(s, option);
        KarteNeu();
    });
    connect(m_check6, &QCheckBox::toggled, this, [this](bool an) {
        if (m_fuellen) return;
        s.SeiteKopie.BackFarbverlaufart = an ? -1 : 0;
        KarteNeu();
    });
    connect(m_muster, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (m_fuellen || zeile < 0) return;
        s.EtikettKopie.Muster = zeile + 1;
        m_verlauf->button(OptionVonHintergrundart(5))->setChecked(true);
        KarteNeu();
    });
    connect(m_design, &QListWidget::currentRowChanged, this, [this](int zeile) {
        if (m_fuellen || zeile < 0) return;
        const Farbe vorher = s.EtikettKopie.Farbe3;
        DesignGewaehlt(s, zeile);
        if (s.EtikettKopie.Farbe3 != vorher) FarbfelderZeigen();
        KarteNeu();
    });
    connect(m_designgroesse, &QSlider::valueChanged, this, [this](int wert) {
        if (m_fuellen) return;
        s.EtikettKopie.Designbreite = wert;
        MusterUndDesignsZeigen();
        KarteNeu();
    });
    connect(m_hscroll1, &QScrollBar::valueChanged, this, [this](int wert) {
        if (m_fuellen) return;
        s.EtikettKopie.Drehung = wert;
    });
}

void FrmSeite::FarbeWaehlen(int welche) {
    ClassEtikett& e = s.EtikettKopie;
    Farbe& ziel = welche == 1 ? e.Farbe1 : welche == 2 ? e.Farbe2 : e.Farbe3;
    auto* dialog = new QColorDialog(AlsQColor(ziel), this);
    dialog->setObjectName(QStringLiteral("Farbdialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The program's palette, every third entry, as the dialog's own colours.
    for (int i = 0; i < 16 && i * 3 + 1 <= s.Farbtabelle.Obergrenze(); ++i)
        QColorDialog::setCustomColor(i, AlsQColor(s.Farbtabelle(i * 3 + 1)));
    connect(dialog, &QColorDialog::colorSelected, this, [this, &ziel, welche](const QColor& c) {
        ziel = AlsFarbe(c);
        if (welche == 1) s.SeiteKopie.BackFarbe = ziel;
        if (welche == 2) s.SeiteKopie.BackFarbe2 = ziel;
        FarbfelderZeigen();
        if (welche == 3) MusterUndDesignsZeigen();
        KarteNeu();
    });
    dialog->open();
}

void FrmSeite::FarbfelderZeigen() {
    const Farbe farben[4] = {0, s.EtikettKopie.Farbe1, s.EtikettKopie.Farbe2, s.EtikettKopie.Farbe3};
    for (int i = 1; i <= 3; ++i)
        m_farbe[i]->setStyleSheet(QStringLiteral("background-color: %1; border: 1px solid black;")
                                      .arg(AlsQColor(farben[i]).name()));
}

// The rows of small pictures: each pattern as it fills a card, each design band in the design colour.
void FrmSeite::MusterUndDesignsZeigen() {
    for (int i = 0; i < Musteranzahl; ++i) {
        ClassEtikett e;
        e.Farbüberlauf = 5;
        e.Muster = i + 1;
        ImageCanvas box(Kleinbild, CanvasArt::Vorschau);
        ZeichneHintergrundVorschau(s, box, e);
        m_muster->item(i)->setIcon(QIcon(QPixmap::fromImage(box.Bild())));
        m_muster->item(i)->setToolTip(QStringLiteral("Muster %1").arg(i + 1));
    }
    const Farbe designfarbe = s.EtikettKopie.Farbe3 == 0xFFFFFF ? Designfarbe : s.EtikettKopie.Farbe3;
    for (int i = 0; i <= Designanzahl; ++i) {
        ClassEtikett e;
        e.Farbüberlauf = 1;
        e.Farbe1 = 0xFFFFFF;
        e.Farbe3 = designfarbe;
        e.Design = i;
        e.Designbreite = s.EtikettKopie.Designbreite / 2;
        ImageCanvas box(Kleinbild, CanvasArt::Vorschau);
        ZeichneHintergrundVorschau(s, box, e);
        m_design->item(i)->setIcon(QIcon(QPixmap::fromImage(box.Bild())));
        m_design->item(i)->setToolTip(i == 0 ? QStringLiteral("kein Design")
                                             : QStringLiteral("Design %1").arg(i));
    }
}

// Picture2: the card with its background and design band, in the card's proportions; a round
// label shows as its circle.
void FrmSeite::KarteNeu() {
    if (m_fuellen || !m_picture2) return;
    const ClassEtikett& e = s.EtikettKopie;
    const QSizeF karte(e.Breite > 0 ? e.Breite : 850, e.Höhe > 0 ? e.Höhe : 540);
    const QSize pixel =
        karte.scaled(QSizeF(Kartenvorschau), Qt::KeepAspectRatio).toSize().expandedTo(QSize(8, 8));
    ImageCanvas box(pixel, CanvasArt::Vorschau);
    ZeichneHintergrundVorschau(s, box, e);
    QImage bild = box.Bild();
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    if (e.Form == 1) {
        QPainterPath aussen;
        aussen.addRect(bild.rect());
        QPainterPath kreis;
        kreis.addEllipse(QRectF(bild.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        maler.fillPath(aussen.subtracted(kreis), QColor(230, 230, 230));
        maler.setPen(Qt::black);
        maler.drawPath(kreis);
    } else {
        maler.setPen(Qt::gray);
        maler.drawRect(bild.rect().adjusted(0, 0, -1, -1));
    }
    maler.end();
    m_kartenbild = bild;
    m_picture2->setPixmap(QPixmap::fromImage(bild));
}

} // namespace zp
