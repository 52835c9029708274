#include "FrmLinie.h"

#include "core/Dialogvorschau.h"
#include "core/state/AppState.h"
#include "dialogs/Effektseiten.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

namespace {
constexpr QSize kVorschau(300, 150);
constexpr int kDaumen = 40; // thumbnail pixels

const char* const kFormnamen[18] = {"Linie waagerecht",
                                    "Linie senkrecht",
                                    "Diagonale fallend",
                                    "Diagonale steigend",
                                    "Ecke oben links",
                                    "Ecke unten links",
                                    "Ecke unten rechts",
                                    "Ecke oben rechts",
                                    "Linien oben und unten",
                                    "Linien links und rechts",
                                    "Kreuz",
                                    "Dreieck nach oben",
                                    "Dreieck nach rechts",
                                    "Dreieck nach unten",
                                    "Dreieck nach links",
                                    "Rechteck",
                                    "Raute",
                                    "Ellipse"};
} // namespace

FrmLinie::FrmLinie(AppState& zustand, const ClassLinie& linie, QWidget* eltern)
    : QDialog(eltern), s(zustand), m_werk(linie) {
    setObjectName(QStringLiteral("frmlinie"));
    setWindowTitle(QStringLiteral("Einstellen der Linie"));
    auto* spalte = new QVBoxLayout(this);

    m_vorschau = new QLabel(this);
    m_vorschau->setObjectName(QStringLiteral("PicMusterLinie"));
    m_vorschau->setAccessibleName(QStringLiteral("Vorschau"));
    m_vorschau->setFixedSize(kVorschau);
    m_vorschau->setFrameShape(QFrame::StyledPanel);
    spalte->addWidget(m_vorschau, 0, Qt::AlignHCenter);

    m_seiten = new QTabWidget(this);
    m_seiten->setObjectName(QStringLiteral("TabStripLinie"));
    m_farbe = new Farbseite(QStringLiteral("Linienfarbe"), QStringLiteral("Füllfarbe"), this);
    m_schatten = new Schattenseite(100, this);
    m_seiten->addTab(SeiteForm(), QStringLiteral("F&orm"));
    m_seiten->addTab(m_farbe, QStringLiteral("&Farbe"));
    m_seiten->addTab(m_schatten, QStringLiteral("Schatte&n"));
    spalte->addWidget(m_seiten);

    m_palette = new Farbpalette(s.Farbtabelle, this);
    spalte->addWidget(m_palette, 0, Qt::AlignHCenter);

    auto* knoepfe = new QDialogButtonBox(this);
    QPushButton* ok = knoepfe->addButton(QStringLiteral("Ok"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("Command3"));
    ok->setDefault(true);
    QPushButton* abbruch = knoepfe->addButton(QStringLiteral("Abbruch"), QDialogButtonBox::RejectRole);
    abbruch->setObjectName(QStringLiteral("Command1"));
    spalte->addWidget(knoepfe);

    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_farbe, &Farbseite::geaendert, this, &FrmLinie::Geaendert);
    connect(m_schatten, &Schattenseite::geaendert, this, &FrmLinie::Geaendert);
    connect(m_palette, &Farbpalette::gewaehlt, this, &FrmLinie::PaletteGewaehlt);
    connect(m_seiten, &QTabWidget::currentChanged, this,
            [this](int index) { m_palette->setEnabled(index == 1 || index == 2); });

    Zeigen();
    m_palette->setEnabled(false);
    SeiteWaehlen(1);
}

QWidget* FrmLinie::SeiteForm() {
    auto* seite = new QWidget(this);
    auto* spalte = new QVBoxLayout(seite);
    auto* raster = new QGridLayout;
    raster->setSpacing(2);
    m_formen = new QButtonGroup(seite);
    for (int i = 1; i <= 18; ++i) {
        auto* knopf = new QToolButton(seite);
        knopf->setObjectName(QStringLiteral("Linienform_%1").arg(i));
        knopf->setCheckable(true);
        knopf->setIconSize(QSize(kDaumen, kDaumen));
        knopf->setIcon(QPixmap::fromImage(Formvorschau(i, kDaumen)));
        knopf->setAccessibleName(QString::fromUtf8(kFormnamen[i - 1]));
        knopf->setToolTip(knopf->accessibleName());
        m_formen->addButton(knopf, i);
        raster->addWidget(knopf, (i - 1) / 9, (i - 1) % 9);
    }
    spalte->addLayout(raster);

    m_fuellen = new QCheckBox(QStringLiteral(" Flächen gefüllt"), seite);
    m_fuellen->setObjectName(QStringLiteral("CheckFüllen"));
    spalte->addWidget(m_fuellen);

    auto* form = new QFormLayout;
    auto* zeile = new QHBoxLayout;
    m_staerke = new QSlider(Qt::Horizontal, seite);
    m_staerke->setObjectName(QStringLiteral("SliderHeight"));
    m_staerke->setRange(0, 100);
    m_staerke->setPageStep(5);
    m_staerkeWert = new QLabel(seite);
    m_staerkeWert->setMinimumWidth(60);
    zeile->addWidget(m_staerke, 1);
    zeile->addWidget(m_staerkeWert);
    auto* titel = new QLabel(QStringLiteral("&Linienstärke"), seite);
    titel->setBuddy(m_staerke);
    form->addRow(titel, zeile);
    spalte->addLayout(form);
    spalte->addStretch();

    connect(m_formen, &QButtonGroup::idClicked, this, &FrmLinie::Geaendert);
    connect(m_fuellen, &QCheckBox::toggled, this, &FrmLinie::Geaendert);
    connect(m_staerke, &QSlider::valueChanged, this, &FrmLinie::Geaendert);
    return seite;
}

void FrmLinie::Zeigen() {
    m_fuellt = true;
    if (QAbstractButton* b = m_formen->button(m_werk.Form)) b->setChecked(true);
    m_fuellen->setChecked(m_werk.Füllung != 0);
    m_staerke->setValue(m_werk.Stärke);
    m_farbe->Zeige(m_werk);
    m_schatten->Zeige(m_werk);
    m_fuellt = false;
    Vorschau();
}

void FrmLinie::Geaendert() {
    if (m_fuellt) return;
    if (m_formen->checkedId() >= 1) m_werk.Form = static_cast<int16_t>(m_formen->checkedId());
    m_werk.Füllung = m_fuellen->isChecked() ? -1 : 0;
    m_werk.Stärke = static_cast<int16_t>(m_staerke->value());
    m_farbe->SchreibeIn(m_werk);
    m_schatten->SchreibeIn(m_werk);
    Vorschau();
}

void FrmLinie::Vorschau() {
    m_staerkeWert->setText(
        QStringLiteral("%1 mm").arg(QLocale(QLocale::German).toString(m_werk.Stärke / 10.0)));
    m_bild = Linienvorschau(s, m_werk, kVorschau);
    m_vorschau->setPixmap(QPixmap::fromImage(m_bild));
}

void FrmLinie::PaletteGewaehlt(Farbe farbe) {
    if (m_seiten->currentWidget() == m_farbe)
        m_farbe->Farben()->PaletteGewaehlt(farbe);
    else if (m_seiten->currentWidget() == m_schatten)
        m_schatten->Farben()->PaletteGewaehlt(farbe);
}

void FrmLinie::SeiteWaehlen(int seite) {
    if (seite < 1 || seite > m_seiten->count()) return;
    m_seiten->setCurrentIndex(seite - 1);
    ErstesFeldFokussieren(m_seiten->currentWidget());
}

void FrmLinie::SetzeFarbdialog(const Farbdialog& dialog) {
    m_farbe->Farben()->farbdialog = dialog;
    m_schatten->Farben()->farbdialog = dialog;
}

bool LinieBearbeiten(QWidget* eltern, AppState& s, ClassLinie& linie, int seite) {
    FrmLinie dialog(s, linie, eltern);
    dialog.SeiteWaehlen(seite);
    if (dialog.exec() != QDialog::Accepted) return false;
    linie = dialog.Werk();
    return true;
}

} // namespace zp
