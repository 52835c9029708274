#include "Monatsansicht.h"

#include <QApplication>
#include <QTextCharFormat>

namespace zp {

Monatsansicht::Monatsansicht(QWidget* parent) : QCalendarWidget(parent) {
    setLocale(QLocale(QLocale::German, QLocale::Germany));
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setGridVisible(false);
    m_start = m_ende = selectedDate();
    connect(this, &QCalendarWidget::clicked, this, &Monatsansicht::Geklickt);
    // Keyboard moves the cursor: a plain move selects one day, Shift+arrow extends the range.
    connect(this, &QCalendarWidget::activated, this, &Monatsansicht::Geklickt);
}

void Monatsansicht::Geklickt(const QDate& tag) {
    Waehlen(tag, QApplication::keyboardModifiers() & Qt::ShiftModifier);
}

void Monatsansicht::Waehlen(const QDate& tag, bool erweitern) {
    if (!tag.isValid()) return;
    const QDate anker = m_start;
    setSelectedDate(tag);
    const QDate t = selectedDate(); // clamped to the year
    if (erweitern && anker.isValid()) {
        m_start = std::min(anker, t);
        m_ende = std::max(anker, t);
    } else {
        m_start = m_ende = t;
    }
    BereichMarkieren();
    emit auswahlGeaendert();
}

void Monatsansicht::JahrSetzen(int jahr) {
    const QDate von(jahr, 1, 1), bis(jahr, 12, 31);
    if (!von.isValid()) return;
    // Moving forwards the maximum goes first, so that the minimum never passes it.
    if (maximumDate() < bis) {
        setMaximumDate(bis);
        setMinimumDate(von);
    } else {
        setMinimumDate(von);
        setMaximumDate(bis);
    }
    const QDate d = selectedDate();
    QDate neu(jahr, d.month(), std::min(d.day(), QDate(jahr, d.month(), 1).daysInMonth()));
    setSelectedDate(neu);
    setCurrentPage(jahr, neu.month());
    m_start = m_ende = selectedDate();
    BereichMarkieren();
}

void Monatsansicht::Fettdruck(const QDate& tag, bool fett) {
    if (!tag.isValid()) return;
    QTextCharFormat f = dateTextFormat(tag);
    f.setFontWeight(fett ? QFont::Bold : QFont::Normal);
    setDateTextFormat(tag, f);
}

void Monatsansicht::BereichMarkieren() {
    // The range shows as a light background; the bold marks stay as they are.
    auto faerben = [this](const QDate& von, const QDate& bis, bool an) {
        if (!von.isValid() || !bis.isValid()) return;
        for (QDate d = von; d <= bis; d = d.addDays(1)) {
            QTextCharFormat f = dateTextFormat(d);
            if (an)
                f.setBackground(palette().color(QPalette::Highlight).lighter(170));
            else
                f.clearBackground();
            setDateTextFormat(d, f);
        }
    };
    faerben(m_alterStart, m_alterEnde, false);
    if (m_ende > m_start) faerben(m_start, m_ende, true);
    m_alterStart = m_start;
    m_alterEnde = m_ende;
}

} // namespace zp
