// The runtime conversions that the file formats depend on.
#include "core/runtime/Basic.h"
#include "core/runtime/Cp1252Codec.h"
#include "core/runtime/TextDatei.h"

#include <gtest/gtest.h>

using namespace zp;
using namespace zp::basic;

TEST(Val, NumericPrefix) {
    EXPECT_DOUBLE_EQ(Val(u"  2003"), 2003);
    EXPECT_DOUBLE_EQ(Val(u"2003,5"), 2003); // the comma ends the number
    EXPECT_DOUBLE_EQ(Val(u"12.5abc"), 12.5);
    EXPECT_DOUBLE_EQ(Val(u"-3"), -3);
    EXPECT_DOUBLE_EQ(Val(u"abc"), 0);
    EXPECT_DOUBLE_EQ(Val(u""), 0);
    EXPECT_DOUBLE_EQ(Val(u"1e3"), 1000);
    EXPECT_DOUBLE_EQ(Val(u"7e"), 7); // an exponent without digits is no exponent
    EXPECT_DOUBLE_EQ(Val(u".5"), 0.5);
}

TEST(Str, FormA) {
    EXPECT_EQ(Str(0), u" 0");
    EXPECT_EQ(Str(-1), u"-1");
    EXPECT_EQ(Str(2100), u" 2100");
    EXPECT_EQ(Str(12.5), u" 12.5");
    EXPECT_EQ(Str(0.5), u" .5");
    EXPECT_EQ(Str(-0.25), u"-.25");
}

TEST(RegionalDouble, WriteAndRead) {
    EXPECT_EQ(DoubleText(12.5), u"12,5");
    EXPECT_EQ(DoubleText(2100), u"2100");
    EXPECT_EQ(DoubleText(-0.1), u"-0,1");
    EXPECT_EQ(*ParseDouble(u"12,5"), 12.5);
    EXPECT_EQ(*ParseDouble(u"12.5"), 12.5);
    EXPECT_EQ(*ParseDouble(u" 7 "), 7);
    EXPECT_FALSE(ParseDouble(u"12a").has_value());
    EXPECT_FALSE(ParseDouble(u"").has_value());
}

TEST(IntegerConversion, RoundsHalfToEvenAndChecksRange) {
    EXPECT_EQ(*ParseInt16(u"2,5"), 2);
    EXPECT_EQ(*ParseInt16(u"3,5"), 4);
    EXPECT_EQ(*ParseInt16(u"-1"), -1);
    EXPECT_FALSE(ParseInt16(u"40000").has_value());
    EXPECT_EQ(*ParseInt32(u"16777215"), 16777215);
    EXPECT_FALSE(ParseInt32(u"x").has_value());
    EXPECT_EQ(*ParseBool(u"-1"), true);
    EXPECT_EQ(*ParseBool(u"0"), false);
    EXPECT_EQ(*ParseBool(u"Wahr"), true);
}

TEST(DateSerial, RollsOver) {
    EXPECT_EQ(DateSerial(2004, 3, 0), QDate(2004, 2, 29));
    EXPECT_EQ(DateSerial(2004, 13, 1), QDate(2005, 1, 1));
    EXPECT_EQ(DateSerial(2004, 0, 1), QDate(2003, 12, 1));
    EXPECT_EQ(DateSerial(2004, 1, 32), QDate(2004, 2, 1));
    EXPECT_EQ(Weekday(QDate(2026, 11, 22)), 1); // a Sunday
    EXPECT_EQ(Weekday(QDate(2026, 11, 21)), 7);
}

TEST(Cp1252, GermanTextRoundTrip) {
    const QString text = QStringLiteral("äöüß € „Zitat“");
    QByteArray bytes;
    ASSERT_TRUE(Cp1252Codec::encode(text, bytes));
    EXPECT_EQ(bytes, QByteArray("\xE4\xF6\xFC\xDF \x80 \x84Zitat\x93"));
    EXPECT_EQ(Cp1252Codec::decode(bytes), text);
    QByteArray dummy;
    EXPECT_FALSE(Cp1252Codec::encode(QStringLiteral("Ω"), dummy));
}

TEST(Zeilen, LineEndsAndEncodings) {
    EXPECT_EQ(ZeilenAusBytes("a\r\nb\r\n"), QStringList({"a", "b"}));
    EXPECT_EQ(ZeilenAusBytes("a\nb"), QStringList({"a", "b"}));
    EXPECT_EQ(ZeilenAusBytes("a\rb\r\r"), QStringList({"a", "b", ""}));
    EXPECT_EQ(ZeilenAusBytes("\xEF\xBB\xBF\xC3\xA4"), QStringList({QStringLiteral("ä")}));
    EXPECT_EQ(ZeilenAusBytes("\xC3\xA4\r\n"), QStringList({QStringLiteral("ä")})); // UTF-8 without BOM
    EXPECT_EQ(ZeilenAusBytes("\xE4\r\n"), QStringList({QStringLiteral("ä")}));     // Windows-1252
    EXPECT_EQ(BytesAusZeilen({QStringLiteral("ä€"), "x"}), QByteArray("\xE4\x80\r\nx\r\n"));
    // A character outside Windows-1252 makes the whole file UTF-8 with BOM, nothing is lost.
    const QByteArray utf = BytesAusZeilen({QStringLiteral("Ω")});
    EXPECT_TRUE(utf.startsWith("\xEF\xBB\xBF"));
    EXPECT_EQ(ZeilenAusBytes(utf), QStringList({QStringLiteral("Ω")}));
}

TEST(ZeilenLeser, FailsWithLineNumber) {
    ZeilenLeser r(QByteArray("5\r\nx\r\n3\r\n"));
    EXPECT_EQ(r.LeseInt16(), 5);
    try {
        (void)r.LeseInt16();
        FAIL() << "no error";
    } catch (const FormatFehler& e) {
        EXPECT_EQ(e.zeile, 2);
    }
    // A count that the rest of the file can't hold is refused before anything is allocated.
    ZeilenLeser big(QByteArray("1000000000\na\nb\n"));
    EXPECT_THROW((void)big.LeseAnzahl(11), FormatFehler);
    // So is one the file could hold but the program can't manage.
    ZeilenLeser viele(QByteArray("200\n") + QByteArray("x\n").repeated(200));
    EXPECT_THROW((void)viele.LeseAnzahl(1, 100), FormatFehler);
    ZeilenLeser shortFile{QByteArray()};
    EXPECT_THROW((void)shortFile.ReadLine(), FormatFehler);
}

TEST(ZeilenLeser, MixedEncodingsAreReadLineByLineAndTheStrayLineNamed) {
    const struct {
        QByteArray bytes;
        QStringList zeilen;
        int fremd; // the line of a UTF-8 file that isn't UTF-8
    } faelle[] = {
        {"M\xC3\xBCller\r\nStra\xDF" "e\r\nK\xC3\xB6ln\r\n", {"Müller", "Straße", "Köln"}, 2},
        {"M\xFCller\r\nStra\xDF" "e\r\n", {"Müller", "Straße"}, 0}, // Windows-1252 throughout
        {"\xEF\xBB\xBF" "a\r\n\x80\r\n", {"a", "€"}, 2},
        {"\xC3\xA4\xC3\r\n\xE2\x82\xAC\r\n", {"Ã¤Ã", "€"}, 1}, // a sequence cut at the line end
        {"\xED\xA0\x80\n\xC3\xA4\n", {"í\u00A0€", "ä"}, 1},       // a surrogate is no UTF-8
        {"a\n\nb", {"a", "", "b"}, 0},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.bytes.toHex().toStdString());
        ZeilenLeser leser(fall.bytes);
        EXPECT_EQ(leser.Restzeilen(), fall.zeilen.size());
        QStringList gelesen;
        while (!leser.AtEndOfStream())
            gelesen << leser.ReadLine();
        EXPECT_EQ(gelesen, fall.zeilen);
        EXPECT_EQ(leser.FremdkodierteZeile(), fall.fremd);
    }
}
