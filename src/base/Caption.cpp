#include "base/Caption.h"

#include <algorithm>
#include <iterator>

namespace orvinel {

namespace {

struct BuiltIn {
    Caption caption;
    QStringView text;
};

constexpr BuiltIn builtIn[] = {
    {Caption::SaveFailed, u"Could not save %1:\n%2"},
    {Caption::TooManyCharacters, u"No more than 99 characters can be kept."},
    {Caption::TitleIsComment, u"A title cannot begin with a semicolon (;)."},
    {Caption::SkillNumberTooLarge, u"This skill's number is too large to be remembered."},
    {Caption::ChangedOutside, u"The file %1 was changed by another program since it was read. Replace it?"},
    {Caption::QuitWithoutSaving, u"Some changes could not be saved. Quit anyway?"},
    {Caption::NotOpened, u"%1 could not be opened."},
    {Caption::Quit, u"Quit"},
    {Caption::Minimise, u"Minimise"},
    {Caption::Maximise, u"Fill the screen or leave a margin"},
    {Caption::Upkeep, u"Upkeep"},
    {Caption::Adrenaline, u"Adrenaline"},
    {Caption::Energy, u"Energy"},
    {Caption::Recharge, u"Recharge"},
    {Caption::CastTime, u"Casting time"},
    {Caption::TooMuchData, u"The data is larger than the program can hold. These files were left out:"},
    {Caption::ReadOnlyFolder,
     u"Nothing can be saved: you may not write to the folder %1.\n\nMove Orvinel to a folder of "
     u"your own, or install it there."},
    {Caption::NobodyLeft, u"No character is left who could capture this skill."},
    // Of the updater, which speaks also where the language file is among what was replaced.
    {Caption::UpdateTitle, u"Update Orvinel"},
    {Caption::UpdateAsk,
     u"Choose the package of the new version that you have downloaded. What is yours stays: characters, "
     u"notes, settings, and campaigns and texts that you have changed."},
    {Caption::UpdatePackage, u"Package of Orvinel"},
    {Caption::UpdateBrowse, u"Browse..."},
    {Caption::UpdateBegin, u"Update"},
    {Caption::UpdateCancel, u"Cancel"},
    {Caption::StartOrvinel, u"Start Orvinel"},
    {Caption::UpdateChecking, u"The package is being checked..."},
    {Caption::UpdateWaiting, u"Orvinel is still running. The update begins when you have closed it."},
    {Caption::UpdateReplacing, u"Version %1 is being installed..."},
    {Caption::UpdateDone, u"Version %1 is installed."},
    {Caption::UpdateKept, u"These are yours, or you have changed them. They stayed as they were:"},
    {Caption::UpdateTakenBack, u"The update could not be finished:\n%1\n\nEverything is as it was before."},
    {Caption::UpdateNotTakenBack, u"An update was cut off and could not be taken back:\n%1\n\nWhen that is "
                                  u"mended, start Orvinel again: the update is then taken back."},
    {Caption::UpdateCutOff, u"An update was cut off. Everything is as it was before it."},
    {Caption::UpdaterMissing, u"An update was cut off, and the updater that could take it back cannot be "
                              u"started. Some of Orvinel may be missing.\n\nDownload Orvinel again, unpack "
                              u"it beside this folder, and copy Personal and Data/Options.txt over."},
    {Caption::UpdateInTheWay,
     u"A folder stands where a file of the new version belongs: %1\n\nNothing has been changed."},
    {Caption::UpdateBySystem,
     u"This Orvinel was installed by the system, which also updates it: download the new package and open it "
     u"with the software centre, or type\n\nsudo apt install ./orvinel_VERSION.deb\n\nOpen the guide?"},
    {Caption::PackageUnreadable, u"%1 cannot be read:\n%2"},
    {Caption::PackageForeign, u"%1 is not a package of Orvinel."},
    {Caption::PackageDamaged, u"%1 is damaged: %2 is not in it as it should be. Please download it again."},
    {Caption::PackageOtherSystem, u"%1 is for another system."},
    {Caption::PackageOlder,
     u"The package holds version %1, which is older than yours, %2. Install it all the same?"},
};

} // namespace

QString builtInText(Caption caption) {
    const auto* found = std::find_if(std::begin(builtIn), std::end(builtIn),
                                     [caption](const BuiltIn& known) { return known.caption == caption; });
    return found == std::end(builtIn) ? QString() : found->text.toString();
}

} // namespace orvinel
