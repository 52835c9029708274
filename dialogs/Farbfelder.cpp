#include "Farbfelder.h"
#include "Benannt.h"
#include "Fensterantworten.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <QFormLayout>
#include <QToolButton>

namespace zp {

namespace {

QColor AlsQColor(int farbe) {
    return QColor(farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF);
}

QToolButton* Farbfeld(AppState& s, Fensterantworten& ui, Tagesfarbe art, const char* name) {
    auto* b = Benannt<QToolButton>(QString::fromUtf8(name));
    b->setFixedSize(40, 20);
    b->setAutoRaise(false);
    FarbfeldZeigen(b, 0xFFFFFF);
    QObject::connect(b, &QToolButton::clicked, b, [&s, &ui, art] {
        const auto c = ui.FarbeWaehlen(AlsQColor(TagesfarbeStart(s, art)));
        if (!c) return; // cancelled: nothing changes
        TagesfarbeGewaehlt(s, art, basic::RGB(c->red(), c->green(), c->blue()));
        ui.Geaendert(Aenderung::Panel | Aenderung::Seite);
    });
    return b;
}

} // namespace

void FarbfeldZeigen(QToolButton* feld, int farbe) {
    if (farbe < 0) farbe = 0xFFFFFF;
    feld->setStyleSheet(QStringLiteral("QToolButton { background: %1; border: 1px solid #808080; }")
                            .arg(AlsQColor(farbe).name()));
    feld->setProperty("farbe", farbe);
}

Tagesfarbfelder TagesfarbfelderAnlegen(AppState& s, Fensterantworten& ui, Tagesfarbe schriftArt, const char* schrift,
                         const char* hintergrund) {
    const auto hintergrundArt = static_cast<Tagesfarbe>(static_cast<int>(schriftArt) + 1);
    Tagesfarbfelder p{Farbfeld(s, ui, schriftArt, schrift), Farbfeld(s, ui, hintergrundArt, hintergrund),
               new QFormLayout};
    p.layout->addRow(QStringLiteral("Textfarbe"), p.schrift);
    p.layout->addRow(QStringLiteral("Hintergrund"), p.hintergrund);
    return p;
}

} // namespace zp
