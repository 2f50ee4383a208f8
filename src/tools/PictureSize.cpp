#include "tools/PictureSize.h"

namespace orvinel {

namespace {

int byteAt(const QByteArray& bytes, qsizetype at) {
    return static_cast<unsigned char>(bytes[at]);
}

int wordAt(const QByteArray& bytes, qsizetype at) {
    return byteAt(bytes, at) * 256 + byteAt(bytes, at + 1);
}

// The markers that begin a frame: C0 to CF without those of tables (C4, C8, CC).
bool beginsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

} // namespace

QSize jpegSize(const QByteArray& bytes) {
    if (!bytes.startsWith("\xFF\xD8"))
        return {};
    for (qsizetype at = 2; at + 9 <= bytes.size() && byteAt(bytes, at) == 0xFF;) {
        const int marker = byteAt(bytes, at + 1);
        if (beginsFrame(marker))
            return {wordAt(bytes, at + 7), wordAt(bytes, at + 5)};
        at += marker == 0xFF ? 1 : 2 + wordAt(bytes, at + 2);
    }
    return {};
}

} // namespace orvinel
