#pragma once

#include "base/Caption.h"
#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "world/Profession.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace orvinel {

struct World;

// The item data of the last entry of cmbAttribute, which stands for no attribute of the profession.
inline constexpr int noAttributeData = 99;

void LoadProfessions(World& state, const Disk& disk, Complaints* complaints = nullptr);

// Entries of cmbProfession and cmbSecondaryProfession: pinned, then by name, gaps in the numbers as empty
// texts. `pinned` is the text of the first one.
std::vector<ListEntry> professionEntries(const World& state, Caption pinned);

// Entries of cmbAttribute; only the pinned one when `profession` is below 1 or unknown.
std::vector<ListEntry> attributeEntries(const World& state, int profession);

// The folded words that stand for a choice of profession and attribute in texts of items: none when
// `profession` is below 1; without an attribute the "no attribute" text and all attributes of the profession;
// else the attribute's text alone.
std::vector<std::string> attributeWords(const World& state, int profession,
                                        const std::optional<QString>& attribute);

// A number that no profession has gives the empty record.
const Profession& professionOf(const World& state, int number);

} // namespace orvinel
