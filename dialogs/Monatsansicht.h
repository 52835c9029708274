#pragma once
// MonthView1 and MonthView2: a month calendar limited to one year, with a range of days chosen
// by Shift+click and bold marks per day.

#include <QCalendarWidget>
#include <QDate>

namespace zp {

class Monatsansicht : public QCalendarWidget {
    Q_OBJECT
public:
    explicit Monatsansicht(QWidget* parent = nullptr);

    // The selection: the selected day, which is the first of a range, and the range from SelStart
    // to SelEnd.
    [[nodiscard]] QDate Aktuell() const { return m_start; }
    [[nodiscard]] QDate SelStart() const { return m_start; }
    [[nodiscard]] QDate SelEnd() const { return m_ende; }
    // Selects one day, or with `erweitern` the range from the range's start to `tag`.
    void Waehlen(const QDate& tag, bool erweitern = false);

    // Limits the view to one year; the selected day moves into it.
    void JahrSetzen(int jahr);
    void Fettdruck(const QDate& tag, bool fett);

signals:
    // A day or range was chosen by the user or by Waehlen.
    void auswahlGeaendert();

private:
    void Geklickt(const QDate& tag);
    void BereichMarkieren();

    QDate m_start, m_ende;
    QDate m_alterStart, m_alterEnde;
};

} // namespace zp
