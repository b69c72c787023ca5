// The duplicate mapkey window and the mapkey list, driven by mouse on a document of their own.
#include "document/configdocument.h"
#include "knowledge/mapkeytools.h"
#include "ui/knowledge/duplicatemapkeywindow.h"
#include "ui/knowledge/mapkeylistwindow.h"

#include <QApplication>
#include <QListView>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QString kA = u"mapkey a @MAPKEY_LABEL eins;~ Command `ProCmdA`;"_s;
const QString kB = u"mapkey b @MAPKEY_LABEL zwei;~ Command `ProCmdB`;"_s;
// The first 18 characters of kA with another ending: marked together with kA.
const QString kASibling = u"mapkey a @MAPKEY_LABEL anders;"_s;

QRect rowRect(QListView* view, int row) {
    return view->visualRect(view->model()->index(row, 0));
}

// A real double click starts with a press on the same row.
void doubleClickRow(QListView* view, int row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rowRect(view, row).center());
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, rowRect(view, row).center());
}

void clickRow(QListView* view, int row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rowRect(view, row).center());
}

} // namespace

class MapkeyWindowsTest : public QObject {
    Q_OBJECT

    ConfigDocument m_doc;

    static QListView* list(QWidget* window, const QString& name) { return window->findChild<QListView*>(name); }
    static void clickButton(QWidget* window, const QString& name) {
        auto* button = window->findChild<QPushButton*>(name);
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
    }

private slots:
    void init() {
        m_doc.replaceAll({u"display shade"_s, kA, u"mapkey(continued) ~ Command `x`;"_s, kB, kA, kASibling, kB, kA,
                          u"! mapkey a @MAPKEY_LABEL im Kommentar"_s});
    }

    void doubleClickMarksEveryLineOfTheEntry() {
        DuplicateMapkeyWindow window(&m_doc);
        QCOMPARE(window.findDuplicates(), u"suche doppelte Mapkeys..."_s);
        QVERIFY(window.isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.windowTitle(), u"doppelte Mapkeys"_s);
        QCOMPARE(window.entries(), (QStringList{kA, kB}));

        m_doc.setSelected(0, true); // marks add to what the user selected before
        doubleClickRow(list(&window, u"List5"_s), 0);
        QCOMPARE(m_doc.selectedRows(), (QList<int>{0, 1, 4, 5, 7}));
        doubleClickRow(list(&window, u"List5"_s), 1);
        QCOMPARE(m_doc.selectedRows(), (QList<int>{0, 1, 3, 4, 5, 6, 7}));
    }

    void markAllMarksTheLinesOfEveryEntry() {
        DuplicateMapkeyWindow window(&m_doc);
        window.findDuplicates();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        clickButton(&window, u"cmd_selection"_s);
        QCOMPARE(m_doc.selectedRows(), (QList<int>{1, 3, 4, 5, 6, 7}));
        clickButton(&window, u"cmd_exit"_s);
        QVERIFY(!window.isVisible());
    }

    void withoutDuplicatesTheWindowOnlyChangesItsCaption() {
        m_doc.replaceAll({kA, kB, u"mapkey(continued) x"_s, u"mapkey(continued) x"_s, kA.toUpper()});
        DuplicateMapkeyWindow window(&m_doc);
        QCOMPARE(window.findDuplicates(), u"suche doppelte Mapkeys..."_s);
        QVERIFY(!window.isVisible());
        QCOMPARE(window.windowTitle(), u"keine doppelten Mapkeys vorhanden !"_s);

        // Open from an earlier search, it stays open with an empty list; a new find restores the caption.
        m_doc.appendLine(kB);
        window.findDuplicates();
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowTitle(), u"doppelte Mapkeys"_s);
        m_doc.setLine(5, QString());
        window.findDuplicates();
        QVERIFY(window.isVisible());
        QVERIFY(window.entries().isEmpty());
        QCOMPARE(window.windowTitle(), u"keine doppelten Mapkeys vorhanden !"_s);
        clickButton(&window, u"cmd_selection"_s);
        QVERIFY(!m_doc.hasSelection());
    }

    void clickOnANameFindsItsOwnMapkey() {
        m_doc.replaceAll({u"mapkey ab @MAPKEY_LABEL lang;"_s, u"mapkey a"_s, u"mapkey a @MAPKEY_LABEL kurz;"_s,
                          u"mapkey  @MAPKEY_LABEL leer;"_s, u"mapkey zz"_s});
        MapkeyListWindow window(&m_doc);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.windowTitle(), u"Mapkeys"_s);
        QCOMPARE(window.names(), (QStringList{u"ab"_s, u"a"_s, QString()}));

        QListView* names = list(&window, u"List1"_s);
        clickRow(names, 1);
        QCOMPARE(m_doc.selectedRows(), QList<int>{2}); // neither "mapkey ab" nor the bare "mapkey a"
        QCOMPARE(m_doc.marked(), 2);
        clickRow(names, 2);
        QCOMPARE(m_doc.selectedRows(), QList<int>{3});
        clickRow(names, 0);
        QCOMPARE(m_doc.marked(), 0);
    }

    void theListFollowsTheDocument() {
        MapkeyListWindow window(&m_doc);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.names(), (QStringList{u"a"_s, u"b"_s, u"a"_s, u"a"_s, u"b"_s, u"a"_s}));
        QListView* names = list(&window, u"List1"_s);
        clickRow(names, 1);
        QCOMPARE(m_doc.marked(), 3);

        m_doc.insertLine(0, u"mapkey c @MAPKEY_LABEL neu;"_s);
        m_doc.setLine(2, QString());
        QTRY_COMPARE(window.names(), (QStringList{u"c"_s, u"b"_s, u"a"_s, u"a"_s, u"b"_s, u"a"_s}));
        QCOMPARE(names->currentIndex().row(), 1); // still "b"
        clickRow(names, 0);
        QCOMPARE(m_doc.marked(), 0);

        m_doc.clear();
        QTRY_VERIFY(window.names().isEmpty());
        clickButton(&window, u"cmd_quit"_s);
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(MapkeyWindowsTest)
#include "mapkeywindows_test.moc"
