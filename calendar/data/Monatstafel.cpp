#include "calendar/data/Monatstafel.h"

#include "calendar/data/Tagesdaten.h"
#include "core/runtime/Basic.h"

namespace zp {

void Monatstafel::Ausrechnen(int m) const {
    Monat& e = m_monate[static_cast<std::size_t>(m)];
    const QDate tagNull = basic::DateSerial(m_jahr, m, 0);
    if (!tagNull.isValid()) {
        e.stand = -1;
        return;
    }
    e.stand = 1;
    e.tagNull = static_cast<int8_t>(basic::Weekday(tagNull) - 1);
    e.laenge = static_cast<int8_t>(zp::LetzterTag(m_jahr, m));
}

int Monatstafel::WochentagAusgerechnet(int m, int d) const {
    return basic::Weekday(basic::DateSerial(m_jahr, m, d));
}

int Monatstafel::LetzterTagAusgerechnet(int m) const {
    return zp::LetzterTag(m_jahr, m);
}

} // namespace zp
