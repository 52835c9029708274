#include "core/runtime/Cp1252Codec.h"

namespace zp {

namespace {
// 0x80..0x9F; 0 marks the five bytes that Windows-1252 leaves undefined (read as C1 controls).
constexpr char16_t kHigh[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

int byteFor(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return c;
    for (int i = 0; i < 32; ++i)
        if (kHigh[i] == c) return 0x80 + i;
    if (c >= 0x80 && c < 0xA0) {
        const int i = c - 0x80;
        if (kHigh[i] == 0) // undefined bytes travel as their C1 control
            return c;
    }
    return -1;
}
} // namespace

QString Cp1252Codec::decode(const QByteArray& bytes) {
    QString out;
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        if (b >= 0x80 && b < 0xA0 && kHigh[b - 0x80] != 0)
            out += QChar(kHigh[b - 0x80]);
        else
            out += QChar(static_cast<char16_t>(b));
    }
    return out;
}

bool Cp1252Codec::encode(const QString& text, QByteArray& out) {
    out.reserve(out.size() + text.size());
    for (const QChar c : text) {
        const int b = byteFor(c.unicode());
        if (b < 0) return false;
        out += static_cast<char>(b);
    }
    return true;
}

bool Cp1252Codec::canEncode(const QString& text) {
    for (const QChar c : text)
        if (byteFor(c.unicode()) < 0) return false;
    return true;
}

} // namespace zp
