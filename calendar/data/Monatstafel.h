#pragma once
// The months of a calendar year as the walks ask for them cell after cell: the weekday of a day
// and the length of a month. Each month is worked out once, when first asked for, instead of a
// date calculation for every cell of the page.

#include <array>
#include <cstddef>
#include <cstdint>

namespace zp {

class Monatstafel {
public:
    explicit Monatstafel(int jahr) : m_jahr(jahr) {}

    // Weekday of day d of month m, Sunday 1 to Saturday 7. Day 0 and days past the month's end
    // roll over into the neighbouring months, as dates do.
    [[nodiscard]] int Wochentag(int m, int d) const {
        if (const Monat* e = Eintrag(m)) return ((e->tagNull + d) % 7 + 7) % 7 + 1;
        return WochentagAusgerechnet(m, d);
    }
    // Last day of month m; month 13 is the next January, month 0 the December before.
    [[nodiscard]] int LetzterTag(int m) const {
        if (const Monat* e = Eintrag(m)) return e->laenge;
        return LetzterTagAusgerechnet(m);
    }

private:
    struct Monat {
        int8_t stand = 0;   // 0 not worked out yet, 1 known, -1 outside the dates: asked each time
        int8_t tagNull = 0; // weekday of day 0, Sunday 0 to Saturday 6
        int8_t laenge = 0;
    };
    // The entry of month m, worked out on first use; null where the table doesn't hold it.
    [[nodiscard]] const Monat* Eintrag(int m) const {
        if (m < 0 || m >= static_cast<int>(m_monate.size())) return nullptr;
        const Monat& e = m_monate[static_cast<std::size_t>(m)];
        if (e.stand == 0) Ausrechnen(m);
        return e.stand == 1 ? &e : nullptr;
    }
    void Ausrechnen(int m) const;
    // The date arithmetic itself, for months outside the table.
    [[nodiscard]] int WochentagAusgerechnet(int m, int d) const;
    [[nodiscard]] int LetzterTagAusgerechnet(int m) const;

    int m_jahr;
    // Months 0 to 15: a walk starts at most at December and steps at most a few months on.
    mutable std::array<Monat, 16> m_monate{};
};

} // namespace zp
