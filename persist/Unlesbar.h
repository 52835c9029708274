#pragma once
// The exit writes a file of the program folder only where it would not destroy the user's bytes:
// a file that is there but can't be read (damaged, cut short, a folder under its name) is first
// moved aside under a name that says so, and the user is told once where it is.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

namespace zp {

struct AppState;
class Oberflaeche;

// The ending of a damaged file moved aside: "daten.dat" becomes "daten.dat.defekt".
inline constexpr char DefektEndung[] = ".defekt";

// Whether the bytes of a file read whole with the program's reader.
using Lesepruefung = std::function<bool(const QByteArray&)>;

class Defektsicherung {
public:
    explicit Defektsicherung(Oberflaeche& ui) : m_ui(ui) {}
    Defektsicherung(const Defektsicherung&) = delete;
    Defektsicherung& operator=(const Defektsicherung&) = delete;
    // Tells once where the files moved aside are, and which could not be moved.
    ~Defektsicherung();

    // True when `pfad` may be written: it is missing, reads whole with `lesbar`, or has been moved
    // aside as "<name>.defekt" ("<name>.defekt2" and on, so an earlier one is kept too).
    bool Frei(const QString& pfad, qint64 groesste, const Lesepruefung& lesbar);

private:
    Oberflaeche& m_ui;
    QStringList m_beiseite;
    QStringList m_geblieben;
};

// The checks of the program folder's files, with the readers the start uses.
[[nodiscard]] bool LesbarAlsEinstellungen(const QByteArray& bytes);
[[nodiscard]] bool LesbarAlsDatenbank(const QByteArray& bytes);
[[nodiscard]] bool LesbarAlsKartenformate(const QByteArray& bytes);
[[nodiscard]] bool LesbarAlsKalenderIni(const QByteArray& bytes);
// A design as the edition of `s` loads it.
[[nodiscard]] bool LesbarAlsDesign(const AppState& s, const QByteArray& bytes);

} // namespace zp
