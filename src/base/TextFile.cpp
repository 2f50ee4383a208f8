#include "base/TextFile.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// A field takes far more memory than its TAB: no line of the program needs a tenth of these.
constexpr size_t mostFields = 255;

// Where a TAB, a line end or the text's end is. Fields are short, and no other character of a text is as
// small; the 0 behind the text stops the search too.
const QChar* endOfField(const QChar* at, const QChar* end) {
    for (;; ++at) {
        while (*at > u'\r')
            ++at;
        if (at == end || *at == u'\t' || *at == u'\n' || *at == u'\r')
            return at;
    }
}

} // namespace

TextFile::TextFile(const Disk& disk, QString path, Complaints* complaints, FileTexts* kept)
    : path_(std::move(path)), complaints_(complaints), source_(disk.read(path_)),
      wholeText_(isWholeText(source_.bytes)), kept_(kept != nullptr) {
    if (source_.outcome == ReadResult::Outcome::Failed && complaints_)
        complaints_->add({path_, 0, {}, source_.reason});
    if (!wholeText_ && complaints_)
        complaints_->add({path_, 0, u"text"_s, u"marked as UTF-8, but not all of its bytes are"_s});
    text_ = decodeText(source_.bytes);
    if (kept)
        kept->push_back(text_);
}

bool TextFile::nextLine() {
    while (cutLine()) {
        if (line_.size() <= longestLine)
            return true;
        skip({}, u"longer than %1 characters"_s.arg(longestLine));
    }
    return false;
}

// Line ends and TABs are looked for in one go.
bool TextFile::cutLine() {
    if (next_ >= text_.size())
        return false;
    fields_.clear();
    const QChar* const begin = text_.constData() + next_;
    const QChar* const end = text_.constData() + text_.size();
    const QChar* at = begin;
    for (const QChar* field = begin;; field = ++at) {
        at = endOfField(field, end);
        if (fields_.size() < mostFields)
            fields_.push_back(QStringView(field, at));
        if (at == end || *at != u'\t')
            break;
    }
    line_ = QStringView(begin, at);
    next_ += at - begin + 1;
    if (end - at > 1 && at[0] == u'\r' && at[1] == u'\n')
        ++next_;
    ++number_;
    return true;
}

bool TextFile::nextRecord() {
    while (nextLine())
        if (!isComment())
            return true;
    return false;
}

bool TextFile::hasFields(size_t fewest) {
    if (fields_.size() >= fewest)
        return true;
    if (!line_.trimmed().isEmpty())
        skip({}, u"%1 fields instead of %2"_s.arg(fields_.size()).arg(fewest));
    return false;
}

QString TextFile::rest(size_t position) const {
    if (position >= fields_.size())
        return {};
    return text(QStringView(fields_[position].begin() - 1, fields_.back().end()));
}

std::optional<int> TextFile::integer(size_t position, const char* name, int lowest, int highest) {
    const std::optional<int> value = leadingInteger(field(position), lowest, highest);
    return value ? value : refuseNumber(position, name);
}

std::optional<int> TextFile::whole(size_t position, const char* name, int lowest, int highest) {
    const std::optional<int> value = wholeNumber(field(position), lowest, highest);
    return value ? value : refuseNumber(position, name);
}

std::optional<int> TextFile::refuseNumber(size_t position, const char* name) {
    if (number_ != lastSkipped_)
        skip(QString::fromLatin1(name), u"\"%1\" is not a number in its range"_s.arg(field(position)));
    return std::nullopt;
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
