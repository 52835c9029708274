#pragma once
// One of the side panels Frame1(n): a scrolling page of controls that it owns together with their
// handlers. The window shows one at a time and tells all of them when the state changed.

#include <QScrollArea>

class QLayout;

namespace zp {
struct AppState;
class Fensterantworten;

// What every panel works with: the state and the window's answers.
struct Panelumgebung {
    AppState& s;
    Fensterantworten& ui;
};

class Seitenpanel : public QScrollArea {
    Q_OBJECT
public:
    Seitenpanel(const QString& name, Panelumgebung u);

    // The load handler's part: lists and captions that depend on the edition.
    virtual void Laden() {}
    // The state changed (`was`: Aenderung flags): the panel shows what concerns it.
    virtual void Zeigen(unsigned was) { (void)was; }
    // The panel was brought to the front by its button: focus to its first box.
    virtual void Betreten() {}
    // Keyboard focus to the input box Text1(feld) if the panel shows it. `nachKlick`: a click on
    // the page chose the frame, and the box's focus must not change the choice.
    virtual bool Fokus(int feld, bool nachKlick = false) {
        (void)feld, (void)nachKlick;
        return false;
    }

protected:
    void Inhalt(QLayout* inhalt);

    AppState& s;
    Fensterantworten& ui;
};

} // namespace zp
