#pragma once
// What poppler's tools read from a printed PDF file.

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

namespace zp::test {

inline bool PopplerDa() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

inline QString Ausgabe(const QString& programm, const QStringList& argumente) {
    QProcess p;
    p.start(programm, argumente);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

inline int PdfSeiten(const QString& pdf) {
    const QRegularExpression re(QStringLiteral("Pages:\\s+(\\d+)"));
    return re.match(Ausgabe("pdfinfo", {pdf})).captured(1).toInt();
}

} // namespace zp::test
