#pragma once
// The printers a print request can go to: "PDF-Datei" and the queues of the print system.

#include <QString>
#include <QStringList>

namespace zp {

// The entry that prints into a PDF file through the same pipeline as a printer.
inline const QString kPdfDatei = QStringLiteral("PDF-Datei");

// "PDF-Datei" first, then the installed queues by name.
[[nodiscard]] QStringList Druckerliste();
// The queue the print system prints to by default; "PDF-Datei" when there is none.
[[nodiscard]] QString Standarddrucker();
// The name to print to: `gewuenscht` if it is in the list (an empty name means the default), else
// nothing, and `meldung` says in German what is there instead.
[[nodiscard]] QString WaehleDrucker(const QString& gewuenscht, const QStringList& liste, QString& meldung);

} // namespace zp
