#include "document/lineediting.h"

#include "document/clipboard.h"
#include "document/configdocument.h"
#include "document/linesplit.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The end step of append and paste: the last line is shown, marked and the only one selected.
void focusLastLine(ConfigDocument& doc) {
    if (doc.isEmpty())
        return;
    const int last = doc.count() - 1;
    doc.selectOnly(last);
    doc.setMarked(last);
    emit doc.scrollRequested(last);
}

} // namespace

QString appendEntryLine(ConfigDocument& doc, const QString& entry) {
    doc.appendLine(entry);
    focusLastLine(doc);
    return u"an Liste angehängt"_s;
}

QString insertEntryLine(ConfigDocument& doc, const QString& entry) {
    const int n = doc.marked();
    if (n < 0 || !doc.isSelected(n))
        return appendEntryLine(doc, entry);
    if (doc.line(n).isEmpty()) {
        doc.setLine(n, entry);
        return u"Eintrag in Liste eingefügt"_s;
    }
    // The new line takes the marked place and keeps the mark; the old line moves down unselected.
    doc.insertLine(n, entry);
    doc.setSelected(n + 1, false);
    doc.setSelected(n, true);
    doc.setMarked(n);
    return u"Eintrag in Liste eingefügt"_s;
}

QString enterEntryLine(ConfigDocument& doc, const QString& entry) {
    if (entry.isEmpty())
        return {};
    deleteSelectedLines(doc);
    return insertEntryLine(doc, entry);
}

QString insertCommentLine(ConfigDocument& doc) {
    return insertEntryLine(doc, u"! "_s);
}

QString deleteSelectedLines(ConfigDocument& doc) {
    for (int row : doc.selectedRows()) {
        if (!doc.line(row).isEmpty())
            doc.setLine(row, QString());
    }
    return u"löschen..."_s;
}

void deleteAllLines(ConfigDocument& doc) {
    doc.clear();
}

void moveMarkedLineUp(ConfigDocument& doc) {
    const int n = doc.marked();
    if (n < 0)
        return;
    if (n > 0) {
        doc.swapLines(n, n - 1);
        doc.setMarked(n - 1);
    }
    doc.selectOnly(doc.marked());
}

void moveMarkedLineToTop(ConfigDocument& doc) {
    const int n = doc.marked();
    if (n < 0)
        return;
    doc.moveLine(n, 0);
    doc.setMarked(0);
    doc.selectOnly(0);
}

QString copySelectedLines(ConfigDocument& doc, Clipboard& clipboard) {
    QString text;
    for (int row : doc.selectedRows()) {
        text += doc.line(row);
        text += u"\r\n";
    }
    clipboard.setText(text);
    return u"in Zwischenablage..."_s;
}

QString cutSelectedLines(ConfigDocument& doc, Clipboard& clipboard) {
    copySelectedLines(doc, clipboard);
    deleteSelectedLines(doc);
    return u"ausschneiden..."_s;
}

QString pasteLines(ConfigDocument& doc, const Clipboard& clipboard) {
    doc.appendLines(splitLines(clipboard.text()));
    focusLastLine(doc);
    return u"Zwischenablage eingefügt"_s;
}

} // namespace quenfor
