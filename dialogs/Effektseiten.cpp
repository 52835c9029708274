#include "Effektseiten.h"

#include "core/Schriftdialog.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

namespace {
// The eight directions of the shadow: degrees counter-clockwise from the right.
struct Richtungsknopf {
    int winkel;
    const char* pfeil;
    int zeile, spalte;
};
constexpr Richtungsknopf kRichtungen[] = {{135, "↖", 0, 0}, {90, "↑", 0, 1}, {45, "↗", 0, 2},
                                          {180, "←", 1, 0}, {0, "→", 1, 2},  {225, "↙", 2, 0},
                                          {270, "↓", 2, 1}, {315, "↘", 2, 2}};
} // namespace

Farbseite::Farbseite(const QString& titel1, const QString& titel2, QWidget* eltern) : QWidget(eltern) {
    auto* spalte = new QVBoxLayout(this);
    m_farben = new Farbpaar(titel1, titel2, "ComMehr1", "ComMehr2", this);
    spalte->addWidget(m_farben);
    auto* gruppe = new QGroupBox(QStringLiteral("Farbverlauf"), this);
    auto* optionen = new QVBoxLayout(gruppe);
    m_verlauf = new QButtonGroup(this);
    const char* titel[3] = {"kein Farbverlauf", "Farbverlauf links/rechts", "Farbverlauf oben/unten"};
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(titel[i]), gruppe);
        option->setObjectName(QStringLiteral("OptVerlauf%1").arg(i + 1));
        m_verlauf->addButton(option, i);
        optionen->addWidget(option);
    }
    spalte->addWidget(gruppe);
    spalte->addStretch();
    connect(m_farben, &Farbpaar::geaendert, this, &Farbseite::geaendert);
    connect(m_verlauf, &QButtonGroup::idClicked, this, &Farbseite::geaendert);
}

void Farbseite::ZeigeVerlauf(int verlauf) {
    if (QAbstractButton* b = m_verlauf->button(verlauf)) {
        b->setChecked(true);
        return;
    }
    // A value no option stands for stays in the object until an option is chosen.
    m_verlauf->setExclusive(false);
    for (QAbstractButton* b : m_verlauf->buttons())
        b->setChecked(false);
    m_verlauf->setExclusive(true);
}

int Farbseite::Verlauf() const {
    return m_verlauf->checkedId();
}

Schattenseite::Schattenseite(int groesste, QWidget* eltern) : QWidget(eltern) {
    auto* spalte = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    m_tiefe = new QSlider(Qt::Horizontal, this);
    m_tiefe->setObjectName(QStringLiteral("SliderSchatten"));
    m_tiefe->setRange(0, groesste);
    m_tiefe->setPageStep(std::max(1, groesste / 10));
    auto* tiefeTitel = new QLabel(QStringLiteral("Schatten&stärke"), this);
    tiefeTitel->setBuddy(m_tiefe);
    // The slider's value beside it, as the line strength has it: a user sees what a step does.
    m_tiefeWert = new QLabel(this);
    m_tiefeWert->setObjectName(QStringLiteral("LabelSchatten"));
    m_tiefeWert->setMinimumWidth(40);
    auto* tiefeZeile = new QHBoxLayout;
    tiefeZeile->addWidget(m_tiefe, 1);
    tiefeZeile->addWidget(m_tiefeWert);
    form->addRow(tiefeTitel, tiefeZeile);
    spalte->addLayout(form);

    auto* typen = new QHBoxLayout;
    m_typGruppe = new QButtonGroup(this);
    const char* typTitel[2] = {"einfacher Blockschatten", "Farbüberlaufender Schatten"};
    for (int i = 0; i < 2; ++i) {
        auto* typ = new QRadioButton(QString::fromUtf8(typTitel[i]), this);
        typ->setObjectName(QStringLiteral("PicSchattTyp_%1").arg(i + 1));
        m_typGruppe->addButton(typ, i + 1);
        typen->addWidget(typ);
    }
    spalte->addLayout(typen);

    auto* richtung = new QHBoxLayout;
    auto* raster = new QGridLayout;
    raster->setSpacing(1);
    m_richtung = new QButtonGroup(this);
    for (const Richtungsknopf& r : kRichtungen) {
        auto* knopf = new QToolButton(this);
        knopf->setObjectName(QStringLiteral("PicSchattRich_%1").arg(r.winkel));
        knopf->setText(QString::fromUtf8(r.pfeil));
        knopf->setCheckable(true);
        knopf->setAccessibleName(QStringLiteral("Schattenrichtung %1 Grad").arg(r.winkel));
        m_richtung->addButton(knopf, r.winkel);
        raster->addWidget(knopf, r.zeile, r.spalte);
    }
    richtung->addLayout(raster);
    m_winkelText = new QLineEdit(this);
    m_winkelText->setObjectName(QStringLiteral("TextSchattRich"));
    m_winkelText->setValidator(new QIntValidator(0, 999, m_winkelText));
    m_winkelText->setMaxLength(3);
    m_winkelText->setToolTip(QStringLiteral("Schattenwinkel in Grad (0-360)"));
    m_winkelText->setAccessibleName(m_winkelText->toolTip());
    m_winkelText->setMaximumWidth(60);
    auto* winkelTitel = new QLabel(QStringLiteral("&Richtung"), this);
    winkelTitel->setBuddy(m_winkelText);
    richtung->addWidget(winkelTitel);
    richtung->addWidget(m_winkelText);
    richtung->addStretch();
    spalte->addLayout(richtung);

    m_farben = new Farbpaar(QStringLiteral("Schattenfarbe"), QStringLiteral("Schattenende"), "CommandMehr1",
                            "CommandMehr2", this);
    spalte->addWidget(m_farben);
    spalte->addStretch();

    connect(m_tiefe, &QSlider::valueChanged, this, [this](int wert) {
        m_tiefeWert->setNum(wert);
        emit geaendert();
    });
    connect(m_typGruppe, &QButtonGroup::idClicked, this, [this](int typ) {
        m_typ = typ == 1 ? 1 : 2;
        emit geaendert();
    });
    connect(m_richtung, &QButtonGroup::idClicked, this, [this](int winkel) {
        Richtung(winkel);
        emit geaendert();
    });
    connect(m_winkelText, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_winkel = WinkelAusEingabe(text);
        Richtung(m_winkel);
        emit geaendert();
    });
    connect(m_farben, &Farbpaar::geaendert, this, &Schattenseite::geaendert);
}

void Schattenseite::ZeigeWerte(int tiefe, int typ, int winkel) {
    const QSignalBlocker sperre(m_tiefe);
    m_tiefe->setValue(tiefe);
    m_tiefeWert->setNum(m_tiefe->value());
    m_typ = typ;
    if (QAbstractButton* b = m_typGruppe->button(typ == 1 ? 1 : 2)) b->setChecked(true);
    m_winkel = winkel;
    Richtung(winkel);
    m_winkelText->setText(QString::number(winkel));
}

int Schattenseite::Tiefe() const {
    return m_tiefe->value();
}

// Presses the direction key of the angle, if there is one, and shows the degrees; a typed value
// stays as it is in its box.
void Schattenseite::Richtung(int winkel) {
    m_winkel = winkel;
    m_richtung->setExclusive(false);
    for (QAbstractButton* b : m_richtung->buttons())
        b->setChecked(m_richtung->id(b) == winkel);
    m_richtung->setExclusive(true);
    if (!m_winkelText->hasFocus()) m_winkelText->setText(QString::number(winkel));
}

void ErstesFeldFokussieren(QWidget* seite) {
    for (QWidget* w = seite->nextInFocusChain(); w && w != seite; w = w->nextInFocusChain()) {
        if (!seite->isAncestorOf(w)) break;
        if ((w->focusPolicy() & Qt::TabFocus) && w->isEnabled()) {
            w->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

} // namespace zp
