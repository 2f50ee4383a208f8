#include "app/modOrvinel.h"
#include "base/FileDisk.h"
#include "base/SingleInstance.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/QtDesktop.h"
#include "ui/platform/Windows.h"

#include <QApplication>

int main(int, char** argv) {
    // The program takes no options; Qt would take its own from them.
    int argc = 1;
    orvinel::chooseWindowSystem();
    QApplication::setQuitOnLastWindowClosed(false);
    const std::future<void> faces = orvinel::readFacesAhead();
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);

    const QString folder = QCoreApplication::applicationDirPath() + u'/';
    const orvinel::SingleInstance instance(folder);
    if (!instance.first())
        return 0;
    orvinel::FileDisk disk(folder);
    orvinel::QtDesktop desktop(folder);
    orvinel::Program program(folder, disk, desktop, [](int code) { QCoreApplication::exit(code); });
    if (!program.Main())
        return 1;
    return QApplication::exec();
}
