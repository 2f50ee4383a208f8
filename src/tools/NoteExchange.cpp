#include "tools/NoteExchange.h"

#include "app/ProgramState.h"
#include "layers/modNotes.h"
#include "tools/SnapshotDisk.h"
#include "tools/WorldWalk.h"
#include "world/modCampaigns.h"

#include <set>
#include <tuple>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

auto keyOf(const Note& note) {
    return std::tuple(note.ShortDesc, note.Body, note.At.Campaign, note.At.Region, note.At.X, note.At.Y);
}

bool liesIn(const Note& note, std::optional<std::pair<int, int>> region) {
    return !note.ShortDesc.isEmpty() && (!region || *region == std::pair(note.At.Campaign, note.At.Region));
}

} // namespace

std::optional<std::pair<int, int>> regionMeant(const ProgramState& state, const QString& word,
                                               QString& reason) {
    std::vector<std::pair<int, int>> found;
    QStringList numbers;
    for (int campaign = 0; campaign <= state.Campaigns.highest(); ++campaign)
        for (int region = 0; region <= state.Campaigns[campaign].Regions.highest(); ++region) {
            const QString name = regionName(state, campaign, region);
            const QString number = u"%1:%2"_s.arg(campaign).arg(region);
            if (name.isEmpty() || (name.compare(word, Qt::CaseInsensitive) != 0 && word != number))
                continue;
            found.emplace_back(campaign, region);
            numbers << number;
        }
    if (found.size() == 1)
        return found.front();
    reason = found.empty() ? u"there is no region \"%1\""_s.arg(word)
                           : u"several are called \"%1\": give one of %2"_s.arg(word, numbers.join(u", "_s));
    return std::nullopt;
}

QString exportedNotes(const ProgramState& state, std::optional<std::pair<int, int>> region, int& count) {
    Content chosen;
    for (const Note& note : state.Notes)
        if (liesIn(note, region))
            chosen.Notes.append(note);
    count = chosen.Notes.count();
    return notesFile(chosen);
}

MergedNotes mergeNotes(ProgramState& state, PlayerFiles& files, const QByteArray& exported,
                       std::optional<std::pair<int, int>> region) {
    MergedNotes merged;
    Content other;
    other.AppPath = state.AppPath;
    SnapshotDisk disk(files.disk(), state.AppPath, {{u"Personal/Notes.txt"_s, exported}});
    PlayerFiles otherFiles(disk);
    ComplaintList complaints;
    LoadNotes(other, otherFiles, &complaints);
    for (const Complaint& complaint : complaints.all())
        merged.problems << u"line %1: %2"_s.arg(complaint.line).arg(complaint.reason);
    if (!merged.problems.isEmpty())
        return merged;
    using Key = decltype(keyOf(Note()));
    std::set<Key> known;
    for (const Note& note : state.Notes)
        known.insert(keyOf(note));
    const List1<Note> before = state.Notes;
    for (const Note& note : other.Notes) {
        if (!liesIn(note, region))
            continue;
        if (!known.insert(keyOf(note)).second) {
            ++merged.known;
            continue;
        }
        state.Notes.append(note);
        ++merged.added;
    }
    if (state.Notes.count() > largestIdentifier)
        merged.saved = {SaveResult::Outcome::Failed, u"Notes.txt"_s, u"there would be too many notes"_s};
    else if (merged.added > 0)
        merged.saved = SaveNotes(state, files);
    if (!merged.saved.saved())
        state.Notes = before;
    return merged;
}

} // namespace orvinel
