#include "updater/Package.h"

#include <QFile>
#include <QFileInfo>

#include <archive.h>
#include <archive_entry.h>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t blockSize = 256 * 1024;
constexpr qint64 largestPackage = 512ll * 1024 * 1024; // unpacked; ours has a fifth of it
constexpr size_t mostFiles = 20'000;

} // namespace

struct PackageReader::Source {
    archive* from = archive_read_new();
    archive_entry* entry = nullptr;
    qint64 size = 0; // of the package
    qint64 room = largestPackage;
    PackageFiles files;

    ~Source() { archive_read_free(from); }
    QString error() const { return QString::fromUtf8(archive_error_string(from)); }
};

PackageReader::PackageReader(const QString& path) : source_(std::make_unique<Source>()) {
    archive_read_support_filter_all(source_->from);
    archive_read_support_format_tar(source_->from);
    archive_read_support_format_zip(source_->from);
    source_->size = QFileInfo(path).size();
#ifdef Q_OS_WIN
    const int opened = archive_read_open_filename_w(source_->from, path.toStdWString().c_str(), blockSize);
#else
    const int opened =
        archive_read_open_filename(source_->from, QFile::encodeName(path).constData(), blockSize);
#endif
    if (opened != ARCHIVE_OK)
        fail(PackageFault::Unreadable, source_->error());
}

PackageReader::~PackageReader() = default;

bool PackageReader::fail(PackageFault fault, const QString& about) {
    result_.fault = fault;
    result_.about = about;
    source_->files.clear();
    return false;
}

bool PackageReader::readNext() {
    if (!result_.whole())
        return false;
    const int found = archive_read_next_header(source_->from, &source_->entry);
    if (found == ARCHIVE_EOF)
        return false;
    if (found != ARCHIVE_OK && found != ARCHIVE_WARN)
        return fail(PackageFault::Unreadable, source_->error());
    if (archive_entry_filetype(source_->entry) == AE_IFDIR)
        return true;
    return readFile();
}

bool PackageReader::readFile() {
    const char* name = archive_entry_pathname_utf8(source_->entry);
    if (!name) // another locale, in which the bytes were left as they are
        name = archive_entry_pathname(source_->entry);
    QString path = QString::fromUtf8(name ? name : "");
    if (path.startsWith(u"./"_s))
        path = path.sliced(2);
    const bool known = source_->files.contains(path) || source_->files.size() >= mostFiles;
    if (archive_entry_filetype(source_->entry) != AE_IFREG || !isPathBelow(path) || known)
        return fail(PackageFault::NotOrvinel, path);
    PackageFile file;
    file.runnable = (archive_entry_perm(source_->entry) & 0100) != 0;
    QByteArray block(blockSize, Qt::Uninitialized);
    la_ssize_t size = 0;
    while ((size = archive_read_data(source_->from, block.data(), blockSize)) > 0) {
        source_->room -= size;
        if (source_->room < 0)
            return fail(PackageFault::NotOrvinel, path);
        file.bytes.append(block.constData(), size);
    }
    if (size < 0)
        return fail(PackageFault::Damaged, path);
    source_->files[path] = std::move(file);
    return true;
}

double PackageReader::progress() const {
    const double read = static_cast<double>(archive_filter_bytes(source_->from, -1));
    return source_->size > 0 ? std::min(1.0, read / static_cast<double>(source_->size)) : 0;
}

Package PackageReader::package() {
    return result_.whole() ? checkedPackage(std::move(source_->files)) : std::move(result_);
}

} // namespace orvinel
