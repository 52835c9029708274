#include "Seitenpanel.h"

#include <QLayout>

namespace zp {

Seitenpanel::Seitenpanel(const QString& name, Panelumgebung u) : s(u.s), ui(u.ui) {
    setObjectName(name);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
}

void Seitenpanel::Inhalt(QLayout* inhalt) {
    auto* innen = new QWidget;
    innen->setLayout(inhalt);
    setWidget(innen);
}

} // namespace zp
