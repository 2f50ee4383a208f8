#include "app/Opening.h"
#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "base/UpdateMark.h"
#include "ui/platform/QtDesktop.h"
#include "ui/platform/Windows.h"
#include "updater/SetupPlan.h"
#include "updater/window/Downloads.h"
#include "updater/window/UpdateWindow.h"

#include <QApplication>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace orvinel {
namespace {

// What it does depends on where it lies: in the program's folder it updates, in Setup.tmp/new it plans for
// the setup, in Update.tmp/repair an update that was cut off is taken back, nothing else.
const QString repairFolder = u"/Update.tmp/repair"_s;

struct Updater {
    World state;
    FileDisk disk;
    QtDesktop desktop;

    explicit Updater(const QString& folder) : disk(folder), desktop(folder) { state.AppPath = folder; }

    void loadLanguage() {
        if (LoadLanguage(state, disk))
            desktop.setLanguage(state.text(Caption::LanguageCode));
    }

    // False, with a word to the player, when it could not be done.
    bool takeBack() {
        const DiskError error = putBack(disk, state.AppPath);
        loadLanguage(); // not before: it may be among what was replaced
        if (error)
            desktop.message(MessageIcon::Critical, programName(),
                            state.text(Caption::UpdateNotTakenBack).arg(*error));
        return !error;
    }

    int repair() {
        auto instance = std::make_unique<SingleInstance>(state.AppPath);
        if (!instance->first()) // an updater at work
            return 0;
        if (isHalfUpdated(disk, state.AppPath)) {
            if (!takeBack())
                return 1;
            desktop.message(MessageIcon::None, state.text(Caption::UpdateTitle),
                            state.text(Caption::UpdateCutOff));
        }
        removeLeftovers(disk, state.AppPath);
        instance.reset();
        return startOrvinel(state.AppPath) ? 0 : 1;
    }

    // Where a package manager keeps the program there is nothing to be replaced.
    int leaveToSystem() {
        loadLanguage();
        if (desktop.ask(MessageIcon::Question, state.text(Caption::UpdateTitle),
                        state.text(Caption::UpdateBySystem)))
            openAndTell(state, desktop, addressOf(Page::Guide, state, disk));
        return 0;
    }

    int update() {
        bool cutOff = isHalfUpdated(disk, state.AppPath);
        if (cutOff) {
            const SingleInstance instance(state.AppPath);
            if (!instance.first())
                return 0;
            cutOff = isHalfUpdated(disk, state.AppPath); // another one may have been done meanwhile
            if (!takeBack())
                return 1;
        }
        loadLanguage();
        UpdateWindow window(state, disk, desktop);
        if (cutOff)
            window.tell(state.text(Caption::UpdateCutOff));
        window.offer(newestPackage(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)));
        window.show();
        return QApplication::exec();
    }
};

} // namespace
} // namespace orvinel

int main(int, char** argv) {
    int argc = 1; // no options, neither Qt's
    orvinel::chooseWindowSystem();
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);
    QString folder = QCoreApplication::applicationDirPath();
    const auto isBelow = [&folder](const QString& part) {
        const bool below = folder.endsWith(part, Qt::CaseInsensitive);
        folder.chop(below ? part.size() : 0);
        return below;
    };
    const bool repairing = isBelow(orvinel::repairFolder);
    const bool planning = isBelow(u'/' + orvinel::setupNewFolder);
    orvinel::Updater updater(folder + u'/');
    if (planning)
        return orvinel::planSetup(updater.disk, updater.state.AppPath) ? 1 : 0;
    if (repairing)
        return updater.repair();
    return updater.disk.folderExists(folder + u"/.shipped"_s) ? updater.leaveToSystem() : updater.update();
}
