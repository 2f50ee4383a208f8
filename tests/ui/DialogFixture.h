#pragma once

#include "support/MemoryDisk.h"
#include "support/NumberedCaptions.h"
#include "support/RecordingDesktop.h"
#include "ui/dialogs/Dialog.h"
#include "ui/platform/ListBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <memory>

#include <gmock/gmock.h>

namespace orvinel {

// Three characters, five skills of two campaigns and one chest; character 1 has captured skill 3.
struct DialogFixture : testing::Test {
    MemoryDisk disk;
    PlayerFiles files{disk};
    RecordingDesktop desktop;
    ProgramState state;
    int alwaysOnTop = 0;
    int refilters = 0;

    DialogFixture() {
        using namespace Qt::Literals::StringLiterals;
        state.AppPath = u"/o/"_s;
        numberCaptions(state, u"text "_s);
        for (const QString& name : {u"Aldric"_s, u"Maren"_s, u"Ysk"_s})
            state.Characters.append(name);
        state.Campaigns[0].CampaignName = u"Core"_s;
        state.Campaigns.grow(1).CampaignName = u"Rimefall"_s;
        for (const QString& name : {u"Warden"_s, u"Seer"_s})
            state.Professions.append({name, name.first(1), 0, {}});
        for (const QString& name : {u"Ash"_s, u"Birch"_s, u"Cedar"_s, u"Dogwood"_s, u"Elm"_s})
            addSkill(name);
        state.EliteSkills[3].Captured[1] = true;
        Treasure chest;
        chest.OpenedOn.resize(4);
        state.Treasures.append(chest);
    }

    // Its campaign and profession follow from its number.
    void addSkill(const QString& name) {
        const int id = state.EliteSkills.append({});
        EliteSkill& skill = state.EliteSkills[id];
        skill.setName(name);
        skill.Exists = true;
        skill.Campaign = id % 2;
        skill.Profession = 1 + id % 2;
        skill.ListText = name + (skill.Profession == 1 ? QStringLiteral(" [W]") : QStringLiteral(" [S]"));
        skill.Captured.resize(4);
    }

    DialogContext context() { return {state, files, desktop, alwaysOnTop}; }
    std::function<void()> refilter() {
        return [this] { ++refilters; };
    }
    QString personal(const char* name) const {
        return state.AppPath + QStringLiteral("Personal/") + QLatin1String(name);
    }
    QByteArray saved(const char* name) const { return disk.content(personal(name)); }
    // Every later change of the disk fails.
    void breakDisk() { disk.failAt = static_cast<int>(disk.log.size()) + 1; }

    static QPushButton& button(Dialog& dialog, const char* name) {
        return *dialog.findChild<QPushButton*>(QLatin1String(name));
    }
    static ListBox& list(Dialog& dialog, const char* name) {
        return *dialog.findChild<ListBox*>(QLatin1String(name));
    }
    static QLineEdit& field(Dialog& dialog, const char* name) {
        return *dialog.findChild<QLineEdit*>(QLatin1String(name));
    }
    static std::vector<QString> texts(const ListBox& list) {
        std::vector<QString> found;
        for (int i = 0; i < list.count(); ++i)
            found.push_back(list.entry(i).text);
        return found;
    }
};

} // namespace orvinel
