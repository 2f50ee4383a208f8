#include "tools/ZipArchive.h"

#include "base/Disk.h"

#include <QCryptographicHash>

#include <archive.h>
#include <archive_entry.h>

#include <memory>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype commentLengthSize = 2; // ends the archive, little-endian, before the comment itself
const QByteArray commentStart = QByteArrayLiteral("Orvinel SHA-256 ");

using Writer = std::unique_ptr<archive, decltype(&archive_write_free)>;
using Reader = std::unique_ptr<archive, decltype(&archive_read_free)>;
using Entry = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;

la_ssize_t append(archive*, void* target, const void* bytes, size_t size) {
    static_cast<QByteArray*>(target)->append(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
    return static_cast<la_ssize_t>(size);
}

// A warning is about a name that the system's locale cannot say; the names are compared with the check sums.
bool worked(int result) {
    return result == ARCHIVE_OK || result == ARCHIVE_WARN;
}

QByteArray commentOf(QByteArrayView archive) {
    return commentStart + QCryptographicHash::hash(archive, QCryptographicHash::Sha256).toHex();
}

// Names are bytes of UTF-8 whatever the locale.
bool writeFile(archive* to, const ArchivedFile& file, const QDateTime& written) {
    const Entry entry(archive_entry_new(), &archive_entry_free);
    archive_entry_set_pathname(entry.get(), file.name.toUtf8().constData());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0644);
    archive_entry_set_size(entry.get(), file.bytes.size());
    archive_entry_set_mtime(entry.get(), written.toSecsSinceEpoch(), 0);
    return worked(archive_write_header(to, entry.get())) &&
           archive_write_data(to, file.bytes.constData(), static_cast<size_t>(file.bytes.size())) ==
               file.bytes.size();
}

// Without the comment; the reason when that is not what it says.
QString checkComment(QByteArrayView& bytes) {
    const qsizetype comment = commentStart.size() + 64;
    if (bytes.size() <= comment + commentLengthSize || !bytes.last(comment).startsWith(commentStart))
        return u"it is cut off, damaged or not made by orvinel-backup"_s;
    const QByteArrayView told = bytes.last(comment);
    const QByteArrayView length = bytes.sliced(bytes.size() - comment - commentLengthSize, commentLengthSize);
    bytes.chop(comment + commentLengthSize);
    if (length[0] != static_cast<char>(comment) || length[1] != '\0' || told != commentOf(bytes))
        return u"it is damaged"_s;
    return {};
}

QString readFile(archive* from, archive_entry* entry, ArchiveContent& content, qint64& room) {
    const char* name = archive_entry_pathname_utf8(entry);
    if (!name) // another locale, in which the bytes were left as they are
        name = archive_entry_pathname(entry);
    if (!name || (archive_entry_filetype(entry) != AE_IFREG && archive_entry_filetype(entry) != AE_IFDIR))
        return u"something in it is not a plain file"_s;
    if (archive_entry_filetype(entry) == AE_IFDIR)
        return {};
    ArchivedFile file{QString::fromUtf8(name), {}};
    QByteArray part(64 * 1024, '\0');
    la_ssize_t size = 0;
    while ((size = archive_read_data(from, part.data(), static_cast<size_t>(part.size()))) > 0) {
        room -= size;
        if (room < 0)
            return u"it is larger than 64 MB"_s;
        file.bytes.append(part.constData(), size);
    }
    if (size < 0)
        return u"%1 cannot be read from it"_s.arg(file.name);
    content.files.push_back(std::move(file));
    return {};
}

} // namespace

QByteArray writeZip(const std::vector<ArchivedFile>& files, const QDateTime& written) {
    QByteArray bytes;
    const Writer to(archive_write_new(), &archive_write_free);
    bool good = worked(archive_write_set_format_zip(to.get())) &&
                worked(archive_write_set_bytes_in_last_block(to.get(), 1)) &&
                worked(archive_write_open(to.get(), &bytes, nullptr, append, nullptr));
    for (const ArchivedFile& file : files)
        good = good && writeFile(to.get(), file, written);
    good = worked(archive_write_close(to.get())) && good;
    if (!good || bytes.size() < commentLengthSize || !bytes.endsWith(QByteArray(commentLengthSize, '\0')))
        return {};
    bytes.chop(commentLengthSize);
    const QByteArray comment = commentOf(bytes);
    return bytes + static_cast<char>(comment.size()) + '\0' + comment;
}

ArchiveContent readZip(const QByteArray& bytes) {
    ArchiveContent content;
    QByteArrayView checked = bytes;
    content.problem = checkComment(checked);
    if (!content.problem.isEmpty())
        return content;
    const Reader from(archive_read_new(), &archive_read_free);
    archive_read_support_format_zip_seekable(from.get());
    qint64 room = largestDataFile;
    int result = archive_read_open_memory(from.get(), bytes.constData(), static_cast<size_t>(bytes.size()));
    archive_entry* entry = nullptr;
    while (worked(result) && content.problem.isEmpty() &&
           worked(result = archive_read_next_header(from.get(), &entry)))
        content.problem = readFile(from.get(), entry, content, room);
    if (content.problem.isEmpty() && result != ARCHIVE_EOF)
        content.problem = u"it cannot be read: %1"_s.arg(QString::fromUtf8(archive_error_string(from.get())));
    if (!content.problem.isEmpty())
        content.files.clear();
    return content;
}

} // namespace orvinel
