#pragma once
// Address records from files of earlier versions and other programs: a plain text file with one
// record a line (".txt") and the label file of an old version (".eti").

#include "core/runtime/Liste.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zp {

// Records read by an import, before they replace the table of the running program.
struct ImportDaten {
    Tabelle<QString> Datensaetze; // (field, record), 30 fields
    int DatensatzAnzahl = 0;
    QStringList Texte; // the eight texts of an old label file, for text objects 1 to 8
};

// ".txt": one record a line, up to 20 fields. A line's separator is the tab if it holds one, else
// ";" if it holds one, else that of the line before (";" on the first line). An empty line ends
// the records. Never fails.
[[nodiscard]] ImportDaten LeseTextImport(const QByteArray& bytes);

// ".eti": 13 lines passed over, the eight label texts, 492 lines passed over, then records of 20
// lines until one that is all empty; that one stays as the last, empty record. A file that ends
// between records ends the list as well (with an empty last record). A file cut short anywhere
// else throws FormatFehler.
[[nodiscard]] ImportDaten LeseEtiImport(const QByteArray& bytes);

} // namespace zp
