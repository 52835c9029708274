#include "dialogs/FrmInfo.h"

#include "core/state/AppState.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace zp {

FrmInfo::FrmInfo(const AppState& s, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmInfo"));
    setWindowTitle(QStringLiteral("Info"));
    auto* l = new QVBoxLayout(this);
    const QString name = s.Programmname.isEmpty() ? QStringLiteral("ZP") : s.Programmname;
    auto* titel = new QLabel(QStringLiteral("<h2>%1</h2>").arg(name.toHtmlEscaped()), this);
    titel->setObjectName(QStringLiteral("LabelName"));
    l->addWidget(titel);
    auto* version = new QLabel(QStringLiteral("Version ") + s.Programmversion, this);
    version->setObjectName(QStringLiteral("LabelVersion"));
    l->addWidget(version);
    auto* text = new QLabel(QStringLiteral("Kalender, Visitenkarten, Briefköpfe, Etiketten und CD-Hüllen "
                                           "gestalten und drucken.\nProgrammordner: ") +
                                s.Programmpfad,
                            this);
    text->setWordWrap(true);
    l->addWidget(text);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    l->addWidget(box);
}

} // namespace zp
