// The undo history of the document on its own: one step per user action, memory bounded.
#include "document/configdocument.h"
#include "ui/main/documentundo.h"

#include <QTest>
#include <QUndoStack>

using namespace Qt::StringLiterals;
using namespace quenfor;

class DocumentUndoTest : public QObject {
    Q_OBJECT

private slots:
    void changesOfOneActionAreOneStep() {
        ConfigDocument doc;
        DocumentUndo undo(&doc);
        doc.replaceAll({u"a"_s, u"b"_s});
        QCoreApplication::processEvents();
        doc.setLine(0, u"A"_s);
        doc.appendLine(u"c"_s);
        doc.swapLines(0, 1);
        QCoreApplication::processEvents();
        QCOMPARE(undo.stack()->count(), 2);
        undo.stack()->undo();
        QCOMPARE(doc.lines(), (QStringList{u"a"_s, u"b"_s}));
        undo.stack()->redo();
        QCOMPARE(doc.lines(), (QStringList{u"b"_s, u"A"_s, u"c"_s}));
        // A change that changes nothing is no step.
        doc.setLine(0, u"b"_s);
        QCoreApplication::processEvents();
        QCOMPARE(undo.stack()->count(), 2);
    }

    // A million lines keep only a few steps, and a step shares the texts with the document.
    void largeDocumentsKeepFewSteps() {
        QCOMPARE(DocumentUndo::stepsKeptFor(1000), 100);
        QCOMPARE(DocumentUndo::stepsKeptFor(1'000'000), 10);
        QCOMPARE(DocumentUndo::stepsKeptFor(5'000'000), 3);
        ConfigDocument doc;
        DocumentUndo undo(&doc);
        QStringList big;
        for (int i = 0; i < 200'000; ++i)
            big.append(u"option_%1 wert"_s.arg(i));
        doc.replaceAll(big);
        QCoreApplication::processEvents();
        for (int i = 0; i < 15; ++i) {
            doc.setLine(i, u"geändert"_s);
            QCoreApplication::processEvents();
        }
        QCOMPARE(undo.stack()->undoLimit(), 10);
        QCOMPARE(undo.stack()->count(), 10);
        // The texts of the oldest kept step are the document's own, not copies.
        undo.stack()->setIndex(0);
        QVERIFY(doc.line(100'000).constData() == big.at(100'000).constData());
    }
};

QTEST_GUILESS_MAIN(DocumentUndoTest)
#include "documentundo_test.moc"
