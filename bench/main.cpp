#include "Suites.h"

#include "ui/platform/Windows.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstdio>

// orvinel_bench NAME=FOLDER ... [--benchmark_...]: measures on each of the worlds.
int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);

    std::vector<std::unique_ptr<orvinel::bench::World>> worlds;
    for (const QString& order : QCoreApplication::arguments().sliced(1)) {
        const qsizetype equals = order.indexOf(u'=');
        if (equals < 1) {
            std::fprintf(stderr, "not NAME=FOLDER: %s\n", qUtf8Printable(order));
            return 2;
        }
        worlds.push_back(std::make_unique<orvinel::bench::World>(order.first(equals).toStdString(),
                                                                 order.sliced(equals + 1)));
        for (const auto add :
             {orvinel::bench::addLoading, orvinel::bench::addKeystrokes, orvinel::bench::addScene,
              orvinel::bench::addComposition, orvinel::bench::addMapActions, orvinel::bench::addMouse})
            add(*worlds.back());
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::ClearRegisteredBenchmarks(); // they hold windows
    return 0;
}
