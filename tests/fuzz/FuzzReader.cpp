// fuzz_readers --reader=NAME [libFuzzer's options]: mutated bytes in place of one file of a small world, or
// of a backup archive ("archive").

#include "fuzz/HostileWorld.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

const orvinel::HostileFile*& chosen() {
    static const orvinel::HostileFile* file = nullptr;
    return file;
}

// Loading finds most, and fast; the same inputs are always looked at more closely.
QString start(const QByteArray& bytes) {
    constexpr unsigned oneIn = 8;
    if (qChecksum(bytes) % oneIn == 0)
        return orvinel::startWith(*chosen(), bytes);
    orvinel::loadWith(*chosen(), bytes);
    return {};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    const std::string option = "--reader=";
    std::string name;
    for (int i = 1; i < *argc; ++i)
        if (const std::string word = (*argv)[i]; word.starts_with(option))
            name = word.substr(option.size());
    for (const orvinel::HostileFile& file : orvinel::hostileFiles())
        if (name == file.reader)
            chosen() = &file;
    if (!chosen() && name != "archive") {
        std::fprintf(stderr, "no reader \"%s\"\n", name.c_str());
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString broken = chosen() ? start(bytes) : orvinel::readArchive(bytes);
    if (!broken.isEmpty()) {
        std::fprintf(stderr, "%s\n", broken.toUtf8().constData());
        std::abort();
    }
    return 0;
}
