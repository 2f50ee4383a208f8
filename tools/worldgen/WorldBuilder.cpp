#include "WorldBuilder.h"

#include "CrowdedWorld.h"
#include "InParallel.h"
#include "Placement.h"
#include "Translation.h"
#include "WorldFiles.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

#include <algorithm>
#include <mutex>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int jpegQuality = 90;
const QString stampKey = u"Painted"_s; // in a picture's comment: what it was painted from

// Pictures of another painter are painted again.
QByteArray painterStamp() {
    QFile program(QCoreApplication::applicationFilePath());
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return program.open(QIODevice::ReadOnly) && hash.addData(&program) ? hash.result() : QByteArray();
}

QString recipeText(const RegionRecipe& recipe) {
    QString text = u"%1 %2 %3 %4 %5 %6 %7"_s.arg(recipe.seed)
                       .arg(recipe.size.width())
                       .arg(recipe.size.height())
                       .arg(int(recipe.theme))
                       .arg(recipe.campaign)
                       .arg(int(recipe.landform))
                       .arg(recipe.title);
    for (const SiteWish& wish : recipe.sites) {
        text += u"|%1 %2 %3 %4 %5"_s.arg(wish.name)
                    .arg(int(wish.role))
                    .arg(int(wish.near))
                    .arg(int(wish.marked))
                    .arg(int(wish.landmark));
    }
    return text;
}

QString recipeText(const SkillPicture& picture) {
    QString text = u"%1 %2 %3"_s.arg(picture.seed).arg(picture.professionColour).arg(picture.attribute);
    for (const PlacedSign& sign : picture.signs) {
        text += u'|' + sign.manner.join(u' ');
        for (const SignPart& part : sign.parts)
            text += u'|' + part.material + u' ' + part.shape;
    }
    return text;
}

QString recipeText(const AnimalPicture& animal) {
    QString text = animal.ground;
    for (const AnimalPart& part : animal.parts)
        text += u"|%1 %2 %3"_s.arg(part.kind).arg(part.colour).arg(part.shape);
    return text;
}
constexpr int withoutAttribute = 5; // for the painter of skills

class Builder {
  public:
    Builder(const WorldSource& source, const QString& worldFolder, const QString& outFolder)
        : source_(source), worldFolder_(worldFolder), outFolder_(outFolder + u'/'), places_(source) {}

    QStringList build(Translations translations);
    QStringList paint(const QString& part);
    QStringList build(const CrowdedWorld& world);

  private:
    void makeFolders();
    void copyData();
    void paintRegions();
    void paintSkills();
    void paintPets();
    void writeTables();
    void writeTranslations();
    void save(const QString& name, const QByteArray& bytes);
    // Paints unless the picture is there already, painted from the same `recipe` by the same program.
    void renewPicture(const QString& name, const QString& recipe, const std::function<QImage()>& paint);
    void savePicture(const QString& name, const QImage& picture, const QString& stamp = {});
    void reuse(const QString& name, const QString& original);
    void problem(const QString& what);
    QString folderOf(int campaign) const;
    bool isWanted(const QString& picture) const { return picture.contains(part_, Qt::CaseInsensitive); }

    const WorldSource& source_;
    QString worldFolder_;
    QString outFolder_;
    QString part_; // of the names of the pictures to paint; empty: all
    WorldPlaces places_;
    QByteArray painterStamp_ = painterStamp();
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
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        file.cancelWriting();
    if (!file.commit())
        problem(file.fileName() + u": "_s + file.errorString());
}

void Builder::renewPicture(const QString& name, const QString& recipe, const std::function<QImage()>& paint) {
    const QByteArray whole = painterStamp_ + recipe.toUtf8();
    const QString stamp =
        QString::fromLatin1(QCryptographicHash::hash(whole, QCryptographicHash::Sha1).toHex());
    if (QImageReader(outFolder_ + name).text(stampKey) != stamp)
        savePicture(name, paint(), stamp);
}

void Builder::savePicture(const QString& name, const QImage& picture, const QString& stamp) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpg");
    writer.setQuality(jpegQuality);
    if (!stamp.isEmpty())
        writer.setText(stampKey, stamp);
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
    for (const SourceCampaign& campaign : source_.campaigns)
        out.mkpath(campaignFolder(campaign) + u"/imgElite"_s);
    out.mkpath(folderOf(0) + u"imgPets"_s);
}

void Builder::copyData() {
    const QDir data(worldFolder_ + u"/Data"_s);
    QDirIterator files(data.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = data.relativeFilePath(files.next());
        QFile file(files.filePath());
        if (name.compare(u"Options.txt", Qt::CaseInsensitive) == 0)
            continue;
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
        if (!isWanted(name))
            return;
        const RegionRecipe recipe = recipeFor(source_, region);
        const SurveyedRegion survey = surveyRegion(recipe);
        placeRegion(source_, region, groundOf(survey), places_);
        renewPicture(name, recipeText(recipe), [&] { return paintRegion(recipe, survey); });
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
            const SkillPicture picture{quint32(skill.id), profession->colour,
                                       attribute < 0 ? withoutAttribute : int(attribute), skill.signs};
            renewPicture(name, recipeText(picture), [&] { return paintSkillIcon(picture); });
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
        if (!isWanted(name))
            continue;
        if (pet.pictureOf.isEmpty()) {
            renewPicture(name, pet.idText + recipeText(pet.animal),
                         [&] { return paintPet(pet.idText.toUInt(), pet.animal); });
        } else {
            reuse(name, folder + pet.pictureOf + u".jpg"_s);
        }
    }
}

void Builder::writeTables() {
    for (const SourceCampaign& campaign : source_.campaigns) {
        for (const auto& [name, bytes] : campaignFiles(source_, places_, campaign, problems_))
            save(campaignFolder(campaign) + u'/' + name, bytes);
    }
}

// The tables that hold texts, once more in each language, for players to copy over the English ones.
void Builder::writeTranslations() {
    const QStringList withTexts{u"EliteList.txt"_s,    u"EliteLocations.txt"_s, u"Collectors.txt"_s,
                                u"Greens.txt"_s,       u"Treasures.txt"_s,      u"PetsList.txt"_s,
                                u"PetsLocations.txt"_s};
    for (std::size_t language = 0; language < std::size(worldLanguages); ++language) {
        const WorldSource world = translated(source_, worldFolder_, language, problems_);
        const QString folder = u"Data/Worlds/"_s + worldLanguages[language].toString() + u'/';
        for (const SourceCampaign& campaign : world.campaigns) {
            QDir(outFolder_).mkpath(folder + campaignFolder(campaign));
            for (const auto& [name, bytes] : campaignFiles(world, places_, campaign, problems_)) {
                if (withTexts.contains(name))
                    save(folder + campaignFolder(campaign) + u'/' + name, bytes);
            }
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

QStringList Builder::build(Translations translations) {
    makeFolders();
    copyData();
    paintRegions();
    paintSkills();
    paintPets();
    if (problems_.isEmpty()) {
        if (translations == Translations::Written)
            writeTranslations();
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

QStringList buildWorld(const WorldSource& source, const QString& worldFolder, const QString& outFolder,
                       Translations translations) {
    return Builder(source, worldFolder, outFolder).build(translations);
}

QStringList paintPictures(const WorldSource& source, const QString& outFolder, const QString& part) {
    return Builder(source, {}, outFolder).paint(part);
}

} // namespace worldgen
