#pragma once

#include "base/Complaints.h"
#include "base/Listing.h"
#include "base/PlayerFiles.h"
#include "layers/Note.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <string>
#include <vector>

namespace orvinel {

struct Content;

// The length to which the dialog limits a title; one from the file may be longer.
inline constexpr int longestNoteTitle = 30;

void LoadNotes(Content& state, PlayerFiles& files, Complaints* complaints = nullptr);

QString notesPath(const Content& state);
// The text of Notes.txt for the table as it stands: notes that are not deleted, in table order.
QString notesFile(const Content& state);
SaveResult SaveNotes(const Content& state, PlayerFiles& files, bool evenIfChanged = false);

struct NoteChoice {
    Place place;       // the zone does not matter
    QString titleText; // both as they stand in the fields
    QString bodyText;
};

// Entries of lstNotes, in its alphabetical order; the item data is the note's index.
std::vector<ListEntry> noteEntries(const Content& state, const NoteChoice& choice);

// The zone shown does not matter to notes.
std::vector<Marker> noteMarkers(const Content& state, ListedItems listed, const MapShown& shown);
// id = the note's index.
std::vector<HitArea> noteHitAreas(const Content& state, ListedItems listed, const MapShown& shown);

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
SaveResult storeNote(Content& state, PlayerFiles& files, NoteEdit& edit, bool evenIfChanged = false);
// The same for deleting the note `index`, which exists.
SaveResult deleteNote(Content& state, PlayerFiles& files, int index, bool evenIfChanged = false);

} // namespace orvinel
