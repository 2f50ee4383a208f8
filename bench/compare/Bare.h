#pragma once

#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <QWidget>

namespace orvinel::bench {

// What any Qt program pays: two windows, one with a field and a list, one that shows a picture at natural
// size. A key replaces the list's texts, without any search, and repaints the picture; a drag moves it.
class BareMap : public QWidget {
  public:
    explicit BareMap(QImage picture) : picture_(std::move(picture)) { setAttribute(Qt::WA_OpaquePaintEvent); }
    QPoint offset;
    bool marked = false; // each key changes it, so that the screen shows when the picture has arrived

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    static constexpr QRect changed{8, 8, 16, 16};

    QImage picture_;
    QPoint grip_;
};

class Bare {
  public:
    // `texts`: of the list; a key shows all of them or every second one.
    Bare(QImage picture, QStringList texts);
    // The places of the two windows, pixels on the screen.
    void show(const QRect& panel, const QRect& map);

    QLineEdit& field() { return *field_; }
    QWidget& map() { return map_; }

  private:
    QWidget panel_;
    BareMap map_;
    QLineEdit* field_;
    QListView* list_;
    QStringListModel model_;
    QStringList all_;
    QStringList half_;
};

} // namespace orvinel::bench
