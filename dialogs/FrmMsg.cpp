#include "dialogs/FrmMsg.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace zp {

FrmMsg::FrmMsg(const QString& titel, const QString& text, const QString& detail, const QString& knopf1,
               const QString& knopf2, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmMsg"));
    setWindowTitle(titel);
    setModal(true);
    auto* l = new QVBoxLayout(this);
    auto* t = new QLabel(text, this);
    t->setObjectName(QStringLiteral("Label1"));
    t->setWordWrap(true);
    t->setMinimumWidth(280);
    l->addWidget(t);
    if (!detail.isEmpty()) {
        auto* d = new QLabel(detail, this);
        d->setObjectName(QStringLiteral("LabelDetail"));
        d->setWordWrap(true);
        d->setTextInteractionFlags(Qt::TextSelectableByMouse);
        d->setStyleSheet(QStringLiteral("color: palette(mid);"));
        l->addWidget(d);
    }
    auto* box = new QDialogButtonBox(this);
    auto* b1 = box->addButton(knopf1, QDialogButtonBox::AcceptRole);
    b1->setObjectName(QStringLiteral("Command1"));
    b1->setDefault(true);
    if (!knopf2.isEmpty())
        box->addButton(knopf2, QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("Command2"));
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    l->addWidget(box);
}

void FrmMsg::Zeigen(QWidget* parent, const QString& text, const QString& titel, const QString& detail) {
    FrmMsg m(titel, text, detail, QStringLiteral("OK"), {}, parent);
    m.exec();
}

bool FrmMsg::Fragen(QWidget* parent, const QString& text, const QString& titel) {
    FrmMsg m(titel, text, {}, QStringLiteral("&Ja"), QStringLiteral("&Nein"), parent);
    return m.exec() == QDialog::Accepted;
}

} // namespace zp
