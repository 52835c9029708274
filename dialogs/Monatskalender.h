#pragma once
// MonthView1 and MonthView2: a month calendar limited to one year, with a range of days chosen by
// Shift+click and bold marks per day. The panel's state (selected day, range, year, marks) lives
// in the application state; this widget shows it and reports the user's choice back.

#include <QCalendarWidget>
#include <QDate>
#include <QSet>

namespace zp {
struct Monatsansicht;

class Monatskalender : public QCalendarWidget {
    Q_OBJECT
public:
    explicit Monatskalender(QWidget* parent = nullptr);

    // The selection: the selected day, which is the first of a range, and SelStart to SelEnd.
    [[nodiscard]] QDate Aktuell() const { return m_start; }
    [[nodiscard]] QDate SelStart() const { return m_start; }
    [[nodiscard]] QDate SelEnd() const { return m_ende; }
    // Selects one day, or with `erweitern` the range from the range's start to `tag`.
    void Waehlen(const QDate& tag, bool erweitern = false);

    // The selection into the state's month view, and the state's year, selection and marks shown.
    void InZustand(Monatsansicht& v) const;
    void AusZustand(const Monatsansicht& v);

signals:
    // A day or range was chosen by the user or by Waehlen.
    void auswahlGeaendert();

private:
    void Geklickt(const QDate& tag);
    void BereichMarkieren();
    void Formatieren(const QDate& d);

    QDate m_start, m_ende;
    QDate m_alterStart, m_alterEnde;
    QSet<QDate> m_fett;
};

} // namespace zp
