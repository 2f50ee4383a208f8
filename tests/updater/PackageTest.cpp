#include "updater/Package.h"
#include "updater/Folders.h"

#include <QTemporaryDir>

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <QFile>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

void writeArchive(const QString& path, const PackageFiles& entries, bool zip, int type = AE_IFREG) {
    archive* to = archive_write_new();
    if (zip)
        archive_write_set_format_zip(to);
    else
        archive_write_set_format_ustar(to);
    if (path.endsWith(u".gz"_s))
        archive_write_add_filter_gzip(to);
    if (path.endsWith(u".xz"_s))
        archive_write_add_filter_xz(to);
    archive_write_open_filename(to, QFile::encodeName(path).constData());
    archive_entry* entry = archive_entry_new();
    for (const auto& [name, file] : entries) {
        archive_entry_clear(entry);
        archive_entry_set_pathname(entry, name.toUtf8().constData());
        archive_entry_set_filetype(entry, static_cast<unsigned>(type));
        archive_entry_set_perm(entry, file.runnable ? 0755 : 0644);
        archive_entry_set_size(entry, file.bytes.size());
        archive_write_header(to, entry);
        archive_write_data(to, file.bytes.constData(), static_cast<size_t>(file.bytes.size()));
    }
    archive_entry_free(entry);
    archive_write_free(to);
}

Package readAll(const QString& path) {
    PackageReader reader(path);
    while (reader.readNext())
        EXPECT_LE(reader.progress(), 1.0);
    return reader.package();
}

struct PackageFileTest : testing::Test {
    QTemporaryDir folder;
    QString at(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
};

TEST_F(PackageFileTest, readsEveryKindOfArchive) {
    for (const char* name : {"p.zip", "p.tar.gz", "p.tar.xz"})
        for (const char* around : {"", "Orvinel-4.1.0/", "./"}) {
            SCOPED_TRACE(name);
            const QString path = at(name);
            writeArchive(path, entriesOf(newVersion(), QString::fromLatin1(around)),
                         path.endsWith(u".zip"_s));
            const Package package = readAll(path);
            ASSERT_TRUE(package.whole()) << package.about.toStdString();
            EXPECT_EQ(u"4.1.0"_s, package.version);
            EXPECT_EQ(newVersion().size(), package.files.size());
            EXPECT_TRUE(package.files.at(u"orvinel"_s).runnable);
            EXPECT_FALSE(package.files.at(u"lib/libA.so"_s).runnable);
            EXPECT_EQ("new vale", package.files.at(u"Campaign.01.Vale/Regions.txt"_s).bytes);
        }
}

// Cut anywhere, or with one bit turned, no archive passes, unless all that it brings is there.
TEST_F(PackageFileTest, refusesEveryDamage) {
    for (const char* name : {"p.zip", "p.tar.gz"}) {
        writeArchive(at(name), entriesOf(newVersion()), QLatin1String(name).endsWith(u".zip"_s));
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        int passed = 0;
        for (qsizetype i = 0; i < whole.size(); i += 13)
            for (const bool cut : {true, false}) {
                QByteArray bytes = whole;
                if (cut)
                    bytes.truncate(i);
                else
                    bytes[i] = static_cast<char>(bytes[i] ^ 0x10);
                QFile damaged(at("damaged"));
                ASSERT_TRUE(damaged.open(QIODevice::WriteOnly | QIODevice::Truncate));
                damaged.write(bytes);
                damaged.close();
                const Package package = readAll(at("damaged"));
                passed += package.whole();
                if (!package.whole())
                    continue;
                for (const auto& [path, content] : newVersion())
                    EXPECT_EQ(content, package.files.at(path).bytes);
            }
        EXPECT_LT(passed, whole.size() / 13); // of twice as many; times and the like may be damaged
    }
    EXPECT_EQ(PackageFault::Unreadable, readAll(at("missing.zip")).fault);
}

TEST_F(PackageFileTest, refusesLinksAndPathsThatLeadOut) {
    writeArchive(at("p.tar.gz"), entriesOf(newVersion()), false, AE_IFLNK);
    EXPECT_FALSE(readAll(at("p.tar.gz")).whole());
    for (const char* path : {"../evil", "/evil", "a/../../evil", "C:evil", "a\\b", "trailing.", "a//b"}) {
        PackageFiles entries = entriesOf(newVersion());
        entries[QString::fromLatin1(path)] = {"x", false};
        writeArchive(at("p.tar.gz"), entries, false);
        EXPECT_FALSE(readAll(at("p.tar.gz")).whole()) << path;
    }
}

TEST(Package, saysWhatIsWrong) {
    const auto faultWith = [](const std::function<void(PackageFiles&)>& change) {
        PackageFiles entries = entriesOf(newVersion());
        change(entries);
        return checkedPackage(std::move(entries));
    };
    EXPECT_EQ(PackageFault::NotOrvinel, faultWith([](auto& files) { files.erase(installedListPath); }).fault);
    const Package changed = faultWith([](auto& files) { files[u"lib/libA.so"_s].bytes += 'x'; });
    EXPECT_EQ(PackageFault::Damaged, changed.fault);
    EXPECT_EQ(u"lib/libA.so"_s, changed.about);
    EXPECT_EQ(PackageFault::Damaged, faultWith([](auto& files) { files.erase(u"lib/libA.so"_s); }).fault);
    EXPECT_EQ(PackageFault::Damaged, faultWith([](auto& files) { files[u"more"_s] = {}; }).fault);
    Texts foreign = newVersion();
    foreign.erase(u"orvinel"_s);
    foreign[u"orvinel.other"_s] = "x";
    foreign.erase(installedListPath);
    EXPECT_EQ(PackageFault::OtherSystem, checkedPackage(entriesOf(packaged(foreign, "4.1.0"))).fault);
}

TEST(InstalledList, readsNothingButWholeLists) {
    const QByteArray sum(64, 'a');
    EXPECT_EQ(1u, readInstalledList(sum + "  a/b.txt\n")->size());
    for (const QByteArray& text :
         {QByteArray(), sum + "  a", sum + " a\n", sum.chopped(1) + "  a\n", sum + "  \n", sum + "  ../a\n",
          sum + "  a\n\n", sum + "  a\n" + sum + "  A\n", sum.toUpper() + "  a\n", QByteArray("\n")})
        EXPECT_FALSE(readInstalledList(text).has_value()) << text.toStdString();
}

TEST(InstalledList, comparesVersionsByNumber) {
    EXPECT_TRUE(isOlder(u"4.9.0"_s, u"4.10.0"_s));
    EXPECT_FALSE(isOlder(u"4.10.0"_s, u"4.9.9"_s));
    EXPECT_FALSE(isOlder(u"4.0.0"_s, u"4.0.0"_s));
    EXPECT_FALSE(isOlder({}, u"4.0.0"_s));
    EXPECT_EQ(u"4.0.0"_s, readVersion("4.0.0\n"));
    EXPECT_EQ(QString(), readVersion("soon\n"));
}

} // namespace
} // namespace orvinel
