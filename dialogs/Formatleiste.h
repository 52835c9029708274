#pragma once
// Toolbar3, the format bar: the font and size lists and the keys for style, alignment, colour,
// shadow, angle, position, deletion and anchoring of the current frame. It reads its controls and
// calls the format commands; UpdateFormatBar's state comes back through Aktualisieren.

#include <QMap>
#include <QToolBar>

class QAction;
class QComboBox;

namespace zp {
struct AppState;
class Oberflaeche;

class Formatleiste : public QToolBar {
    Q_OBJECT
public:
    Formatleiste(AppState& s, Oberflaeche& ui, QWidget* eltern = nullptr);

    // Combo1 from the font table (scalable families), Combo3 with 8 to 72 by 2.
    void ListenFuellen();
    // UpdateFormatBar: keys and lists from the current frame, the lists' own events held back.
    void Aktualisieren();

    [[nodiscard]] QAction* Knopf(const QString& schluessel) const { return m_knoepfe.value(schluessel); }
    [[nodiscard]] QComboBox* Schriftliste() const { return m_combo1; }
    [[nodiscard]] QComboBox* Groessenliste() const { return m_combo3; }

private:
    void Geklickt(const QString& schluessel);
    void GroesseGewaehlt();

    AppState& s;
    Oberflaeche& ui;
    QComboBox* m_combo1 = nullptr;
    QComboBox* m_combo3 = nullptr;
    QMap<QString, QAction*> m_knoepfe;
    QString m_fremd; // a font of the current text that the machine doesn't offer, shown for it
};

} // namespace zp
