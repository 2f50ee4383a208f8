#pragma once

#include <QString>

#include <span>
#include <vector>

namespace orvinel {

// A few short lines in one text: kept apart, each would take twenty times its letters.
class TextLines {
  public:
    TextLines() = default;
    // No line holds a line feed.
    TextLines(const std::vector<QString>& lines) {
        for (const QString& line : lines)
            text_ += line + u'\n';
        text_.squeeze();
    }
    TextLines(std::span<const QStringView> lines) {
        qsizetype length = 0;
        for (const QStringView line : lines)
            length += line.size() + 1;
        text_.reserve(length);
        for (const QStringView line : lines)
            text_.append(line).append(u'\n');
    }
    operator std::vector<QString>() const {
        std::vector<QString> lines;
        for (qsizetype from = 0; from < text_.size();) {
            const qsizetype end = text_.indexOf(u'\n', from);
            lines.push_back(text_.sliced(from, end - from));
            from = end + 1;
        }
        return lines;
    }
    bool empty() const { return text_.isEmpty(); }
    size_t size() const { return static_cast<size_t>(text_.count(u'\n')); }

    bool operator==(const TextLines&) const = default;

  private:
    QString text_; // each line ended by a line feed
};

} // namespace orvinel
