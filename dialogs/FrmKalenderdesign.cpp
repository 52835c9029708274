#include "dialogs/FrmKalenderdesign.h"

#include "compose/Vorschaubild.h"
#include "core/Kalenderoptionen.h"
#include "core/state/AppState.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace zp {

namespace {

constexpr QSize kBox(260, 72);

template <typename W, typename... A> W* Benannt(const QString& name, A&&... args) {
    auto* w = new W(std::forward<A>(args)...);
    w->setObjectName(name);
    return w;
}

// What a role's preview shows: the text the page puts in that frame, or a sample of it.
QString Mustertext(const AppState& s, int rolle) {
    switch (rolle) {
    case 1:
        return s.Panel.TextTitel.isEmpty() ? s.Kalendertitel : s.Panel.TextTitel;
    case 2:
        return s.Monatsnamen(1);
    case 3:
        return QStringLiteral("24");
    case 4:
        return s.Wochentagsnamen(2);
    case 5:
        return QStringLiteral("Geburtstag");
    case 6:
        return QStringLiteral("12");
    default:
        return s.Panel.TextUnterschrift.isEmpty() ? s.Kalenderunterschrift : s.Panel.TextUnterschrift;
    }
}

// The shape role the page draws under a text role: the title in its frame, month names in the
// month frame, day numbers, weekdays and week numbers in the day frame, appointments in theirs,
// the footer on the calendar's background.
constexpr std::array<int, 7> kGrundVonText = {2, 3, 4, 4, 5, 4, 1};

const QString kNochNicht =
    QStringLiteral("Der Dialog zum Ändern ist in dieser Version noch nicht enthalten.");

} // namespace

FrmKalenderdesign::FrmKalenderdesign(AppState& state, Eigenschaften schriftDialog, Eigenschaften linienDialog,
                                     QWidget* parent)
    : QDialog(parent), s(state), m_schriftDialog(std::move(schriftDialog)),
      m_linienDialog(std::move(linienDialog)) {
    setObjectName(QStringLiteral("frmKalenderdesign"));
    setWindowTitle(QStringLiteral("Kalenderdesign"));
    auto* haupt = new QVBoxLayout(this);
    haupt->addWidget(new QLabel(QStringLiteral("Verändern Sie hier das Aussehen des Kalenders"), this));
    m_tabs = Benannt<QTabBar>(QStringLiteral("TabStrip1"), this);
    m_tabs->addTab(QStringLiteral("Schrift"));
    m_tabs->addTab(QStringLiteral("Rahmen"));
    m_seiten = new QStackedWidget(this);
    m_seiten->addWidget(Schriftseite());
    m_seiten->addWidget(Rahmenseite());
    connect(m_tabs, &QTabBar::currentChanged, m_seiten, &QStackedWidget::setCurrentIndex);
    haupt->addWidget(m_tabs);
    haupt->addWidget(m_seiten);
    auto* ende = Benannt<QPushButton>(QStringLiteral("CommandOk"), QStringLiteral("Ende"), this);
    connect(ende, &QPushButton::clicked, this, &QDialog::accept);
    haupt->addWidget(ende, 0, Qt::AlignRight);

    KopienNehmen();
    VorschauenZeichnen();
}

QWidget* FrmKalenderdesign::Schriftseite() {
    auto* seite = Benannt<QWidget>(QStringLiteral("Frame1_0"));
    auto* g = new QGridLayout(seite);
    for (int i = 0; i < 7; ++i) {
        m_picture1[static_cast<size_t>(i)] = Benannt<QLabel>(QStringLiteral("Picture1_%1").arg(i), seite);
        m_picture1[static_cast<size_t>(i)]->setFixedSize(kBox);
        auto* knopf =
            Benannt<QPushButton>(QStringLiteral("Command1_%1").arg(i), QStringLiteral("ändern"), seite);
        m_command1[static_cast<size_t>(i)] = knopf;
        g->addWidget(new QLabel(KalenderdesignTexte()[i], seite), i, 0);
        g->addWidget(m_picture1[static_cast<size_t>(i)], i, 1);
        g->addWidget(knopf, i, 2);
        connect(knopf, &QPushButton::clicked, this, [this, i] { Command1Klick(i); });
    }
    return seite;
}

QWidget* FrmKalenderdesign::Rahmenseite() {
    auto* seite = Benannt<QWidget>(QStringLiteral("Frame1_1"));
    auto* g = new QGridLayout(seite);
    for (int i = 1; i <= 7; ++i) {
        m_picture2[static_cast<size_t>(i - 1)] =
            Benannt<QLabel>(QStringLiteral("Picture2_%1").arg(i - 1), seite);
        m_picture2[static_cast<size_t>(i - 1)]->setFixedSize(kBox);
        auto* knopf =
            Benannt<QPushButton>(QStringLiteral("Command2_%1").arg(i), QStringLiteral("ändern"), seite);
        m_command2[static_cast<size_t>(i)] = knopf;
        g->addWidget(new QLabel(KalenderdesignRahmen()[i - 1], seite), i - 1, 0);
        g->addWidget(m_picture2[static_cast<size_t>(i - 1)], i - 1, 1);
        g->addWidget(knopf, i - 1, 2);
        connect(knopf, &QPushButton::clicked, this, [this, i] { Command2Klick(i); });
    }
    return seite;
}

void FrmKalenderdesign::KopienNehmen() {
    for (int k = 1; k <= 7; ++k) {
        const size_t i = static_cast<size_t>(k - 1);
        m_textDa[i] = s.Schriftliste.Gueltig(k) && k <= s.RahmenAnzahl;
        m_formDa[i] = s.Linienliste.Gueltig(k) && 31 + k <= s.RahmenAnzahl;
        if (m_textDa[i]) {
            m_texte[i] = s.Schriftliste(k);
            const ClassRahmen& r = s.Rahmenliste(k);
            m_textrahmen[i] = QRectF(r.X, r.Y, r.Breite, r.Höhe);
        }
        if (m_formDa[i]) {
            m_formen[i] = s.Linienliste(k);
            const ClassRahmen& r = s.Rahmenliste(31 + k);
            m_formgroesse[i] = QSizeF(r.Breite, r.Höhe);
        }
    }
}

std::vector<Grundform> FrmKalenderdesign::Grund(int form) const {
    // The calendar's background and the role's own shape, where the page shows them.
    std::vector<Grundform> grund;
    std::vector<int> rollen = {1};
    if (form != 1) rollen.push_back(form);
    for (const int k : rollen) {
        const size_t i = static_cast<size_t>(k - 1);
        if (!m_formDa[i] || s.Rahmenliste(31 + k).Sichtbar == 0) continue;
        const ClassRahmen& r = s.Rahmenliste(31 + k);
        grund.push_back({m_formen[i], QRectF(r.X, r.Y, r.Breite, r.Höhe)});
    }
    return grund;
}

void FrmKalenderdesign::VorschauenZeichnen() {
    for (size_t i = 0; i < 7; ++i) {
        const int k = static_cast<int>(i) + 1;
        if (m_textDa[i]) {
            ClassSchrift muster = m_texte[i];
            muster.Textstring = Mustertext(s, k);
            m_picture1[i]->setPixmap(QPixmap::fromImage(
                SchriftAufGrund(s, muster, m_textrahmen[i], Grund(kGrundVonText[i]), kBox)));
        } else {
            m_picture1[i]->clear();
        }
        if (m_formDa[i])
            m_picture2[i]->setPixmap(
                QPixmap::fromImage(LinieInGroesse(s, m_formen[i], m_formgroesse[i], kBox)));
        else
            m_picture2[i]->clear();

        QPushButton* text = m_command1[i];
        text->setEnabled(static_cast<bool>(m_schriftDialog) && m_textDa[i]);
        text->setToolTip(m_schriftDialog ? QString() : kNochNicht);
        QPushButton* form = m_command2[i + 1];
        const bool linieMoeglich = k != 6 || WochenlinieAenderbar(s);
        form->setEnabled(static_cast<bool>(m_linienDialog) && m_formDa[i] && linieMoeglich);
        form->setToolTip(!m_linienDialog ? kNochNicht
                         : !linieMoeglich
                             ? QStringLiteral("Nur Halbjahr, Jahr A5 und Planer haben eine Wochenlinie.")
                             : QString());
    }
}

void FrmKalenderdesign::Command1Klick(int index) {
    const int rahmen = KalenderdesignTextWaehlen(s, index);
    if (rahmen == 0 || !m_schriftDialog) return;
    if (m_schriftDialog(s, rahmen)) {
        KopienNehmen();
        VorschauenZeichnen();
    }
}

void FrmKalenderdesign::Command2Klick(int index) {
    const int rahmen = KalenderdesignRahmenWaehlen(s, index);
    if (rahmen == 0 || !m_linienDialog) return;
    if (m_linienDialog(s, rahmen)) {
        KopienNehmen();
        VorschauenZeichnen();
    }
}

} // namespace zp
