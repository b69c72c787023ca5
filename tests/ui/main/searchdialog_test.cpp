// The search window driven through its real widgets, on a real document.
#include "document/configdocument.h"
#include "document/documentsearch.h"
#include "ui/main/searchdialog.h"
#include "ui/widgets/dialogs.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QStringList kLines = {
    u"! Tastaturmakros"_s,                           // 0
    u"mapkey sv @MAPKEY_LABELSpeichern;"_s,          // 1
    u"mapkey(continued) ~ Activate `file_saveas`"_s, // 2
    u"display shade"_s,                              // 3
    u"MAPKEY pp @MAPKEY_LABELParameter;"_s,          // 4
};

template <typename T> T* child(const QWidget& parent, const char* name) {
    T* widget = parent.findChild<T*>(QString::fromLatin1(name));
    if (!widget)
        qFatal("no widget %s", name);
    return widget;
}

QStringList hitRows(const SearchDialog& dialog) {
    const QAbstractItemModel* model = child<QListView>(dialog, "lst_treffer")->model();
    QStringList rows;
    for (int r = 0; r < model->rowCount(); ++r)
        rows.append(model->data(model->index(r, 0)).toString());
    return rows;
}

QString status(const SearchDialog& dialog) {
    return child<QLabel>(dialog, "lbl_status")->text();
}

QString preview(const SearchDialog& dialog) {
    return child<QPlainTextEdit>(dialog, "txt_anzeige")->toPlainText();
}

void click(const SearchDialog& dialog, const char* button) {
    QTest::mouseClick(child<QPushButton>(dialog, button), Qt::LeftButton);
}

void type(const SearchDialog& dialog, const QString& text) {
    QLineEdit* term = child<QLineEdit>(dialog, "txt_such");
    term->clear();
    QTest::keyClicks(term, text);
}

} // namespace

class SearchDialogTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_doc.replaceAll(kLines);
        Dialogs::takeShownTexts();
        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{}; });
    }
    void cleanup() { Dialogs::setHandler({}); }

    void documentHitsAreListedAndTheFirstIsSelected() {
        SearchDialog dialog(&m_doc);
        dialog.show(); // Enter presses the default button of a shown window only
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QSignalSpy scrolled(&m_doc, &ConfigDocument::scrollRequested);
        m_doc.setSelected(3, true);
        type(dialog, u"MAPKEY"_s);
        QTest::keyClick(child<QLineEdit>(dialog, "txt_such"), Qt::Key_Return);

        QCOMPARE(hitRows(dialog), (QStringList{u"1: mapkey sv @MAPKEY_LABELSpeichern;"_s,
                                               u"2: mapkey(continued) ~ Activate `file_saveas`"_s,
                                               u"4: MAPKEY pp @MAPKEY_LABELParameter;"_s}));
        QCOMPARE(m_doc.selectedRows(), QList<int>{1});
        QCOMPARE(m_doc.marked(), 1);
        QCOMPARE(scrolled.size(), 1);
        QCOMPARE(scrolled.first().first().toInt(), 1);
        QCOMPARE(preview(dialog), kLines[1]);
        QCOMPARE(status(dialog), u"Treffer 1 von 3"_s);
    }

    void nextGoesOnFromTheLastHitAndWraps() {
        SearchDialog dialog(&m_doc);
        dialog.setTerm(u"mapkey "_s);
        click(dialog, "cmd_suchen");
        QCOMPARE(m_doc.marked(), 1);
        click(dialog, "cmd_weiter");
        QCOMPARE(m_doc.marked(), 4);
        QVERIFY(!status(dialog).contains(u"Anfang"_s));
        click(dialog, "cmd_weiter");
        QCOMPARE(m_doc.marked(), 1);
        QCOMPARE(m_doc.selectedRows(), QList<int>{1});
        QVERIFY2(status(dialog).contains(u"Suche am Anfang fortgesetzt."_s), qPrintable(status(dialog)));

        // A single hit is found again, and shown again after the user clicked elsewhere.
        type(dialog, u"shade"_s);
        click(dialog, "cmd_weiter"); // a new term searches anew
        QCOMPARE(m_doc.marked(), 3);
        m_doc.selectOnly(0);
        m_doc.setMarked(0);
        click(dialog, "cmd_weiter");
        QCOMPARE(m_doc.marked(), 3);
        QCOMPARE(m_doc.selectedRows(), QList<int>{3});
    }

    void clickingAHitSelectsItsLine() {
        SearchDialog dialog(&m_doc);
        dialog.resize(500, 400);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.setTerm(u"mapkey"_s);
        click(dialog, "cmd_suchen");
        QListView* list = child<QListView>(dialog, "lst_treffer");
        const QRect third = list->visualRect(list->model()->index(2, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third.center());
        QCOMPARE(m_doc.marked(), 4);
        QCOMPARE(m_doc.selectedRows(), QList<int>{4});
        QCOMPARE(status(dialog), u"Treffer 3 von 3"_s);
        // "Weitersuchen" goes on from the clicked hit.
        click(dialog, "cmd_weiter");
        QCOMPARE(m_doc.marked(), 1);
    }

    void emptyTermOrNoHitIsToldInTheWindow() {
        SearchDialog dialog(&m_doc);
        m_doc.setMarked(3);
        click(dialog, "cmd_suchen");
        QCOMPARE(status(dialog), u"Bitte einen Suchbegriff eingeben."_s);
        dialog.setTerm(u"nirgends"_s);
        click(dialog, "cmd_suchen");
        QCOMPARE(status(dialog), u"„nirgends“ wurde nicht gefunden."_s);
        click(dialog, "cmd_weiter");
        QCOMPARE(status(dialog), u"„nirgends“ wurde nicht gefunden."_s);
        QVERIFY(hitRows(dialog).isEmpty());
        QCOMPARE(m_doc.marked(), 3);
        QVERIFY(Dialogs::takeShownTexts().isEmpty());
    }

    void hitsFollowEditsWithoutTouchingTheSelection() {
        SearchDialog dialog(&m_doc);
        dialog.setTerm(u"mapkey "_s);
        click(dialog, "cmd_suchen");
        click(dialog, "cmd_weiter"); // last hit: line 4

        m_doc.insertLine(0, u"mapkey neu @MAPKEY_LABELNeu;"_s);
        m_doc.selectOnly(2);
        m_doc.setMarked(2);
        QTRY_COMPARE(hitRows(dialog).size(), 3);
        QCOMPARE(hitRows(dialog).first(), u"0: mapkey neu @MAPKEY_LABELNeu;"_s);
        QCOMPARE(m_doc.marked(), 2); // refreshing the list leaves the user's selection alone

        // The last hit moved down with its line; the next one after it is at the top again.
        click(dialog, "cmd_weiter");
        QCOMPARE(m_doc.marked(), 0);

        m_doc.setLine(0, u"gelöscht"_s);
        QTRY_COMPARE(hitRows(dialog).size(), 2);
        m_doc.clear();
        QTRY_COMPARE(hitRows(dialog).size(), 0);
        QCOMPARE(status(dialog), u"„mapkey “ wurde nicht gefunden."_s);
    }

    void knowledgeBaseHitsShowTheLineAndItsDescription() {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(u"config_opts.txt"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("allow_anatomic_features no\r\nErlaubt alte Features.\r\nzweite Zeile\r\n"
                   "display shade\r\nDarstellung\r\n\r\nletzte\r\nnoch eine\r\nund noch eine\r\n");
        file.close();

        SearchDialog dialog(&m_doc);
        m_doc.setMarked(0);
        dialog.setKnowledgeBasePath(path);
        dialog.setSearchInKnowledgeBase(true);
        dialog.setTerm(u"DISPLAY"_s);
        click(dialog, "cmd_suchen");

        QCOMPARE(hitRows(dialog), QStringList{u"4: display shade"_s});
        QCOMPARE(preview(dialog), u"display shade\nDarstellung\n\nletzte\nnoch eine\nund noch eine"_s);
        QCOMPARE(m_doc.marked(), 0); // the document is not searched

        dialog.setTerm(u"e"_s);
        click(dialog, "cmd_suchen");
        QCOMPARE(hitRows(dialog).size(), 8);
        click(dialog, "cmd_weiter");
        QCOMPARE(child<QListView>(dialog, "lst_treffer")->currentIndex().row(), 1);
        QCOMPARE(preview(dialog).section(u'\n', 0, 0), u"Erlaubt alte Features."_s);

        // Back to the document: the file's hits go.
        child<QRadioButton>(dialog, "opt_dokument")->setChecked(true);
        QVERIFY(hitRows(dialog).isEmpty());
        QVERIFY(Dialogs::takeShownTexts().isEmpty());
    }

    void missingKnowledgeBaseIsReported() {
        QTemporaryDir dir;
        SearchDialog dialog(&m_doc);
        dialog.setKnowledgeBasePath(dir.filePath(u"pcf_opts.txt"_s));
        dialog.setSearchInKnowledgeBase(true);
        dialog.setTerm(u"plotter"_s);
        click(dialog, "cmd_suchen");
        QCOMPARE(Dialogs::takeShownTexts(), QStringList{QString::fromUtf16(kKnowledgeBaseMissing)});
        QVERIFY(hitRows(dialog).isEmpty());
    }

private:
    ConfigDocument m_doc;
};

QTEST_MAIN(SearchDialogTest)
#include "searchdialog_test.moc"
