#pragma once
// Colour controls of the property dialogs: the palette of 48 colours, and a pair of colour
// boxes with their "Mehr..." keys that the palette writes into.

#include "core/runtime/Liste.h"
#include "model/Klassen.h"

#include <QColor>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QToolButton;

namespace zp {

// The colour dialog: the chosen colour, or nothing when cancelled.
using Farbdialog = std::function<std::optional<QColor>(const QColor& start, QWidget* eltern)>;
// QColorDialog with a German title.
[[nodiscard]] Farbdialog StandardFarbdialog();

[[nodiscard]] QColor AlsQColor(Farbe farbe);
[[nodiscard]] Farbe AlsFarbe(const QColor& farbe);
// Paints a key as a box of the colour, with the colour's value as its accessible name.
void FarbknopfZeigen(QAbstractButton* knopf, Farbe farbe, const QString& bedeutung);

// The palette `Farbtabelle` (entries 1 to 48), six shades to a hue: cell i is ImageFarbe_i.
class Farbpalette : public QWidget {
    Q_OBJECT
public:
    explicit Farbpalette(const Liste<Farbe>& farbtabelle, QWidget* eltern = nullptr);
signals:
    void gewaehlt(zp::Farbe farbe);

protected:
    // The palette is one stop of the Tab key; the arrow keys move between its cells and the space
    // bar picks one, so that Tab doesn't have to walk through 48 colours.
    bool eventFilter(QObject* objekt, QEvent* e) override;

private:
    std::vector<QToolButton*> m_zellen;
};

// Two colours of an object (text colour and gradient end, or the two shadow colours): a box for
// each, the one checked takes the palette's colour, and a "Mehr..." key for each opens the colour
// dialog. The keys carry the names given, such as ComMehr1 and ComMehr2.
class Farbpaar : public QWidget {
    Q_OBJECT
public:
    Farbpaar(const QString& titel1, const QString& titel2, const char* mehr1, const char* mehr2,
             QWidget* eltern = nullptr);

    void Setze(int nummer, Farbe farbe); // 1 or 2; without a signal
    [[nodiscard]] Farbe Wert(int nummer) const { return nummer == 1 ? m_farbe[0] : m_farbe[1]; }
    // The box that the palette writes into, 1 or 2.
    [[nodiscard]] int Ziel() const;
    // A palette colour for the checked box.
    void PaletteGewaehlt(Farbe farbe);

    Farbdialog farbdialog = StandardFarbdialog();

signals:
    void geaendert(int nummer, zp::Farbe farbe);

private:
    void Mehr(int nummer);
    void Aendere(int nummer, Farbe farbe);

    QString m_titel[2];
    Farbe m_farbe[2] = {0, 0};
    QToolButton* m_box[2] = {};
    QButtonGroup* m_gruppe = nullptr;
};

} // namespace zp
