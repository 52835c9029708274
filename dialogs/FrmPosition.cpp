#include "FrmPosition.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace zp {

FrmPosition::FrmPosition(const Positionsfelder& felder, const ClassSeite& seite, QWidget* eltern)
    : QDialog(eltern), m_seite(seite) {
    setObjectName(QStringLiteral("frmPosition"));
    setWindowTitle(QStringLiteral("Rahmen positionieren"));
    auto* spalte = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    static const char* const titel[5] = {"", "&X-Position - Abstand von links",
                                         "&Y-Position - Abstand von oben", "&Breite des Rahmens",
                                         "&Höhe des Rahmens"};
    // Tenths of a millimetre, with one decimal at most; a sign only to be repaired.
    const QRegularExpression zahl(QStringLiteral("-?[0-9]{0,6}([.,][0-9]{0,2})?"));
    Positionsfelder f = felder;
    for (int i = 1; i <= 4; ++i) {
        m_text[i] = new QLineEdit(f.Feld(i), this);
        m_text[i]->setObjectName(QStringLiteral("Text%1").arg(i));
        m_text[i]->setValidator(new QRegularExpressionValidator(zahl, m_text[i]));
        m_text[i]->installEventFilter(this);
        auto* beschriftung = new QLabel(QString::fromUtf8(titel[i]), this);
        beschriftung->setBuddy(m_text[i]);
        form->addRow(beschriftung, m_text[i]);
    }
    spalte->addWidget(new QLabel(QStringLiteral("Alle Maße in 1/10 mm"), this));
    spalte->addLayout(form);
    m_check1 = new QCheckBox(QStringLiteral("Seitenverhältnis &beibehalten"), this);
    m_check1->setObjectName(QStringLiteral("Check1"));
    m_check1->setChecked(felder.Check1);
    m_check2 = new QCheckBox(QStringLiteral("Rahmen &verankern (sperren)"), this);
    m_check2->setObjectName(QStringLiteral("Check2"));
    m_check2->setChecked(felder.Check2);
    spalte->addWidget(m_check1);
    spalte->addWidget(m_check2);

    auto* knoepfe = new QDialogButtonBox(this);
    QPushButton* ok = knoepfe->addButton(QStringLiteral("Ok"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    QPushButton* abbruch = knoepfe->addButton(QStringLiteral("Abbruch"), QDialogButtonBox::RejectRole);
    abbruch->setObjectName(QStringLiteral("Command2"));
    spalte->addWidget(knoepfe);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

bool FrmPosition::eventFilter(QObject* objekt, QEvent* e) {
    if (e->type() == QEvent::FocusOut)
        for (int i = 1; i <= 4; ++i)
            if (objekt == m_text[i]) Reparieren(i);
    return QDialog::eventFilter(objekt, e);
}

void FrmPosition::Reparieren(int nummer) {
    Positionsfelder f = Felder();
    PositionsfeldReparieren(f, nummer, m_seite);
    if (m_text[nummer]->text() != f.Feld(nummer)) m_text[nummer]->setText(f.Feld(nummer));
}

Positionsfelder FrmPosition::Felder() const {
    Positionsfelder f;
    for (int i = 1; i <= 4; ++i)
        f.Feld(i) = m_text[i]->text();
    f.Check1 = m_check1->isChecked();
    f.Check2 = m_check2->isChecked();
    return f;
}

} // namespace zp
