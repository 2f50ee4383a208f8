#include "app/Saving.h"

#include "app/modLanguage.h"
#include "world/World.h"

namespace orvinel {

SaveResult saveAsking(const World& state, Desktop& desktop,
                      const std::function<SaveResult(bool evenIfChanged)>& save) {
    const SaveResult result = save(false);
    if (result.outcome != SaveResult::Outcome::ChangedOutside)
        return result;
    const QString question = state.text(Caption::ChangedOutside).arg(result.file);
    return desktop.ask(MessageIcon::Question, programName(), question) ? save(true) : result;
}

QString saveFailure(const World& state, const SaveResult& result) {
    return state.text(Caption::SaveFailed).arg(result.file, result.reason);
}

bool saveAndTell(const World& state, Desktop& desktop,
                 const std::function<SaveResult(bool evenIfChanged)>& save) {
    const SaveResult result = saveAsking(state, desktop, save);
    if (!result.saved() && result.outcome != SaveResult::Outcome::ChangedOutside)
        desktop.message(MessageIcon::Critical, programName(), saveFailure(state, result));
    return result.saved();
}

} // namespace orvinel
