#pragma once
// Line files as the program reads and writes them: Windows-1252 with CR LF, read back also from
// UTF-8 (with or without BOM) and with LF or CR line ends. Writers replace files atomically.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <stdexcept>

namespace zp {

// Splits file bytes into lines. The encoding is UTF-8 when the bytes start with its BOM or a line
// holds a valid multi-byte UTF-8 character, else Windows-1252.
[[nodiscard]] QStringList ZeilenAusBytes(const QByteArray& bytes);

// Joins lines with CR LF after each, in Windows-1252; falls back to UTF-8 with BOM only when a
// character has no Windows-1252 byte, so that nothing typed is lost.
[[nodiscard]] QByteArray BytesAusZeilen(const QStringList& lines);

// A value that must stay on one line of a positional file: a line break inside it would put every
// later line out of step, so each CR LF, CR and LF becomes a blank.
[[nodiscard]] QString EinzeiligesFeld(QString text);

// The largest files the program can really have; a larger one is refused before it is read, so
// that no reader spends memory or time out of proportion on it.
inline constexpr qint64 GroessteKleineDatei = qint64(1) << 20; // zp.ini, kalender.ini, etikett.ini
inline constexpr qint64 GroessteDatei = qint64(16) << 20;      // designs, day data, addresses, imports
inline constexpr qint64 GroessteBilddatei = qint64(256) << 20;

// Reads a whole file of at most `hoechstens` bytes; std::nullopt when it can't be opened or is
// too large, with the reason in German in `grund`.
[[nodiscard]] std::optional<QByteArray> LeseDatei(const QString& path, qint64 hoechstens = GroessteDatei,
                                                  QString* grund = nullptr);
// Replaces `path` atomically with `bytes`. On failure returns false and fills `fehler`.
bool SchreibeDateiAtomar(const QString& path, const QByteArray& bytes, QString* fehler = nullptr);

// A file that can't be parsed: the line (1-based) where reading failed, and what was wrong.
struct FormatFehler : std::runtime_error {
    FormatFehler(int zeile, const QString& grund);
    int zeile;
    QString grund;
};

// Reads values line by line, as the program's positional formats do: each line is decoded only
// when it is read, so a file that is wrong early is refused early. Every failure throws
// FormatFehler with the line number, so a reader can parse into new objects and give up cleanly.
class ZeilenLeser {
public:
    explicit ZeilenLeser(const QByteArray& bytes);

    [[nodiscard]] bool AtEndOfStream() const { return m_pos >= m_bytes.size(); }
    // Number of the line read last (1-based), 0 before the first.
    [[nodiscard]] int Zeilennummer() const { return m_zeile; }
    [[nodiscard]] qsizetype Restzeilen() const { return m_zeilenGesamt - m_zeile; }
    // In a UTF-8 file, the first line that is not valid UTF-8 (read as Windows-1252), else 0.
    [[nodiscard]] int FremdkodierteZeile() const { return m_fremdeZeile; }

    QString ReadLine();
    int16_t LeseInt16();
    int32_t LeseInt32();
    int16_t LeseBool(); // -1 or 0
    double LeseDouble();
    float LeseSingle();
    double LeseVal(); // numeric prefix, never fails but at the end of the file
    // A count of records that each take at least `zeilenJeEintrag` lines: refused when the rest of
    // the file can't hold it or it passes `hoechstens`, so no allocation is ever out of
    // proportion to the file.
    int LeseAnzahl(int zeilenJeEintrag, int hoechstens = 1'000'000);

    [[noreturn]] void Fehler(const QString& grund) const;

private:
    QByteArray m_bytes;
    qsizetype m_pos = 0;
    int m_zeile = 0;
    qsizetype m_zeilenGesamt = 0;
    bool m_utf8 = false;
    int m_fremdeZeile = 0;
};

// Collects lines for a writer.
class ZeilenSchreiber {
public:
    void WriteLine(const QString& line) { m_lines << line; }
    void WriteLine(int32_t value) { m_lines << QString::number(value); }
    void WriteBool(bool value) { m_lines << (value ? QStringLiteral("-1") : QStringLiteral("0")); }
    void WriteDouble(double value);
    void WriteSingle(float value);
    [[nodiscard]] const QStringList& Zeilen() const { return m_lines; }
    [[nodiscard]] QByteArray Bytes() const { return BytesAusZeilen(m_lines); }

private:
    QStringList m_lines;
};

} // namespace zp
