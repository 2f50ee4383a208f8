#include "tools/atlas/AtlasFiles.h"

#include "tools/atlas/AtlasData.h"
#include "tools/atlas/AtlasModel.h"
#include "tools/atlas/AtlasPages.h"

#include <QDirIterator>
#include <QFile>

// The program's resources lie in a library: they are not there unless somebody asks for them.
static void bringResources() {
    Q_INIT_RESOURCE(atlas);
}

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String shipped(":/atlas/");

void addShipped(std::vector<AtlasFile>& files) {
    bringResources();
    QDirIterator walk(shipped, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        if (file.open(QIODevice::ReadOnly))
            files.push_back({file.fileName().sliced(shipped.size()), file.readAll(), {}});
    }
}

} // namespace

std::vector<AtlasFile> atlasFiles(const ProgramState& state, const Atlas& atlas) {
    std::vector<AtlasFile> files;
    files.push_back({u"index.html"_s, startPage(state, atlas), {}});
    files.push_back({u"data/world.js"_s, worldData(state, atlas), {}});
    files.push_back({u"data/search.js"_s, searchData(state, atlas), {}});
    for (const AtlasRegion& region : atlas.regions) {
        files.push_back({u"regions/%1.html"_s.arg(region.key()), regionPage(state, region), {}});
        files.push_back({u"data/%1.js"_s.arg(region.key()), regionData(region), {}});
    }
    addShipped(files);
    for (const AtlasPicture& picture : atlas.pictures)
        files.push_back({picture.target, {}, picture.source});
    return files;
}

} // namespace orvinel
