#pragma once

#include <QString>

#include <vector>

namespace orvinel {

// A few short lines in one text: kept apart, each would take twenty times its letters.
class TextLines {
  public:
    TextLines() = default;
    // No line holds a TAB.
    TextLines(const std::vector<QString>& lines) {
        for (const QString& line : lines)
            text_ += u'\t' + line;
        text_.squeeze();
    }
    // Each line of `text` has a TAB before it.
    explicit TextLines(QString text) : text_(std::move(text)) {}

    operator std::vector<QString>() const {
        std::vector<QString> lines;
        forEach([&](QStringView line) { lines.push_back(line.toString()); });
        return lines;
    }
    // The lines are parts of this object.
    template <typename Visit>
    void forEach(Visit visit) const {
        for (qsizetype from = 1; from <= text_.size();) {
            const qsizetype tab = text_.indexOf(u'\t', from);
            const qsizetype end = tab < 0 ? text_.size() : tab;
            visit(QStringView(text_).sliced(from, end - from));
            from = end + 1;
        }
    }
    bool empty() const { return text_.isEmpty(); }
    size_t size() const { return static_cast<size_t>(text_.count(u'\t')); }

    bool operator==(const TextLines&) const = default;

  private:
    QString text_; // each line after a TAB
};

} // namespace orvinel
