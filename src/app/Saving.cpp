#include "app/Saving.h"

#include "app/modLanguage.h"
#include "world/World.h"

namespace orvinel {

bool saveAndTell(const World& state, Desktop& desktop,
                 const std::function<SaveResult(bool evenIfChanged)>& save) {
    SaveResult result = save(false);
    if (result.outcome == SaveResult::Outcome::ChangedOutside) {
        const QString question = state.text(Caption::ChangedOutside).arg(result.file);
        if (!desktop.ask(MessageIcon::Question, programName(), question))
            return false;
        result = save(true);
    }
    if (result.saved())
        return true;
    desktop.message(MessageIcon::Critical, programName(),
                    state.text(Caption::SaveFailed).arg(result.file, result.reason));
    return false;
}

} // namespace orvinel
