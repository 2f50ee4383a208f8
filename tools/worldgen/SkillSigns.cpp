#include "SkillSigns.h"

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

SignBook readSigns(const std::vector<SourceRow>& rows, QStringList& problems) {
    SignBook book;
    for (const SourceRow& row : rows) {
        std::vector<SignPart> parts;
        for (qsizetype i = 1; i + 1 < row.fields.size(); i += 2) {
            parts.push_back({row.fields[i], row.fields[i + 1]});
            if (!isSignMaterial(row.fields[i]))
                problems.append(row.place + u": no such material: "_s + row.fields[i]);
        }
        if (row.fields.size() % 2 == 0 || isSignManner(row.fields[0]) || book.contains(row.fields[0]))
            problems.append(row.place + u": material without shape, or name taken: "_s + row.fields[0]);
        book.insert(row.fields[0], parts);
    }
    return book;
}

std::vector<PlacedSign> placedSigns(const QString& text, const SignBook& book, const QString& place,
                                    QStringList& problems) {
    std::vector<PlacedSign> signs;
    for (const QString& layer : text.split(u',')) {
        PlacedSign sign;
        for (const QString& word : layer.split(u' ', Qt::SkipEmptyParts)) {
            if (isSignManner(word)) {
                sign.manner.append(word);
            } else if (book.contains(word) && sign.parts.empty()) {
                sign.parts = book[word];
            } else {
                problems.append(place + u": no such sign: "_s + word);
            }
        }
        if (sign.parts.empty())
            problems.append(place + u": a picture without a sign"_s);
        signs.push_back(sign);
    }
    return signs;
}

} // namespace worldgen
