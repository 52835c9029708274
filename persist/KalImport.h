#pragma once
// Appointments of the calendar files of an earlier version (.kal): line 31 holds the entries,
// each "TT.MM" and a text, ended by "|".

#include <QByteArray>
#include <QString>
#include <vector>

namespace zp {

struct KalEintrag {
    int tag = 0;
    int monat = 0;
    QString text;
};

// The entries of a .kal file, in file order. The list ends at the last "|" or at an entry shorter
// than five characters. Throws FormatFehler for a file of fewer than 31 lines or a day or month
// that no calendar has.
[[nodiscard]] std::vector<KalEintrag> KalLesen(const QByteArray& bytes);

} // namespace zp
