// The page dialog's printer calibration: a test sheet with crosses at the label corners and a
// millimetre ruler, and the offsets measured on it kept for the printer.
#include "dialogs/FrmSeite.h"

#include "core/runtime/Basic.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "output/Druckerabgleich.h"
#include "output/Druckerliste.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QPushButton>

namespace zp {

QGroupBox* FrmSeite::GruppeAbgleich() {
    auto* g = new QGroupBox(QStringLiteral("Druckerabgleich"), this);
    auto* f = new QFormLayout(g);
    auto* hinweis =
        new QLabel(QStringLiteral("Drucken Sie den Testbogen auf ein Blatt Etiketten, messen Sie, "
                                  "wie weit die Kreuze von den Ecken abweichen, und tragen Sie den "
                                  "Ausgleich in 1/10 mm ein."),
                   g);
    hinweis->setWordWrap(true);
    f->addRow(hinweis);
    auto* drucker = new QComboBox(g);
    drucker->setObjectName(QStringLiteral("ComboAbgleichDrucker"));
    drucker->addItem(kPdfDatei);
    drucker->addItems(QPrinterInfo::availablePrinterNames());
    const QString aktuell = s.Druckername.isEmpty() ? QPrinterInfo::defaultPrinterName() : s.Druckername;
    drucker->setCurrentIndex(std::max(0, drucker->findText(aktuell)));
    f->addRow(QStringLiteral("Drucker"), drucker);
    auto* x = Box("TextAbgleichX", basic::DoubleText(s.AbgleichX));
    auto* y = Box("TextAbgleichY", basic::DoubleText(s.AbgleichY));
    f->addRow(QStringLiteral("Horizontaler Abgleich"), x);
    f->addRow(QStringLiteral("Vertikaler Abgleich"), y);
    auto* knoepfe = new QHBoxLayout;
    auto* testbogen = new QPushButton(QStringLiteral("Testbogen drucken"), g);
    testbogen->setObjectName(QStringLiteral("CommandTestbogen"));
    auto* merken = new QPushButton(QStringLiteral("Abgleich speichern"), g);
    merken->setObjectName(QStringLiteral("CommandAbgleich"));
    knoepfe->addWidget(testbogen);
    knoepfe->addWidget(merken);
    f->addRow(knoepfe);

    // The kept values of the printer, or the present ones for a printer without an entry.
    auto zeigen = [this, x, y](const QString& name) {
        const Druckerabgleiche werte =
            LeseDruckerabgleiche(LeseDatei(DruckerabgleichDatei(s)).value_or(QByteArray()));
        const Abgleichwerte w = werte.value(name, Abgleichwerte{s.AbgleichX, s.AbgleichY});
        x->setText(basic::DoubleText(w.x));
        y->setText(basic::DoubleText(w.y));
    };
    zeigen(drucker->currentText());
    connect(drucker, &QComboBox::currentTextChanged, this, zeigen);
    connect(testbogen, &QPushButton::clicked, this, [this, drucker] {
        QString pdf;
        if (drucker->currentText() == kPdfDatei) {
            pdf =
                QFileDialog::getSaveFileName(this, QStringLiteral("Testbogen speichern"),
                                             QStringLiteral("testbogen.pdf"), QStringLiteral("PDF (*.pdf)"));
            if (pdf.isEmpty()) return;
        }
        // The sheet as this dialog has it, so that a new label format can be checked before Ok.
        AppState bogen = s;
        bogen.AktuelleSeite = s.SeiteKopie;
        bogen.AktuellesEtikett = s.EtikettKopie;
        DruckeTestbogen(bogen, m_ui, drucker->currentText(), pdf);
    });
    connect(merken, &QPushButton::clicked, this, [this, drucker, x, y] {
        const auto wx = basic::ParseDouble(x->text());
        const auto wy = basic::ParseDouble(y->text());
        if (!wx || !wy) {
            m_ui.Meldung(QStringLiteral("Der Abgleich muss eine Zahl in 1/10 mm sein."),
                         QStringLiteral("Hinweis"));
            return;
        }
        SpeichereDruckerabgleich(s, m_ui, drucker->currentText(), {*wx, *wy});
    });
    return g;
}

} // namespace zp
