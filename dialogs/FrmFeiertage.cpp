#include "dialogs/FrmFeiertage.h"

#include "calendar/data/Landesfeiertage.h"
#include "compose/Seitenbild.h"
#include "core/Kalenderoptionen.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace zp {

namespace {

QColor AlsQColor(Farbe f) {
    return QColor(f & 0xFF, (f >> 8) & 0xFF, (f >> 16) & 0xFF);
}

template <typename W, typename... A> W* Benannt(const QString& name, A&&... args) {
    auto* w = new W(std::forward<A>(args)...);
    w->setObjectName(name);
    return w;
}

constexpr QSize kVorschau(180, 255);

} // namespace

FrmFeiertage::FrmFeiertage(AppState& state, Oberflaeche& ui, QWidget* parent)
    : QDialog(parent), s(state), m_ui(ui), m_wahl(OptionenAusZustand(state)) {
    setObjectName(QStringLiteral("frmFeiertage"));
    setWindowTitle(QStringLiteral("Optionen"));
    farbeWaehlen = [this](Farbe start) -> std::optional<Farbe> {
        const QColor c = QColorDialog::getColor(AlsQColor(start), this, QStringLiteral("Farbe"));
        if (!c.isValid()) return std::nullopt;
        return static_cast<Farbe>(c.red() | (c.green() << 8) | (c.blue() << 16));
    };

    // The holidays and the colours they are drawn in on the left, the week count, birthdays, names
    // and the preview on the right: two columns of about the same height, no empty corner.
    auto* links = new QVBoxLayout;
    links->addWidget(Feiertagsgruppe());
    links->addWidget(Farbgruppe());
    links->addStretch();
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(Wochengruppe());
    rechts->addWidget(Namensgruppe());
    m_vorschau = Benannt<QLabel>(QStringLiteral("PictureVorschau"), this);
    m_vorschau->setFixedSize(kVorschau);
    m_vorschau->setToolTip(QStringLiteral("So erscheinen Farben, Namen und Wochennummern auf der Seite"));
    rechts->addWidget(m_vorschau, 0, Qt::AlignHCenter);
    rechts->addStretch();

    auto* spalten = new QHBoxLayout;
    spalten->addLayout(links);
    spalten->addLayout(rechts);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    auto* ok = Benannt<QPushButton>(QStringLiteral("CommandOk"), QStringLiteral("Ok"), this);
    auto* abbrechen =
        Benannt<QPushButton>(QStringLiteral("CommandAbbrechen"), QStringLiteral("Abbrechen"), this);
    ok->setDefault(true);
    knoepfe->addWidget(ok);
    knoepfe->addWidget(abbrechen);
    auto* haupt = new QVBoxLayout(this);
    haupt->addLayout(spalten);
    haupt->addLayout(knoepfe);
    connect(ok, &QPushButton::clicked, this, &FrmFeiertage::CommandOk);
    connect(abbrechen, &QPushButton::clicked, this, &QDialog::reject);

    HakenZeigen();
    VorschauZeichnen();
}

QWidget* FrmFeiertage::Feiertagsgruppe() {
    auto* gruppe = new QGroupBox(QStringLiteral("Feiertage"), this);
    auto* v = new QVBoxLayout(gruppe);
    auto* land = new QHBoxLayout;
    m_bundesland = Benannt<QComboBox>(QStringLiteral("ComboBundesland"), gruppe);
    m_bundesland->addItem(QString());
    m_bundesland->addItems(Bundeslaender());
    m_bundesland->setCurrentIndex(std::max(0, m_bundesland->findText(m_wahl.bundesland)));
    m_bundesland->setToolTip(QStringLiteral("Setzt die gesetzlichen Feiertage des Landes; "
                                            "einzelne Haken lassen sich danach ändern"));
    land->addWidget(new QLabel(QStringLiteral("Bundesland"), gruppe));
    land->addWidget(m_bundesland, 1);
    v->addLayout(land);
    connect(m_bundesland, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        if (m_fuellen || !BundeslandGewaehlt(m_wahl, text)) return;
        HakenZeigen();
    });

    auto* raster = new QGridLayout;
    QStringList titel = Feiertagsschalter();
    titel << Zusatzschalter();
    for (int i = 0; i < 30; ++i) {
        auto* box = Benannt<QCheckBox>(QStringLiteral("Check1_%1").arg(i), titel[i], gruppe);
        m_check[static_cast<size_t>(i)] = box;
        // The 25 classic boxes in two columns, the five added ones in a row of their own below.
        if (i < 25)
            raster->addWidget(box, i % 13, i / 13);
        else
            raster->addWidget(box, 13 + (i - 25) / 2, (i - 25) % 2);
        connect(box, &QCheckBox::toggled, this, [this, i](bool an) {
            if (!m_fuellen) m_wahl.haken[static_cast<size_t>(i)] = an;
        });
    }
    v->addLayout(raster);
    return gruppe;
}

QToolButton* FrmFeiertage::Farbfeld(const char* name, Farbe Optionenwahl::*farbe) {
    auto* feld = Benannt<QToolButton>(QString::fromLatin1(name), this);
    feld->setFixedSize(48, 20);
    FarbfeldZeigen(feld, m_wahl.*farbe);
    connect(feld, &QToolButton::clicked, this, [this, feld, farbe] {
        if (const auto neu = farbeWaehlen(m_wahl.*farbe)) {
            m_wahl.*farbe = *neu;
            FarbfeldZeigen(feld, *neu);
            VorschauZeichnen();
        }
    });
    return feld;
}

void FrmFeiertage::FarbfeldZeigen(QToolButton* feld, Farbe farbe) {
    feld->setStyleSheet(QStringLiteral("QToolButton { background: %1; border: 1px solid #808080; }")
                            .arg(AlsQColor(farbe).name()));
    feld->setProperty("farbe", farbe);
}

QWidget* FrmFeiertage::Farbgruppe() {
    auto* gruppe = new QGroupBox(QStringLiteral("Farbeinstellungen"), this);
    // Two pairs a row, in the columns of the holiday boxes above.
    auto* g = new QGridLayout(gruppe);
    const auto zeile = [&](int r, int c, const char* titel, const char* name, Farbe Optionenwahl::*farbe) {
        g->addWidget(new QLabel(QString::fromUtf8(titel), gruppe), r, 2 * c);
        g->addWidget(Farbfeld(name, farbe), r, 2 * c + 1);
    };
    zeile(0, 0, "Samstag", "PictureSamstag", &Optionenwahl::samstag);
    zeile(0, 1, "Sonntag", "PictureSonntag", &Optionenwahl::sonntag);
    zeile(1, 0, "Feiertag", "PictureFeiertag", &Optionenwahl::feiertag);
    zeile(1, 1, "Termin", "Picturetermin", &Optionenwahl::termin);
    g->setColumnStretch(1, 1);
    g->setColumnStretch(3, 1);
    return gruppe;
}

QWidget* FrmFeiertage::Wochengruppe() {
    auto* gruppe = new QGroupBox(QStringLiteral("Wochennummern und Geburtstage"), this);
    auto* v = new QVBoxLayout(gruppe);
    m_montage = Benannt<QRadioButton>(QStringLiteral("OptionWochenMontage"),
                                      QStringLiteral("Montage des Jahres zählen (wie bisher)"), gruppe);
    m_iso =
        Benannt<QRadioButton>(QStringLiteral("OptionWochenIso"), QStringLiteral("nach DIN/ISO 8601"), gruppe);
    (m_wahl.isoWochen ? m_iso : m_montage)->setChecked(true);
    connect(m_iso, &QRadioButton::toggled, this, [this](bool an) {
        m_wahl.isoWochen = an;
        VorschauZeichnen();
    });
    v->addWidget(m_montage);
    v->addWidget(m_iso);
    auto* knopf = Benannt<QPushButton>(QStringLiteral("CommandGeburtstage"),
                                       QStringLiteral("Geburtstage übernehmen"), gruppe);
    knopf->setToolTip(QStringLiteral("Trägt die Geburtstage der Adressen (Visitenkarte) als Termine ein"));
    m_geburtstage = Benannt<QLabel>(QStringLiteral("LabelGeburtstage"), gruppe);
    m_geburtstage->setWordWrap(true);
    // Room for the count from the start, so that the dialog's rows don't move when it comes.
    m_geburtstage->setMinimumHeight(3 * m_geburtstage->fontMetrics().lineSpacing());
    m_geburtstage->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    v->addWidget(knopf);
    v->addWidget(m_geburtstage);
    connect(knopf, &QPushButton::clicked, this, &FrmFeiertage::GeburtstageKlick);
    return gruppe;
}

QWidget* FrmFeiertage::Namensgruppe() {
    auto* gruppe = new QGroupBox(QStringLiteral("Monats- und Wochentagsbezeichnungen"), this);
    auto* g = new QGridLayout(gruppe);
    m_comboMonat = Benannt<QComboBox>(QStringLiteral("ComboMonat"), gruppe);
    m_comboMonat->addItems(Monatsliste());
    m_textMonat = Benannt<QLineEdit>(QStringLiteral("TextMonat"), s.Monatsnamen(1), gruppe);
    m_comboWochentag = Benannt<QComboBox>(QStringLiteral("ComboWochentag"), gruppe);
    m_comboWochentag->addItems(Wochentagsliste());
    m_textWochentag = Benannt<QLineEdit>(QStringLiteral("TextWochentag"), s.Wochentagsnamen(1), gruppe);
    g->addWidget(m_comboMonat, 0, 0);
    g->addWidget(m_textMonat, 0, 1);
    g->addWidget(m_comboWochentag, 1, 0);
    g->addWidget(m_textWochentag, 1, 1);

    connect(m_comboMonat, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_fuellen = true;
        m_textMonat->setText(s.Monatsnamen.Gueltig(i + 1) ? s.Monatsnamen(i + 1) : QString());
        m_fuellen = false;
    });
    connect(m_comboWochentag, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_fuellen = true;
        m_textWochentag->setText(s.Wochentagsnamen.Gueltig(i + 1) ? s.Wochentagsnamen(i + 1) : QString());
        m_fuellen = false;
    });
    // Names take effect as typed, before "Ok".
    connect(m_textMonat, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_fuellen) return;
        MonatsnameGeaendert(s, m_comboMonat->currentIndex(), text);
        VorschauZeichnen();
    });
    connect(m_textWochentag, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_fuellen) return;
        WochentagsnameGeaendert(s, m_comboWochentag->currentIndex(), text);
        VorschauZeichnen();
    });
    return gruppe;
}

void FrmFeiertage::HakenZeigen() {
    m_fuellen = true;
    for (size_t i = 0; i < m_check.size(); ++i)
        m_check[i]->setChecked(m_wahl.haken[i]);
    m_fuellen = false;
}

void FrmFeiertage::VorschauZeichnen() {
    // The page as it will look with the colours and week count of the copy, drawn small on a copy
    // of the state, so that nothing of the document changes.
    AppState probe = s;
    OptionenUebernehmen(probe, m_wahl);
    const double breite = std::max(1.0, static_cast<double>(probe.AktuelleSeite.Breite));
    probe.Zoomfaktor =
        std::clamp(100.0 * kVorschau.width() * 15 / (breite * probe.Geraetefaktor), 5.0, 100.0);
    probe.Zeichenfaktor = probe.Zoomfaktor / 100;
    const QImage bild = ZeichneSeitenbild(probe);
    m_vorschau->setPixmap(
        QPixmap::fromImage(bild.scaled(kVorschau, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void FrmFeiertage::CommandOk() {
    OptionenUebernehmen(s, m_wahl);
    accept();
}

void FrmFeiertage::GeburtstageKlick() {
    const auto bilanz = GeburtstageUebernehmen(s, m_ui);
    if (!bilanz) return;
    m_geburtstage->setText(Bilanztext(*bilanz));
    adjustSize(); // a longer count than the room kept for it makes the dialog taller
    m_ui.Geaendert(Aenderung::Panel | Aenderung::Seite);
    VorschauZeichnen();
}

} // namespace zp
