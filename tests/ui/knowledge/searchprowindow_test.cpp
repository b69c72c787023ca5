// The search.pro generator as its user drives it: pick a folder, generate, hand the list over.
#include "panelsandbox.h"

#include "document/configdocument.h"
#include "knowledge/searchprotexts.h"
#include "ui/knowledge/searchprowindow.h"
#include "ui/widgets/dialogs.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// Every folder has two subfolders: only a cancel ends this walk.
class EndlessLister : public FolderLister {
public:
    FolderListing list(const QString&) const override { return {true, true, {{u"x"_s, false}, {u"y"_s, false}}, {}}; }
    bool isFolder(const QString&) const override { return true; }
};

// A start folder with one readable and one unreadable subfolder.
class PartlyUnreadableLister : public FolderLister {
public:
    explicit PartlyUnreadableLister(QString start) : m_start(std::move(start)) {}
    FolderListing list(const QString& path) const override {
        if (path == m_start)
            return {true, true, {{u"offen"_s, false}, {u"gesperrt"_s, false}}, {}};
        return {true, !path.endsWith(u"gesperrt"_s), {}, {}};
    }
    bool isFolder(const QString&) const override { return true; }

private:
    QString m_start;
};

QString native(const QTemporaryDir& dir, const QString& relative) {
    return QDir::toNativeSeparators(dir.filePath(relative));
}

} // namespace

class SearchProWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_tree;

    QStringList twoLevelList() const {
        return {native(m_tree, u"A"_s), native(m_tree, u"B"_s), native(m_tree, u"A/A1"_s), native(m_tree, u"A/A2"_s),
                native(m_tree, u"B/B1"_s)};
    }

    static void generateAndWait(SearchProWindow& window) {
        QSignalSpy finished(&window, &SearchProWindow::generationFinished);
        QTest::mouseClick(child<QPushButton>(window, u"Command1"_s), Qt::LeftButton);
        QVERIFY(finished.wait(10000));
    }

private slots:
    void initTestCase() {
        QVERIFY(m_tree.isValid());
        for (const QString& folder : {u"B/B1"_s, u"A/A2"_s, u"A/A1"_s})
            QVERIFY(QDir(m_tree.path()).mkpath(folder));
    }

    void generatesTheTwoLevelExample() {
        SearchProWindow window(m_tree.path());
        window.show();
        QCOMPARE(window.currentFolder(), QDir::toNativeSeparators(m_tree.path()));
        generateAndWait(window);
        QCOMPARE(window.entries(), twoLevelList());
        QCOMPARE(child<QListView>(window, u"List1"_s)->model()->rowCount(), 5);
        QCOMPARE(child<QLabel>(window, u"Label1"_s)->text(), u"Total:5"_s);
        QVERIFY(!child<QPushButton>(window, u"cmd_cancel"_s)->isVisible());

        // A folder without subfolders: an empty list and "Total:0".
        window.setCurrentFolder(m_tree.filePath(u"A/A1"_s));
        generateAndWait(window);
        QVERIFY(window.entries().isEmpty());
        QCOMPARE(child<QLabel>(window, u"Label1"_s)->text(), u"Total:0"_s);
    }

    void transfersAllIntoAnUnnamedDocument() {
        SearchProWindow window(m_tree.path());
        ConfigDocument document;
        connect(&window, &SearchProWindow::linesToDocument, &document,
                [&document](const QStringList& lines, bool all) { appendSearchProLines(document, lines, all); });
        generateAndWait(window);
        QTest::mouseClick(child<QPushButton>(window, u"cmd_toform"_s), Qt::LeftButton);
        QCOMPARE(document.lines(), twoLevelList());
        QCOMPARE(document.fileName(), u"search.pro"_s);
    }

    void transfersASelectionInListOrder() {
        SearchProWindow window(m_tree.path());
        QSignalSpy transferred(&window, &SearchProWindow::linesToDocument);
        generateAndWait(window);
        auto* list = child<QListView>(window, u"List1"_s);
        auto* button = child<QPushButton>(window, u"cmd_selectedtoform"_s);

        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(transferred.count(), 0); // nothing selected: nothing appended, a word in the status line
        QCOMPARE(child<QLabel>(window, u"lblstatus"_s)->text(), u"Es ist kein Eintrag ausgewählt."_s);

        for (int row : {4, 0, 2})
            list->selectionModel()->select(list->model()->index(row, 0), QItemSelectionModel::Select);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(transferred.count(), 1);
        const QStringList all = twoLevelList();
        QCOMPARE(transferred[0][0].toStringList(), (QStringList{all[0], all[2], all[4]}));
        QCOMPARE(transferred[0][1].toBool(), false);
    }

    void fileNameHintAndSaveInfo() {
        SearchProWindow window(m_tree.filePath(u"B"_s));
        QSignalSpy chosen(&window, &SearchProWindow::fileNameChosen);
        auto* createFile = child<QPushButton>(window, u"cmd_search_file"_s);
        QTest::mouseClick(createFile, Qt::LeftButton);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen[0][0].toString(), native(m_tree, u"B/search.pro"_s));

        // The hint names the folder the file would go to, and follows the folder list.
        window.setCurrentFolder(m_tree.filePath(u"A"_s));
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(createFile, &enter);
        QCOMPARE(child<QLabel>(window, u"lblstatus"_s)->text(), SearchProHints::createFile(native(m_tree, u"A"_s)));

        auto* info = child<QPlainTextEdit>(window, u"txt_info"_s);
        window.show();
        QVERIFY(!info->isVisible());
        QTest::mouseClick(child<QPushButton>(window, u"cmd_wodenn"_s), Qt::LeftButton);
        QVERIFY(info->isVisible());
        QCOMPARE(info->toPlainText().split(u'\n'), searchProSaveInfoLines());
    }

    void driveRootAsStart() {
        SearchProWindow window(m_tree.path());
        auto* drives = child<QComboBox>(window, u"Drive1"_s);
        const QString root = QDir::toNativeSeparators(QDir::rootPath());
        const int index = drives->findText(root);
        QVERIFY(index >= 0);
        emit drives->activated(index);
        QCOMPARE(window.currentFolder(), root);
        QCOMPARE(drives->currentIndex(), index);
        // A root keeps its one separator: "D:\search.pro", "/search.pro".
        QSignalSpy chosen(&window, &SearchProWindow::fileNameChosen);
        QTest::mouseClick(child<QPushButton>(window, u"cmd_search_file"_s), Qt::LeftButton);
        QCOMPARE(chosen.value(0).value(0).toString(), root + u"search.pro"_s);
    }

    void anUnreadableDriveIsToldAndTheShownOneStays() {
        SearchProWindow window(m_tree.path());
        auto* drives = child<QComboBox>(window, u"Drive1"_s);
        const int shown = drives->currentIndex();
        const QString missing = QDir::toNativeSeparators(m_tree.filePath(u"kein Laufwerk"_s));
        drives->addItem(missing);
        QStringList told;
        Dialogs::setHandler([&told](const Dialogs::Request& request) {
            told.append(request.text);
            return Dialogs::Reply{};
        });
        drives->setCurrentIndex(drives->count() - 1);
        emit drives->activated(drives->count() - 1);
        Dialogs::setHandler({});
        QCOMPARE(told, QStringList{u"Das Laufwerk \"%1\" ist nicht bereit."_s.arg(missing)});
        QCOMPARE(drives->currentIndex(), shown);
        QCOMPARE(window.currentFolder(), QDir::toNativeSeparators(m_tree.path()));
    }

    void closeButtonTellsTheMainWindow() {
        SearchProWindow window(m_tree.path());
        window.show();
        QSignalSpy closing(&window, &SearchProWindow::closing);
        QTest::mouseClick(child<QPushButton>(window, u"Command3"_s), Qt::LeftButton);
        QCOMPARE(closing.count(), 1);
        QVERIFY(!window.isVisible());
    }

    void longWalkShowsProgressAndCancels() {
        const EndlessLister endless;
        SearchProWindow window(m_tree.path(), nullptr, endless);
        window.show();
        QSignalSpy finished(&window, &SearchProWindow::generationFinished);
        QTest::mouseClick(child<QPushButton>(window, u"Command1"_s), Qt::LeftButton);
        QVERIFY(window.isGenerating());
        auto* cancel = child<QPushButton>(window, u"cmd_cancel"_s);
        QVERIFY(cancel->isVisible());
        QVERIFY(!child<QPushButton>(window, u"Command1"_s)->isEnabled());
        // The window keeps handling events and counts up while the walk runs.
        QTRY_VERIFY(child<QLabel>(window, u"lbl_progress"_s)->text().endsWith(u" Verzeichnisse gefunden"_s));
        QTRY_VERIFY(child<QLabel>(window, u"lbl_progress"_s)->text().section(u' ', 0, 0).toLongLong() > 1000);

        QTest::mouseClick(cancel, Qt::LeftButton);
        QVERIFY(finished.wait(10000));
        QVERIFY(!window.isGenerating());
        QVERIFY(window.entries().isEmpty());
        QCOMPARE(child<QLabel>(window, u"lblstatus"_s)->text(), u"Abgebrochen: die Liste wurde verworfen."_s);
        QVERIFY(child<QPushButton>(window, u"Command1"_s)->isEnabled());
    }

    void unreadableFoldersAreNamed() {
        const PartlyUnreadableLister lister(QDir::toNativeSeparators(m_tree.path()));
        SearchProWindow window(m_tree.path(), nullptr, lister);
        window.show();
        generateAndWait(window);
        QCOMPARE(child<QLabel>(window, u"Label1"_s)->text(), u"Total:2"_s);
        auto* note = child<QLabel>(window, u"lbl_unreadable"_s);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), searchProUnreadableText({native(m_tree, u"gesperrt"_s)}));
    }

    void hiddenFoldersLeftOutAreNamed() {
        QTemporaryDir tree;
        for (const QString& folder : {u"A/.svn"_s, u".git/objects"_s})
            QVERIFY(QDir(tree.path()).mkpath(folder));
        SearchProWindow window(tree.path());
        window.show();
        generateAndWait(window);
        QCOMPARE(window.entries(), QStringList{native(tree, u"A"_s)});
        auto* note = child<QLabel>(window, u"lbl_hidden"_s);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), searchProHiddenText({native(tree, u".git"_s), native(tree, u"A/.svn"_s)}));
        QVERIFY(note->text().startsWith(u"2 versteckte Verzeichnisse"_s));

        // A tree without hidden folders shows no note, also after one with them.
        window.setCurrentFolder(m_tree.path());
        generateAndWait(window);
        QVERIFY(!note->isVisible());
    }

    void vanishedStartFolderIsReported() {
        QTemporaryDir dir;
        const QString gone = dir.filePath(u"gone"_s);
        QVERIFY(QDir().mkdir(gone));
        SearchProWindow window(gone);
        QVERIFY(QDir().rmdir(gone));
        QStringList shown;
        Dialogs::setHandler([&shown](const Dialogs::Request& request) {
            shown.append(request.text);
            return Dialogs::Reply{};
        });
        generateAndWait(window);
        Dialogs::setHandler({});
        const QString message = u"Der Ordner \"%1\" existiert nicht."_s.arg(QDir::toNativeSeparators(gone));
        QCOMPARE(shown, QStringList{message});
        QVERIFY(window.entries().isEmpty());
        QCOMPARE(child<QLabel>(window, u"Label1"_s)->text(), QString());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<SearchProWindowTest>(argc, argv);
}

#include "searchprowindow_test.moc"
