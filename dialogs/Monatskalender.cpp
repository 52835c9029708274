#include "dialogs/Monatskalender.h"

#include "core/state/AppState.h"

#include <QApplication>
#include <QTextCharFormat>

namespace zp {

Monatskalender::Monatskalender(QWidget* parent) : QCalendarWidget(parent) {
    setLocale(QLocale(QLocale::German, QLocale::Germany));
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setGridVisible(false);
    m_start = m_ende = selectedDate();
    connect(this, &QCalendarWidget::clicked, this, &Monatskalender::Geklickt);
    connect(this, &QCalendarWidget::activated, this, &Monatskalender::Geklickt);
}

void Monatskalender::Geklickt(const QDate& tag) {
    Waehlen(tag, QApplication::keyboardModifiers() & Qt::ShiftModifier);
}

void Monatskalender::Waehlen(const QDate& tag, bool erweitern) {
    if (!tag.isValid()) return;
    const QDate anker = m_start;
    setSelectedDate(tag);
    const QDate t = selectedDate(); // kept inside the year
    if (erweitern && anker.isValid()) {
        m_start = std::min(anker, t);
        m_ende = std::max(anker, t);
    } else {
        m_start = m_ende = t;
    }
    BereichMarkieren();
    emit auswahlGeaendert();
}

void Monatskalender::InZustand(Monatsansicht& v) const {
    v.Value = m_start;
    v.SelStart = m_start;
    v.SelEnd = m_ende;
}

void Monatskalender::AusZustand(const Monatsansicht& v) {
    if (v.MinDate.isValid() && v.MaxDate.isValid() && v.MinDate <= v.MaxDate) {
        // Moving forwards the maximum goes first, so that the minimum never passes it.
        if (maximumDate() < v.MaxDate) {
            setMaximumDate(v.MaxDate);
            setMinimumDate(v.MinDate);
        } else {
            setMinimumDate(v.MinDate);
            setMaximumDate(v.MaxDate);
        }
    }
    if (v.Value.isValid() && v.Value != m_start) {
        setSelectedDate(v.Value);
        m_start = selectedDate();
        m_ende = v.SelEnd.isValid() && v.SelEnd > m_start ? v.SelEnd : m_start;
        setCurrentPage(m_start.year(), m_start.month());
        BereichMarkieren();
    }
    const QSet<QDate> alt = m_fett;
    m_fett = v.Fett;
    for (const QDate& d : alt)
        if (!m_fett.contains(d)) Formatieren(d);
    for (const QDate& d : m_fett)
        if (!alt.contains(d)) Formatieren(d);
}

void Monatskalender::Formatieren(const QDate& d) {
    if (!d.isValid()) return;
    QTextCharFormat f = dateTextFormat(d);
    f.setFontWeight(m_fett.contains(d) ? QFont::Bold : QFont::Normal);
    if (m_ende > m_start && d >= m_start && d <= m_ende)
        f.setBackground(palette().color(QPalette::Highlight).lighter(170));
    else
        f.clearBackground();
    setDateTextFormat(d, f);
}

void Monatskalender::BereichMarkieren() {
    // The range shows as a light background; the bold marks stay as they are.
    auto neu = [this](const QDate& von, const QDate& bis) {
        if (!von.isValid() || !bis.isValid()) return;
        for (QDate d = von; d <= bis; d = d.addDays(1))
            Formatieren(d);
    };
    const QDate alterStart = m_alterStart, alterEnde = m_alterEnde;
    m_alterStart = m_start;
    m_alterEnde = m_ende;
    neu(alterStart, alterEnde);
    neu(m_start, m_ende);
}

} // namespace zp
