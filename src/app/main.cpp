#include "app/modLanguage.h"
#include "app/modOrvinel.h"
#include "base/FileDisk.h"
#include "base/SingleInstance.h"
#include "base/UpdateMark.h"
#include "ui/platform/EndSignals.h"
#include "ui/platform/Fonts.h"
#include "ui/platform/QtDesktop.h"
#include "ui/platform/Windows.h"

#include <QApplication>
#include <QSessionManager>

#include <cstdio>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

// Before anything is read: after an update that was cut off, what lies there is of two versions. False when
// nobody can take it back; the player has been told then and gets what there is.
bool startRepair(const QString& folder, const orvinel::FileDisk& disk, orvinel::QtDesktop& desktop) {
    for (const QString& updater : {orvinel::repairingUpdater(folder), folder + u"update.exe"_s})
        if (desktop.openWithShell(disk.resolve(updater)))
            return true;
    desktop.message(orvinel::MessageIcon::Critical, orvinel::programName(),
                    orvinel::builtInText(orvinel::Caption::UpdaterMissing));
    return false;
}

// A system that runs a program lets nobody remove it: what took an update back goes at a later start.
void removeRepairer(const QString& folder, orvinel::FileDisk& disk) {
    const QString updater = orvinel::repairingUpdater(folder);
    if (disk.length(updater) < 1 || disk.remove(updater))
        return;
    for (const QString& emptied : {folder + u"Update.tmp/repair"_s, folder + u"Update.tmp"_s})
        if (!disk.list(emptied).empty() || disk.removeFolder(emptied))
            return;
}

} // namespace

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
    std::optional<orvinel::SingleInstance> instance(std::in_place, folder);
    if (!instance->first())
        return 0;
    orvinel::FileDisk disk(folder);
    orvinel::QtDesktop desktop(folder);
    if (disk.length(orvinel::updateMark(folder)) > 0) {
        instance.reset();
        if (startRepair(folder, disk, desktop))
            return 0;
        instance.emplace(folder);
    } else {
        removeRepairer(folder, disk);
    }
    orvinel::Program program(folder, disk, desktop, [](int code) { QCoreApplication::exit(code); });
    if (!program.Main())
        return 1;
    const orvinel::EndSignals ending;
    QObject::connect(&ending, &orvinel::EndSignals::endWanted, &program, &orvinel::Program::endUnasked);
    // A desktop that logs out asks first, and may go on after all.
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &program,
        [&program](QSessionManager&) { program.saveUnasked(); }, Qt::DirectConnection);
    return QApplication::exec();
}
