#include "base/Listing.h"
#include "base/TextRules.h"

#include <QCollator>
#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

std::vector<QString> inOrder(const std::vector<QString>& texts) {
    std::vector<QString> sorted;
    for (const int i : alphabeticalOrder(texts))
        sorted.push_back(texts[static_cast<size_t>(i)]);
    return sorted;
}

TEST(Listing, sortsAsADictionaryDoes) {
    const std::vector<QString> sorted = {
        u""_s,          u" "_s,     u"(b)"_s,  u"10 apples"_s, u"9 apples"_s, u"Cote"_s,     u"côte"_s,
        u"Coté d'Or"_s, u"eagle"_s, u"Élan"_s, u"Elf"_s,       u"Straße"_s,   u"Strassen"_s, u"zoo"_s,
        u"Ωmega"_s,     u"жук"_s,   u"Яма"_s,  u"\u6F22"_s,    u"\u8A9E"_s};
    EXPECT_EQ(sorted, inOrder({sorted.rbegin(), sorted.rend()}));
    EXPECT_EQ((std::vector<QString>{u"B"_s, u"b"_s, u"b\u00AD"_s}), inOrder({u"B"_s, u"b"_s, u"b\u00AD"_s}));
    EXPECT_EQ((std::vector<QString>{u"b\u00AD"_s, u"B"_s, u"b"_s}), inOrder({u"b\u00AD"_s, u"B"_s, u"b"_s}));
}

// The libraries that know all languages agree about every text that the code page can hold.
TEST(Listing, sortsTheCodePageAsTheCollationOfUnicodeDoes) {
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    QByteArray bytes = "\t\n\r";
    for (int c = 0x20; c <= 0xFF; ++c)
        if (c != 0x7F && c != 0x81 && c != 0x8D && c != 0x8F && c != 0x90 && c != 0x9D && c != 0xAD)
            bytes += static_cast<char>(c);
    const QString letters = decodeText(bytes);
    QRandomGenerator random(1);
    const auto text = [&] {
        QString made;
        for (int length = random.bounded(1, 4); length > 0; --length)
            made += letters[random.bounded(letters.size())];
        return made;
    };
    for (int i = 0; i < 50'000; ++i) {
        const QString a = text();
        const QString b = text();
        const bool swapped = alphabeticalOrder({a, b}).front() == 1;
        ASSERT_EQ(collator.compare(a, b) > 0, swapped) << a.toStdString() << " and " << b.toStdString();
    }
}

} // namespace
} // namespace orvinel
