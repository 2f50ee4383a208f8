#include "Suites.h"

#include "app/modData.h"
#include "app/modLanguage.h"

#include <QDirIterator>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace orvinel::bench {

namespace {

void loadTablesOnce(World& world) {
    FileDisk disk(world.folder());
    PlayerFiles files(disk);
    ProgramState state;
    state.AppPath = world.folder();
    LoadLanguage(state, disk);
    loadTables(state, files);
    benchmark::DoNotOptimize(state.EliteSkills.highest());
}

// The same bytes, read and walked once.
void readOnly(const QStringList& files) {
    qsizetype lines = 0;
    for (const QString& name : files) {
        QFile file(name);
        if (file.open(QIODevice::ReadOnly))
            lines += file.readAll().count('\n');
    }
    benchmark::DoNotOptimize(lines);
}

} // namespace

void addLoading(World& world) {
    benchmark::RegisterBenchmark(("load/ours/" + world.name()).c_str(), [&world](benchmark::State& run) {
        for (auto _ : run)
            loadTablesOnce(world);
    })->Unit(benchmark::kMillisecond);
    QStringList files;
    QDirIterator walk(world.folder(), {u"*.txt"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << walk.next();
    benchmark::RegisterBenchmark(("load/limit/" + world.name()).c_str(), [files](benchmark::State& run) {
        for (auto _ : run)
            readOnly(files);
    })->Unit(benchmark::kMillisecond);
}

} // namespace orvinel::bench
