#include "dialogs/FrmEinfuegen.h"
#include "dialogs/Benannt.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zp {

FrmEinfuegen::FrmEinfuegen(bool brief, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmEinfuegen"));
    setWindowTitle(QStringLiteral("Einfügen eines neuen Objekts"));
    auto* l = new QVBoxLayout(this);
    l->addWidget(Benannt<QLabel>(QStringLiteral("Label1"), QStringLiteral("Was soll eingefügt werden?")));
    auto* reihe = new QHBoxLayout;
    const QString titel[] = {QStringLiteral("Einfache Textzeile"), QString(), QStringLiteral("Bilddatei"),
                             QStringLiteral("Form")};
    // The order on the form: text, picture, shape, and the letter body where it is offered.
    for (int knopf : {1, 3, 4, 2}) {
        auto* b = Benannt<QPushButton>(QStringLiteral("Button_%1").arg(knopf), titel[knopf - 1]);
        b->setAutoDefault(false);
        if (knopf == 2) {
            b->setToolTip(QStringLiteral("Brieftext"));
            b->setVisible(brief);
        }
        connect(b, &QPushButton::clicked, this, [this, knopf] {
            m_gewaehlt = knopf;
            accept();
        });
        reihe->addWidget(b);
    }
    l->addLayout(reihe);
    auto* abbruch = Benannt<QPushButton>(QStringLiteral("Abbruch"), QStringLiteral("Abbruch"));
    connect(abbruch, &QPushButton::clicked, this, &QDialog::reject);
    l->addWidget(abbruch, 0, Qt::AlignRight);
}

int FrmEinfuegen::Fragen(bool brief, QWidget* parent) {
    FrmEinfuegen form(brief, parent);
    return form.exec() == QDialog::Accepted ? form.Gewaehlt() : 0;
}

} // namespace zp
