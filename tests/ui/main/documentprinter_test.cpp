// Printing goes to a PDF file here: the page objects in the file show how the lines were paged.
#include "document/configdocument.h"
#include "ui/main/documentprinter.h"

#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QStringList numberedLines(int count) {
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines.append(u"option_%1 wert_%1"_s.arg(i));
    return lines;
}

QByteArray readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// "/Type /Page" marks each page object; "/Type /Pages" is the page tree.
int pdfPageCount(const QByteArray& pdf) {
    static const QRegularExpression page(u"/Type\\s*/Page(?!s)"_s);
    return int(QString::fromLatin1(pdf).count(page));
}

class PdfPrinter {
public:
    explicit PdfPrinter(const QString& path) : m_path(path), m_printer(QPrinter::HighResolution) {
        m_printer.setOutputFormat(QPrinter::PdfFormat);
        m_printer.setOutputFileName(path);
        m_printer.setPageSize(QPageSize(QPageSize::A4));
        m_printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    }
    QPrinter& printer() { return m_printer; }
    QByteArray bytes() const { return readAll(m_path); }

private:
    QString m_path;
    QPrinter m_printer;
};

} // namespace

class DocumentPrinterTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_dir.isValid()); }

    void pagesHoldAsManyRowsAsFit_data() {
        // The document has fullPages * rowsPerPage + extraLines lines.
        QTest::addColumn<int>("fullPages");
        QTest::addColumn<int>("extraLines");
        QTest::addColumn<int>("pages");
        QTest::newRow("empty document") << 0 << 0 << 1;
        QTest::newRow("a few lines") << 0 << 5 << 1;
        QTest::newRow("exactly one page") << 1 << 0 << 1;
        QTest::newRow("one line more") << 1 << 1 << 2;
        QTest::newRow("two pages and one line") << 2 << 1 << 3;
    }

    void pagesHoldAsManyRowsAsFit() {
        QFETCH(int, fullPages);
        QFETCH(int, extraLines);
        QFETCH(int, pages);
        PdfPrinter pdf(m_dir.filePath(u"out.pdf"_s));
        const int rows = printLayoutFor(pdf.printer()).rowsPerPage;
        QVERIFY2(rows > 20 && rows < 200, qPrintable(QString::number(rows)));

        QCOMPARE(printLines(pdf.printer(), numberedLines(fullPages * rows + extraLines), u"config.pro"_s), pages);
        QCOMPARE(pdfPageCount(pdf.bytes()), pages);
    }

    void twoHundredLinesTakeSeveralPages() {
        ConfigDocument doc;
        doc.replaceAll(numberedLines(200));
        doc.setFileName(u"/home/cad/config.pro"_s);
        PdfPrinter pdf(m_dir.filePath(u"doc.pdf"_s));
        const int rows = printLayoutFor(pdf.printer()).rowsPerPage;

        const int pages = printDocument(pdf.printer(), doc);
        QCOMPARE(pages, (200 + rows - 1) / rows);
        QVERIFY(pages > 1);
        const QByteArray bytes = pdf.bytes();
        QCOMPARE(pdfPageCount(bytes), pages);
        // The print job, and so the PDF's title, carries the file name.
        QVERIFY(bytes.contains(titleBytes(u"config.pro"_s)));
    }

    void longLineWrapsButStaysBounded() {
        // A line wider than the page continues on the next rows instead of running off the
        // paper; a line of megabytes is cut, so it cannot fill thousands of pages.
        PdfPrinter shortPdf(m_dir.filePath(u"short.pdf"_s));
        const int rows = printLayoutFor(shortPdf.printer()).rowsPerPage;
        const QString wide = QString(PrintLayout::maxCharacters, u'x');
        const int widePages = printLines(shortPdf.printer(), {wide}, u"a.pro"_s);
        QVERIFY2(widePages > 1, "a line of 20000 characters fits on one page only if it is cut");
        QVERIFY(widePages < PrintLayout::maxCharacters / rows);

        PdfPrinter hugePdf(m_dir.filePath(u"huge.pdf"_s));
        const int hugePages = printLines(hugePdf.printer(), {QString(5'000'000, u'x')}, u"a.pro"_s);
        QCOMPARE(hugePages, widePages);
    }

private:
    static QByteArray titleBytes(const QString& text);

    QTemporaryDir m_dir;
};

// The PDF writer stores the title as UTF-16 big-endian text.
QByteArray DocumentPrinterTest::titleBytes(const QString& text) {
    QByteArray bytes;
    for (QChar c : text) {
        bytes.append(char(c.unicode() >> 8));
        bytes.append(char(c.unicode() & 0xff));
    }
    return bytes;
}

QTEST_MAIN(DocumentPrinterTest)
#include "documentprinter_test.moc"
