#include "base/Listing.h"

#include "base/Collation.h"

#include <algorithm>
#include <string>

namespace orvinel {

namespace {

// The first bytes of a key as a number that is ordered as they are.
quint64 startOf(const std::string& key) {
    quint64 start = 0;
    for (size_t i = 0; i < sizeof start; ++i)
        start = start << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0u);
    return start;
}

} // namespace

QString pinnedText(const QString& text) {
    return QLatin1String("<<< ") + text + QLatin1String(" >>>");
}

std::vector<int> alphabeticalOrder(const std::vector<QString>& texts) {
    struct Keyed {
        quint64 start; // most keys differ within it
        int index;
    };
    std::vector<std::string> keys;
    std::vector<Keyed> keyed;
    keys.reserve(texts.size());
    keyed.reserve(texts.size());
    for (const QString& text : texts) {
        keys.push_back(collationKey(text));
        keyed.push_back({startOf(keys.back()), static_cast<int>(keyed.size())});
    }
    std::sort(keyed.begin(), keyed.end(), [&](const Keyed& a, const Keyed& b) {
        if (a.start != b.start)
            return a.start < b.start;
        const int compared = keys[static_cast<size_t>(a.index)].compare(keys[static_cast<size_t>(b.index)]);
        return compared < 0 || (compared == 0 && a.index < b.index);
    });
    std::vector<int> order;
    order.reserve(texts.size());
    for (const Keyed& each : keyed)
        order.push_back(each.index);
    return order;
}

std::vector<int> alphabeticalOrderFrom1(const std::vector<QString>& texts) {
    std::vector<int> order = alphabeticalOrder(texts);
    for (int& number : order)
        ++number;
    return order;
}

void sortAlphabetically(std::vector<ListEntry>& entries) {
    std::vector<QString> texts;
    texts.reserve(entries.size());
    for (const ListEntry& entry : entries)
        texts.push_back(entry.text);
    std::vector<ListEntry> sorted;
    sorted.reserve(entries.size());
    for (const int i : alphabeticalOrder(texts))
        sorted.push_back(std::move(entries[static_cast<size_t>(i)]));
    entries = std::move(sorted);
}

} // namespace orvinel
