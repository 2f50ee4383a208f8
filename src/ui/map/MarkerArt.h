#pragma once

#include "world/Marker.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QRect>

#include <array>

namespace orvinel {

// The marker pictures, and the boxes of bosses ready to be copied.
class MarkerArt {
  public:
    // The picture with magenta made transparent, premultiplied. Valid for every Sprite but Count.
    const QImage& picture(Sprite sprite) const;

    // What the marker covers, map pixels.
    QRect bounds(const Marker& marker) const;
    // On a picture whose coordinates are map pixels; clipped at its edges.
    void draw(QPainter& painter, const Marker& marker) const;

  private:
    struct BoxKey {
        int width;
        int height;
        Colour fill;
        QString code;
        bool operator==(const BoxKey&) const = default;
    };
    friend size_t qHash(const BoxKey& key, size_t seed) {
        return qHashMulti(seed, key.width, key.height, key.fill, key.code);
    }
    const QImage& box(const Marker& marker) const;
    QSize boxSize(const Marker& marker) const;
    const QSize& codeSize(const QString& code) const;

    // Filled when first needed.
    mutable std::array<QImage, static_cast<size_t>(Sprite::Count)> pictures_;
    mutable QHash<BoxKey, QImage> boxes_;
    mutable std::array<QSize, 128> letterSizes_; // of codes of one ASCII character
    mutable QHash<QString, QSize> codeSizes_;    // of the others
};

} // namespace orvinel
