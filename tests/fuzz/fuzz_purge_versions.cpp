// The grouped purge analysis gives exactly what the literal pairwise comparison gives, for any
// file names: versions with letters, huge numbers, names without dots, names that differ in case.
#include "fuzzinput.h"

#include "../cadfiles/purgeoracle.h"
#include "cadfiles/purgeanalysis.h"

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const uint8_t choice = input.byte();
    // Folders with and without a closing separator: the version must be read whole in both.
    const QString folder = choice & 1 ? QStringLiteral("/") : QStringLiteral("/cad/teile");
    QStringList names;
    for (const QString& line : input.lines(40))
        if (!line.isEmpty() && !line.contains(u'/'))
            names.append(line);
    names.removeDuplicates(); // a folder holds each name once
    sortLikeFileList(names);
    if (purgeCandidates(folder, names) != testing::literalPurgeAnalysis(folder, names))
        fuzz::fail("the grouped purge analysis differs from the pairwise comparison");
    for (const QString& name : names)
        if (purgeKey(name).isNull())
            fuzz::fail("a null object key");
    return 0;
}
