#include "base/Caption.h"

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Of the updater, which speaks also where the language file is among what was replaced.
QString updaterText(Caption caption) {
    switch (caption) {
    case Caption::UpdateTitle:
        return u"Update Orvinel"_s;
    case Caption::UpdateAsk:
        return u"Choose the package of the new version that you have downloaded. What is yours stays: characters, notes, settings, and campaigns and texts that you have changed."_s;
    case Caption::UpdatePackage:
        return u"Package of Orvinel"_s;
    case Caption::UpdateBrowse:
        return u"Browse..."_s;
    case Caption::UpdateBegin:
        return u"Update"_s;
    case Caption::UpdateCancel:
        return u"Cancel"_s;
    case Caption::StartOrvinel:
        return u"Start Orvinel"_s;
    case Caption::UpdateChecking:
        return u"The package is being checked..."_s;
    case Caption::UpdateWaiting:
        return u"Orvinel is still running. The update begins when you have closed it."_s;
    case Caption::UpdateReplacing:
        return u"Version %1 is being installed..."_s;
    case Caption::UpdateDone:
        return u"Version %1 is installed."_s;
    case Caption::UpdateKept:
        return u"These are yours, or you have changed them. They stayed as they were:"_s;
    case Caption::UpdateTakenBack:
        return u"The update could not be finished:\n%1\n\nEverything is as it was before."_s;
    case Caption::UpdateNotTakenBack:
        return u"An update was cut off and could not be taken back:\n%1\n\nWhen that is mended, start Orvinel again: the update is then taken back."_s;
    case Caption::UpdateCutOff:
        return u"An update was cut off. Everything is as it was before it."_s;
    case Caption::UpdaterMissing:
        return u"An update was cut off, and the updater that could take it back cannot be started. Some of Orvinel may be missing.\n\nDownload Orvinel again, unpack it beside this folder, and copy Personal and Data/Options.txt over."_s;
    case Caption::UpdateInTheWay:
        return u"A folder stands where a file of the new version belongs: %1\n\nNothing has been changed."_s;
    case Caption::UpdateBySystem:
        return u"This Orvinel was installed by the system, which also updates it: download the new package and open it with the software centre, or type\n\nsudo apt install ./orvinel_VERSION.deb\n\nOpen the guide?"_s;
    case Caption::PackageUnreadable:
        return u"%1 cannot be read:\n%2"_s;
    case Caption::PackageForeign:
        return u"%1 is not a package of Orvinel."_s;
    case Caption::PackageDamaged:
        return u"%1 is damaged: %2 is not in it as it should be. Please download it again."_s;
    case Caption::PackageOtherSystem:
        return u"%1 is for another system."_s;
    case Caption::PackageOlder:
        return u"The package holds version %1, which is older than yours, %2. Install it all the same?"_s;
    default:
        return {};
    }
}

} // namespace

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
        return updaterText(caption);
    }
}

} // namespace orvinel
