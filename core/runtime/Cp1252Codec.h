#pragma once
// Windows-1252, the code page of the program's text files. Qt's codec names for it are not
// present in every Qt build, so the 32 characters of 0x80-0x9F are mapped here.

#include <QByteArray>
#include <QString>

namespace zp {

class Cp1252Codec {
public:
    [[nodiscard]] static QString decode(const QByteArray& bytes);
    // Encodes `text`; returns false (and leaves `out` partial) when a character has no Windows-1252 byte.
    [[nodiscard]] static bool encode(const QString& text, QByteArray& out);
    [[nodiscard]] static bool canEncode(const QString& text);
};

} // namespace zp
