#include "ui/widgets/drivefolderchooser.h"

#include "panelsandbox.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QListView>
#include <QSignalSpy>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTreeView>
#include <QWidget>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

class DriveFolderChooserTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir* m_dir = nullptr;

    QString path(const QString& name) const { return QDir::toNativeSeparators(m_dir->filePath(name)); }

    static int driveIndexOf(const DriveFolderChooser& chooser, const QString& root) {
        return chooser.driveBox()->findText(QDir::toNativeSeparators(root));
    }

private slots:
    void init() {
        m_dir = new QTemporaryDir;
        QVERIFY(m_dir->isValid());
        QVERIFY(QDir(m_dir->path()).mkpath(u"A/innen"_s));
        QVERIFY(QDir(m_dir->path()).mkpath(u"B"_s));
        QFile file(m_dir->filePath(u"datei.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void cleanup() {
        delete m_dir;
        m_dir = nullptr;
    }

    void widgetsKeepTheirNames() {
        QWidget window;
        const DriveFolderChooser chooser(&window);
        QCOMPARE(window.findChild<QComboBox*>(u"Drive1"_s), chooser.driveBox());
        QCOMPARE(window.findChild<QTreeView*>(u"Dir1"_s), chooser.folderTree());
    }

    void choosingADriveListsItsFolders() {
        QWidget window;
        DriveFolderChooser chooser(&window);
        QSignalSpy chosen(&chooser, &DriveFolderChooser::folderChosen);
        QVERIFY(chooser.setCurrentFolder(path(u"A"_s)));
        const QString root = QDir::rootPath();
        const int index = driveIndexOf(chooser, root);
        QVERIFY(index >= 0);
        emit chooser.driveBox()->activated(index);
        QCOMPARE(chooser.folder(), QDir::toNativeSeparators(root));
        QCOMPARE(chosen.last().value(0).toString(), QDir::toNativeSeparators(root));
        QCOMPARE(chooser.driveBox()->currentIndex(), index);
        // The root's folders arrive from the model's thread; the tree lists them under the root.
        const QModelIndex rootIndex = chooser.model()->index(root);
        QCOMPARE(chooser.folderTree()->currentIndex(), rootIndex);
        QTRY_VERIFY(chooser.model()->rowCount(rootIndex) > 0);
        const QString first = chooser.model()->filePath(chooser.model()->index(0, 0, rootIndex));
        QVERIFY2(QFileInfo(first).isDir(), qPrintable(first));
    }

    void anUnreadableDriveGoesBackToTheShownOne() {
        QWidget window;
        DriveFolderChooser chooser(&window);
        QVERIFY(chooser.setCurrentFolder(path(u"B"_s)));
        const int shown = chooser.driveBox()->currentIndex();
        QVERIFY(shown >= 0);
        // A drive that went away since the list was filled.
        const QString missing = path(u"kein Laufwerk"_s);
        chooser.driveBox()->addItem(missing);
        QSignalSpy chosen(&chooser, &DriveFolderChooser::folderChosen);
        QSignalSpy unavailable(&chooser, &DriveFolderChooser::driveUnavailable);
        connect(&chooser, &DriveFolderChooser::driveUnavailable, this, [&] {
            // The window gives its message while the box still shows the drive chosen.
            QCOMPARE(chooser.driveBox()->currentText(), missing);
        });
        chooser.driveBox()->setCurrentIndex(chooser.driveBox()->count() - 1);
        emit chooser.driveBox()->activated(chooser.driveBox()->count() - 1);
        QCOMPARE(unavailable.count(), 1);
        QCOMPARE(unavailable.value(0).value(0).toString(), missing);
        QCOMPARE(chosen.count(), 0);
        QCOMPARE(chooser.driveBox()->currentIndex(), shown);
        QCOMPARE(chooser.folder(), path(u"B"_s));
    }

    void thePathFollowsTheChosenFolder() {
        QWidget window;
        DriveFolderChooser chooser(&window);
        QSignalSpy chosen(&chooser, &DriveFolderChooser::folderChosen);
        QVERIFY(chooser.setCurrentFolder(path(u"A"_s)));
        QCOMPARE(chooser.folder(), path(u"A"_s));
        QCOMPARE(chosen.count(), 1);
        // Choosing the folder shown again is announced again: the window must still show it.
        QVERIFY(chooser.setCurrentFolder(path(u"A"_s)));
        QCOMPARE(chosen.count(), 2);

        // Clicking another folder in the tree.
        chooser.folderTree()->setCurrentIndex(chooser.model()->index(m_dir->filePath(u"A/innen"_s)));
        QCOMPARE(chooser.folder(), path(u"A/innen"_s));
        QCOMPARE(chosen.last().value(0).toString(), path(u"A/innen"_s));
        QCOMPARE(chooser.driveBox()->currentIndex(), driveIndexOf(chooser, QDir::rootPath()));

        // Neither a missing folder nor a file is shown; nothing changes.
        chosen.clear();
        QVERIFY(!chooser.setCurrentFolder(path(u"fehlt"_s)));
        QVERIFY(!chooser.setCurrentFolder(path(u"datei.txt"_s)));
        QCOMPARE(chosen.count(), 0);
        QCOMPARE(chooser.folder(), path(u"A/innen"_s));
    }

    void aTreeOfOneDriveStartsAtItsRoot() {
        QWidget window;
        DriveFolderChooser chooser(&window, DriveFolderChooser::View::OneDrive);
        QTreeView* tree = chooser.folderTree();
        QSignalSpy chosen(&chooser, &DriveFolderChooser::folderChosen);
        QVERIFY(chooser.setCurrentFolder(path(u"A/innen"_s)));
        const QString root = QDir::fromNativeSeparators(chooser.driveBox()->currentText());
        QVERIFY2(m_dir->path().startsWith(root), qPrintable(root));
        QCOMPARE(tree->rootIndex(), chooser.model()->index(root));
        QCOMPARE(chooser.model()->filePath(tree->currentIndex()), m_dir->filePath(u"A/innen"_s));
        QCOMPARE(chosen.last().value(0).toString(), path(u"A/innen"_s));

        // The root is no row of its own: choosing the drive chooses it.
        emit chooser.driveBox()->activated(chooser.driveBox()->currentIndex());
        QVERIFY(!tree->currentIndex().isValid());
        QCOMPARE(chooser.folder(), QDir::toNativeSeparators(root));
        QCOMPARE(chosen.last().value(0).toString(), QDir::toNativeSeparators(root));
        QCOMPARE(chosen.count(), 2);
    }

    void aListShowsTheFoldersSubfolders() {
        QWidget window;
        DriveFolderChooser chooser(&window, DriveFolderChooser::View::FolderList);
        QListView* list = chooser.folderList();
        QVERIFY(list && !chooser.folderTree());
        QCOMPARE(window.findChild<QListView*>(u"Dir1"_s), list);
        QSignalSpy chosen(&chooser, &DriveFolderChooser::folderChosen);
        // A trailing separator names the same folder.
        QVERIFY(chooser.setCurrentFolder(m_dir->path() + u"/A/"_s));
        QCOMPARE(chooser.folder(), path(u"A"_s));
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(list->rootIndex(), chooser.model()->index(m_dir->filePath(u"A"_s)));
        QTRY_COMPARE(chooser.model()->rowCount(list->rootIndex()), 1);
        QCOMPARE(chooser.model()->index(0, 0, list->rootIndex()).data().toString(), u"innen"_s);
        QCOMPARE(chooser.driveBox()->currentIndex(), driveIndexOf(chooser, QDir::rootPath()));

        // Files are no folders to enter.
        QVERIFY(!chooser.setCurrentFolder(path(u"datei.txt"_s)));
        QCOMPARE(chooser.folder(), path(u"A"_s));
    }

    void aKeptFolderNeedNotExist() {
        QWidget window;
        DriveFolderChooser chooser(&window);
        QVERIFY(chooser.setCurrentFolder(path(u"A"_s)));
        // A second listed drive that holds the kept folder, as a network share would.
        chooser.driveBox()->addItem(path(u"B"_s));
        const int share = chooser.driveBox()->count() - 1;
        QSignalSpy chosen(&chooser, &DriveFolderChooser::folderChosen);

        chooser.keepFolder(path(u"B/Ziel noch nicht da"_s));
        QCOMPARE(chooser.folder(), path(u"B/Ziel noch nicht da"_s));
        QCOMPARE(chooser.driveBox()->currentIndex(), share);
        QCOMPARE(chosen.count(), 0);
        // The tree still shows the last folder it could show.
        QCOMPARE(chooser.model()->filePath(chooser.folderTree()->currentIndex()), m_dir->filePath(u"A"_s));

        // After an unreadable drive the box goes back to the kept folder's drive.
        chooser.driveBox()->addItem(path(u"kein Laufwerk"_s));
        emit chooser.driveBox()->activated(chooser.driveBox()->count() - 1);
        QCOMPARE(chooser.driveBox()->currentIndex(), share);
        QCOMPARE(chooser.folder(), path(u"B/Ziel noch nicht da"_s));

        // A kept folder that exists is shown and announced.
        chooser.keepFolder(path(u"A/innen"_s));
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chooser.model()->filePath(chooser.folderTree()->currentIndex()), m_dir->filePath(u"A/innen"_s));
    }

    void aDriveMountedLaterJoinsTheList() {
        QWidget window;
        DriveFolderChooser chooser(&window);
        chooser.driveBox()->clear();
        QVERIFY(chooser.setCurrentFolder(path(u"A"_s)));
        QCOMPARE(chooser.driveBox()->count(), 1);
        QCOMPARE(chooser.driveBox()->currentText(), QDir::toNativeSeparators(QStorageInfo(m_dir->path()).rootPath()));
    }

    void aFolderWhoseNamesCannotBeReadIsRefused() {
        if (geteuid() == 0)
            QSKIP("root reads every folder, so a locked folder cannot be tested");
        QWidget window;
        DriveFolderChooser chooser(&window);
        QVERIFY(chooser.setCurrentFolder(path(u"A"_s)));
        QVERIFY(QFile::setPermissions(m_dir->filePath(u"B"_s), QFile::WriteOwner));
        const bool shown = chooser.setCurrentFolder(path(u"B"_s));
        QFile::setPermissions(m_dir->filePath(u"B"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(!shown);
        QCOMPARE(chooser.folder(), path(u"A"_s));
    }

    void disablingLocksDriveAndTree() {
        QWidget window;
        DriveFolderChooser chooser(&window);
        chooser.setEnabled(false);
        QVERIFY(!chooser.driveBox()->isEnabled());
        QVERIFY(!chooser.folderTree()->isEnabled());
        chooser.setEnabled(true);
        QVERIFY(chooser.driveBox()->isEnabled() && chooser.folderTree()->isEnabled());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<DriveFolderChooserTest>(argc, argv);
}

#include "drivefolderchooser_test.moc"
