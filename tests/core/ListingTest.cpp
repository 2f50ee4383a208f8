#include "base/Listing.h"

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

// What collation by the rules of Unicode (ICU 72, English, case ignored) makes of the code page. It is kept
// here, since later versions move a character now and then, and the lists are to look the same on every
// machine.
// clang-format off
const std::vector<QStringView> charactersInOrder = { // those of one text are equal
    u"\t", u"\n", u"\r",
    u" \u00A0", u"_", u"-", u"–", u"—", u",", u";", u":", u"!", u"¡", u"?", u"¿", u".", u"…",
    u"·", u"'", u"‘", u"’", u"‚", u"‹", u"›", u"\"", u"“", u"”", u"„", u"«", u"»", u"(", u")",
    u"[", u"]", u"{", u"}", u"§", u"¶", u"@", u"*", u"/", u"\\", u"&", u"#", u"%", u"‰", u"†",
    u"‡", u"•", u"`", u"´", u"˜", u"^", u"¯", u"¨", u"¸", u"ˆ", u"°", u"©", u"®", u"+", u"±",
    u"÷", u"×", u"<", u"=", u">", u"¬", u"|", u"¦", u"~", u"¤", u"¢", u"$", u"£", u"¥", u"€",
    u"0", u"1¹", u"½", u"¼", u"2²", u"3³", u"¾", u"4", u"5", u"6", u"7", u"8", u"9", u"Aaª",
    u"Áá", u"Àà", u"Ââ", u"Åå", u"Ää", u"Ãã", u"Ææ", u"Bb", u"Cc", u"Çç", u"Dd", u"Ðð", u"Ee",
    u"Éé", u"Èè", u"Êê", u"Ëë", u"Ff", u"ƒ", u"Gg", u"Hh", u"Ii", u"Íí", u"Ìì", u"Îî", u"Ïï",
    u"Jj", u"Kk", u"Ll", u"Mm", u"Nn", u"Ññ", u"Ooº", u"Óó", u"Òò", u"Ôô", u"Öö", u"Õõ", u"Øø",
    u"Œœ", u"Pp", u"Qq", u"Rr", u"Ss", u"Šš", u"ß", u"Tt", u"™", u"Uu", u"Úú", u"Ùù", u"Ûû",
    u"Üü", u"Vv", u"Ww", u"Xx", u"Yy", u"Ýý", u"Ÿÿ", u"Zz", u"Žž", u"Þþ", u"µ"};
const std::vector<QStringView> textsInOrder = {
    u"\u00A0›", u" ^I", u"\u00A0að", u"\u00A0Æ\u00A0", u" é5»", u"\u00A0ú´ð", u"_zK(", u"-1",
    u"—bé", u":(", u"!@\u00A0", u"!¹Á", u"!éN", u"¡’N", u"?»", u"…ñO!", u"…zßÝ", u".™", u"'è",
    u"‘1!ü", u"›œ°", u"“ÎÜ", u"(b9", u")…", u"{^", u"}\u00A0.", u"§X½A", u"*H,", u"‰œªË", u"´ß-",
    u"^ç", u"¯e", u"¨-N", u"¸u^ß", u"×Z)9", u"¢9", u"£{EF", u"€“-", u"€Ä5A", u"1•", u"½ˆ",
    u"½Cø", u"¼b", u"1ÄE", u"1Ec²", u"1ßA", u"2.", u"2ð(º", u"²Ô", u"2X", u"²þ", u"³/", u"4\\'",
    u"9²½", u"9b", u"9ø¹", u"å!a", u"Ã…", u"Å‚", u"Ã(3<", u"A=", u"a½Ï0", u"ª9\u00A0", u"æ›Ñ",
    u"æañ9", u"Àî", u"AiÉs", u"àœ»", u"åºhæ", u"asÄ", u"ASl", u"AÛé", u"ÄÝ", u"AzA", u"ba",
    u"bb", u"bŠ", u"çä®", u"ð^-©", u"ðñÂe", u"ðµoZ", u"è!", u"E±Ü", u"eæœ", u"Eð.", u"Éñ",
    u"eoa", u"Ëxe", u"F9'", u"FTé", u"ƒª", u"GÉ›", u"ïÄ", u"Ià½!", u"Ìû9", u"K‹", u"Mb", u"ñ½",
    u"ñE", u"ñœbñ", u"ñzÆä", u"o. b", u"ø)Ó", u"Ó9K", u"öa&÷", u"ÓacD", u"oÂW", u"œÏu\u00A0",
    u"ÖÏÄ", u"ø™~ê", u"PsQ", u"Ro", u"s'", u"S°‚", u"s²", u"ß\u00A0Žð", u"ß²œ¼", u"ßð2", u"ßß",
    u"Ü\u00A0×Õ", u"úæè", u"X-", u"X‘…", u"y(", u"y²ª", u"Z~", u"ZE\u00A0", u"þ2A", u"þø"};
// clang-format on

TEST(Listing, sortsTheCodePageAsTheCollationOfUnicodeDoes) {
    std::vector<std::pair<QString, size_t>> ranked;
    for (size_t rank = 0; rank < charactersInOrder.size(); ++rank)
        for (const QChar c : charactersInOrder[rank])
            ranked.emplace_back(c, rank);
    ASSERT_EQ(256u - 32 + 3 - 7, ranked.size()) << "a character of the code page is missing";
    for (const auto& [a, rankOfA] : ranked)
        for (const auto& [b, rankOfB] : ranked)
            ASSERT_EQ(rankOfA > rankOfB, alphabeticalOrder({a, b}).front() == 1)
                << a.toStdString() << " and " << b.toStdString();
    std::vector<QString> sorted;
    for (const QStringView text : textsInOrder)
        sorted.push_back(text.toString());
    EXPECT_EQ(sorted, inOrder({sorted.rbegin(), sorted.rend()}));
}

} // namespace
} // namespace orvinel
