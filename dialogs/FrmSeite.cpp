#include "dialogs/FrmSeite.h"

#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Papier.h"
#include "render/Etikettenbogen.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace zp {

namespace {

constexpr int Bogenkante = 220; // pixels of the sheet preview's longer side

const char* const Kartenboxnamen[KartenfeldAnzahl] = {"Seitelinks",     "SeiteOben",     "KartenBreite",
                                                      "KartenHöhe",     "KartenAnzahlX", "KartenAnzahlY",
                                                      "KartenAbstandX", "KartenAbstandY"};

} // namespace

QLineEdit* FrmSeite::Box(const char* name, const QString& text) {
    auto* e = new QLineEdit(text, this);
    e->setObjectName(QString::fromUtf8(name));
    e->setMaximumWidth(90);
    return e;
}

FrmSeite::FrmSeite(AppState& state, Oberflaeche& ui, int tab, QWidget* parent)
    : QDialog(parent), s(state), m_ui(ui) {
    setObjectName(QStringLiteral("frmSeite"));
    setWindowTitle(QStringLiteral("Seite einrichten"));
    SeiteDialogOeffnen(s, m_ui);

    m_fuellen = true;
    auto* haupt = new QVBoxLayout(this);
    m_tabs = new QTabBar(this);
    m_tabs->setObjectName(QStringLiteral("TabStripSeite"));
    m_seiten = new QStackedWidget(this);
    m_formatSeite = SeiteFormat();
    m_etiketten = GruppeEtiketten();
    m_karteSeite = new QWidget(this);
    (new QVBoxLayout(m_karteSeite))->addWidget(m_etiketten);
    for (QWidget* seite : {m_formatSeite, SeiteHintergrund(), m_karteSeite, SeiteRaster()}) {
        m_tabs->addTab(QString());
        m_seiten->addWidget(seite);
    }
    connect(m_tabs, &QTabBar::currentChanged, m_seiten, &QStackedWidget::setCurrentIndex);
    haupt->addWidget(m_tabs);
    haupt->addWidget(m_seiten, 1);

    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch(1);
    auto* ok = new QPushButton(QStringLiteral("Ok"), this);
    ok->setObjectName(QStringLiteral("Command3"));
    ok->setDefault(true);
    auto* abbruch = new QPushButton(QStringLiteral("Abbruch"), this);
    abbruch->setObjectName(QStringLiteral("Command1"));
    connect(ok, &QPushButton::clicked, this, &FrmSeite::accept);
    connect(abbruch, &QPushButton::clicked, this, &FrmSeite::reject);
    knoepfe->addWidget(ok);
    knoepfe->addWidget(abbruch);
    haupt->addLayout(knoepfe);

    EditionAnwenden();
    BoxenFuellen();
    m_fuellen = false;
    BogenNeu();
    KarteNeu();

    // The card tab of an edition that hides it: its group stands on the format tab.
    int index = std::clamp(tab, 1, 4) - 1;
    if (!m_tabs->isTabVisible(index)) index = 0;
    m_tabs->setCurrentIndex(index);
    m_seiten->setCurrentIndex(index);
}

void FrmSeite::EditionAnwenden() {
    const Seitendialogtexte t = SeitendialogTexte(AktuelleEdition(s));
    for (int i = 0; i < 4; ++i) {
        m_tabs->setTabText(i, t.tabs[static_cast<size_t>(i)]);
        m_tabs->setTabVisible(i, t.sichtbar[static_cast<size_t>(i)]);
    }
    if (t.etikettenAufFormat) {
        auto* spalte = static_cast<QVBoxLayout*>(m_formatSeite->layout());
        spalte->insertWidget(spalte->count() - 1, m_etiketten); // above the closing stretch
    }
    m_etiketten->setTitle(t.Kartenformat);
    m_kartenLabel[static_cast<int>(Kartenfeld::Breite)]->setText(t.Kartenbreite);
    m_kartenLabel[static_cast<int>(Kartenfeld::Hoehe)]->setText(t.Kartenhoehe);
    m_kartenLabel[static_cast<int>(Kartenfeld::AbstandX)]->setText(t.AbstandX);
    m_kartenLabel[static_cast<int>(Kartenfeld::AbstandY)]->setText(t.AbstandY);
}

QWidget* FrmSeite::SeiteFormat() {
    auto* w = new QWidget(this);
    auto* l = new QVBoxLayout(w);
    auto* zeile = new QHBoxLayout;

    auto* papier = new QGroupBox(QStringLiteral("Papierformat"), w);
    auto* p = new QFormLayout(papier);
    m_papier = new QComboBox(papier);
    m_papier->setObjectName(QStringLiteral("ComboPapierformat"));
    m_papier->addItems(Papiernamen());
    m_breite = Box("TextBreite");
    m_hoehe = Box("TextHöhe");
    m_export = Box("TextExport");
    p->addRow(QStringLiteral("Format"), m_papier);
    p->addRow(QStringLiteral("Breite"), m_breite);
    p->addRow(QStringLiteral("Höhe"), m_hoehe);
    p->addRow(QStringLiteral("Zoom beim Export"), m_export);
    zeile->addWidget(papier);

    auto* rechts = new QVBoxLayout;
    auto* lage = new QGroupBox(QStringLiteral("Seitenlage"), w);
    auto* la = new QVBoxLayout(lage);
    m_lage[0] = new QRadioButton(QStringLiteral("Hochformat"), lage);
    m_lage[1] = new QRadioButton(QStringLiteral("Querformat"), lage);
    for (int i = 0; i < 2; ++i) {
        m_lage[i]->setObjectName(QStringLiteral("Option1_%1").arg(i));
        la->addWidget(m_lage[i]);
    }
    rechts->addWidget(lage);
    rechts->addWidget(SeiteRaender());
    zeile->addLayout(rechts);
    l->addLayout(zeile);
    l->addStretch(1); // the groups keep their height on a tall dialog

    connect(m_papier, &QComboBox::currentTextChanged, this, [this](const QString& name) {
        if (m_fuellen) return;
        const bool offen = PapierGewaehlt(s, name);
        m_fuellen = true;
        m_breite->setEnabled(offen);
        m_hoehe->setEnabled(offen);
        m_breite->setText(QString::number(s.SeiteKopie.Breite));
        m_hoehe->setText(QString::number(s.SeiteKopie.Höhe));
        m_fuellen = false;
        BogenNeu();
    });
    for (QLineEdit* e : {m_breite, m_hoehe})
        connect(e, &QLineEdit::textEdited, this, [this, e](const QString& text) {
            if (m_fuellen) return;
            PapiergroesseGetippt(s, e == m_breite, text);
            m_fuellen = true;
            m_papier->setCurrentText(s.SeiteKopie.Papier);
            m_fuellen = false;
            BogenNeu();
        });
    for (int i = 0; i < 2; ++i)
        connect(m_lage[i], &QRadioButton::toggled, this, [this, i](bool an) {
            if (m_fuellen || !an) return;
            s.SeiteKopie.Querformat = i == 1 ? -1 : 0;
            PapierGewaehlt(s, s.SeiteKopie.Papier);
            BogenNeu();
        });
    return w;
}

QWidget* FrmSeite::SeiteRaender() {
    auto* g = new QGroupBox(QStringLiteral("Seitenränder"), this);
    auto* f = new QFormLayout(g);
    const char* namen[4] = {"TextLinks", "TextRechts", "TextOben", "TextUnten"};
    const char* titel[4] = {"Links", "Rechts", "Oben", "Unten"};
    for (int i = 0; i < 4; ++i) {
        m_rand[i] = Box(namen[i]);
        f->addRow(QString::fromUtf8(titel[i]), m_rand[i]);
        connect(m_rand[i], &QLineEdit::textEdited, this, [this, i](const QString& text) {
            if (m_fuellen) return;
            RandGetippt(s, static_cast<Seitenrand>(i), text);
            m_fuellen = true;
            m_karte[0]->setText(QString::number(s.SeiteKopie.Randlinks));
            m_karte[1]->setText(QString::number(s.SeiteKopie.Randoben));
            m_fuellen = false;
            BogenNeu();
        });
    }
    return g;
}

QWidget* FrmSeite::SeiteRaster() {
    auto* w = new QWidget(this);
    auto* l = new QVBoxLayout(w);
    auto* g = new QGroupBox(QStringLiteral("Rastereinstellungen"), w);
    auto* f = new QFormLayout(g);
    m_rasterX = Box("Textrasterx");
    m_rasterY = Box("Textrastery");
    f->addRow(QStringLiteral("Rasterbreite"), m_rasterX);
    f->addRow(QStringLiteral("Rasterhöhe"), m_rasterY);
    l->addWidget(g);
    l->addWidget(GruppeAbgleich());
    l->addStretch(1);
    return w;
}

QGroupBox* FrmSeite::GruppeEtiketten() {
    auto* g = new QGroupBox(this);
    auto* zeile = new QHBoxLayout(g);
    auto* f = new QFormLayout;
    m_suche = Box("TextSuche");
    m_suche->setMaximumWidth(QWIDGETSIZE_MAX);
    m_suche->setPlaceholderText(QStringLiteral("Name oder Größe, z. B. 70 x 37"));
    // Wide enough for its hint and the clear button, so that the example size shows whole.
    m_suche->setMinimumWidth(m_suche->fontMetrics().horizontalAdvance(m_suche->placeholderText()) + 48);
    m_suche->setClearButtonEnabled(true);
    f->addRow(QStringLiteral("Suchen"), m_suche);
    m_katalog = new QComboBox(g);
    m_katalog->setObjectName(QStringLiteral("ComboKartenformat"));
    m_katalog->setMinimumContentsLength(24);
    f->addRow(m_katalog);
    const char* titel[KartenfeldAnzahl] = {"Abstand vom linken Rand", "Abstand vom oberen Rand", "", "",
                                           "Anzahl waagerecht",       "Anzahl senkrecht",        "", ""};
    for (int i = 0; i < KartenfeldAnzahl; ++i) {
        m_karte[i] = Box(Kartenboxnamen[i]);
        m_kartenLabel[i] = new QLabel(QString::fromUtf8(titel[i]), g);
        f->addRow(m_kartenLabel[i], m_karte[i]);
        connect(m_karte[i], &QLineEdit::textChanged, this, [this, i](const QString& text) {
            if (m_fuellen) return;
            KartenfeldGetippt(s, static_cast<Kartenfeld>(i), text, Katalogzeile());
            BogenNeu();
            KarteNeu();
        });
    }
    m_kreis = new QCheckBox(QStringLiteral("Runde Etiketten (CD)"), g);
    m_kreis->setObjectName(QStringLiteral("CheckKreis"));
    f->addRow(m_kreis);
    zeile->addLayout(f);
    m_picture1 = new QLabel(g);
    m_picture1->setObjectName(QStringLiteral("Picture1"));
    m_picture1->setAccessibleName(QStringLiteral("Vorschau des Bogens"));
    m_picture1->setFixedSize(Bogenkante, Bogenkante);
    m_picture1->setAlignment(Qt::AlignCenter);
    zeile->addWidget(m_picture1);

    KatalogListeFuellen(QString());
    connect(m_suche, &QLineEdit::textChanged, this, &FrmSeite::KatalogListeFuellen);
    auto* listeZeigen = new QAction(m_suche);
    listeZeigen->setShortcuts(
        {QKeySequence(Qt::Key_Down), QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    listeZeigen->setShortcutContext(Qt::WidgetShortcut);
    m_suche->addAction(listeZeigen);
    connect(listeZeigen, &QAction::triggered, this, [this] {
        if (m_katalog->count() > 1) m_katalog->showPopup();
    });
    connect(m_katalog, &QComboBox::currentIndexChanged, this, [this](int) {
        if (m_fuellen) return;
        const auto boxen = KartenformatGewaehlt(s, Katalogzeile());
        if (!boxen) return;
        // Each box then writes its field through its own handler, as a typed value would.
        for (int i = 0; i < KartenfeldAnzahl; ++i)
            m_karte[i]->setText(boxen->texte[static_cast<size_t>(i)]);
        m_fuellen = true;
        m_kreis->setChecked(boxen->kreis);
        m_rand[0]->setText(QString::number(s.SeiteKopie.Randlinks));
        m_rand[2]->setText(QString::number(s.SeiteKopie.Randoben));
        m_fuellen = false;
        BogenNeu();
        KarteNeu();
    });
    connect(m_kreis, &QCheckBox::toggled, this, [this](bool an) {
        if (m_fuellen) return;
        KreisGesetzt(s, an, Katalogzeile());
        BogenNeu();
        KarteNeu();
    });
    return g;
}

// The catalogue's rows that match the search; the entry's data is its row number, so that a
// filtered list still names the right row. "Vorgaben" always stands first.
void FrmSeite::KatalogListeFuellen(const QString& suche) {
    const bool vorher = m_fuellen;
    m_fuellen = true;
    const int gewaehlt = Katalogzeile();
    m_katalog->clear();
    m_katalog->addItem(QStringLiteral("Vorgaben"), 0);
    for (int zeile : SucheKartenformate(s, suche))
        m_katalog->addItem(s.KartenformatNamen(zeile), zeile);
    const int index = m_katalog->findData(gewaehlt);
    m_katalog->setCurrentIndex(std::max(index, 0));
    m_fuellen = vorher;
    // The box keeps the focus while the user types; the list opens on Enter or the down key.
    const int treffer = m_katalog->count() - 1;
    m_suche->setToolTip(suche.isEmpty() ? QString()
                        : treffer == 0
                            ? QStringLiteral("Kein Format passt.")
                            : QStringLiteral("%1 passende Formate, Eingabetaste zeigt sie.").arg(treffer));
}

int FrmSeite::Katalogzeile() const {
    return m_katalog ? m_katalog->currentData().toInt() : 0;
}

void FrmSeite::BoxenFuellen() {
    const ClassSeite& k = s.SeiteKopie;
    m_papier->setCurrentText(k.Papier);
    const bool offen = WendePapierAn(s.SeiteKopie);
    m_breite->setEnabled(offen);
    m_hoehe->setEnabled(offen);
    m_breite->setText(QString::number(k.Breite));
    m_hoehe->setText(QString::number(k.Höhe));
    m_export->setText(QString::number(s.ZoomExport));
    m_lage[k.Querformat != 0 ? 1 : 0]->setChecked(true);
    const int32_t raender[4] = {k.Randlinks, k.Randrechts, k.Randoben, k.Randunten};
    for (int i = 0; i < 4; ++i)
        m_rand[i]->setText(QString::number(raender[i]));
    m_rasterX->setText(QString::number(s.Rasterbreite));
    m_rasterY->setText(QString::number(s.Rasterhoehe));
    for (int i = 0; i < KartenfeldAnzahl; ++i)
        m_karte[i]->setText(QString::number(Kartenwert(s, static_cast<Kartenfeld>(i))));
    m_kreis->setChecked(s.EtikettKopie.Form == 1);
    const int index = m_katalog->findData(s.EtikettKopie.Vorlage);
    m_katalog->setCurrentIndex(std::max(index, 0));
}

// Picture1: the paper with its labels, fitted into the box.
void FrmSeite::BogenNeu() {
    if (m_fuellen) return;
    const ClassSeite& seite = s.SeiteKopie;
    const double breite = std::max(1, seite.Breite);
    const double hoehe = std::max(1, seite.Höhe);
    const double einheit = std::max(breite, hoehe) / (Bogenkante - 1); // tenths of a mm per pixel
    // One pixel more than the sheet, rounded up, so that its right and bottom edge stand inside.
    const QSize pixel(std::max(1, static_cast<int>(std::ceil(breite / einheit))) + 1,
                      std::max(1, static_cast<int>(std::ceil(hoehe / einheit))) + 1);
    ImageCanvas box(pixel, CanvasArt::Vorschau, einheit, einheit);
    ZeichneEtikettenbogen(box, seite, s.EtikettKopie);
    m_bogenbild = box.Bild();
    m_picture1->setPixmap(QPixmap::fromImage(m_bogenbild));
}

void FrmSeite::accept() {
    Seitendialogwerte werte{m_export->text(), m_rasterX->text(), m_rasterY->text()};
    if (!SeiteUebernehmen(s, m_ui, werte)) return; // the dialog stays open for the correction
    QDialog::accept();
}

void FrmSeite::reject() {
    QDialog::reject();
}

bool FrmSeite::Zeigen(AppState& s, Oberflaeche& ui, int tab, QWidget* parent) {
    FrmSeite dialog(s, ui, tab, parent);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace zp
