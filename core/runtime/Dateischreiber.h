#pragma once
// Replacing a file atomically: the new bytes go to a private file beside it, are written through
// to the disk and only then renamed over the old one. Whatever fails on the way, the old file
// stays whole and the caller gets the reason in German.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>

namespace zp {

// The system calls the writer makes. A test hands in its own to make any one of them fail.
struct Systemaufrufe {
    ssize_t (*write)(int, const void*, size_t);
    int (*fdatasync)(int);
    int (*close)(int);
    int (*rename)(const char*, const char*);
};
[[nodiscard]] const Systemaufrufe& EchteSystemaufrufe();

// Replaces `path` with `bytes`. A symbolic link is followed, so the file it points at is
// replaced; the permissions of an existing file are kept. Returns false and fills `fehler`.
bool SchreibeDateiAtomar(const QString& path, const QByteArray& bytes, QString* fehler,
                         const Systemaufrufe& sys);

// For writers that need a file name of their own (the PDF output): an empty private file beside
// `ziel`, created anew and never through a link; empty with `fehler` filled on failure.
[[nodiscard]] QString LegeZwischendateiAn(const QString& ziel, QString* fehler);
// Writes the finished `zwischen` through to the disk and renames it over `ziel`; on failure it is
// removed and `ziel` stays as it was.
bool SchliesseZwischendateiAb(const QString& zwischen, const QString& ziel, QString* fehler);

// The German text for a system error number, as the user is told it.
[[nodiscard]] QString Systemfehlertext(int fehlernummer);

// The name part that marks the writer's unfinished files: "<name>.zp-neu-XXXXXX".
inline constexpr char ZwischendateiKennung[] = ".zp-neu-";

// Removes the unfinished files a killed save left in `ordner`: the writer's own, and those of
// earlier versions ("<name>.XXXXXX" beside an existing "<name>", "<name>.entsteht"). Returns
// the names removed.
QStringList EntferneZwischendateien(const QString& ordner);

} // namespace zp
