#include "app/modOrvinel.h"
#include "base/FileDisk.h"
#include "base/SingleInstance.h"
#include "ui/platform/EndSignals.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/QtDesktop.h"
#include "ui/platform/Windows.h"

#include <QApplication>
#include <QSessionManager>

#include <cstdio>

int main(int, char** argv) {
    // The program takes no options; Qt would take its own from them.
    int argc = 1;
    orvinel::chooseWindowSystem();
    QApplication::setQuitOnLastWindowClosed(false);
    const std::future<void> faces = orvinel::readFacesAhead();
    QApplication application(argc, argv);
    if (!orvinel::displayFound()) {
        std::fputs("orvinel: no display. It needs X11; on a Wayland desktop install Xwayland (the package "
                   "xwayland).\n",
                   stderr);
        return 1;
    }
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
    const orvinel::EndSignals ending;
    QObject::connect(&ending, &orvinel::EndSignals::endWanted, &program, &orvinel::Program::EndUnasked);
    // A desktop that logs out asks first, and may go on after all.
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &program,
        [&program](QSessionManager&) { program.SaveUnasked(); }, Qt::DirectConnection);
    return QApplication::exec();
}
