// The drawing checker reads the model name from any file (3 bytes, binary, no line end, a huge
// first line) without crashing, and the name it reads never holds the characters it drops.
#include "fuzzinput.h"

#include "cadfiles/drawingmodel.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QByteArrayView nameBytes = input.piece();
    QString name = fuzz::FuzzInput::text(nameBytes).remove(u'/').remove(QChar(0));
    if (name.isEmpty() || name == u"." || name == u"..")
        name = QStringLiteral("zeichnung");
    static const QString folder = QStringLiteral("/dev/shm/quenfor-fuzz-drw-%1").arg(getpid());
    static const bool made = QDir().mkpath(folder);
    if (!made)
        fuzz::fail("cannot make the drawing folder");
    const QString path = folder + u'/' + name.left(200) + QStringLiteral(".drw.1");
    const QByteArrayView bytes = input.rest();
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0; // a name the file system refuses
        file.write(bytes.data(), bytes.size());
    }
    const DrawingCheck check = checkDrawing(path);
    QFile::remove(path);
    for (const QChar c : check.modelName)
        if (QStringView(u"\r\n !<=>?@").contains(c))
            fuzz::fail("the model name holds a character that is dropped");
    if (check.matches && check.modelName != check.drawingName)
        fuzz::fail("a match between different names");
    if (drawingCheckStatusText(check).isEmpty())
        fuzz::fail("no status text");

    // The slice rule itself on any first line and any name lengths.
    const QString firstLine = fuzz::FuzzInput::text(bytes);
    const QString model =
        modelNameFromHeader(firstLine, qsizetype(nameBytes.size() % 300), qsizetype(bytes.size() % 300));
    if (model.size() > nameBytes.size() % 300 + 1)
        fuzz::fail("the model name is longer than its slice");
    return 0;
}
