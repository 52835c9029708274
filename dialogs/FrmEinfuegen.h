#pragma once
// frmEinfuegen, "Einfügen eines neuen Objekts": asks what kind of object to insert. The chosen
// button's number goes to the insert command; Abbruch changes nothing.

#include <QDialog>

class QPushButton;

namespace zp {

class FrmEinfuegen : public QDialog {
    Q_OBJECT
public:
    // `brief`: the letter-body button is offered (it has no caption of its own).
    explicit FrmEinfuegen(bool brief, QWidget* parent = nullptr);

    // The button chosen, 1 to 4 (text, letter body, picture, shape); 0 after Abbruch.
    [[nodiscard]] int Gewaehlt() const { return m_gewaehlt; }
    // Shows the form modally and returns the button chosen.
    static int Fragen(bool brief, QWidget* parent);

private:
    int m_gewaehlt = 0;
};

} // namespace zp
