#include "tools/Csv.h"

#include "base/TextRules.h"

#include <QStringDecoder>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

class Reader {
  public:
    explicit Reader(const QString& text) : text_(text) {
        const QStringView first = QStringView(text).left(text.indexOf(u'\n'));
        separator_ = !first.contains(u',') && first.contains(u';') ? u';' : u',';
    }

    std::vector<CsvRecord> all() {
        for (; at_ < text_.size(); ++at_)
            take(text_[at_]);
        endRecord();
        return std::move(records_);
    }

  private:
    void take(QChar c) {
        if (c == u'\n')
            ++line_;
        if (quoted_) {
            if (c != u'"')
                field_ += c;
            else if (at_ + 1 < text_.size() && text_[at_ + 1] == u'"')
                field_ += text_[++at_];
            else
                quoted_ = false;
        } else if (c == u'"' && field_.trimmed().isEmpty()) {
            quoted_ = true;
            field_.clear();
        } else if (c == separator_) {
            record_.fields << field_.trimmed();
            field_.clear();
        } else if (c == u'\n') {
            endRecord();
            record_.line = line_;
        } else if (c != u'\r') {
            field_ += c;
        }
    }

    void endRecord() {
        record_.fields << field_.trimmed();
        field_.clear();
        if (record_.fields.size() > 1 || !record_.fields[0].isEmpty())
            records_.push_back(record_);
        record_.fields.clear();
    }

    const QString& text_;
    QChar separator_;
    qsizetype at_ = 0;
    int line_ = 1;
    bool quoted_ = false;
    QString field_;
    CsvRecord record_{1, {}};
    std::vector<CsvRecord> records_;
};

} // namespace

std::vector<CsvRecord> readCsv(const QString& text) {
    return Reader(text).all();
}

QString tableText(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    return utf8.hasError() ? decodeText(bytes) : text;
}

QString csvLine(const QStringList& fields) {
    QStringList quoted;
    for (const QString& field : fields)
        quoted << u'"' + QString(field).replace(u'"', u"\"\""_s) + u'"';
    return quoted.join(u',') + u"\r\n"_s;
}

} // namespace orvinel
