#include "app/modLanguage.h"

#include "base/About.h"
#include "base/TextFile.h"
#include "world/World.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

bool LoadLanguage(World& state, const Disk& disk, Complaints* complaints) {
    state.LanguageTable.reset();
    TextFile file(disk, state.AppPath + u"Data/Language.txt"_s, complaints);
    if (!file.exists())
        return false;
    while (file.nextLine()) {
        if (!file.hasFields(2))
            continue;
        if (const auto index = file.integer(0, "number", 0, largestIdentifier))
            state.LanguageTable.grow(*index) = withLineBreaks(file.text(1));
    }
    return true;
}

QString missingLanguageMessage() {
    const QString where = mailAddress().isEmpty() ? QString() : u" at "_s + mailAddress();
    return u"Can't load language file. It should be in your 'Data' folder.\n"
           "Please download Orvinel again; if the problem persists, contact its author%1."_s.arg(where);
}

} // namespace orvinel
