#include "layers/modNotes.h"

#include "base/TextFile.h"
#include "base/TextSearch.h"
#include "layers/Content.h"
#include "layers/ListedMarks.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String writtenLineBreak("{#ENTER#}");
constexpr QLatin1String lineBreak("\r\n");
constexpr size_t fieldsOfNote = 6;

std::optional<Note> readNote(TextFile& file) {
    const auto x = file.integer(2, "x", -largestCoordinate, largestCoordinate);
    const auto y = file.integer(3, "y", -largestCoordinate, largestCoordinate);
    const auto campaign = file.integer(4, "campaign", 0, 255);
    const auto region = file.integer(5, "region", 0, 255);
    if (!x || !y || !campaign || !region)
        return std::nullopt;
    Note note;
    QString body = file.text(1);
    if (body.contains(QLatin1Char(writtenLineBreak.front())))
        body.replace(writtenLineBreak, lineBreak);
    note.setTexts(file.text(file.field(0).trimmed()), body);
    note.At.Campaign = *campaign;
    note.At.Region = *region;
    note.At.placeAt(*x, *y, treasureReach);
    return note;
}

void readLine(Content& state, TextFile& file) {
    const QStringView line = file.line().trimmed();
    if (line.isEmpty() || line.startsWith(u';') || !file.hasFields(fieldsOfNote))
        return;
    if (file.fieldCount() > fieldsOfNote)
        file.skip({}, u"%1 fields instead of %2"_s.arg(file.fieldCount()).arg(fieldsOfNote));
    else if (file.field(0).trimmed().isEmpty())
        file.skip(u"title"_s, u"a note without a title"_s); // its body shall not vanish with the next save
    else if (state.Notes.count() == largestIdentifier)
        file.skip({}, u"more than %1 notes"_s.arg(largestIdentifier));
    else if (auto note = readNote(file)) {
        file.keepsOnly(fieldsOfNote, {2, 3, 4, 5});
        state.Notes.append(std::move(*note));
    }
}

void sortNotes(Content& state) {
    std::vector<QString> titles;
    for (const Note& note : state.Notes)
        titles.push_back(note.ShortDesc);
    state.NoteOrder = alphabeticalOrderFrom1(titles);
}

QString lineOf(const Note& note) {
    QString body = note.Body;
    QString line = note.ShortDesc + u'\t' + body.replace(lineBreak, writtenLineBreak);
    for (const int number : {note.At.X, note.At.Y, note.At.Campaign, note.At.Region})
        line += u'\t' + QString::number(number);
    return line;
}

QString textOf(const List1<Note>& notes) {
    QString text;
    for (const Note& note : notes)
        if (!note.ShortDesc.isEmpty())
            text += lineOf(note) + lineBreak;
    return text;
}

// The file first: the table changes only when that has worked.
SaveResult replaceNotes(Content& state, PlayerFiles& files, List1<Note> notes, bool evenIfChanged) {
    const SaveResult result = files.save(notesPath(state), textOf(notes), evenIfChanged);
    if (result.saved()) {
        state.Notes = std::move(notes);
        sortNotes(state);
    }
    return result;
}

bool breaksLine(QChar c) {
    return c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(0x85) ||
           c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

// As a line of the file can hold it: one kind of line break, no TAB; blanks at both ends trimmed.
QString storedBody(QString body) {
    body.replace(lineBreak, "\n"_L1);
    QString stored;
    for (const QChar c : body) {
        if (breaksLine(c))
            stored += lineBreak;
        else
            stored += c == u'\t' ? QChar(u' ') : c;
    }
    while (stored.startsWith(u' '))
        stored.remove(0, 1);
    while (stored.endsWith(u' '))
        stored.chop(1);
    return stored;
}

constexpr auto eachPlace = [](const Note& note, const auto& visit) { visit(0, note.At); };

} // namespace

void LoadNotes(Content& state, PlayerFiles& files, Complaints* complaints) {
    state.Notes.clear();
    TextFile file(files.source(), notesPath(state), complaints);
    while (file.nextLine())
        readLine(state, file);
    files.loaded(notesPath(state), file);
    sortNotes(state);
}

QString notesPath(const Content& state) {
    return state.AppPath + u"Personal/Notes.txt"_s;
}

QString notesFile(const Content& state) {
    return textOf(state.Notes);
}

SaveResult SaveNotes(const Content& state, PlayerFiles& files, bool evenIfChanged) {
    return files.save(notesPath(state), notesFile(state), evenIfChanged);
}

std::vector<ListEntry> noteEntries(const Content& state, const NoteChoice& choice) {
    const std::string title = folded(QStringView(choice.titleText).trimmed());
    const std::string body = folded(QStringView(choice.bodyText).trimmed());
    std::vector<ListEntry> entries;
    for (const int index : state.NoteOrder) {
        const Note& note = state.Notes[index];
        if (!note.ShortDesc.isEmpty() && passesPlace(choice.place, 0, note.At.Campaign, note.At.Region, 0) &&
            occursIn(note.FoldedShortDesc, title) && occursIn(note.FoldedBody, body))
            entries.push_back({note.ShortDesc, index});
    }
    return entries;
}

std::vector<Marker> noteMarkers(const Content& state, ListedItems listed, const MapShown& shown) {
    return markersOf(state.Notes, listed, shown, eachPlace,
                     [](const Note&, const MapLocation&) { return std::optional(Sprite::Note); });
}

std::vector<HitArea> noteHitAreas(const Content& state, ListedItems listed, const MapShown& shown) {
    return hitAreasOf(state.Notes, listed, shown, eachPlace);
}

NoteProblem checkNote(const QString& title) {
    const QString stored = oneLine(title).trimmed();
    if (stored.isEmpty())
        return NoteProblem::EmptyTitle;
    return stored.startsWith(u';') ? NoteProblem::CommentTitle : NoteProblem::None;
}

SaveResult storeNote(Content& state, PlayerFiles& files, NoteEdit& edit, bool evenIfChanged) {
    List1<Note> notes = state.Notes;
    int index = edit.index;
    if (!notes.has(index)) {
        index = notes.append({});
        notes[index].At.placeAt(edit.x, edit.y, treasureReach);
    }
    Note& note = notes[index];
    note.setTexts(oneLine(edit.title).trimmed(), storedBody(edit.body));
    note.At.Campaign = edit.campaign;
    note.At.Region = edit.region;
    if (lineOf(note).size() > longestLine)
        return {SaveResult::Outcome::Failed, notesPath(state).section(u'/', -1), u"the note is too long"_s};
    SaveResult result = replaceNotes(state, files, std::move(notes), evenIfChanged);
    if (result.saved())
        edit.index = index;
    return result;
}

SaveResult deleteNote(Content& state, PlayerFiles& files, int index, bool evenIfChanged) {
    List1<Note> notes = state.Notes;
    notes[index].setTexts({}, notes[index].Body);
    return replaceNotes(state, files, std::move(notes), evenIfChanged);
}

} // namespace orvinel
