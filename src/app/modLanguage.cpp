#include "app/modLanguage.h"

#include "base/TextFile.h"
#include "world/World.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

QString builtIn(OwnText number) {
    switch (number) {
    case OwnText::SaveFailed:
        return u"Could not save %1:\n%2"_s;
    case OwnText::TooManyCharacters:
        return u"No more than 99 characters can be kept."_s;
    case OwnText::TitleIsComment:
        return u"A title cannot begin with a semicolon (;)."_s;
    case OwnText::OldFileNotKept:
        return u"The old file could not be kept beside the new one, so nothing was saved."_s;
    case OwnText::SkillNumberTooLarge:
        return u"This skill's number is too large to be remembered."_s;
    case OwnText::ChangedOutside:
        return u"The file %1 was changed by another program since it was read. Replace it?"_s;
    case OwnText::QuitWithoutSaving:
        return u"Some changes could not be saved. Quit anyway?"_s;
    case OwnText::NotOpened:
        return u"%1 could not be opened."_s;
    case OwnText::Quit:
        return u"Quit"_s;
    case OwnText::Minimise:
        return u"Minimise"_s;
    case OwnText::Maximise:
        return u"Fill the screen or make smaller"_s;
    case OwnText::Upkeep:
        return u"Upkeep"_s;
    case OwnText::Adrenaline:
        return u"Adrenaline"_s;
    case OwnText::Energy:
        return u"Energy"_s;
    case OwnText::Recharge:
        return u"Recharge"_s;
    case OwnText::CastTime:
        return u"Casting time"_s;
    case OwnText::TooMuchData:
        return u"The data files are larger than the program can hold. Some of them were left out."_s;
    }
    return {};
}

} // namespace

bool LoadLanguage(World& state, const Disk& disk, Complaints* complaints) {
    state.LanguageTable.reset();
    TextFile file(disk, state.AppPath + u"Data/Language.txt"_s, complaints);
    if (!file.exists())
        return false;
    while (file.nextLine()) {
        if (!file.split(2))
            continue;
        if (const auto index = file.integer(0, "number", 0, largestIdentifier))
            state.LanguageTable.grow(*index) = withLineBreaks(file.field(1));
    }
    return true;
}

QString missingLanguageMessage() {
    return u"Can't load language file. It should be in your 'Data' folder.\n"
           "Please download Orvinel again; if the problem persists, contact its author at orvinel@example.org."_s;
}

QString ownText(const World& state, OwnText number) {
    const QString text = state.text(static_cast<int>(number));
    return text.isEmpty() ? builtIn(number) : text;
}

} // namespace orvinel
