// fuzz_readers --reader=NAME [--deep] [libFuzzer's options]: mutated bytes for the reader of one file, or of
// a backup ("tar", "zip"). With --deep the whole program starts on them, fills its lists and writes the
// player's files back.

#include "fuzz/HostileWorld.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

struct Task {
    const orvinel::HostileFile* file = nullptr; // none: an archive
    bool zip = false;
    bool deep = false;
};

Task& task() {
    static Task chosen;
    return chosen;
}

QString start(const QByteArray& bytes) {
    const auto [file, zip, deep] = task();
    if (!file)
        return (deep ? orvinel::restoreArchive : orvinel::readArchive)(zip ? orvinel::sealedZip(bytes)
                                                                           : bytes);
    if (deep)
        return orvinel::startWith(*file, bytes);
    orvinel::readAlone(*file, bytes);
    return {};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    const std::string option = "--reader=";
    std::string name;
    for (int i = 1; i < *argc; ++i) {
        const std::string word = (*argv)[i];
        task().deep = task().deep || word == "--deep";
        if (word.starts_with(option))
            name = word.substr(option.size());
    }
    for (const orvinel::HostileFile& file : orvinel::hostileFiles())
        if (name == file.reader)
            task().file = &file;
    task().zip = name == "zip";
    if (!task().file && !task().zip && name != "tar") {
        std::fprintf(stderr, "no reader \"%s\"\n", name.c_str());
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString broken =
        start(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!broken.isEmpty()) {
        std::fprintf(stderr, "%s\n", broken.toUtf8().constData());
        std::abort();
    }
    return 0;
}
