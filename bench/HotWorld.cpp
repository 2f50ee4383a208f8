#include "HotWorld.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <array>
#include <random>

namespace orvinel::bench {

namespace {

constexpr int pictureWidth = 3000;
constexpr int pictureHeight = 2400;
constexpr std::array words = {"Amber",  "River", "Stone", "Marker",  "Wolf",  "Harbour", "Chest", "Mage",
                              "Trader", "Hill",  "Moss",  "Lantern", "Briar", "Ember",   "Frost", "Reed"};

class Writer {
  public:
    explicit Writer(QString folder) : folder_(std::move(folder)) {}

    bool zones() {
        return file("Zones.txt", 400, [&](int n) {
            return join({number(n), "1", "1", "0", x(), y(), name() + ' ' + number(n)});
        });
    }
    bool skills() {
        return file("EliteList.txt", 400, [&](int n) {
            return join({number(n), number(1 + n % 2), name() + ' ' + number(n), "Fire", "Spell", "0", "0",
                         "5", "1", "10", name() + ' ' + name()});
        });
    }
    bool bosses() {
        return file("EliteLocations.txt", 1501, [&](int n) {
            return n == 1 ? QByteArray(";[Version]2.0")
                          : join({number(1 + n % 400), "1", x(), y(), name() + ' ' + name(), "M",
                                  number(1 + n % 400)});
        });
    }
    bool collectors() {
        return file("Collectors.txt", 600, [&](int n) {
            QByteArray block =
                join({number(n), name() + ' ' + number(n), "0", "1"}) + "\r\nHere\r\n5 " + name();
            for (int reward = 0; reward < 4; ++reward)
                block += "\r\n" + join({name() + ' ' + name(), "1", name() + " +1", name() + " +2", name()});
            return block + "\r\n";
        });
    }
    bool collectorPlaces() {
        return file("CollectorsLocations.txt", 600, [&](int n) {
            return join({number(n), "1", x(), y(), number(1 + n % 400)});
        });
    }
    bool notes() {
        return file("../Personal/Notes.txt", 500, [&](int n) {
            return join({name() + ' ' + number(n), name() + "{#ENTER#}" + name(), x(), y(), "1", "1"});
        });
    }
    bool rest() {
        return file("Regions.txt", 1, [](int) { return QByteArray("1\tCrowd"); }) &&
               file("Professions.txt", 2,
                    [](int n) {
                        return QByteArray(n == 1 ? "1\tMage\t255\tM\tFire" : "2\tBard\t65280\tB\tFire");
                    }) &&
               file("../Data/Language.txt", 115,
                    [](int n) { return QByteArray::number(n) + "\tText " + QByteArray::number(n); });
    }
    bool picture() {
        QImage ground(pictureWidth, pictureHeight, QImage::Format_RGB32);
        for (int row = 0; row < pictureHeight; ++row)
            for (int column = 0; column < pictureWidth; ++column)
                ground.setPixel(column, row, qRgb(column / 16, row / 16, (column ^ row) & 0x3F));
        return ground.save(folder_ + QLatin1String("1.jpg"), "JPG", 85);
    }

  private:
    static QByteArray number(int n) { return QByteArray::number(n); }
    static QByteArray join(const QList<QByteArray>& fields) { return fields.join('\t'); }
    int upTo(int most) { return int(random_() % unsigned(most)); }
    QByteArray x() { return number(20 + upTo(pictureWidth - 40)); }
    QByteArray y() { return number(20 + upTo(pictureHeight - 40)); }
    QByteArray name() { return words[size_t(upTo(int(words.size())))]; }

    template <typename Line>
    bool file(const char* path, int lines, Line line) {
        QFile out(folder_ + QLatin1String(path));
        if (!out.open(QIODevice::WriteOnly))
            return false;
        for (int n = 1; n <= lines; ++n)
            out.write(line(n) + "\r\n");
        return out.flush();
    }

    QString folder_;
    std::mt19937 random_{11};
};

} // namespace

bool writeHotWorld(const QString& folder) {
    const QDir root(folder);
    if (!root.mkpath(QStringLiteral("Campaign.01.Crowd")) || !root.mkpath(QStringLiteral("Data")) ||
        !root.mkpath(QStringLiteral("Personal")))
        return false;
    Writer writer(folder + QStringLiteral("Campaign.01.Crowd/"));
    return writer.zones() && writer.skills() && writer.bosses() && writer.collectors() &&
           writer.collectorPlaces() && writer.notes() && writer.rest() && writer.picture();
}

} // namespace orvinel::bench
