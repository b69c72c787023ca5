// The knowledge base lookup on any file (binary data, CR-only lines, a missing last line end)
// and any option name: every block it returns has six lines, and a name that was found is where
// the block says.
#include "fuzzinput.h"

#include "knowledge/knowledgebase.h"

#include <QFile>

#include <unistd.h>

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QString optionName = fuzz::FuzzInput::text(input.piece());
    // The lookup reads a file; memory-backed /dev/shm keeps that fast.
    static const QString path = QStringLiteral("/dev/shm/quenfor-fuzz-kb-%1.txt").arg(getpid());
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            fuzz::fail("cannot write the knowledge base file");
        const QByteArrayView bytes = input.rest();
        file.write(bytes.data(), bytes.size());
    }
    const KnowledgeLookup lookup = lookupKnowledgeBase(path, optionName);
    if (!lookup.fileFound)
        fuzz::fail("an existing knowledge base was not found");
    for (const QStringList& block : lookup.blocks) {
        if (block.size() != 6)
            fuzz::fail("a block without six lines");
        if (!block.first().startsWith(optionName))
            fuzz::fail("a block that does not begin with the option name");
    }
    const QString name = optionNameOf(optionName);
    if (name.contains(u' ') || name.contains(u"  "))
        fuzz::fail("an option name with a blank");
    return 0;
}
