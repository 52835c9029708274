#pragma once
// The command line of `zp`: options are read into an ordered list of calls; after start-up the
// actions run in the order the user gave them, through the same commands as the menus.
//
// Each option lives in a file of its own (`app/Option<Name>.cpp`) and adds itself to the table:
//
//     namespace {
//     bool SchreibePng(zp::Batchlauf& lauf, const QString& datei) { ... return true; }
//     const bool registriert = zp::RegistriereOption(
//         {"--png", "DATEI", "das Seitenbild als PNG schreiben", zp::OptionArt::Aktion, SchreibePng});
//     } // namespace
//
// The library is linked as object files, so such a file needs no reference from elsewhere.

#include "core/state/Oberflaeche.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace zp {

struct AppState;
struct Batchlauf;

enum class OptionArt {
    Start,       // decides the start-up itself (program folder, edition); read before `Main`
    Einstellung, // a value that actions read wherever it stands (print range, copies, ...)
    Aktion,      // a command, run in command-line order after start-up
};

// Runs the option; `argument` is empty for a switch. Returns false after telling the user
// (`Batchlauf::Fehler`) what went wrong; the run then stops with exit status 1.
using OptionHandler = std::function<bool(Batchlauf& lauf, const QString& argument)>;

struct Option {
    QString name;     // "--png"
    QString argument; // the argument's name for the help ("DATEI"); empty for a switch
    QString hilfe;    // one German line for `zp --help`
    OptionArt art = OptionArt::Aktion;
    OptionHandler handler; // Aktion: the command; Einstellung: an optional check of the value
};

// Adds `option` to the table of the program. Returns true so that it can initialise a constant
// at namespace scope. A name given twice keeps the first entry and is reported on stderr.
bool RegistriereOption(Option option);
// Every option, sorted by name.
[[nodiscard]] std::vector<const Option*> Optionen();
[[nodiscard]] const Option* FindeOption(const QString& name);

// One option as the user gave it.
struct OptionAufruf {
    const Option* option = nullptr;
    QString argument;
};

// The command line, read.
struct Kommandozeile {
    std::vector<OptionAufruf> aufrufe; // in the order given
    bool hilfe = false;
    QString programmpfad; // --programmpfad, empty when not given
    QString edition;      // --edition, empty when not given
    QString datenquelle;  // the shipped data that seed a new folder; empty: MitgelieferteDaten()

    [[nodiscard]] bool HatAktionen() const;
};

// Reads the arguments (without the program's own name). On a fault returns std::nullopt and a
// German message in `fehler`.
[[nodiscard]] std::optional<Kommandozeile> LeseKommandozeile(const QStringList& argumente, QString* fehler);

// The text of `zp --help`.
[[nodiscard]] QString Hilfetext();

// Messages of a run without a window: to standard error, questions answered by a preset answer.
class BatchOberflaeche : public Oberflaeche {
public:
    bool Frage(const QString& text, const QString& titel) override;
    void Meldung(const QString& text, const QString& titel, const QString& detail = {}) override;
    void Statusmeldung(const QString& text) override;
    int warnungen = 0; // messages titled "Warnung!" or "Fehler" so far
};

// What an action works on.
struct Batchlauf {
    AppState& s;
    Oberflaeche& ui;
    const Kommandozeile& zeile;

    // Whether the option `name` was given, and its last value.
    [[nodiscard]] bool Hat(const QString& name) const;
    [[nodiscard]] QString Wert(const QString& name, const QString& vorgabe = {}) const;
    // "zp: <text>" on standard error.
    void Fehler(const QString& text) const;
};

// "zp: <text>" on standard error.
void MeldeFehler(const QString& text);
// Why `datei` can't be read as a file: missing, or a folder under that name; empty when it is a
// file.
[[nodiscard]] QString KeineDatei(const QString& datei);

// A whole batch run: program folder, `Main`, the start document, then the actions in order.
// Returns the exit status (0 success, 1 any error).
[[nodiscard]] int FuehreStapellaufAus(const Kommandozeile& zeile);
// The same on a state and interface of the caller's (tests).
[[nodiscard]] int FuehreStapellaufAus(const Kommandozeile& zeile, AppState& s, BatchOberflaeche& ui);

} // namespace zp
