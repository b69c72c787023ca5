// The picture viewer's loader on any file of every accepted type: it shows the picture or one of
// its German failure texts, and never crashes on a broken header or truncated data.
#include "fuzzinput.h"

#include "desktools/pictureloader.h"
#include "ui/desktools/qtpicturedecoder.h"

#include <QFile>
#include <QGuiApplication>

#include <unistd.h>

using namespace quenfor;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* const types[] = {".bmp", ".dib", ".ico", ".cur",  ".gif",
                                        ".png", ".tif", ".jpg", ".jpeg", ".jfif"};
    fuzz::FuzzInput input(data, size);
    const uint8_t choice = input.byte();
    const QString path =
        QStringLiteral("/dev/shm/quenfor-fuzz-pic-%1%2").arg(getpid()).arg(QLatin1StringView(types[choice % 10]));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            fuzz::fail("cannot write the picture file");
        const QByteArrayView bytes = input.rest();
        file.write(bytes.data(), bytes.size());
    }
    QtPictureDecoder decoder;
    const QString error = loadPicture(path, choice & 0x80, decoder);
    QFile::remove(path);
    if (error.isEmpty() && decoder.picture().isNull())
        fuzz::fail("a load without error but without a picture");
    return 0;
}
