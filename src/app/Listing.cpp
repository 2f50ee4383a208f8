#include "app/Listing.h"

#include "app/Collation.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace orvinel {

QString pinnedText(const QString& text) {
    return QLatin1String("<<< ") + text + QLatin1String(" >>>");
}

std::vector<int> alphabeticalOrder(const std::vector<QString>& texts) {
    std::vector<std::string> keys;
    keys.reserve(texts.size());
    for (const QString& text : texts)
        keys.push_back(collationKey(text));
    std::vector<int> order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return keys[static_cast<size_t>(a)] < keys[static_cast<size_t>(b)];
    });
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
