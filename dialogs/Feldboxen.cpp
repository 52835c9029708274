#include "Feldboxen.h"
#include "Benannt.h"
#include "Fensterantworten.h"

#include "core/Datensatzbefehle.h"
#include "core/Formatbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Editionen.h"
#include "core/state/Textfelder.h"

#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace zp {

Feldboxen::Feldboxen(AppState& state, Fensterantworten& antworten, QFormLayout* form, int von, int bis,
                     QObject* parent)
    : QObject(parent), s(state), ui(antworten), m_von(von), m_bis(std::min(bis, von + 19)) {
    for (int i = m_von; i <= m_bis; ++i) {
        QLabel* label = m_label[i - m_von] = Benannt<QLabel>(QStringLiteral("Label1_%1").arg(i));
        QLineEdit* text = m_text[i - m_von] = Benannt<QLineEdit>(QStringLiteral("Text1_%1").arg(i));
        label->setBuddy(text);
        form->addRow(label, text);
        text->installEventFilter(this);
        connect(text, &QLineEdit::textChanged, this, [this, i](const QString& t) { Getippt(i, t); });
    }
}

void Feldboxen::Getippt(int i, const QString& t) {
    if (s.LadeSperre == 0) {
        // The frame of the current text shows or hides with it before the page is drawn.
        if (s.Schriftliste.Gueltig(i)) s.Schriftliste(i).Textstring = t;
        const int nummer = static_cast<int>(s.SchriftNummer);
        if (nummer >= 1 && s.Schriftliste.Gueltig(nummer))
            ApplyInlineText(s, s.Schriftliste(nummer).Textstring);
    }
    FeldboxGeaendert(s, ui, i, t);
}

void Feldboxen::Beschriften() {
    const Edition e = AktuelleEdition(s);
    for (int i = m_von; i <= m_bis; ++i)
        m_label[i - m_von]->setText(Eingabebeschriftung(e, i));
}

void Feldboxen::Zeigen(bool ausTextobjekten) {
    for (int i = m_von; i <= m_bis; ++i) {
        const QString t =
            ausTextobjekten && s.Schriftliste.Gueltig(i) ? s.Schriftliste(i).Textstring : s.Panel.Text1(i);
        if (m_text[i - m_von]->text() != t) m_text[i - m_von]->setText(t);
    }
}

bool Feldboxen::Fokussieren(int i, bool nachKlick) {
    QLineEdit* box = Text1(i);
    if (!box || !box->isVisibleTo(box->window())) return false;
    // A box that has the focus already gets no focus event, so no mark may wait for one.
    if (!box->hasFocus()) m_markeOffen = nachKlick;
    box->setFocus(Qt::OtherFocusReason);
    return true;
}

bool Feldboxen::eventFilter(QObject* objekt, QEvent* e) {
    const bool hinein = e->type() == QEvent::FocusIn;
    if (!hinein && e->type() != QEvent::FocusOut) return false;
    for (int i = m_von; i <= m_bis; ++i) {
        if (objekt != m_text[i - m_von]) continue;
        if (hinein) {
            TextfeldFokus(s, ui, i, m_markeOffen);
            m_markeOffen = false;
        } else if (s.NeuzeichnenOffen != 0) {
            s.NeuzeichnenOffen = 0;
            if (s.LadeSperre == 0) ui.Geaendert(Aenderung::Seite);
        }
        break;
    }
    return false;
}

} // namespace zp
