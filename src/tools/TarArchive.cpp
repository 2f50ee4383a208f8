#include "tools/TarArchive.h"

#include <algorithm>
#include <cstring>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype blockSize = 512;
constexpr qsizetype longestName = 100;
constexpr qsizetype longestPrefix = 155;

// Where the fields of a header begin, and how long they are.
struct Field {
    qsizetype at;
    qsizetype size;
};
constexpr Field nameField{0, 100};
constexpr Field modeField{100, 8};
constexpr Field ownerField{108, 8};
constexpr Field groupField{116, 8};
constexpr Field sizeField{124, 12};
constexpr Field timeField{136, 12};
constexpr Field checksumField{148, 8};
constexpr Field kindField{156, 1};
constexpr Field magicField{257, 8};
constexpr Field prefixField{345, 155};
const QByteArray magic = QByteArrayLiteral("ustar\00000"); // with its version

void put(QByteArray& header, Field field, const QByteArray& value) {
    header.replace(field.at, value.size(), value);
}

// Octal digits that fill the field but for the NUL at its end.
void putNumber(QByteArray& header, Field field, qint64 value) {
    put(header, field, QByteArray::number(value, 8).rightJustified(field.size - 1, '0'));
}

int checksum(QByteArray header) {
    put(header, checksumField, QByteArray(checksumField.size, ' '));
    int sum = 0;
    for (const char byte : header)
        sum += static_cast<unsigned char>(byte);
    return sum;
}

// The end of the prefix inside a name that is too long for its field; 0: no prefix is needed; -1: none fits.
qsizetype prefixEnd(const QByteArray& name) {
    if (name.size() <= longestName)
        return 0;
    const qsizetype slash = name.indexOf('/', name.size() - longestName - 1);
    return slash > 0 && slash <= longestPrefix && slash + 1 < name.size() ? slash : -1;
}

std::optional<QByteArray> headerOf(const ArchivedFile& file, const QDateTime& written) {
    const QByteArray name = file.name.toUtf8();
    const qsizetype split = prefixEnd(name);
    if (name.isEmpty() || split < 0)
        return std::nullopt;
    QByteArray header(blockSize, '\0');
    put(header, nameField, split > 0 ? name.sliced(split + 1) : name);
    put(header, prefixField, name.first(split));
    putNumber(header, modeField, 0644);
    putNumber(header, ownerField, 0);
    putNumber(header, groupField, 0);
    putNumber(header, sizeField, file.bytes.size());
    putNumber(header, timeField, std::max<qint64>(0, written.toSecsSinceEpoch()));
    put(header, kindField, "0");
    put(header, magicField, magic);
    put(header, checksumField, QByteArray::number(checksum(header), 8).rightJustified(6, '0') + '\0' + ' ');
    return header;
}

QByteArray textOf(QByteArrayView header, Field field) {
    const QByteArrayView all = header.sliced(field.at, field.size);
    const qsizetype end = all.indexOf('\0');
    return (end < 0 ? all : all.first(end)).toByteArray();
}

std::optional<qint64> numberOf(QByteArrayView header, Field field) {
    bool ok = false;
    const qint64 value = textOf(header, field).trimmed().toLongLong(&ok, 8);
    return ok && value >= 0 ? std::optional(value) : std::nullopt;
}

qsizetype padding(qsizetype size) {
    return (blockSize - size % blockSize) % blockSize;
}

// Reads the entry at `at` and moves behind it; the reason when it cannot be used.
QString readEntry(const QByteArray& bytes, qsizetype& at, ArchiveContent& content) {
    const QByteArrayView header = QByteArrayView(bytes).sliced(at, blockSize);
    const auto size = numberOf(header, sizeField);
    if (numberOf(header, checksumField) != checksum(header.toByteArray()))
        return u"a header is damaged"_s;
    if (header.sliced(magicField.at, magicField.size) != magic || !size)
        return u"it is not a ustar archive"_s;
    const QByteArray prefix = textOf(header, prefixField);
    const QString name =
        QString::fromUtf8((prefix.isEmpty() ? prefix : prefix + '/') + textOf(header, nameField));
    const char kind = header[kindField.at];
    if (kind != '0' && kind != '\0' && kind != '5')
        return u"%1 is not a plain file"_s.arg(name);
    at += blockSize;
    if (*size > bytes.size() - at)
        return u"it ends inside %1"_s.arg(name);
    if (kind != '5')
        content.files.push_back({name, bytes.sliced(at, *size)});
    at += *size + padding(*size);
    return {};
}

} // namespace

std::optional<QByteArray> writeTar(const std::vector<ArchivedFile>& files, const QDateTime& written) {
    QByteArray archive;
    for (const ArchivedFile& file : files) {
        const auto header = headerOf(file, written);
        if (!header)
            return std::nullopt;
        archive += *header + file.bytes + QByteArray(padding(file.bytes.size()), '\0');
    }
    return archive + QByteArray(2 * blockSize, '\0');
}

ArchiveContent readTar(const QByteArray& bytes) {
    const QByteArray zeros(blockSize, '\0');
    ArchiveContent content;
    qsizetype at = 0;
    while (content.problem.isEmpty()) {
        if (bytes.size() - at < blockSize)
            content.problem = u"it ends too early"_s;
        else if (QByteArrayView(bytes).sliced(at, blockSize) == zeros)
            return content;
        else
            content.problem = readEntry(bytes, at, content);
    }
    content.files.clear();
    return content;
}

} // namespace orvinel
