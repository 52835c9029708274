#include "dialogs/FrmDrucken.h"

#include "core/Seitennavigation.h"
#include "core/runtime/Basic.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Oberflaeche.h"
#include "output/Druckerabgleich.h"
#include "output/Druckerliste.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

namespace zp {

QLineEdit* FrmDrucken::Feld(const char* name, const QString& text) {
    auto* e = new QLineEdit(text, this);
    e->setObjectName(QString::fromLatin1(name));
    return e;
}

FrmDrucken::FrmDrucken(AppState& state, Oberflaeche& ui, QWidget* parent, Druckstart druck)
    : QDialog(parent), s(state), m_ui(ui), m_druck(std::move(druck)) {
    if (!m_druck)
        m_druck = [](AppState& st, Oberflaeche& o, const Druckdialogwerte& w, const Druckfortschritt& f) {
            return BefehlDrucken(st, o, w, f) == Druckergebnis::Gedruckt;
        };
    setObjectName(QStringLiteral("frmDrucken"));
    setWindowTitle(QStringLiteral("Drucken"));
    const Edition e = AktuelleEdition(s);
    auto* haupt = new QVBoxLayout(this);
    Druckerzeile(haupt);
    Auftragsfelder(haupt, e);
    Adressgruppe(haupt, e);
    Justierung(haupt);
    Hilfsmarken(haupt);
    Knoepfe(haupt);
    Laden(e);
    Verbindungen();
}

void FrmDrucken::Druckerzeile(QVBoxLayout* haupt) {
    // Printer.
    auto* druckerZeile = new QHBoxLayout;
    m_drucker = new QComboBox(this);
    m_drucker->setObjectName(QStringLiteral("Combo1"));
    m_drucker->addItem(kPdfDatei);
    m_drucker->addItems(QPrinterInfo::availablePrinterNames());
    const QString aktuell = s.Druckername.isEmpty() ? QPrinterInfo::defaultPrinterName() : s.Druckername;
    const int index = m_drucker->findText(aktuell);
    m_drucker->setCurrentIndex(index >= 0 ? index : 0);
    WendeDruckerabgleichAn(s, m_drucker->currentText());
    m_einstellen = new QPushButton(QStringLiteral("Standarddrucker"), this);
    m_einstellen->setObjectName(QStringLiteral("CommandEinstellen"));
    druckerZeile->addWidget(m_drucker, 1);
    druckerZeile->addWidget(m_einstellen);
    haupt->addLayout(druckerZeile);
}

void FrmDrucken::Auftragsfelder(QVBoxLayout* haupt, Edition e) {
    const bool etikett = e == Edition::Etikett;
    m_auftrag = new QFormLayout;
    m_kopien = Feld("Text1", QStringLiteral("1"));
    m_auftrag->addRow(QStringLiteral("Kopien"), m_kopien);
    m_option[5] = new QRadioButton(
        etikett ? QStringLiteral("Etikett drucken") : QStringLiteral("Eine Karte drucken"), this);
    m_option[5]->setObjectName(QStringLiteral("Option5"));
    m_option[6] = new QRadioButton(QStringLiteral("Seite drucken"), this);
    m_option[6]->setObjectName(QStringLiteral("Option6"));
    m_option[5]->setChecked(true);
    auto* art = new QHBoxLayout;
    art->addWidget(m_option[5]);
    art->addWidget(m_option[6]);
    m_auftrag->addRow(art);
    m_start = Feld("TextStart", QStringLiteral("1"));
    m_auftrag->addRow(QStringLiteral("Erste zu bedruckende Etikett"), m_start);
    m_seriennummer = Feld("TextSeriennummer", QString::number(static_cast<long long>(s.Seriennummer)));
    m_auftrag->addRow(QStringLiteral("Erste Seriennummer"), m_seriennummer);
    auto* seiten = new QHBoxLayout;
    m_druckStart = Feld("TextDruckStart");
    m_druckEnde = Feld("TextDruckEnde");
    seiten->addWidget(m_druckStart);
    seiten->addWidget(new QLabel(QStringLiteral("bis"), this));
    seiten->addWidget(m_druckEnde);
    m_auftrag->addRow(QStringLiteral("Drucke Seite von"), seiten);
    m_prozent = Feld("TextProzent");
    m_auftrag->addRow(QStringLiteral("Ausdruckgröße in %"), m_prozent);
    haupt->addLayout(m_auftrag);
}

void FrmDrucken::Adressgruppe(QVBoxLayout* haupt, Edition e) {
    const bool etikett = e == Edition::Etikett;
    // Addresses of the card editions.
    auto* adressen = new QGroupBox(QStringLiteral("Adressen"), this);
    auto* a = new QFormLayout(adressen);
    const char* titel[] = {"", etikett ? "Aktuelles Etikett drucken" : "Aktive Adresse drucken",
                           etikett ? "Etikettenbereich drucken" : "Adressenbereich drucken",
                           "Nur eine Kategorie drucken",
                           etikett ? "Alle Etiketten drucken" : "Alle Adressen drucken"};
    auto* gruppe = new QButtonGroup(this);
    for (int i = 1; i <= 4; ++i) {
        m_option[i] = new QRadioButton(QString::fromUtf8(titel[i]), adressen);
        m_option[i]->setObjectName(QStringLiteral("Option%1").arg(i));
        gruppe->addButton(m_option[i], i);
    }
    m_option[1]->setChecked(true);
    m_von = Feld("Text2", QStringLiteral("1"));
    m_bis = Feld("Text3", QString::number(static_cast<long long>(s.DatensatzAnzahl)));
    m_kategorie = Feld("Text4");
    a->addRow(m_option[1]);
    a->addRow(m_option[2]);
    auto* bereich = new QHBoxLayout;
    bereich->addWidget(new QLabel(QStringLiteral("von"), adressen));
    bereich->addWidget(m_von);
    bereich->addWidget(new QLabel(QStringLiteral("bis"), adressen));
    bereich->addWidget(m_bis);
    a->addRow(bereich);
    a->addRow(m_option[3]);
    a->addRow(QStringLiteral("Kategorie"), m_kategorie);
    a->addRow(m_option[4]);
    adressen->setVisible(e == Edition::Visitenkarte || etikett);
    haupt->addWidget(adressen);
}

void FrmDrucken::Justierung(QVBoxLayout* haupt) {
    auto* justierung =
        new QGroupBox(QStringLiteral("Druckerjustierung (Verschiebung des Ausdrucks in 1/10 mm)"), this);
    auto* j = new QFormLayout(justierung);
    m_abgleichX = Feld("TextAbgleichx");
    m_abgleichY = Feld("TextAbgleichy");
    j->addRow(QStringLiteral("Horizontaler Abgleich"), m_abgleichX);
    j->addRow(QStringLiteral("Vertikaler Abgleich"), m_abgleichY);
    haupt->addWidget(justierung);
}

void FrmDrucken::Hilfsmarken(QVBoxLayout* haupt) {
    m_hilfsmarken = new QGroupBox(QStringLiteral("Hilfsmarken"), this);
    auto* h = new QVBoxLayout(m_hilfsmarken);
    m_check2 = new QCheckBox(QStringLiteral("Schnittmarken drucken"), m_hilfsmarken);
    m_check2->setObjectName(QStringLiteral("Check2"));
    m_check1 = new QCheckBox(QStringLiteral("Schnittrahmen drucken"), m_hilfsmarken);
    m_check1->setObjectName(QStringLiteral("Check1"));
    h->addWidget(m_check2);
    h->addWidget(m_check1);
    haupt->addWidget(m_hilfsmarken);
}

void FrmDrucken::Knoepfe(QVBoxLayout* haupt) {
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    m_drucken = new QPushButton(QStringLiteral("Drucken"), this);
    m_drucken->setObjectName(QStringLiteral("CommandDrucken"));
    m_drucken->setDefault(true);
    m_abbruch = new QPushButton(QStringLiteral("Abbruch"), this);
    m_abbruch->setObjectName(QStringLiteral("CommandAbbruch"));
    knoepfe->addWidget(m_drucken);
    knoepfe->addWidget(m_abbruch);
    haupt->addLayout(knoepfe);
}

void FrmDrucken::Laden(Edition e) {
    const bool etikett = e == Edition::Etikett;
    // Load: marks, pages and what the edition shows.
    m_check2->setChecked(s.AktuellesEtikett.Schnittmarken != 0);
    m_check1->setChecked(s.AktuellesEtikett.Schnittrahmen != 0);
    if (e == Edition::Kalender) Seitenbereich(s);
    m_druckEnde->setText(QString::number(static_cast<long long>(s.Seitenanzahl)));
    m_druckStart->setText(QStringLiteral("1"));
    m_prozent->setText(QStringLiteral("100"));
    const int typ = static_cast<int>(s.Kalendertyp);
    const bool kalender = e == Edition::Kalender;
    m_druckStart->setEnabled(kalender && typ != 2 && typ != 3);
    m_druckEnde->setEnabled(kalender && typ != 2 && typ != 3);
    m_prozent->setEnabled(kalender);
    m_hilfsmarken->setVisible(e == Edition::Visitenkarte || etikett || e == Edition::CDHuelle ||
                              (kalender && typ == 3));
    // The first label and the running number belong to sheets of pieces, which a calendar or a
    // letterhead doesn't print.
    const bool stuecke = !kalender && e != Edition::Briefkopf;
    m_auftrag->setRowVisible(m_start, stuecke);
    m_auftrag->setRowVisible(m_seriennummer, stuecke);
}

void FrmDrucken::Verbindungen() {
    // Changes are written at once.
    connect(m_abgleichX, &QLineEdit::textEdited, this,
            [this](const QString& t) { s.AbgleichX = basic::Val(t); });
    connect(m_abgleichY, &QLineEdit::textEdited, this,
            [this](const QString& t) { s.AbgleichY = basic::Val(t); });
    connect(m_check1, &QCheckBox::toggled, this,
            [this](bool an) { s.AktuellesEtikett.Schnittrahmen = basic::AlsWahrheit(an); });
    connect(m_check2, &QCheckBox::toggled, this,
            [this](bool an) { s.AktuellesEtikett.Schnittmarken = basic::AlsWahrheit(an); });
    connect(m_drucker, &QComboBox::currentTextChanged, this, [this](const QString& name) {
        s.Druckername = name;
        // A printer with kept offsets brings them along.
        if (WendeDruckerabgleichAn(s, name)) {
            m_abgleichX->setText(basic::DoubleText(s.AbgleichX));
            m_abgleichY->setText(basic::DoubleText(s.AbgleichY));
        }
    });
    connect(m_einstellen, &QPushButton::clicked, this, [this] {
        QPrinter drucker;
        if (m_drucker->currentText() != kPdfDatei) drucker.setPrinterName(m_drucker->currentText());
        QPageSetupDialog einrichten(&drucker, this);
        einrichten.exec();
    });
    connect(m_drucken, &QPushButton::clicked, this, &FrmDrucken::CommandDrucken);
    connect(m_abbruch, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmDrucken::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    m_abgleichX->setText(basic::DoubleText(s.AbgleichX));
    m_abgleichY->setText(basic::DoubleText(s.AbgleichY));
}

Druckdialogwerte FrmDrucken::Werte() const {
    Druckdialogwerte w;
    w.Drucker = m_drucker->currentText();
    w.Kopien = m_kopien->text();
    w.TextDruckStart = m_druckStart->text();
    w.TextDruckEnde = m_druckEnde->text();
    w.TextProzent = m_prozent->text();
    w.TextStart = m_start->text();
    w.TextSeriennummer = m_seriennummer->text();
    for (int i = 1; i <= 4; ++i)
        if (m_option[i]->isChecked()) w.Adressen = i;
    w.Von = m_von->text();
    w.Bis = m_bis->text();
    w.Kategorie = m_kategorie->text();
    w.EineKarte = m_option[5]->isChecked();
    return w;
}

void FrmDrucken::CommandDrucken() {
    Druckdialogwerte werte = Werte();
    // The file first: nothing else may stand over the file dialog, and a cancel there leaves the
    // print dialog open as it was.
    if (werte.Drucker == kPdfDatei) {
        werte.PdfDatei = PdfDateiWaehlen(m_ui);
        if (werte.PdfDatei.isEmpty()) return;
    }
    // The progress box comes with the first page made, after any question of the print run.
    std::unique_ptr<QProgressDialog> fortschritt;
    bool abgebrochen = false;
    const auto melden = [&](int fertig, int gesamt) {
        if (!fortschritt) {
            fortschritt = std::make_unique<QProgressDialog>(QStringLiteral("Die Seiten werden gedruckt..."),
                                                            QStringLiteral("Abbrechen"), 0, gesamt, this);
            fortschritt->setObjectName(QStringLiteral("Druckfortschritt"));
            fortschritt->setWindowTitle(QStringLiteral("Drucken"));
            fortschritt->setWindowModality(Qt::WindowModal);
            fortschritt->setMinimumDuration(500);
            fortschritt->setAutoClose(false);
            fortschritt->setAutoReset(false);
        }
        fortschritt->setMaximum(std::max(gesamt, fertig));
        fortschritt->setValue(fertig);
        abgebrochen = fortschritt->wasCanceled();
        return !abgebrochen;
    };
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool gedruckt = false;
    try {
        gedruckt = m_druck(s, m_ui, werte, melden);
    } catch (const std::exception& e) {
        fortschritt.reset();
        QApplication::restoreOverrideCursor();
        m_ui.Meldung(QStringLiteral("Der Druck konnte nicht ausgeführt werden."), QStringLiteral("Warnung!"),
                     QString::fromUtf8(e.what()));
        hide();
        return;
    }
    fortschritt.reset();
    QApplication::restoreOverrideCursor();
    if (abgebrochen && !gedruckt)
        m_ui.Meldung(
            werte.PdfDatei.isEmpty()
                ? QStringLiteral("Der Druck wurde abgebrochen.")
                : QStringLiteral("Der Druck wurde abgebrochen. Die PDF-Datei wurde nicht geschrieben."),
            QStringLiteral("Drucken"), werte.PdfDatei);
    hide();
}

} // namespace zp
