#pragma once
// The colour and shadow pages that the text and shape dialogs share. Each page shows the fields
// of a work object and reports every change; the dialog writes it into its copy and repaints.

#include "dialogs/Farbwahl.h"

#include <QWidget>

class QButtonGroup;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSlider;

namespace zp {

// The two object colours and the gradient: Color1, Color2 and ColorCircle.
class Farbseite : public QWidget {
    Q_OBJECT
public:
    Farbseite(const QString& titel1, const QString& titel2, QWidget* eltern = nullptr);

    template <typename Objekt> void Zeige(const Objekt& o) {
        m_farben->Setze(1, o.Color1);
        m_farben->Setze(2, o.Color2);
        ZeigeVerlauf(o.ColorCircle);
    }
    template <typename Objekt> void SchreibeIn(Objekt& o) const {
        o.Color1 = m_farben->Wert(1);
        o.Color2 = m_farben->Wert(2);
        if (const int v = Verlauf(); v >= 0) o.ColorCircle = static_cast<int16_t>(v);
    }
    [[nodiscard]] Farbpaar* Farben() const { return m_farben; }

signals:
    void geaendert();

private:
    void ZeigeVerlauf(int verlauf);
    [[nodiscard]] int Verlauf() const; // -1: a value of the file that no option shows

    Farbpaar* m_farben = nullptr;
    QButtonGroup* m_verlauf = nullptr;
};

// The shadow: its depth, kind, direction and two colours.
class Schattenseite : public QWidget {
    Q_OBJECT
public:
    // `groesste` is the slider's top value; `einheit` its caption after the number.
    Schattenseite(int groesste, QWidget* eltern = nullptr);

    template <typename Objekt> void Zeige(const Objekt& o) {
        ZeigeWerte(o.ShadowDeep, o.ShadowType, o.ShadowAngle);
        m_farben->Setze(1, o.ShadowColor1);
        m_farben->Setze(2, o.ShadowColor2);
    }
    template <typename Objekt> void SchreibeIn(Objekt& o) const {
        o.ShadowDeep = static_cast<int16_t>(Tiefe());
        o.ShadowType = static_cast<int16_t>(m_typ);
        o.ShadowAngle = static_cast<int16_t>(m_winkel);
        o.ShadowColor1 = m_farben->Wert(1);
        o.ShadowColor2 = m_farben->Wert(2);
    }
    [[nodiscard]] Farbpaar* Farben() const { return m_farben; }

signals:
    void geaendert();

private:
    void ZeigeWerte(int tiefe, int typ, int winkel);
    [[nodiscard]] int Tiefe() const;
    void Richtung(int winkel);

    QSlider* m_tiefe = nullptr;
    QLabel* m_tiefeWert = nullptr;
    QButtonGroup* m_typGruppe = nullptr;
    QButtonGroup* m_richtung = nullptr;
    QLineEdit* m_winkelText = nullptr;
    Farbpaar* m_farben = nullptr;
    int m_typ = 0;
    int m_winkel = 45;
};

// The keyboard's focus to the first control of `seite` that takes it, as when one tabs into it.
void ErstesFeldFokussieren(QWidget* seite);

} // namespace zp
