// A long random session of line editing and clean-up through the list model. After every step
// the document must equal a plain list that applies the same rules in the most literal way, and
// the model must stay a valid Qt model that shows exactly the document's lines.
#include "../../document/testsupport.h"
#include "document/cleanuptools.h"
#include "document/configdocument.h"
#include "document/lineediting.h"
#include "ui/main/documentlistmodel.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QRandomGenerator>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

using test::FakeClipboard;

// The reference: lines, a flag per line for the selection and the marked row, changed by loops
// that follow the rules word for word.
struct Reference {
    QStringList lines;
    std::vector<bool> selected;
    int marked = -1;
    QString clipboard;

    void selectOnly(int row) {
        selected.assign(lines.size(), false);
        selected[size_t(row)] = true;
    }
    void rebuild(const QStringList& newLines) {
        lines = newLines;
        selected.assign(lines.size(), false);
        marked = -1;
    }
    void append(const QString& entry) {
        lines.append(entry);
        selected.push_back(false);
        marked = int(lines.size()) - 1;
        selectOnly(marked);
    }
    void insert(const QString& entry) {
        const int n = marked;
        if (n < 0 || !selected[size_t(n)]) {
            append(entry);
            return;
        }
        if (lines[n].isEmpty()) {
            lines[n] = entry;
            return;
        }
        // Copy the lines from n on, put the entry at n and write the copies back one further down.
        const QStringList moved = lines.mid(n);
        lines[n] = entry;
        for (int k = 0; k < moved.size(); ++k) {
            if (n + 1 + k < lines.size())
                lines[n + 1 + k] = moved[k];
            else
                lines.append(moved[k]);
        }
        selected.insert(selected.begin() + n, true);
        selected[size_t(n) + 1] = false;
    }
    void deleteSelected() {
        for (int i = 0; i < lines.size(); ++i)
            if (selected[size_t(i)])
                lines[i].clear();
    }
    void copy() {
        clipboard.clear();
        for (int i = 0; i < lines.size(); ++i)
            if (selected[size_t(i)])
                clipboard += lines[i] + u"\r\n"_s;
    }
    void paste() {
        // CR LF or a lone CR ends a line; LF is an ordinary character.
        QString current;
        bool open = false;
        for (int i = 0; i < clipboard.size(); ++i) {
            if (clipboard[i] == u'\r') {
                lines.append(current);
                selected.push_back(false);
                current.clear();
                open = false;
                if (i + 1 < clipboard.size() && clipboard[i + 1] == u'\n')
                    ++i;
            } else {
                current += clipboard[i];
                open = true;
            }
        }
        if (open) {
            lines.append(current);
            selected.push_back(false);
        }
        if (!lines.isEmpty()) {
            marked = int(lines.size()) - 1;
            selectOnly(marked);
        }
    }
    void moveUp() {
        if (marked < 0)
            return;
        if (marked > 0) {
            lines.swapItemsAt(marked, marked - 1);
            --marked;
        }
        selectOnly(marked);
    }
    void moveToTop() {
        if (marked < 0)
            return;
        for (int i = marked; i > 0; --i)
            lines.swapItemsAt(i, i - 1);
        marked = 0;
        selectOnly(0);
    }
};

class DocumentSoakTest : public QObject {
    Q_OBJECT

private slots:
    void randomSessionKeepsDocumentAndModelInStep();

private:
    QString randomLine();
    void step(ConfigDocument& doc, Reference& ref, FakeClipboard& clipboard);
    void compare(const ConfigDocument& doc, const Reference& ref, const DocumentListModel& model, int stepNumber);

    QRandomGenerator m_random;
};

QString DocumentSoakTest::randomLine() {
    // Few distinct texts, so duplicates, blank runs and mapkeys meet often.
    static const QStringList pool = {
        u""_s,
        u"   "_s,
        u"display shade"_s,
        u"DISPLAY  Shade"_s,
        u"! Kommentar"_s,
        u"mapkey $F2 @MAPKEY_LABELtest;\\"_s,
        u"mapkey(continued) ~ Command `ProCmdModelSave`;"_s,
        u"search_path C:\\daten\\teile"_s,
        u"browser_favorite Projekt C:\\projekt"_s,
        u"Ölpumpe  mit   Blanks"_s,
        u"line\nwith lone LF"_s,
        u"zeta_option yes"_s,
        u"alpha_option no"_s,
    };
    return pool[int(m_random.bounded(pool.size()))];
}

void DocumentSoakTest::step(ConfigDocument& doc, Reference& ref, FakeClipboard& clipboard) {
    const int rows = doc.count();
    const auto anyRow = [&] { return int(m_random.bounded(rows)); };
    const int choice = int(m_random.bounded(100));
    if (rows > 400 || choice == 0) { // keeps the document small enough to compare after every step
        deleteAllLines(doc);
        ref.rebuild({});
    } else if (choice == 1 && rows > 0) { // a line taken out on its own
        const int row = anyRow();
        doc.removeLine(row);
        ref.lines.removeAt(row);
        ref.selected.erase(ref.selected.begin() + row);
        ref.marked = ref.marked == row ? -1 : ref.marked - int(ref.marked > row);
    } else if (choice < 15 && rows > 0) { // a click on a line
        const int row = anyRow();
        doc.selectOnly(row);
        doc.setMarked(row);
        ref.selectOnly(row);
        ref.marked = row;
    } else if (choice < 22 && rows > 0) { // Ctrl+click
        const int row = anyRow();
        const bool on = !doc.isSelected(row);
        doc.setSelected(row, on);
        ref.selected[size_t(row)] = on;
    } else if (choice < 25 && rows > 0) { // Shift+click
        const int a = anyRow();
        const int b = anyRow();
        doc.setRangeSelected(qMin(a, b), qMax(a, b), true);
        for (int i = qMin(a, b); i <= qMax(a, b); ++i)
            ref.selected[size_t(i)] = true;
    } else if (choice < 27) {
        doc.clearSelection();
        ref.selected.assign(ref.lines.size(), false);
    } else if (choice < 29) {
        const int row = rows > 0 && m_random.bounded(2) ? anyRow() : -1;
        doc.setMarked(row);
        ref.marked = row;
    } else if (choice < 42) {
        const QString entry = randomLine();
        insertEntryLine(doc, entry);
        ref.insert(entry);
    } else if (choice < 50) {
        const QString entry = randomLine();
        appendEntryLine(doc, entry);
        ref.append(entry);
    } else if (choice < 60) {
        const QString entry = randomLine();
        enterEntryLine(doc, entry);
        if (!entry.isEmpty()) {
            ref.deleteSelected();
            ref.insert(entry);
        }
    } else if (choice < 63) {
        insertCommentLine(doc);
        ref.insert(u"! "_s);
    } else if (choice < 68) {
        deleteSelectedLines(doc);
        ref.deleteSelected();
    } else if (choice < 72) {
        copySelectedLines(doc, clipboard);
        ref.copy();
    } else if (choice < 75) {
        cutSelectedLines(doc, clipboard);
        ref.copy();
        ref.deleteSelected();
    } else if (choice < 80) {
        if (m_random.bounded(4) == 0) { // a text from elsewhere, with every kind of line end
            const QString text = randomLine() + u"\r\n"_s + randomLine() + u"\r"_s + randomLine() + u"\n"_s;
            clipboard.setText(text);
            ref.clipboard = text;
        }
        pasteLines(doc, clipboard);
        ref.paste();
    } else if (choice < 86) {
        moveMarkedLineUp(doc);
        ref.moveUp();
    } else if (choice < 90) {
        moveMarkedLineToTop(doc);
        ref.moveToTop();
    } else if (choice < 93) {
        removeBlankLines(doc);
        ref.rebuild(removeBlankLines(ref.lines));
    } else if (choice < 96) {
        removeDuplicateLines(doc);
        ref.rebuild(removeDuplicateLines(ref.lines));
    } else if (choice < 98) {
        lowerCaseLines(doc);
        ref.rebuild(lowerCaseLines(ref.lines));
    } else {
        sortLinesAlphabetically(doc, QLocale::c());
        ref.rebuild(sortLinesAlphabetically(ref.lines, QLocale::c()));
    }
}

void DocumentSoakTest::compare(const ConfigDocument& doc, const Reference& ref, const DocumentListModel& model,
                               int stepNumber) {
    const QByteArray where = "after step " + QByteArray::number(stepNumber);
    QVERIFY2(doc.lines() == ref.lines, where.constData());
    QVERIFY2(doc.marked() == ref.marked, where.constData());
    for (int i = 0; i < doc.count(); ++i)
        QVERIFY2(doc.isSelected(i) == ref.selected[size_t(i)], where.constData());
    QVERIFY2(model.rowCount() == ref.lines.size(), where.constData());
    // The model is read row by row now and then; in between a few random rows.
    const bool everyRow = stepNumber % 97 == 0;
    for (int probe = 0; probe < (everyRow ? int(ref.lines.size()) : qMin(3, int(ref.lines.size()))); ++probe) {
        const int row = everyRow ? probe : int(m_random.bounded(ref.lines.size()));
        QVERIFY2(model.data(model.index(row)).toString() == ref.lines[row], where.constData());
    }
}

void DocumentSoakTest::randomSessionKeepsDocumentAndModelInStep() {
    const quint32 seed = qEnvironmentVariableIsSet("QUENFOR_SOAK_SEED")
                             ? quint32(qEnvironmentVariableIntValue("QUENFOR_SOAK_SEED"))
                             : QRandomGenerator::global()->generate();
    qInfo("soak seed %u (QUENFOR_SOAK_SEED repeats it)", seed);
    m_random.seed(seed);
    const int steps =
        qEnvironmentVariableIsSet("QUENFOR_SOAK_STEPS") ? qEnvironmentVariableIntValue("QUENFOR_SOAK_STEPS") : 100000;

    ConfigDocument doc;
    DocumentListModel model(&doc);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    FakeClipboard clipboard;
    Reference ref;
    for (int i = 1; i <= steps; ++i) {
        step(doc, ref, clipboard);
        compare(doc, ref, model, i);
        if (QTest::currentTestFailed())
            return;
    }
}

} // namespace
} // namespace quenfor

QTEST_GUILESS_MAIN(quenfor::DocumentSoakTest)
#include "documentsoak_test.moc"
