// The picture loader with Qt's image readers on real small pictures made here, and on broken ones.
#include "desktools/pictureloader.h"
#include "ui/desktools/qtpicturedecoder.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// A 1 x 1 GIF written out byte by byte: Qt reads GIF but cannot write it.
// Header, size, colour table (black, white), transparency, image block, pixel data, trailer.
const QByteArray kOnePixelGif = QByteArray::fromHex("474946383961"
                                                    "01000100800000"
                                                    "000000ffffff"
                                                    "21f9040100000000"
                                                    "2c000000000100010000"
                                                    "0202440100"
                                                    "3b");

QImage testImage() {
    QImage image(24, 16, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    return image;
}

QByteArray encoded(const QByteArray& format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    return writer.write(testImage()) ? bytes : QByteArray();
}

} // namespace

class PictureLoaderTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString& name, const QByteArray& bytes) {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write(bytes);
        return path;
    }

    static QString load(const QString& name, QtPictureDecoder& decoder) { return loadPicture(name, false, decoder); }

private slots:
    void readsEveryTypeQtCanMake_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QSize>("size");
        const QSize made(24, 16);
        QTest::newRow("bmp") << u"bild.bmp"_s << QByteArray("bmp") << made;
        QTest::newRow("dib") << u"bild.dib"_s << QByteArray("bmp") << made;
        QTest::newRow("rle") << u"bild.RLE"_s << QByteArray("bmp") << made;
        QTest::newRow("ico") << u"bild.ico"_s << QByteArray("ico") << made;
        QTest::newRow("cur") << u"bild.cur"_s << QByteArray("cur") << made;
        QTest::newRow("png") << u"bild.png"_s << QByteArray("png") << made;
        QTest::newRow("jpg") << u"bild.jpg"_s << QByteArray("jpeg") << made;
        QTest::newRow("jpe") << u"bild.jpe"_s << QByteArray("jpeg") << made;
        QTest::newRow("jpeg") << u"bild.JPEG"_s << QByteArray("jpeg") << made;
        QTest::newRow("jfif") << u"bild.jfif"_s << QByteArray("jpeg") << made;
        QTest::newRow("tif") << u"bild.tif"_s << QByteArray("tiff") << made;
        QTest::newRow("tiff") << u"bild.tiff"_s << QByteArray("tiff") << made;
        QTest::newRow("gif") << u"bild.gif"_s << QByteArray("gif") << QSize(1, 1);
    }

    void readsEveryTypeQtCanMake() {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QFETCH(QSize, size);
        const QByteArray bytes = format == "gif" ? kOnePixelGif : encoded(format);
        if (bytes.isEmpty())
            QSKIP(qPrintable(u"Qt kann hier kein %1 schreiben"_s.arg(QString::fromLatin1(format))));
        QtPictureDecoder decoder;
        QCOMPARE(load(write(name, bytes), decoder), QString());
        QCOMPARE(decoder.picture().size(), size);
    }

    void tenBytesReachTheReaderNineDoNot() {
        QtPictureDecoder decoder;
        QCOMPARE(load(write(u"neun.bmp"_s, "BM1234567"), decoder), u"Leere Datei"_s);
        QCOMPARE(load(write(u"zehn.bmp"_s, "BM12345678"), decoder), u"Laden des Bildes scheitert (Loadpicture)"_s);
        QVERIFY(decoder.picture().isNull());
    }

    void shortNamesAreRefused() {
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_dir.path()));
        write(u"a.png"_s, encoded("png"));
        QtPictureDecoder decoder;
        QCOMPARE(load(u"a.pn"_s, decoder), u"Ungeeigneter Dateiname"_s);
        QCOMPARE(load(u"a.png"_s, decoder), QString());
        QDir::setCurrent(previous);
    }

    void brokenFilesSayWhichStepFailed() {
        QtPictureDecoder decoder;
        QCOMPARE(load(write(u"kaputt.png"_s, QByteArray(100, 'x')), decoder),
                 u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\nunbekanntes Bildformat"_s);
        // The header is sound, the pixels are cut off.
        QCOMPARE(load(write(u"halb.png"_s, encoded("png").left(40)), decoder),
                 u"Bitmap-Handle kann nicht erzeugt werden\r\nUngeeigneter Parameter"_s);
        QCOMPARE(load(write(u"bild.wmf"_s, QByteArray(64, '\0')), decoder),
                 u"Laden des Bildes scheitert (Loadpicture)"_s);
        QCOMPARE(load(write(u"bild.txt"_s, encoded("png")), decoder), u"Bildformat wird nicht unterstützt"_s);
        QVERIFY(decoder.picture().isNull());
    }

    void contentDecidesOverTheName() {
        // A PNG saved as .jpg is still shown: the readers look at the content.
        QtPictureDecoder decoder;
        QCOMPARE(load(write(u"falsch.jpg"_s, encoded("png")), decoder), QString());
        QCOMPARE(decoder.picture().size(), QSize(24, 16));
    }

    void unreadableFileIsAccessDenied() {
        const QString path = write(u"gesperrt.png"_s, encoded("png"));
        QFile::setPermissions(path, QFileDevice::Permissions());
        QFile probe(path);
        if (probe.open(QIODevice::ReadOnly))
            QSKIP("Dieser Benutzer liest auch gesperrte Dateien (root).");
        QtPictureDecoder decoder;
        QCOMPARE(load(path, decoder), u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\nZugriff verweigert"_s);
    }

    void emptyNameTakesTheClipboard() {
        QApplication::clipboard()->setText(u"nur Text"_s);
        QtPictureDecoder decoder;
        QCOMPARE(load(QString(), decoder), u"Die Zwischenablage enthält kein Bild."_s);
        QApplication::clipboard()->setImage(testImage());
        QCOMPARE(load(u"  "_s, decoder), QString());
        QCOMPARE(decoder.picture().size(), QSize(24, 16));
    }
};

QTEST_MAIN(PictureLoaderTest)

#include "pictureloader_test.moc"
