#include "base/Caption.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

QString builtInText(Caption caption) {
    switch (caption) {
    case Caption::SaveFailed:
        return u"Could not save %1:\n%2"_s;
    case Caption::TooManyCharacters:
        return u"No more than 99 characters can be kept."_s;
    case Caption::TitleIsComment:
        return u"A title cannot begin with a semicolon (;)."_s;
    case Caption::SkillNumberTooLarge:
        return u"This skill's number is too large to be remembered."_s;
    case Caption::ChangedOutside:
        return u"The file %1 was changed by another program since it was read. Replace it?"_s;
    case Caption::QuitWithoutSaving:
        return u"Some changes could not be saved. Quit anyway?"_s;
    case Caption::NotOpened:
        return u"%1 could not be opened."_s;
    case Caption::Quit:
        return u"Quit"_s;
    case Caption::Minimise:
        return u"Minimise"_s;
    case Caption::Maximise:
        return u"Fill the screen or leave a margin"_s;
    case Caption::Upkeep:
        return u"Upkeep"_s;
    case Caption::Adrenaline:
        return u"Adrenaline"_s;
    case Caption::Energy:
        return u"Energy"_s;
    case Caption::Recharge:
        return u"Recharge"_s;
    case Caption::CastTime:
        return u"Casting time"_s;
    case Caption::TooMuchData:
        return u"The data is larger than the program can hold. These files were left out:"_s;
    case Caption::ReadOnlyFolder:
        return u"Nothing can be saved: you may not write to the folder %1.\n\nMove Orvinel to a folder of "
               u"your own, "
               "or install it there."_s;
    case Caption::NobodyLeft:
        return u"No character is left who could capture this skill."_s;
    default:
        return {};
    }
}

} // namespace orvinel
