#include "base/TextFile.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// A field takes far more memory than its TAB: no line of the program needs a tenth of these.
constexpr size_t mostFields = 255;

} // namespace

TextFile::TextFile(const Disk& disk, QString path, Complaints* complaints)
    : path_(std::move(path)), complaints_(complaints), source_(disk.read(path_)),
      wholeText_(isWholeText(source_.bytes)) {
    if (source_.outcome == ReadResult::Outcome::Failed && complaints_)
        complaints_->add({path_, 0, {}, source_.reason});
    if (!wholeText_ && complaints_)
        complaints_->add({path_, 0, u"text"_s, u"marked as UTF-8, but not all of its bytes are"_s});
    text_ = decodeText(source_.bytes);
}

// Where the line that begins at next_ ends. LF and CR are looked for one after the other, since a search for
// one character compares many places at once; where the next LF is stays known as long as it lies ahead.
qsizetype TextFile::lineEnd() {
    if (lineFeed_ < next_)
        lineFeed_ = text_.indexOf(u'\n', next_);
    if (lineFeed_ < 0)
        lineFeed_ = text_.size();
    const qsizetype carriageReturn = QStringView(text_).sliced(next_, lineFeed_ - next_).indexOf(u'\r');
    return carriageReturn < 0 ? lineFeed_ : next_ + carriageReturn;
}

bool TextFile::nextLine() {
    while (cutLine()) {
        if (line_.size() <= longestLine)
            return true;
        skip({}, u"longer than %1 characters"_s.arg(longestLine));
    }
    return false;
}

bool TextFile::cutLine() {
    if (next_ >= text_.size())
        return false;
    const qsizetype end = lineEnd();
    line_ = QStringView(text_).sliced(next_, end - next_);
    next_ = end + 1;
    if (end + 1 < text_.size() && text_[end] == u'\r' && text_[end + 1] == u'\n')
        ++next_;
    ++number_;
    fields_.clear();
    return true;
}

bool TextFile::nextRecord() {
    while (nextLine())
        if (!isComment())
            return true;
    return false;
}

bool TextFile::split(size_t fewest) {
    splitFields(line_, fields_, mostFields);
    if (fields_.size() >= fewest)
        return true;
    if (!line_.trimmed().isEmpty())
        skip({}, u"%1 fields instead of %2"_s.arg(fields_.size()).arg(fewest));
    return false;
}

std::optional<int> TextFile::integer(size_t position, const char* name, int lowest, int highest) {
    return accept(leadingInteger(field(position), lowest, highest), position, name);
}

std::optional<int> TextFile::whole(size_t position, const char* name, int lowest, int highest) {
    return accept(wholeNumber(field(position), lowest, highest), position, name);
}

std::optional<int> TextFile::accept(std::optional<int> value, size_t position, const char* name) {
    if (!value)
        skip(QString::fromLatin1(name), u"\"%1\" is not a number in its range"_s.arg(field(position)));
    return value;
}

void TextFile::keepsOnly(size_t fields, std::initializer_list<size_t> numbers) {
    if (fields_.size() > fields)
        skip({}, u"%1 fields instead of %2"_s.arg(fields_.size()).arg(fields));
    for (const size_t position : numbers)
        if (!isBareNumber(field(position)))
            skip({}, u"\"%1\" is more than a number"_s.arg(field(position)));
}

void TextFile::skip(const QString& field, const QString& reason) {
    if (number_ != lastSkipped_)
        ++skipped_;
    lastSkipped_ = number_;
    if (complaints_)
        complaints_->add({path_, number_, field, reason});
}

} // namespace orvinel
