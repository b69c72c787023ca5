#include "ui/main/documentprinter.h"

#include "document/configdocument.h"
#include "ui/widgets/dialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kTabWidth = 8;
constexpr qreal kPointSize = 9.0;

QString tr(const char* text) {
    return QCoreApplication::translate("quenfor::DocumentPrinter", text);
}

QFont printFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kPointSize);
    return font;
}

// Tabs advance to the next multiple of eight columns, as in the editors the files come from; a
// painter would draw them as nothing.
QString expandTabs(const QString& line) {
    if (!line.contains(u'\t'))
        return line;
    QString out;
    out.reserve(line.size() + kTabWidth);
    for (QChar c : line) {
        if (c == u'\t')
            out.append(QString(kTabWidth - out.size() % kTabWidth, u' '));
        else
            out.append(c);
    }
    return out;
}

QString printableText(const QString& line) {
    if (line.size() > PrintLayout::maxCharacters)
        return expandTabs(line.left(PrintLayout::maxCharacters)) + u'…';
    return expandTabs(line);
}

// The geometry of one device's pages, in device pixels.
struct Geometry {
    QFont font;
    qreal width = 0;
    qreal height = 0;
    qreal rowHeight = 0;
    qreal ascent = 0;
    qreal headerHeight = 0;
    int rowsPerPage = 1;
};

Geometry geometryFor(QPagedPaintDevice& device) {
    Geometry g;
    g.font = printFont();
    const QFontMetricsF metrics(g.font, &device);
    g.width = device.width();
    g.height = device.height();
    g.rowHeight = metrics.lineSpacing();
    g.ascent = metrics.ascent();
    g.headerHeight = 2 * g.rowHeight; // title row, rule and one empty row
    g.rowsPerPage = qMax(1, int(std::floor((g.height - g.headerHeight) / g.rowHeight)));
    return g;
}

// The pieces of one line as printed rows; a line that fits is one piece.
class RowBreaker {
public:
    RowBreaker(const Geometry& g, QPaintDevice* device) : m_geometry(g), m_metrics(g.font, device), m_device(device) {}

    QStringList rows(const QString& line) const {
        const QString text = printableText(line);
        if (m_metrics.horizontalAdvance(text) <= m_geometry.width)
            return {text};
        QTextLayout layout(text, m_geometry.font, m_device);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        QStringList pieces;
        layout.beginLayout();
        for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
            row.setLineWidth(m_geometry.width);
            pieces.append(text.mid(row.textStart(), row.textLength()));
        }
        layout.endLayout();
        return pieces;
    }

    int rowCount(const QString& line) const { return int(rows(line).size()); }

private:
    const Geometry& m_geometry;
    QFontMetricsF m_metrics;
    QPaintDevice* m_device;
};

void drawHeader(QPainter& painter, const Geometry& g, const QString& title, int page, int pages) {
    const QFontMetricsF metrics(g.font, painter.device());
    const QString pageText = tr("Seite %1 von %2").arg(page).arg(pages);
    const qreal pageWidth = metrics.horizontalAdvance(pageText);
    const qreal titleWidth = qMax<qreal>(0, g.width - pageWidth - metrics.horizontalAdvance(u"    "_s));
    painter.drawText(QPointF(0, g.ascent), metrics.elidedText(title, Qt::ElideMiddle, titleWidth));
    painter.drawText(QPointF(g.width - pageWidth, g.ascent), pageText);
    const qreal ruleY = g.rowHeight * 1.25;
    painter.drawLine(QPointF(0, ruleY), QPointF(g.width, ruleY));
}

} // namespace

PrintLayout printLayoutFor(QPagedPaintDevice& device) {
    PrintLayout layout;
    layout.rowsPerPage = geometryFor(device).rowsPerPage;
    return layout;
}

int printLines(QPagedPaintDevice& device, const QStringList& lines, const QString& title) {
    const Geometry g = geometryFor(device);
    const RowBreaker breaker(g, &device);

    // First pass only counts rows, for "von m"; the second breaks the lines again as it draws,
    // so a large document is never held twice.
    qint64 totalRows = 0;
    for (const QString& line : lines)
        totalRows += breaker.rowCount(line);
    const int pages = qMax<int>(1, int((totalRows + g.rowsPerPage - 1) / g.rowsPerPage));

    QPainter painter;
    if (!painter.begin(&device))
        return 0;
    painter.setFont(g.font);
    painter.setClipRect(QRectF(0, 0, g.width, g.height));

    int page = 1;
    int row = 0;
    drawHeader(painter, g, title, page, pages);
    for (const QString& line : lines) {
        for (const QString& piece : breaker.rows(line)) {
            if (row == g.rowsPerPage) {
                if (!device.newPage())
                    return 0;
                ++page;
                row = 0;
                drawHeader(painter, g, title, page, pages);
            }
            painter.drawText(QPointF(0, g.headerHeight + row * g.rowHeight + g.ascent), piece);
            ++row;
        }
    }
    painter.end();
    return page;
}

int printDocument(QPrinter& printer, const ConfigDocument& document) {
    const QString title =
        document.fileName().isEmpty() ? tr("(ohne Dateinamen)") : QDir::toNativeSeparators(document.fileName());
    printer.setDocName(title);
    return printLines(printer, document.lines(), title);
}

bool printLinesOnDefaultPrinter(QWidget* parent, const QStringList& lines, const QString& title) {
    const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
    if (standard.isNull()) {
        Dialogs::information(parent, tr("Es ist kein Standarddrucker eingerichtet."));
        return false;
    }
    QPrinter printer(standard, QPrinter::HighResolution);
    printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    printer.setDocName(title);
    if (printLines(printer, lines, title) == 0) {
        Dialogs::information(parent, tr("Der Drucker konnte nicht angesprochen werden."));
        return false;
    }
    return true;
}

bool printDocumentWithDialog(QWidget* parent, const ConfigDocument& document) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(tr("Drucken"));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (printDocument(printer, document) == 0) {
        Dialogs::information(parent, tr("Der Drucker konnte nicht angesprochen werden."));
        return false;
    }
    return true;
}

} // namespace quenfor
