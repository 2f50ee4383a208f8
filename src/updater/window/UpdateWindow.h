#pragma once

#include "base/Desktop.h"
#include "base/Disk.h"
#include "base/SingleInstance.h"
#include "updater/Replacement.h"
#include "world/World.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <optional>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace orvinel {

// Asks for a downloaded package and brings it to the program's folder: checks it, waits for the program to
// end, replaces, starts the new version. Closing it before the end takes everything back.
class UpdateWindow : public QDialog {
    Q_OBJECT
  public:
    // `state` holds the captions and the program's folder; all three outlive this object.
    UpdateWindow(const World& state, Disk& disk, Desktop& desktop);
    ~UpdateWindow() override;

    // Before it is shown: a package to begin with, and what is to be said first.
    void offer(const QString& package);
    void tell(const QString& text);

    void reject() override { close(); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void makeWidgets();
    void layOut();
    void browse();
    void begin();
    bool mayBegin(const QString& path);
    void checkMore();
    void judge(Package package);
    bool olderIsWanted(const Package& package);
    void waitForProgram();
    void replace();
    void replaceMore();
    void finish();
    void startProgram();
    void fail(const QString& text);
    void setBusy(const QString& text, void (UpdateWindow::*next)(), int pauseMs = 0);
    void setIdle();

    const World& state_;
    Disk& disk_;
    Desktop& desktop_;
    QString file_;
    std::unique_ptr<PackageReader> reader_;
    std::optional<Package> package_;
    std::unique_ptr<SingleInstance> instance_; // while files are replaced nobody starts the program
    std::unique_ptr<Replacement> replacement_;
    QStringList kept_;
    QTimer timer_;

    QLabel* lblText_ = nullptr;
    QLineEdit* txtPackage_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* cmdBrowse_ = nullptr;
    QPushButton* cmdUpdate_ = nullptr;
    QPushButton* cmdStart_ = nullptr;
    QPushButton* cmdQuit_ = nullptr;
};

// Starts the program of the folder.
bool startOrvinel(const QString& folder);

// What to say of a package that cannot be used.
QString textOfFault(const World& state, const Package& package, const QString& file);

} // namespace orvinel
