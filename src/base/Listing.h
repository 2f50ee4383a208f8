#pragma once

#include <QString>

#include <span>
#include <vector>

namespace orvinel {

// One entry of a list or combo box of the panel.
struct ListEntry {
    QString text;
    int data = 0; // the number that the entry stands for

    bool operator==(const ListEntry&) const = default;
};

// The item data of a list's entries, in the list's order: what the layers draw and look through.
using ListedItems = std::span<const int>;

// The no-restriction entry: "<<< text >>>".
QString pinnedText(const QString& text);

// Indexes 0..texts.size()-1 in alphabetical order: case ignored, the same on every machine. Equal texts keep
// their order.
std::vector<int> alphabeticalOrder(const std::vector<QString>& texts);

// As alphabeticalOrder, for tables whose first number is 1.
std::vector<int> alphabeticalOrderFrom1(const std::vector<QString>& texts);

// Entries in alphabetical order of their text.
void sortAlphabetically(std::vector<ListEntry>& entries);

} // namespace orvinel
