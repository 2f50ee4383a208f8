#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/TextRules.h"

#include <QString>

#include <initializer_list>
#include <limits>
#include <vector>

namespace orvinel {

// Characters of a line; longer ones are skipped. No text of a player comes near it, and the windows could not
// show it.
inline constexpr qsizetype longestLine = 100'000;

// Files as they were read, of which the texts of a table are parts: an object for each text would take twice
// its memory and most of the time of a start. To be kept as long as the table and every copy of one of its
// texts.
using FileTexts = std::vector<QString>;

// A data file read whole and walked line by line. Lines end with CR LF, LF or CR; the last one needs no end.
// A missing, empty, unreadable or oversized file has no lines.
class TextFile {
  public:
    // With `kept` its texts are parts of what is kept there, else objects of their own.
    TextFile(const Disk& disk, QString path, Complaints* complaints = nullptr, FileTexts* kept = nullptr);
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    const ReadResult& source() const { return source_; }
    bool exists() const { return !source_.bytes.isEmpty(); }
    // Lines of which skip() gave up all or some, comments aside.
    int skippedLines() const { return skipped_; }
    // Writing back what was taken in loses nothing.
    bool readCompletely() const {
        return source_.outcome != ReadResult::Outcome::Failed && wholeText_ && skipped_ == 0;
    }

    // Goes to the next line; False at the end.
    bool nextLine();
    // As nextLine, but passes over lines whose first character is ";".
    bool nextRecord();

    QStringView line() const { return line_; }
    int lineNumber() const { return number_; }
    bool isComment() const { return line_.startsWith(u';'); }

    // False, with a complaint, when the current line has fewer fields. Blank ones are passed over silently.
    bool hasFields(size_t fewest);
    // One more than there are TABs in the line; fields behind the 255th are left out.
    size_t fieldCount() const { return fields_.size(); }
    // An empty view beyond the last field.
    QStringView field(size_t position) const {
        return position < fields_.size() ? fields_[position] : QStringView();
    }
    QString text(size_t position) const { return text(field(position)); }
    // Of a part of the current line.
    QString text(QStringView part) const {
        return kept_ ? QString::fromRawData(part.data(), part.size()) : part.toString();
    }
    // The fields from a position on, 1 or higher, each with the TAB before it; empty beyond the last one.
    QString rest(size_t position) const;

    // The field's leading number, rounded; nothing, with a complaint that calls it `name`, when out of range.
    // Only the first fault of a line is told, so that all of its fields can be read before one looks.
    std::optional<int> integer(size_t position, const char* name, int lowest, int highest);
    // As integer, but the whole field must be a number.
    std::optional<int> whole(size_t position, const char* name, int lowest, int highest);

    // For files that are written again: of the current line only the first `fields` are, and those at
    // `numbers` as bare numbers. Complains of what is more, as skip does.
    void keepsOnly(size_t fields, std::initializer_list<size_t> numbers);
    // Gives the current line up, or some of it that a rewrite would not write again.
    void skip(const QString& field, const QString& reason);

  private:
    bool cutLine();
    std::optional<int> refuseNumber(size_t position, const char* name);

    QString path_;
    Complaints* complaints_;
    ReadResult source_;
    bool wholeText_;
    bool kept_;
    QString text_;
    qsizetype next_ = 0;
    QStringView line_;
    std::vector<QStringView> fields_;
    int number_ = 0;
    int skipped_ = 0;
    int lastSkipped_ = 0;
};

} // namespace orvinel
