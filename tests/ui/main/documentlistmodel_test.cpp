// The list model must follow every kind of document change, or the view shows stale or
// missing rows. QAbstractItemModelTester checks the signal protocol after each step.
#include "document/cleanuptools.h"
#include "document/clipboard.h"
#include "document/configdocument.h"
#include "document/lineediting.h"
#include "ui/main/documentlistmodel.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class MemoryClipboard : public Clipboard {
public:
    QString text() const override { return m_text; }
    void setText(const QString& text) override { m_text = text; }

private:
    QString m_text;
};

QStringList modelRows(const QAbstractItemModel& model) {
    QStringList rows;
    for (int r = 0; r < model.rowCount(); ++r)
        rows.append(model.data(model.index(r, 0)).toString());
    return rows;
}

} // namespace

class DocumentListModelTest : public QObject {
    Q_OBJECT

private slots:
    void followsRandomEditing() {
        ConfigDocument doc;
        DocumentListModel model(&doc);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        MemoryClipboard clipboard;
        QRandomGenerator rng(20261121);
        const QStringList samples = {u"opt 1"_s, u"! c"_s, u"mapkey a;b"_s, u""_s, u"  "_s, u"OPT 1"_s};

        for (int step = 0; step < 3000; ++step) {
            const int n = doc.count();
            if (n > 0) {
                const int row = rng.bounded(n);
                doc.setMarked(rng.bounded(3) == 0 ? -1 : row);
                doc.setSelected(row, rng.bounded(2) == 0);
            }
            const QString text = samples.at(rng.bounded(samples.size()));
            switch (rng.bounded(11)) {
            case 0:
                insertEntryLine(doc, text);
                break;
            case 1:
                enterEntryLine(doc, text);
                break;
            case 2:
                appendEntryLine(doc, text);
                break;
            case 3:
                deleteSelectedLines(doc);
                break;
            case 4:
                moveMarkedLineUp(doc);
                break;
            case 5:
                moveMarkedLineToTop(doc);
                break;
            case 6:
                cutSelectedLines(doc, clipboard);
                break;
            case 7:
                pasteLines(doc, clipboard);
                break;
            case 8:
                removeDuplicateLines(doc);
                break;
            case 9:
                removeBlankLines(doc);
                break;
            default:
                if (n > 0)
                    doc.removeLine(rng.bounded(n));
                if (doc.count() > 60)
                    deleteAllLines(doc);
            }
            QCOMPARE(modelRows(model), doc.lines());
            QVERIFY(doc.marked() >= -1 && doc.marked() < doc.count());
        }
    }

    // A line too long to lay out shows its beginning, without half a character at the cut;
    // editing still gets all of it.
    void showsTheBeginningOfAnOverlongLine() {
        const QString pair = u"😀"_s;
        const QString cutInPair = QString(kListShownLength - 1, u'x') + pair + u"rest"_s;
        const QString cutAfterPair = QString(kListShownLength - 2, u'x') + pair + u"rest"_s;
        const QString fits = QString(kListShownLength - 2, u'x') + pair;
        ConfigDocument doc;
        doc.replaceAll({cutInPair, cutAfterPair, fits});
        DocumentListModel model(&doc);
        const QStringList shown = modelRows(model);
        QCOMPARE(shown,
                 QStringList({cutInPair.first(kListShownLength - 1), cutAfterPair.first(kListShownLength), fits}));
        for (int row = 0; row < doc.count(); ++row)
            QCOMPARE(model.data(model.index(row, 0), Qt::EditRole).toString(), doc.line(row));
    }
};

QTEST_GUILESS_MAIN(DocumentListModelTest)
#include "documentlistmodel_test.moc"
