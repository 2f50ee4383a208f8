#include "PathText.h"

#include <QList>
#include <QPainterPathStroker>
#include <QString>
#include <QTransform>

namespace worldgen {

namespace {

class PathReader {
  public:
    explicit PathReader(QLatin1String text)
        : words_(spaced(text).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {}
    QPainterPath read();

  private:
    // "M-4 6" as "M -4 6".
    static QString spaced(QLatin1String text);
    double number() { return at_ < words_.size() ? words_[at_++].toDouble() : 0; }
    QPointF point() {
        const double x = number();
        return {x, number()};
    }
    void command(QChar letter);
    void finishPiece();
    static QPainterPath stroked(const QPainterPath& line, double width);

    QStringList words_;
    qsizetype at_ = 0;
    QPainterPath whole_;
    QPainterPath piece_;
    bool cutting_ = false;
};

QString PathReader::spaced(QLatin1String text) {
    QString result;
    for (const QChar c : QString(text)) {
        result += c;
        if (c.isLetter())
            result += QLatin1Char(' ');
    }
    return result;
}

QPainterPath PathReader::stroked(const QPainterPath& line, double width) {
    QPainterPathStroker pen;
    pen.setWidth(width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen.createStroke(line).simplified();
}

void PathReader::finishPiece() {
    whole_ = cutting_ ? whole_.subtracted(piece_) : whole_.isEmpty() ? piece_ : whole_.united(piece_);
    piece_ = {};
}

void PathReader::command(QChar letter) {
    switch (letter.unicode()) {
    case 'M':
        return piece_.moveTo(point());
    case 'L':
        return piece_.lineTo(point());
    case 'Q': {
        const QPointF control = point();
        return piece_.quadTo(control, point());
    }
    case 'C': {
        const QPointF first = point();
        const QPointF second = point();
        return piece_.cubicTo(first, second, point());
    }
    case 'E': {
        const QPointF middle = point();
        const double rx = number();
        return piece_.addEllipse(middle, rx, number());
    }
    case 'R': {
        const int copies = int(number());
        const QPainterPath one = piece_;
        for (int k = 1; k < copies; ++k)
            piece_ = piece_.united(QTransform().rotate(360.0 * k / copies).map(one));
        return;
    }
    case 'F':
        piece_ = piece_.united(QTransform::fromScale(-1, 1).map(piece_));
        return;
    case 'W':
        piece_ = stroked(piece_, number());
        return;
    case 'Z':
        return piece_.closeSubpath();
    default:
        finishPiece();
        cutting_ = letter == QLatin1Char('X');
    }
}

QPainterPath PathReader::read() {
    while (at_ < words_.size()) {
        const QString word = words_[at_++];
        if (!word[0].isLetter())
            break;
        command(word[0]);
    }
    finishPiece();
    return whole_;
}

} // namespace

QPainterPath pathFromText(QLatin1String text) {
    return PathReader(text).read();
}

} // namespace worldgen
