#pragma once
// Small helpers shared by the test programs.

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QTemporaryDir>

namespace zp::test {

inline QString TestDaten(const QString& name) {
    return QStringLiteral(ZP_TESTDATA_DIR "/") + name;
}
inline QString MitgelieferteDaten(const QString& name) {
    return QStringLiteral(ZP_DATEN_DIR "/") + name;
}

// Lines joined with CR LF, as the program writes them.
inline QByteArray CrLf(std::initializer_list<const char*> lines) {
    QByteArray out;
    for (const char* l : lines) {
        out += l;
        out += "\r\n";
    }
    return out;
}

} // namespace zp::test
