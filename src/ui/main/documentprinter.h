#pragma once

#include <QString>
#include <QStringList>

class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace quenfor {

class ConfigDocument;

// How the lines go onto the pages of a device: rows of one fixed-pitch font below a header.
struct PrintLayout {
    int rowsPerPage = 0;
    // Lines longer than this are printed up to here and end in "…": a line of megabytes would
    // otherwise fill thousands of pages.
    static constexpr qsizetype maxCharacters = 20000;
};

PrintLayout printLayoutFor(QPagedPaintDevice& device);

// Prints one line a row, a line wider than the page wrapped onto the next rows, so nothing is
// drawn beyond the page. Each page starts with `title` and "Seite n von m". Returns the number
// of pages printed, 0 when the device cannot be painted on. An empty list prints one page.
int printLines(QPagedPaintDevice& device, const QStringList& lines, const QString& title);

// Prints the document with its file name as the title of the pages and of the print job.
int printDocument(QPrinter& printer, const ConfigDocument& document);

// Prints the lines on the default printer without asking which (the caller has asked whether to
// print at all). False when there is no printer or it failed (the user has then been told).
bool printLinesOnDefaultPrinter(QWidget* parent, const QStringList& lines, const QString& title);

// Asks for a printer with the system's print dialog and prints the document. False when the
// user cancelled or the printer failed (the user has then been told).
bool printDocumentWithDialog(QWidget* parent, const ConfigDocument& document);

} // namespace quenfor
