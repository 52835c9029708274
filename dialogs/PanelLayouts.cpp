#include "PanelLayouts.h"
#include "Benannt.h"
#include "Fensterantworten.h"

#include "core/Datensatzbefehle.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zp {

PanelLayouts::PanelLayouts(Panelumgebung u) : Seitenpanel(QStringLiteral("Frame1_3"), u) {
    auto* v = new QVBoxLayout;
    v->addWidget(new QLabel(QStringLiteral("Die Texte neu anordnen:")));
    for (int k = 1; k <= 5; ++k) {
        auto* b =
            Benannt<QPushButton>(QStringLiteral("Command4_%1").arg(k), QStringLiteral("Layout %1").arg(k));
        connect(b, &QPushButton::clicked, this, [this, k] { LayoutKnopf(s, ui, k); });
        v->addWidget(b);
    }
    v->addStretch();
    Inhalt(v);
}

} // namespace zp
