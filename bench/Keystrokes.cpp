#include "Suites.h"

#include "compare/Bare.h"
#include "compare/Scene.h"
#include "layers/modElite.h"
#include "ui/map/RegionPictures.h"

#include <benchmark/benchmark.h>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace orvinel::bench {

namespace {

// From everything to much, to little, and back.
constexpr std::array typed = {'a', 'r', '\b', '\b'};

// From the key to the list and the map on screen.
void typeInto(benchmark::State& run, QWidget& field) {
    settle();
    size_t next = 0;
    for (auto _ : run) {
        pressKey(field, typed[next]);
        settle();
        next = (next + 1) % typed.size();
    }
    while (next != 0 && next < typed.size())
        pressKey(field, typed[next++]);
    settle();
}

struct Field {
    const char* name;
    Tab tab;
    QLineEdit* field;
};

std::vector<Field> fields(frmMenu& panel) {
    return {{"txtEliteName", Tab::Elites, panel.elitePage().txtEliteName},
            {"txtEliteBossName", Tab::Elites, panel.elitePage().txtEliteBossName},
            {"txtCollSearch", Tab::Collectors, panel.collectorsPage().txtCollSearch},
            {"txtGreensName", Tab::Greens, panel.greensPage().txtGreensName},
            {"txtGreenAdditional", Tab::Greens, panel.greensPage().txtGreenAdditional},
            {"txtNoteShortDesc", Tab::Notes, panel.notesPage().txtNoteShortDesc},
            {"txtNoteBody", Tab::Notes, panel.notesPage().txtNoteBody}};
}

void addBare(World& world) {
    QStringList texts;
    for (int i = 0; i < world.panel().elitePage().lstElite->count(); ++i)
        texts << world.panel().elitePage().lstElite->entry(i).text;
    const QString picture = world.picture(world.campaign(), world.region());
    auto bare = std::make_shared<Bare>(loadPicture(world.disk(), picture), texts);
    bare->show(world.panel().geometry(), world.map().geometry());
    benchmark::RegisterBenchmark(("key/bare/" + world.name()).c_str(), [bare](benchmark::State& run) {
        typeInto(run, bare->field());
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("drag/bare/" + world.name()).c_str(), [bare](benchmark::State& run) {
        settle();
        sendMouse(bare->map(), QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton);
        bool there = false;
        for (auto _ : run) {
            sendMouse(bare->map(), QEvent::MouseMove, there ? QPoint(200, 200) : QPoint(193, 195),
                      Qt::LeftButton);
            settle();
            there = !there;
        }
        sendMouse(bare->map(), QEvent::MouseButtonRelease, {200, 200}, Qt::LeftButton);
    })->Unit(benchmark::kMillisecond);
}

// The names alone, one after the other in one piece of memory.
void addScan(World& world) {
    std::string all;
    for (const EliteSkill& skill : world.state().EliteSkills)
        all += skill.FoldedName;
    benchmark::RegisterBenchmark(("search/limit/" + world.name()).c_str(), [all](benchmark::State& run) {
        for (auto _ : run)
            benchmark::DoNotOptimize(all.find("qx"));
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("search/ours/" + world.name()).c_str(), [&world](benchmark::State& run) {
        EliteChoice choice;
        choice.nameText = u"qx"_s;
        for (auto _ : run)
            benchmark::DoNotOptimize(eliteEntries(world.state(), choice));
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("search/plain/" + world.name()).c_str(), [&world](benchmark::State& run) {
        for (auto _ : run)
            for (const EliteSkill& skill : world.state().EliteSkills)
                benchmark::DoNotOptimize(skill.Name.contains(QLatin1String("qx"), Qt::CaseInsensitive));
    })->Unit(benchmark::kMicrosecond);
}

} // namespace

void addKeystrokes(World& world) {
    for (const Field& each : fields(world.panel()))
        benchmark::RegisterBenchmark(("key " + std::string(each.name) + "/ours/" + world.name()).c_str(),
                                     [&world, each](benchmark::State& run) {
                                         world.panel().tabs().activate(each.tab);
                                         typeInto(run, *each.field);
                                     })
            ->Unit(benchmark::kMillisecond);
    addBare(world);
    addScan(world);
}

void addScene(World& world) {
    const QString picture = world.picture(world.campaign(), world.region());
    auto scene = std::make_shared<Scene>(world.state(), loadPicture(world.disk(), picture), world.campaign(),
                                         world.region());
    scene->show(world.panel().geometry(), world.map().geometry());
    benchmark::RegisterBenchmark(("key/scene/" + world.name()).c_str(), [scene](benchmark::State& run) {
        typeInto(run, scene->field());
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("drag/scene/" + world.name()).c_str(), [scene](benchmark::State& run) {
        settle();
        QWidget& view = *scene->map().viewport();
        sendMouse(view, QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton);
        bool there = false;
        for (auto _ : run) {
            sendMouse(view, QEvent::MouseMove, there ? QPoint(200, 200) : QPoint(193, 195), Qt::LeftButton);
            settle();
            there = !there;
        }
        sendMouse(view, QEvent::MouseButtonRelease, {200, 200}, Qt::LeftButton);
    })->Unit(benchmark::kMillisecond);
}

} // namespace orvinel::bench
