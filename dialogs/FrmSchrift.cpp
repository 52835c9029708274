#include "FrmSchrift.h"

#include "core/Dialogvorschau.h"
#include "core/Schriftdialog.h"
#include "core/state/AppState.h"
#include "dialogs/Effektseiten.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>

namespace zp {

namespace {
constexpr QSize kVorschau(440, 150);

const char* const kSchnitte[4] = {"Standard", "Fett", "Kursiv", "Fett Kursiv"};

// A radio group of three options named name1..name3 (from `erste`), ids 0 to 2.
QGroupBox* Optionen(QWidget* eltern, const QString& titel, int erste, const char* const namen[3],
                    QButtonGroup*& gruppe) {
    auto* box = new QGroupBox(titel, eltern);
    auto* zeile = new QHBoxLayout(box);
    gruppe = new QButtonGroup(box);
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(namen[i]), box);
        option->setObjectName(QStringLiteral("OptAus%1").arg(erste + i));
        gruppe->addButton(option, i);
        zeile->addWidget(option);
    }
    return box;
}

// A slider with a box for the typed value beside it.
QHBoxLayout* Regler(QSlider* regler, QLineEdit* box) {
    auto* zeile = new QHBoxLayout;
    box->setMaximumWidth(60);
    zeile->addWidget(regler, 1);
    zeile->addWidget(box);
    return zeile;
}
} // namespace

FrmSchrift::FrmSchrift(AppState& zustand, const ClassSchrift& schrift, QWidget* eltern)
    : QDialog(eltern), s(zustand), m_werk(schrift) {
    setObjectName(QStringLiteral("frmSchrift"));
    setWindowTitle(QStringLiteral("Einstellen der Schrift"));
    auto* spalte = new QVBoxLayout(this);

    m_vorschau = new QLabel(this);
    m_vorschau->setObjectName(QStringLiteral("PicMusterSchrift"));
    m_vorschau->setAccessibleName(QStringLiteral("Vorschau"));
    m_vorschau->setFixedSize(kVorschau);
    m_vorschau->setFrameShape(QFrame::StyledPanel);
    spalte->addWidget(m_vorschau, 0, Qt::AlignHCenter);

    m_seiten = new QTabWidget(this);
    m_seiten->setObjectName(QStringLiteral("TabStripSchrift"));
    m_farbe = new Farbseite(QStringLiteral("Textfarbe"), QStringLiteral("Verlaufsfarbe"), this);
    m_schatten = new Schattenseite(100, this);
    m_seiten->addTab(SeiteSchrift(), QStringLiteral("&Schrift"));
    m_seiten->addTab(m_farbe, QStringLiteral("&Farbe"));
    m_seiten->addTab(m_schatten, QStringLiteral("Schatte&n"));
    m_seiten->addTab(SeiteWinkel(), QStringLiteral("&Winkel"));
    spalte->addWidget(m_seiten);

    m_palette = new Farbpalette(s.Farbtabelle, this);
    spalte->addWidget(m_palette, 0, Qt::AlignHCenter);

    auto* knoepfe = new QDialogButtonBox(this);
    QPushButton* ok = knoepfe->addButton(QStringLiteral("Ok"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("CommandOk"));
    ok->setDefault(true);
    QPushButton* abbruch = knoepfe->addButton(QStringLiteral("Abbruch"), QDialogButtonBox::RejectRole);
    abbruch->setObjectName(QStringLiteral("CommandAbbruch"));
    spalte->addWidget(knoepfe);

    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_farbe, &Farbseite::geaendert, this, &FrmSchrift::Geaendert);
    connect(m_schatten, &Schattenseite::geaendert, this, &FrmSchrift::Geaendert);
    connect(m_palette, &Farbpalette::gewaehlt, this, &FrmSchrift::PaletteGewaehlt);
    connect(m_seiten, &QTabWidget::currentChanged, this,
            [this](int index) { m_palette->setEnabled(index == 1 || index == 2); });

    Zeigen();
    m_palette->setEnabled(false);
    SeiteWaehlen(1);
}

QWidget* FrmSchrift::SeiteSchrift() {
    auto* seite = new QWidget(this);
    auto* form = new QFormLayout(seite);

    m_text = new QLineEdit(seite);
    m_text->setObjectName(QStringLiteral("Schrifttext"));
    form->addRow(QStringLiteral("&Text"), m_text);

    m_combo1 = new QComboBox(seite);
    m_combo1->setObjectName(QStringLiteral("Combo1"));
    for (int i = 1; i <= s.Schriftenliste.Obergrenze(); ++i) {
        const QString& name = s.Schriftenliste(i);
        if (name == QLatin1String("-1")) break;
        if (!name.isEmpty() && s.SchriftSkalierbar(i) != 0) m_combo1->addItem(name);
    }
    form->addRow(QStringLiteral("Schrift&art"), m_combo1);

    m_combo2 = new QComboBox(seite);
    m_combo2->setObjectName(QStringLiteral("Combo2"));
    for (const char* schnitt : kSchnitte)
        m_combo2->addItem(QString::fromUtf8(schnitt));
    form->addRow(QStringLiteral("Schrift&schnitt"), m_combo2);

    m_combo3 = new QComboBox(seite);
    m_combo3->setObjectName(QStringLiteral("Combo3"));
    m_combo3->setEditable(true);
    m_combo3->setInsertPolicy(QComboBox::NoInsert);
    for (int g = 8; g <= 72; g += 2)
        m_combo3->addItem(QString::number(g));
    auto* groessen = new QDoubleValidator(1, 1000, 1, m_combo3);
    groessen->setNotation(QDoubleValidator::StandardNotation);
    m_combo3->setValidator(groessen);
    form->addRow(QStringLiteral("Schrift&größe"), m_combo3);

    static const char* const waagerecht[3] = {"&links", "&zentriert", "&rechts"};
    static const char* const senkrecht[3] = {"&oben", "&mittig", "&unten"};
    form->addRow(Optionen(seite, QStringLiteral("Ausrichtung waagerecht"), 1, waagerecht, m_ausH));
    form->addRow(Optionen(seite, QStringLiteral("Ausrichtung senkrecht"), 4, senkrecht, m_ausV));

    m_sichtbar = new QCheckBox(QStringLiteral("Text &sichtbar"), seite);
    m_sichtbar->setObjectName(QStringLiteral("CheckSichtbar"));
    form->addRow(m_sichtbar);

    connect(m_text, &QLineEdit::textEdited, this, &FrmSchrift::Geaendert);
    connect(m_combo1, &QComboBox::currentTextChanged, this, &FrmSchrift::Geaendert);
    connect(m_combo2, &QComboBox::currentIndexChanged, this, &FrmSchrift::Geaendert);
    connect(m_combo3, &QComboBox::currentTextChanged, this, &FrmSchrift::Geaendert);
    connect(m_ausH, &QButtonGroup::idClicked, this, &FrmSchrift::Geaendert);
    connect(m_ausV, &QButtonGroup::idClicked, this, &FrmSchrift::Geaendert);
    connect(m_sichtbar, &QCheckBox::toggled, this, &FrmSchrift::Geaendert);
    return seite;
}

QWidget* FrmSchrift::SeiteWinkel() {
    auto* seite = new QWidget(this);
    auto* form = new QFormLayout(seite);
    m_sliderAngle = new QSlider(Qt::Horizontal, seite);
    m_sliderAngle->setObjectName(QStringLiteral("SliderAngle"));
    m_sliderAngle->setRange(0, 360);
    m_sliderAngle->setPageStep(15);
    m_angle = new QLineEdit(seite);
    m_angle->setObjectName(QStringLiteral("MaskEdBoxAngle"));
    m_angle->setValidator(new QIntValidator(0, 999, m_angle));
    m_angle->setMaxLength(3);
    m_angle->setAccessibleName(QStringLiteral("Winkel in Grad"));
    auto* winkel = new QLabel(QStringLiteral("&Winkel (Grad)"), seite);
    winkel->setBuddy(m_sliderAngle);
    form->addRow(winkel, Regler(m_sliderAngle, m_angle));

    m_sliderSpace = new QSlider(Qt::Horizontal, seite);
    m_sliderSpace->setObjectName(QStringLiteral("SliderSpace"));
    m_sliderSpace->setRange(0, 50);
    m_space = new QLineEdit(seite);
    m_space->setObjectName(QStringLiteral("MaskEdBoxSpace"));
    m_space->setValidator(new QIntValidator(0, 50, m_space));
    m_space->setMaxLength(2);
    m_space->setAccessibleName(QStringLiteral("Zeichenabstand in Bildpunkten"));
    auto* abstand = new QLabel(QStringLiteral("&Zeichenabstand"), seite);
    abstand->setBuddy(m_sliderSpace);
    form->addRow(abstand, Regler(m_sliderSpace, m_space));

    connect(m_sliderAngle, &QSlider::valueChanged, this, [this](int wert) {
        if (m_fuellt) return;
        m_angle->setText(QString::number(wert));
        Geaendert();
    });
    connect(m_angle, &QLineEdit::textEdited, this, [this](const QString& text) {
        // A typed angle above 360 is replaced by 0.
        const int wert = WinkelAusEingabe(text);
        if (wert == 0 && text.toInt() > 360) m_angle->setText(QStringLiteral("0"));
        const QSignalBlocker sperre(m_sliderAngle);
        m_sliderAngle->setValue(wert);
        Geaendert();
    });
    connect(m_sliderSpace, &QSlider::valueChanged, this, [this](int wert) {
        if (m_fuellt) return;
        m_space->setText(QString::number(wert));
        Geaendert();
    });
    connect(m_space, &QLineEdit::textEdited, this, [this](const QString& text) {
        const QSignalBlocker sperre(m_sliderSpace);
        m_sliderSpace->setValue(text.toInt());
        Geaendert();
    });
    return seite;
}

void FrmSchrift::Zeigen() {
    m_fuellt = true;
    m_text->setText(m_werk.Textstring);
    // A font the machine doesn't have keeps its name in the list, so that Ok doesn't change it.
    if (m_combo1->findText(m_werk.fontname) < 0 && !m_werk.fontname.isEmpty())
        m_combo1->insertItem(0, m_werk.fontname);
    m_combo1->setCurrentText(m_werk.fontname);
    m_combo2->setCurrentIndex((m_werk.Bold != 0 ? 1 : 0) + (m_werk.Italic != 0 ? 2 : 0));
    m_combo3->setCurrentText(QString::number(m_werk.FontSize));
    if (QAbstractButton* b = m_ausH->button(m_werk.AusrichtungH)) b->setChecked(true);
    if (QAbstractButton* b = m_ausV->button(m_werk.AusrichtungV)) b->setChecked(true);
    m_sichtbar->setChecked(m_werk.Sichtbar != 0);
    m_sliderAngle->setValue(m_werk.Angle);
    m_angle->setText(QString::number(m_werk.Angle));
    m_sliderSpace->setValue(m_werk.CharSpace);
    m_space->setText(QString::number(m_werk.CharSpace));
    m_farbe->Zeige(m_werk);
    m_schatten->Zeige(m_werk);
    m_fuellt = false;
    Vorschau();
}

// Every control writes its field into the work object, then the preview follows.
void FrmSchrift::Geaendert() {
    if (m_fuellt) return;
    m_werk.Textstring = m_text->text();
    if (!m_combo1->currentText().isEmpty()) m_werk.fontname = m_combo1->currentText();
    const int schnitt = m_combo2->currentIndex();
    m_werk.Bold = (schnitt == 1 || schnitt == 3) ? -1 : 0;
    m_werk.Italic = (schnitt == 2 || schnitt == 3) ? -1 : 0;
    QString groesse = m_combo3->currentText();
    groesse.replace(QLatin1Char(','), QLatin1Char('.'));
    bool zahl = false;
    const double wert = groesse.toDouble(&zahl);
    if (zahl && wert >= 1 && wert <= 1000) m_werk.FontSize = wert;
    if (m_ausH->checkedId() >= 0) m_werk.AusrichtungH = static_cast<int16_t>(m_ausH->checkedId());
    if (m_ausV->checkedId() >= 0) m_werk.AusrichtungV = static_cast<int16_t>(m_ausV->checkedId());
    m_werk.Sichtbar = m_sichtbar->isChecked() ? -1 : 0;
    m_werk.Angle = static_cast<int16_t>(m_sliderAngle->value());
    m_werk.CharSpace = static_cast<int16_t>(m_sliderSpace->value());
    m_farbe->SchreibeIn(m_werk);
    m_schatten->SchreibeIn(m_werk);
    Vorschau();
}

void FrmSchrift::Vorschau() {
    m_bild = Schriftvorschau(s, m_werk, kVorschau);
    m_vorschau->setPixmap(QPixmap::fromImage(m_bild));
}

void FrmSchrift::PaletteGewaehlt(Farbe farbe) {
    if (m_seiten->currentWidget() == m_farbe)
        m_farbe->Farben()->PaletteGewaehlt(farbe);
    else if (m_seiten->currentWidget() == m_schatten)
        m_schatten->Farben()->PaletteGewaehlt(farbe);
}

QString FrmSchrift::Schrifttext() const {
    return m_text->text();
}

void FrmSchrift::SeiteWaehlen(int seite) {
    if (seite < 1 || seite > m_seiten->count()) return;
    m_seiten->setCurrentIndex(seite - 1);
    // The page opens ready for typing: the angle straight into its box, elsewhere the first control.
    if (m_seiten->currentWidget() == m_angle->parentWidget()) {
        m_angle->setFocus(Qt::TabFocusReason);
        m_angle->selectAll();
    } else {
        ErstesFeldFokussieren(m_seiten->currentWidget());
    }
}

void FrmSchrift::SetzeFarbdialog(const Farbdialog& dialog) {
    m_farbe->Farben()->farbdialog = dialog;
    m_schatten->Farben()->farbdialog = dialog;
}

bool SchriftBearbeiten(QWidget* eltern, AppState& s, ClassSchrift& schrift, int seite) {
    FrmSchrift dialog(s, schrift, eltern);
    dialog.SeiteWaehlen(seite);
    if (dialog.exec() != QDialog::Accepted) return false;
    schrift = dialog.Werk();
    schrift.Textstring = dialog.Schrifttext();
    return true;
}

} // namespace zp
