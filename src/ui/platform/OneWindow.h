#pragma once

#include <QWidget>

namespace orvinel {

// Panel and map as parts of one plain window with the system's title bar, for desktops where a program cannot
// place its windows: the panel at the left, as wide as ever, the map in all the rest.
class OneWindow : public QWidget {
    Q_OBJECT
  public:
    // Takes the parts in; gives them back as the windows that they were when it ends. They outlive it.
    OneWindow(QWidget& panel, QWidget& map);
    ~OneWindow() override;

    // Where the panel is on the desktop.
    QRect panelPlace() const;
    // Appears with the keyboard where it was. `size`: of panel and map together, pixels; empty: fills the
    // screen.
    void appear(QSize size);
    // Where the desktop minimises nothing the window stays.
    void minimise();
    void toggleMaximised();

  signals:
    // The system's way to close it was used.
    void quitWanted();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget& panel_;
    QWidget& map_;
    Qt::WindowFlags panelFlags_;
    Qt::WindowFlags mapFlags_;
};

// The panel's place on the desktop, `root` being the window at the root of all owners.
QRect panelPlaceIn(const QWidget& root);

} // namespace orvinel
