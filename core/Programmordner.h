#pragma once
// The program folder: where settings, catalogues and designs live. Chosen at start, and seeded
// from the shipped data when it holds no settings file yet.

#include <QString>
#include <QStringList>

namespace zp {

// The edition names of the command line: "Kalender", "Visitenkarte", "Briefkopf", "Etikett",
// "CD-Hülle".
[[nodiscard]] QStringList Editionen();
// The edition's name as `--edition` accepts it (any case; "CD-Huelle" for "CD-Hülle"), or an
// empty text for an unknown name.
[[nodiscard]] QString NormaleEdition(const QString& name);
// The `Programmname` of an edition: "ZP Visitenkarte".
[[nodiscard]] QString ProgrammnameDerEdition(const QString& edition);

// The shipped data: `daten/` beside the executable, else the installed copy.
[[nodiscard]] QString MitgelieferteDaten();

// The folder to work in: `befehlszeile` when given, else the current directory when it holds
// zp.ini, else the per-user folder $XDG_DATA_HOME/zp/<Edition> (edition default "Kalender").
[[nodiscard]] QString WaehleProgrammordner(const QString& befehlszeile, const QString& edition);

// Creates `ordner` when needed and, when it holds no zp.ini, copies the shipped program files
// from `quelle` (files already present are kept) and the settings file of `edition`. Returns
// false with a German message in `fehler`.
bool RichteProgrammordnerEin(const QString& ordner, const QString& edition, const QString& quelle,
                             QString* fehler);

} // namespace zp
