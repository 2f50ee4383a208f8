#pragma once

#include "ui/platform/Label.h"
#include "ui/platform/PictureBox.h"

#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace orvinel {

class MapViewport;

// Of the texts in information windows.
inline constexpr Colour blackTitle = 0; // on a coloured band
inline constexpr Colour paleCaption = 0xBED2DC;
inline constexpr Colour whiteText = 0xFFFFFF;

// A layer's information window: a box over the map with the details of the item under the mouse. Hidden until
// shown. One that is higher than the map's view is scrolled by the wheel over it or over its marker, and by
// the keys that else scroll the map up and down.
class InformationWindow : public PictureBox {
    Q_OBJECT
  public:
    // `name` is the box's fixed name; `width` pixels. Owned by the viewport.
    InformationWindow(const QString& name, int width, MapViewport& map);

    // The identifier of the item shown; empty: none.
    const QString& tag() const { return tag_; }
    void setTag(const QString& tag) { tag_ = tag; }
    // Hides the box and empties its tag.
    void dismiss();

    // Where the item's marker lies, in the viewport's own pixels; set before show.
    void frameWithBand(Colour band, int bandHeight, const QRect& marker);
    void frameWithoutBand(const QRect& marker);
    // A line across the finished frame at this height, pixels.
    void separator(int y);

  protected:
    // Kept from the map below.
    void mouseMoveEvent(QMouseEvent*) override {}
    void wheelEvent(QWheelEvent* event) override;
    // Of the map.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Band {
        Colour colour;
        int height;
    };

    void frame(const QRect& marker);
    void draw();
    // Positive shows what lies further up, pixels. False where all of the window is in view.
    bool scroll(int by);
    bool scrolledByKey(int key);
    void drawSeparator(Drawing& drawing, int y);
    // What the map shows under the box.
    QImage translucentMap();
    // The map is described by what the window tells.
    void tellScreenReaders();

    MapViewport& map_;
    QString tag_;
    QRect marker_;
    std::optional<Band> band_;
    std::vector<int> separators_;
};

// A child label of an information window: plain, in the given font, placed by the window.
Label* informationLabel(const QString& name, const QFont& font, Colour colour, InformationWindow& window);

// A child picture at a place of the window's own, pixels; the window shows through where it is transparent.
Label* informationPicture(const QString& name, const QRect& place, InformationWindow& window);
// Shrinks a picture that is larger than its place. A null picture: nothing is seen.
void setPicture(Label& place, const QImage& picture);

} // namespace orvinel
