#include "app/Opening.h"

#include "app/modLanguage.h"
#include "base/About.h"
#include "world/World.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

void openAndTell(const World& state, Desktop& desktop, const QString& target) {
    if (!desktop.openWithShell(target))
        desktop.message(MessageIcon::Critical, programName(), state.text(Caption::NotOpened).arg(target));
}

QString addressOf(Page page, const World& state, const Disk& disk) {
    const QString guide = state.AppPath + u"Data/Guide/guide.html"_s;
    const QString start = state.AppPath + u"Data/Guide/start.html"_s;
    const QString& wanted = page == Page::Guide ? guide : start;
    for (const QString& path : {wanted, guide, start})
        if (disk.length(path) > 0)
            return disk.resolve(path);
    return homePage().isEmpty() ? wanted : homePage();
}

} // namespace orvinel
