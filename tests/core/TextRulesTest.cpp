#include "base/TextFile.h"
#include "base/TextSearch.h"
#include "support/MemoryDisk.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <cmath>
#include <random>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(TextRules, leadingNumberReadsAsFarAsANumberGoes) {
    EXPECT_EQ(12, leadingNumber(u"12abc"));
    EXPECT_EQ(0, leadingNumber(u"abc"));
    EXPECT_EQ(-3.5, leadingNumber(u"  -3.5 "));
    EXPECT_EQ(1200, leadingNumber(u"1.2e3x"));
    EXPECT_EQ(5, leadingNumber(u"+5e"));
    EXPECT_EQ(0, leadingNumber(u"nancy"));
    EXPECT_EQ(0, leadingNumber(u"infinite"));
    EXPECT_EQ(0, leadingNumber(u"0x1A"));
    EXPECT_EQ(0.5, leadingNumber(u".5"));
    EXPECT_EQ(0, leadingNumber(u"."));
    EXPECT_EQ(0, leadingNumber(u"1e-999"));
    EXPECT_TRUE(std::isinf(leadingNumber(u"1e999")));
}

TEST(TextRules, integersRoundHalvesToEvenAndRespectTheirRange) {
    EXPECT_EQ(2, leadingInteger(u"2.5", 0, 255));
    EXPECT_EQ(4, leadingInteger(u"3.5", 0, 255));
    EXPECT_EQ(std::nullopt, leadingInteger(u"256", 0, 255));
    EXPECT_EQ(std::nullopt, leadingInteger(u"1e999", 0, 255));
    EXPECT_EQ(std::nullopt, wholeNumber(u"12a", 0, 255));
    EXPECT_EQ(std::nullopt, wholeNumber(u"", 0, 255));
    EXPECT_EQ(12, wholeNumber(u" 12 ", 0, 255));
    EXPECT_EQ(255, wholeNumber(u"&HFF", 0, 0xFFFFFF));
    EXPECT_EQ(std::nullopt, wholeNumber(u"&HGG", 0, 0xFFFFFF));
}

TEST(TextRules, theCodePageIsWindows1252AndNothingIsLostBeyondIt) {
    EXPECT_EQ(u"\u20ACé\u2013"_s, decodeText("\x80\xE9\x96"));
    EXPECT_EQ(u"é"_s, decodeText("\xEF\xBB\xBF\xC3\xA9"));
    EXPECT_EQ(QByteArray("\x80\xE9\x96"), encodeText(u"\u20ACé\u2013"_s));
    EXPECT_EQ(QByteArray("\xEF\xBB\xBF\xE6\xBC\xA2"), encodeText(u"漢"_s));
    QByteArray all;
    for (int i = 0; i < 256; ++i)
        all.append(static_cast<char>(i));
    EXPECT_EQ(all, encodeText(decodeText(all)));
    EXPECT_EQ(u"ï»¿x"_s, decodeText(encodeText(u"ï»¿x"_s)));
}

TEST(TextRules, textFromFieldsBecomesOneLine) {
    EXPECT_EQ(u"a b c d"_s, oneLine(u"a\tb\r\nc\u2028d"_s));
}

TEST(TextRules, foldingIgnoresCaseInEveryAlphabet) {
    EXPECT_EQ("az[@`0", folded(u"AZ[@`0"));
    EXPECT_EQ("aé€я", folded(u"AÉ€Я"));
    EXPECT_EQ(3u, folded(QStringView(u"A\0B", 3)).size());
}

// ASCII goes several characters at a time: every length, and one character beyond it at every place.
TEST(TextRules, foldingAgreesWithThePlainWayWhateverTheLength) {
    for (qsizetype length = 0; length < 20; ++length) {
        QString text;
        for (qsizetype i = 0; i < length; ++i)
            text += QChar(static_cast<char16_t>((37 * i + 11 * length) % 128));
        EXPECT_EQ(text.toLower().toStdString(), folded(text)) << length;
        for (const char16_t other : {u'\x80', u'É', u'Я', u'\u7F41'})
            for (qsizetype i = 0; i < length; ++i) {
                QString mixed = text;
                mixed[i] = other;
                EXPECT_EQ(mixed.toLower().toStdString(), folded(mixed)) << length << " " << i;
            }
    }
    QString all;
    for (char16_t c = 0; c < 128; ++c)
        all += QChar(c);
    EXPECT_EQ("x" + all.toLower().toStdString(), folded(u"X"_s + all));
}

TEST(TextRules, aCharacterBeyondAsciiIsDecodedWhereverItStands) {
    for (qsizetype length = 1; length < 20; ++length)
        for (qsizetype i = 0; i < length; ++i) {
            QByteArray bytes(length, 'a');
            bytes[i] = '\x80';
            QString expected(length, u'a');
            expected[i] = u'\u20AC';
            EXPECT_EQ(expected, decodeText(bytes));
        }
}

TEST(TextSearch, agreesWithThePlainSearchWhereverTheNeedleLies) {
    const std::string alphabet = "ab\xFF";
    std::string text;
    for (unsigned i = 0, bits = 12345; i < 90; ++i, bits = bits * 1103515245u + 12345u)
        text += alphabet[(bits >> 16) % alphabet.size()];
    for (size_t end = 0; end <= text.size(); ++end)
        for (size_t from = 0; from + 40 <= text.size(); from += 7)
            for (size_t length = 0; length <= 12; ++length) {
                const std::string_view haystack = std::string_view(text).substr(0, end);
                const std::string_view needle = std::string_view(text).substr(from, length);
                ASSERT_EQ(haystack.find(needle) != std::string_view::npos, occursIn(haystack, needle))
                    << end << ' ' << from << ' ' << length;
            }
}

TEST(TextFile, linesEndWithAnyLineEnd) {
    MemoryDisk disk;
    disk.put(u"/o/x.txt"_s, "a\r\nb\nc\rd\r\n\r\n;e\r\nf");
    TextFile file(disk, u"/o/x.txt"_s);
    QStringList lines;
    while (file.nextRecord())
        lines << file.line().toString();
    EXPECT_EQ((QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u""_s, u"f"_s}), lines);
    EXPECT_EQ(7, file.lineNumber());
}

TEST(TextFile, cutsLinesAndFieldsAsThePlainWayDoes) {
    const QByteArray letters("ab;\t\t\r\n\0 ", 9);
    std::minstd_rand random(7);
    for (int round = 0; round < 500; ++round) {
        QByteArray bytes;
        for (int i = 0; i < 40; ++i)
            bytes += letters[static_cast<qsizetype>(random() % 9)];
        MemoryDisk disk;
        disk.put(u"/o/x.txt"_s, bytes);
        TextFile file(disk, u"/o/x.txt"_s);
        QStringList lines;
        while (file.nextLine()) {
            lines << file.line().toString();
            QStringList fields;
            for (size_t i = 0; i < file.fieldCount(); ++i)
                fields << file.text(i);
            EXPECT_EQ(fields.mid(1), file.rest(1).split(u'\t').mid(1));
            EXPECT_EQ(lines.back().split(u'\t'), fields);
        }
        const QString text = QString::fromLatin1(bytes).replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
        QStringList expected = text.split(u'\n');
        if (expected.back().isEmpty())
            expected.removeLast();
        EXPECT_EQ(expected, lines) << bytes.toHex().constData();
    }
}

struct ComplaintList : Complaints {
    std::vector<Complaint> all;
    void add(const Complaint& complaint) override { all.push_back(complaint); }
};

TEST(TextFile, tellsWhatItSkips) {
    MemoryDisk disk;
    disk.put(u"/o/x.txt"_s, "1\ta\r\n2\r\n\r\n300\tb\r\n");
    ComplaintList complaints;
    TextFile file(disk, u"/o/x.txt"_s, &complaints);
    int stored = 0;
    while (file.nextLine())
        if (file.hasFields(2) && file.integer(0, "number", 0, 255))
            ++stored;
    EXPECT_EQ(1, stored);
    EXPECT_EQ(2, file.skippedLines());
    ASSERT_EQ(2u, complaints.all.size());
    EXPECT_EQ(2, complaints.all[0].line);
    EXPECT_EQ(u"number"_s, complaints.all[1].field);
}

TEST(TextFile, passesOverFieldsBehindTheBoundAndKeepsTheLine) {
    MemoryDisk disk;
    QByteArray line = "first";
    for (int i = 1; i < 300; ++i)
        line += "\t" + QByteArray::number(i);
    disk.put(u"/o/x.txt"_s, line + "\r\nnext\tb\r\n");
    TextFile file(disk, u"/o/x.txt"_s);
    ASSERT_TRUE(file.nextLine());
    ASSERT_TRUE(file.hasFields(2));
    EXPECT_EQ(u"first"_s, file.text(0));
    EXPECT_EQ(u"254"_s, file.text(254));
    EXPECT_EQ(255u, file.fieldCount());
    EXPECT_EQ(0, file.skippedLines());
    EXPECT_TRUE(file.nextLine() && file.hasFields(2));
}

TEST(TextFile, tellsTheFirstFaultOfEachLine) {
    MemoryDisk disk;
    disk.put(u"/f"_s, "x\t1\tnone\r\n7\t8\t9\r\n1\tx\t2\r\n");
    ComplaintList complaints;
    TextFile file(disk, u"/f"_s, &complaints);
    int good = 0;
    while (file.nextLine()) {
        const auto first = file.whole(0, "first", 0, 9);
        const auto second = file.whole(1, "second", 0, 9);
        const auto third = file.whole(2, "third", 0, 9);
        good += first && second && third ? 1 : 0;
    }
    EXPECT_EQ(1, good);
    EXPECT_EQ(2, file.skippedLines());
    ASSERT_EQ(2u, complaints.all.size());
    EXPECT_EQ(u"first"_s, complaints.all[0].field);
    EXPECT_EQ(3, complaints.all[1].line);
    EXPECT_EQ(u"second"_s, complaints.all[1].field);
}

} // namespace
} // namespace orvinel
