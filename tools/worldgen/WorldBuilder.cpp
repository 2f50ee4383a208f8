#include "WorldBuilder.h"

#include "CrowdedWorld.h"
#include "InParallel.h"
#include "Placement.h"
#include "WorldFiles.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>
#include <mutex>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int JpegQuality = 90;
constexpr int WithoutAttribute = 5; ///< for the painter of skills

class Builder {
  public:
    Builder(const WorldSource& source, const QString& worldFolder, const QString& outFolder)
        : source_(source), worldFolder_(worldFolder), outFolder_(outFolder + u'/'), places_(source) {}

    QStringList build();
    QStringList paint(const QString& part);
    QStringList build(const CrowdedWorld& world);

  private:
    void makeFolders();
    void copyData();
    void paintRegions();
    void paintSkills();
    void paintPets();
    void writeTables();
    void save(const QString& name, const QByteArray& bytes);
    void savePicture(const QString& name, const QImage& picture);
    void reuse(const QString& name, const QString& original);
    void problem(const QString& what);
    QString folderOf(int campaign) const;
    bool isWanted(const QString& picture) const { return picture.contains(part_, Qt::CaseInsensitive); }

    const WorldSource& source_;
    QString worldFolder_;
    QString outFolder_;
    QString part_; ///< of the names of the pictures to paint; empty: all
    WorldPlaces places_;
    std::mutex problemsLock_;
    QStringList problems_;
};

void Builder::problem(const QString& what) {
    const std::lock_guard lock(problemsLock_);
    problems_.append(what);
}

QString Builder::folderOf(int campaign) const {
    const auto found = std::find_if(source_.campaigns.begin(), source_.campaigns.end(),
                                    [&](const SourceCampaign& known) { return known.number == campaign; });
    return found == source_.campaigns.end() ? QString() : campaignFolder(*found) + u'/';
}

void Builder::save(const QString& name, const QByteArray& bytes) {
    QSaveFile file(outFolder_ + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        file.cancelWriting();
    }
    if (!file.commit()) {
        problem(file.fileName() + u": "_s + file.errorString());
    }
}

void Builder::savePicture(const QString& name, const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpg");
    writer.setQuality(JpegQuality);
    if (!writer.write(picture)) {
        problem(name + u": "_s + writer.errorString());
        return;
    }
    save(name, bytes);
}

void Builder::reuse(const QString& name, const QString& original) {
    QFile picture(outFolder_ + original);
    if (!picture.open(QIODevice::ReadOnly)) {
        problem(picture.fileName() + u": "_s + picture.errorString());
        return;
    }
    save(name, picture.readAll());
}

void Builder::makeFolders() {
    const QDir out(outFolder_);
    out.mkpath(u"Data"_s);
    for (const SourceCampaign& campaign : source_.campaigns) {
        out.mkpath(campaignFolder(campaign) + u"/imgElite"_s);
    }
    out.mkpath(folderOf(0) + u"imgPets"_s);
}

void Builder::copyData() {
    const QDir data(worldFolder_ + u"/Data"_s);
    QDirIterator files(data.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = data.relativeFilePath(files.next());
        QFile file(files.filePath());
        if (name.compare(u"Options.txt", Qt::CaseInsensitive) == 0) {
            continue;
        }
        if (!file.open(QIODevice::ReadOnly)) {
            problem(file.fileName() + u": "_s + file.errorString());
            continue;
        }
        QDir(outFolder_).mkpath(QFileInfo(u"Data/"_s + name).path());
        save(u"Data/"_s + name, file.readAll());
    }
}

void Builder::paintRegions() {
    inParallel(source_.regions.size(), [this](std::size_t i) {
        const SourceRegion& region = source_.regions[i];
        const QString name = folderOf(region.campaign) + region.fileNumber + u".jpg"_s;
        if (!isWanted(name)) {
            return;
        }
        const RegionRecipe recipe = recipeFor(source_, region);
        const SurveyedRegion survey = surveyRegion(recipe);
        placeRegion(source_, region, groundOf(survey), places_);
        savePicture(name, paintRegion(recipe, survey));
    });
}

void Builder::paintSkills() {
    inParallel(source_.skills.size(), [this](std::size_t i) {
        const SourceSkill& skill = source_.skills[i];
        const auto profession =
            std::find_if(source_.professions.begin(), source_.professions.end(),
                         [&](const SourceProfession& known) { return known.number == skill.profession; });
        const QString name = folderOf(skill.campaign) + u"imgElite/"_s + skillPicture(skill.id);
        if (skill.pictureOf == 0 && isWanted(name)) {
            const qsizetype attribute = profession->attributes.indexOf(skill.attribute);
            savePicture(name,
                        paintSkillIcon({quint32(skill.id), profession->colour,
                                        attribute < 0 ? WithoutAttribute : int(attribute), skill.signs}));
        }
    });
    for (const SourceSkill& skill : source_.skills) {
        if (skill.pictureOf != 0) {
            const QString folder = folderOf(skill.campaign) + u"imgElite/"_s;
            reuse(folder + skillPicture(skill.id), folder + skillPicture(skill.pictureOf));
        }
    }
}

void Builder::paintPets() {
    const QString folder = folderOf(0) + u"imgPets/"_s;
    for (const SourcePet& pet : source_.pets) {
        const QString name = folder + pet.idText + u".jpg"_s;
        if (!isWanted(name)) {
            continue;
        }
        if (pet.pictureOf.isEmpty()) {
            savePicture(name, paintPet(pet.idText.toUInt(), pet.animal));
        } else {
            reuse(name, folder + pet.pictureOf + u".jpg"_s);
        }
    }
}

void Builder::writeTables() {
    for (const SourceCampaign& campaign : source_.campaigns) {
        for (const auto& [name, bytes] : campaignFiles(source_, places_, campaign, problems_)) {
            save(campaignFolder(campaign) + u'/' + name, bytes);
        }
    }
}

QStringList Builder::paint(const QString& part) {
    part_ = part;
    makeFolders();
    paintRegions();
    paintSkills();
    paintPets();
    return problems_;
}

QStringList Builder::build() {
    makeFolders();
    copyData();
    paintRegions();
    paintSkills();
    paintPets();
    if (problems_.isEmpty()) {
        writeTables(); // last, so that tables never promise what is not there
    }
    return problems_;
}

QStringList Builder::build(const CrowdedWorld& world) {
    places_ = world.places();
    makeFolders();
    copyData();
    for (const SourceRegion& region : source_.regions) {
        const RegionRecipe recipe = recipeFor(source_, region);
        savePicture(folderOf(region.campaign) + region.fileNumber + u".jpg"_s,
                    paintRegion(recipe, surveyRegion(recipe)));
    }
    QDir(outFolder_).mkpath(u"Personal"_s);
    save(u"Personal/Notes.txt"_s, world.notes());
    if (problems_.isEmpty())
        writeTables();
    return problems_;
}

} // namespace

QStringList buildCrowdedWorld(int scale, const QString& worldFolder, const QString& outFolder) {
    const CrowdedWorld world(scale);
    return Builder(world.source(), worldFolder, outFolder).build(world);
}

QStringList buildWorld(const WorldSource& source, const QString& worldFolder, const QString& outFolder) {
    return Builder(source, worldFolder, outFolder).build();
}

QStringList paintPictures(const WorldSource& source, const QString& outFolder, const QString& part) {
    return Builder(source, {}, outFolder).paint(part);
}

QString noAttributeCaption(const QString& worldFolder) {
    QFile file(worldFolder + u"/Data/Language.txt"_s);
    QString text;
    if (file.open(QIODevice::ReadOnly)) {
        text = QStringDecoder("windows-1252").decode(file.readAll());
    }
    for (const QString& line : text.split(u"\r\n"_s)) {
        if (line.startsWith(u"45\t")) {
            return line.section(u'\t', 1, 1);
        }
    }
    return u"No attribute"_s;
}

} // namespace worldgen
