// The file chooser drives opening and saving: a wrong folder, filter or joined path opens or
// overwrites the wrong file.
#include "panelsandbox.h"

#include "ui/main/filechooserpanel.h"

#include <QComboBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QStringList shownNames(const QListView* view) {
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    names.sort();
    return names;
}

QModelIndex rowNamed(const QListView* view, const QString& name) {
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole,
                                                       name, 1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return found.value(0);
}

} // namespace

class FileChooserPanelTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_work = std::make_unique<QTemporaryDir>();
        m_panel = std::make_unique<FileChooserPanel>();
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
        m_files = m_panel->findChild<QListView*>(u"File1"_s);
        m_folders = m_panel->findChild<QListView*>(u"Dir1"_s);
        QVERIFY(m_work->isValid() && m_files && m_folders);
    }

    void cleanup() {
        m_panel.reset();
        m_work.reset();
    }

    void listsFilesByPatternAndChoosesTheJoinedPath() {
        for (const QString& name : {u"a.pro"_s, u"b.PRO"_s, u"c.txt"_s, u"d.Pro"_s, u"e.dtl"_s, u"plain"_s}) {
            QFile file(work(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(QDir().mkdir(work(u"sub.pro"_s)));
        QSignalSpy changed(m_panel.get(), &FileChooserPanel::folderChanged);
        QVERIFY(m_panel->setFolder(m_work->path()));
        const QString folder = QDir::toNativeSeparators(m_work->path());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0), QVariantList({folder, m_panel->drive()}));
        QVERIFY(folder.startsWith(m_panel->drive()));

        // Only the program's types in all-lower or all-upper case; folders never show as files.
        QTRY_COMPARE(shownNames(m_files), QStringList({u"a.pro"_s, u"b.PRO"_s, u"e.dtl"_s}));
        QTRY_COMPARE(shownNames(m_folders), QStringList({u"sub.pro"_s}));
        m_panel->setPattern(FileChooserPanel::allFilesPattern());
        QTRY_COMPARE(shownNames(m_files).size(), 6);
        m_panel->setPattern(u" *.txt ; plain;"_s);
        QTRY_COMPARE(shownNames(m_files), QStringList({u"c.txt"_s, u"plain"_s}));

        QSignalSpy chosen(m_panel.get(), &FileChooserPanel::fileChosen);
        const QModelIndex index = rowNamed(m_files, u"plain"_s);
        m_files->setCurrentIndex(index);
        QTest::keyClick(m_files, Qt::Key_Return);
        const QPoint centre = m_files->visualRect(index).center();
        // A real double click starts with a press on the same row.
        QTest::mouseClick(m_files->viewport(), Qt::LeftButton, {}, centre);
        QTest::mouseDClick(m_files->viewport(), Qt::LeftButton, {}, centre);
        const QString expected = folder + QDir::separator() + u"plain"_s;
        QCOMPARE(chosen.count(), 2);
        QCOMPARE(chosen.at(0).at(0).toString(), expected);
        QCOMPARE(chosen.at(1).at(0).toString(), expected);
    }

    void rootFolderGetsNoDoubledSeparator() {
        const QString root = QDir::rootPath();
        QVERIFY(m_panel->setFolder(root));
        m_panel->setPattern(FileChooserPanel::allFilesPattern());
        // The root's content belongs to the machine; a folder may stand in the list for a moment
        // before the model knows it is one. Skip when the root holds no file.
        QModelIndex file;
        for (QDeadlineTimer deadline(3000); !file.isValid() && !deadline.hasExpired(); QTest::qWait(50)) {
            for (const QString& name : shownNames(m_files)) {
                if (QFileInfo(root + name).isFile())
                    file = rowNamed(m_files, name);
            }
        }
        if (!file.isValid())
            QSKIP("the root folder holds no visible file to choose");
        QSignalSpy chosen(m_panel.get(), &FileChooserPanel::fileChosen);
        m_files->setCurrentIndex(file);
        QTest::keyClick(m_files, Qt::Key_Return);
        QCOMPARE(chosen.value(0).value(0).toString(), QDir::toNativeSeparators(root) + file.data().toString());
    }

    void navigatesAndRefusesUnusableFolders() {
        QVERIFY(QDir().mkpath(work(u"unten/tiefer"_s)));
        QVERIFY(m_panel->setFolder(m_work->path()));
        QModelIndex index;
        QTRY_VERIFY((index = rowNamed(m_folders, u"unten"_s)).isValid());
        m_folders->setCurrentIndex(index);
        QTest::keyClick(m_folders, Qt::Key_Return);
        QCOMPARE(m_panel->folder(), QDir::toNativeSeparators(work(u"unten"_s)));
        QTest::keyClick(m_folders, Qt::Key_Backspace);
        QCOMPARE(m_panel->folder(), QDir::toNativeSeparators(m_work->path()));
        QTest::mouseClick(m_panel->findChild<QPushButton*>(u"cmd_up"_s), Qt::LeftButton);
        QCOMPARE(m_panel->folder(), QDir::toNativeSeparators(QFileInfo(m_work->path()).absolutePath()));

        // A refused folder leaves the panel where it was, with the reason in the panel.
        auto* message = m_panel->findChild<QLabel*>(u"lbl_message"_s);
        const QString before = m_panel->folder();
        QVERIFY(!m_panel->setFolder(work(u"fehlt"_s)));
        QVERIFY(message->isVisible() && message->text().contains(u"existiert nicht"_s));
        QCOMPARE(m_panel->folder(), before);
        if (geteuid() == 0)
            QSKIP("root reads every folder, so a locked folder cannot be tested");
        QVERIFY(QFile::setPermissions(work(u"unten"_s), QFile::WriteOwner));
        QVERIFY(!m_panel->setFolder(work(u"unten"_s)));
        QFile::setPermissions(work(u"unten"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(message->text().contains(u"kann nicht gelesen werden"_s));
        QCOMPARE(m_panel->folder(), before);
    }

    void anUnreadableDriveIsToldAndTheDriveGoesBack() {
        QVERIFY(m_panel->setFolder(m_work->path()));
        auto* drives = m_panel->findChild<QComboBox*>(u"Drive1"_s);
        auto* message = m_panel->findChild<QLabel*>(u"lbl_message"_s);
        const int shown = drives->currentIndex();
        const QString missing = QDir::toNativeSeparators(work(u"kein Laufwerk"_s));
        drives->addItem(missing);
        QSignalSpy changed(m_panel.get(), &FileChooserPanel::folderChanged);
        drives->setCurrentIndex(drives->count() - 1);
        emit drives->activated(drives->count() - 1);
        QVERIFY(message->isVisible());
        QCOMPARE(message->text(), u"Der Ordner \"%1\" existiert nicht."_s.arg(missing));
        QCOMPARE(drives->currentIndex(), shown);
        QCOMPARE(m_panel->folder(), QDir::toNativeSeparators(m_work->path()));
        QCOMPARE(changed.count(), 0);

        // A readable drive shows its root and clears the message.
        emit drives->activated(shown);
        QVERIFY(!message->isVisible());
        QCOMPARE(m_panel->folder(), drives->itemText(shown));
        QCOMPARE(changed.count(), 1);
    }

    void saveRequestsNeedAName() {
        QVERIFY(m_panel->setFolder(m_work->path()));
        auto* saveName = m_panel->findChild<QLineEdit*>(u"txt_save"_s);
        auto* saveAs = m_panel->findChild<QPushButton*>(u"cmd_SaveAs"_s);
        QSignalSpy copy(m_panel.get(), &FileChooserPanel::saveCopyRequested);
        QSignalSpy as(m_panel.get(), &FileChooserPanel::saveAsRequested);
        for (const QString& name : {QString(), u"   "_s, u"kopie.pro"_s}) {
            m_panel->setSaveName(name);
            QTest::keyClick(saveName, Qt::Key_Return);
            QTest::mouseClick(saveAs, Qt::LeftButton);
        }
        const QVariantList expected{QDir::toNativeSeparators(m_work->path()), u"kopie.pro"_s};
        QCOMPARE(copy.count(), 1);
        QCOMPARE(copy.at(0), expected);
        QCOMPARE(as.count(), 1);
        QCOMPARE(as.at(0), expected);
    }

private:
    QString work(const QString& name) const { return m_work->path() + u'/' + name; }

    std::unique_ptr<QTemporaryDir> m_work;
    std::unique_ptr<FileChooserPanel> m_panel;
    QListView* m_files = nullptr;
    QListView* m_folders = nullptr;
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<FileChooserPanelTest>(argc, argv);
}

#include "filechooserpanel_test.moc"
