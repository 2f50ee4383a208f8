#include "app/Opening.h"

#include "app/modLanguage.h"
#include "base/About.h"
#include "world/World.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// As in "de"; "en" when the language file names none.
QString languageCode(const World& state) {
    const QString code = state.text(Caption::LanguageCode);
    const bool usable = !code.isEmpty() && std::all_of(code.begin(), code.end(),
                                                       [](QChar c) { return c.isLetter() || c == u'-'; });
    return usable ? code : u"en"_s;
}

} // namespace

void openAndTell(const World& state, Desktop& desktop, const QString& target) {
    if (!desktop.openWithShell(target))
        desktop.message(MessageIcon::Critical, programName(), state.text(Caption::NotOpened).arg(target));
}

QString addressOf(Page page, const World& state, const Disk& disk) {
    const QString folder = state.AppPath + u"Data/Guide/"_s;
    const QString translated = folder + languageCode(state) + u'/';
    const QString guide = u"guide.html"_s;
    const QString start = u"start.html"_s;
    const QString& wanted = page == Page::Guide ? guide : start;
    for (const QString& path : {translated + wanted, folder + wanted, folder + guide, folder + start})
        if (disk.length(path) > 0)
            return disk.resolve(path);
    return homePage().isEmpty() ? folder + wanted : homePage();
}

} // namespace orvinel
