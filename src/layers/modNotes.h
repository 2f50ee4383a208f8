#pragma once

#include "base/Complaints.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <string>
#include <vector>

namespace orvinel {

struct ProgramState;

// The player's own annotation of a place.
struct Note {
    QString ShortDesc; // empty: deleted; the slot stays until the program ends
    QString Body;      // lines end with CR LF
    MapLocation At;    // Campaign, Region, X, Y and the rectangle only
    std::string FoldedShortDesc;
    std::string FoldedBody;

    // The only writer of the texts.
    void setTexts(const QString& title, const QString& body);

    bool operator==(const Note&) const = default;
};

// The length to which the dialog limits a title; one from the file may be longer.
inline constexpr int longestNoteTitle = 30;

void LoadNotes(ProgramState& state, PlayerFiles& files, Complaints* complaints = nullptr);

QString notesPath(const ProgramState& state);
// The text of Notes.txt for the table as it stands: notes that are not deleted, in table order.
QString notesFile(const ProgramState& state);
SaveResult SaveNotes(const ProgramState& state, PlayerFiles& files, bool evenIfChanged = false);

struct NoteChoice {
    Place place;       // the zone does not matter
    QString titleText; // both as they stand in the fields
    QString bodyText;
};

// Entries of lstNotes, in its alphabetical order; the item data is the note's index.
std::vector<ListEntry> noteEntries(const ProgramState& state, const NoteChoice& choice);

// The zone shown does not matter to notes.
std::vector<Marker> noteMarkers(const ProgramState& state, ListedItems listed, const MapShown& shown);
// id = the note's index.
std::vector<HitArea> noteHitAreas(const ProgramState& state, ListedItems listed, const MapShown& shown);

enum class NoteProblem {
    None,
    EmptyTitle,
    CommentTitle // would be read back as a comment
};
// `title` as it stands in the field.
NoteProblem checkNote(const QString& title);

struct NoteEdit {
    int index = -1; // of the note to change; below 1: a new one
    QString title;  // as it stands in the field; checkNote has nothing against it
    QString body;   // as it stands in the field, with any kind of line breaks
    int campaign = 0;
    int region = 0;
    int x = 0; // map pixels; a note that exists keeps its place
    int y = 0;
};
// Stores the note and rewrites the file; a new note's slot is put into `edit.index`. When the file could not
// be saved, table and `edit` are as they were.
SaveResult storeNote(ProgramState& state, PlayerFiles& files, NoteEdit& edit, bool evenIfChanged = false);
// The same for deleting the note `index`, which exists.
SaveResult deleteNote(ProgramState& state, PlayerFiles& files, int index, bool evenIfChanged = false);

} // namespace orvinel
