// The favourites constructor as its user drives it: taking a favourite line of the entry line
// apart into the fields, choosing a folder, and handing the built line to the main window.
#include "panelsandbox.h"

#include "knowledge/favorites.h"
#include "ui/knowledge/favoritespanel.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QColor kMissingRed(248, 15, 0);

QString chosenFolderOf(QTreeView* tree) {
    const auto* model = static_cast<const QFileSystemModel*>(tree->model());
    return QDir::toNativeSeparators(model->filePath(tree->currentIndex()));
}

} // namespace

class FavoritesPanelTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_work;
    QString m_folder; // an existing folder with blanks in its path

    template <typename T> static T* child(const FavoritesPanel& panel, const QString& name) {
        auto* widget = panel.findChild<T*>(name);
        if (!widget)
            qFatal("missing control %s", qPrintable(name));
        return widget;
    }

private slots:
    void initTestCase() {
        QVERIFY(m_work.isValid());
        m_folder = QDir::toNativeSeparators(m_work.filePath(u"Norm teile/Schrauben M8"_s));
        QVERIFY(QDir().mkpath(m_folder));
    }

    void takingApartAFavouriteWithBlanksFillsTheFields() {
        FavoritesPanel panel;
        auto* path = child<QLineEdit>(panel, u"txt_Favo"_s);
        auto* name = child<QLineEdit>(panel, u"txt_Favoname"_s);
        auto* tree = child<QTreeView>(panel, u"Dir_Favo"_s);
        panel.hide();

        const QString line = u"browser_favorite "_s + m_folder + u" Schrauben "_s;
        QCOMPARE(panel.takeApart(line), line.chopped(1));
        QVERIFY(panel.isVisible());
        QCOMPARE(path->text(), m_folder);
        QCOMPARE(name->text(), u"Schrauben"_s);
        QVERIFY(path->palette().color(QPalette::Text) != kMissingRed);
        // The browser went to the folder, and the path stayed as the line writes it.
        QCOMPARE(chosenFolderOf(tree), m_folder);
        QCOMPARE(path->text(), m_folder);
    }

    void aMissingFolderIsRedAndShortNamesOrOtherLinesKeepTheFields() {
        FavoritesPanel panel;
        auto* path = child<QLineEdit>(panel, u"txt_Favo"_s);
        auto* name = child<QLineEdit>(panel, u"txt_Favoname"_s);
        auto* tree = child<QTreeView>(panel, u"Dir_Favo"_s);
        const QString before = chosenFolderOf(tree);

        QCOMPARE(panel.takeApart(u"BROWSER_FAVORITE C:\\Program Files\\parts Teile"_s),
                 u"BROWSER_FAVORITE C:\\Program Files\\parts Teile"_s);
        QCOMPARE(path->text(), u"C:\\Program Files\\parts"_s);
        QCOMPARE(name->text(), u"Teile"_s);
        QCOMPARE(path->palette().color(QPalette::Text), kMissingRed);
        QCOMPARE(chosenFolderOf(tree), before);

        // One character is no name: the field keeps the last one.
        panel.takeApart(u"browser_favorite "_s + m_folder + u" T"_s);
        QCOMPARE(path->text(), m_folder);
        QCOMPARE(name->text(), u"Teile"_s);
        QVERIFY(path->palette().color(QPalette::Text) != kMissingRed);

        QCOMPARE(panel.takeApart(u"display shade "_s), u"display shade "_s);
        QCOMPARE(path->text(), m_folder);
        QCOMPARE(name->text(), u"Teile"_s);
    }

    void choosingAndTypingFoldersAndAddingTheLine() {
        FavoritesPanel panel;
        auto* path = child<QLineEdit>(panel, u"txt_Favo"_s);
        auto* name = child<QLineEdit>(panel, u"txt_Favoname"_s);
        auto* tree = child<QTreeView>(panel, u"Dir_Favo"_s);
        QSignalSpy added(&panel, &FavoritesPanel::lineToDocument);
        QVERIFY(path->text().isEmpty()); // nothing is chosen before the user chooses

        // Choosing a folder in the browser writes its path.
        const auto* model = static_cast<const QFileSystemModel*>(tree->model());
        const QString parent = QDir::toNativeSeparators(m_work.filePath(u"Norm teile"_s));
        tree->setCurrentIndex(model->index(QDir::fromNativeSeparators(parent)));
        QCOMPARE(path->text(), parent);

        // Typing moves the browser along once the text names a folder, and leaves the typing alone.
        path->clear();
        const QString typed = m_folder + QDir::separator();
        QTest::keyClicks(path, typed);
        QCOMPARE(path->text(), typed);
        QCOMPARE(chosenFolderOf(tree), m_folder);
        QTest::keyClicks(path, u"fehlt"_s);
        QCOMPARE(path->palette().color(QPalette::Text), kMissingRed);
        QCOMPARE(chosenFolderOf(tree), m_folder);

        name->setText(u"Schrauben"_s);
        QTest::mouseClick(child<QPushButton>(panel, u"cmd_favo"_s), Qt::LeftButton);
        QCOMPARE(added.count(), 1);
        QCOMPARE(added.at(0).at(0).toString(), u"browser_favorite "_s + typed + u"fehlt Schrauben"_s);
    }

    void anUnreadableDriveGoesBackToTheShownOne() {
        FavoritesPanel panel;
        auto* drives = child<QComboBox>(panel, u"Drive_Favo"_s);
        auto* message = child<QLabel>(panel, u"lbl_favomeldung"_s);
        panel.show();
        const int shown = drives->currentIndex();
        const QString missing = QDir::toNativeSeparators(m_work.filePath(u"kein Laufwerk"_s));
        drives->addItem(missing);

        drives->setCurrentIndex(drives->count() - 1);
        emit drives->activated(drives->count() - 1);
        QCOMPARE(drives->currentIndex(), shown);
        QVERIFY(message->isVisible());
        QCOMPARE(message->text(), u"Das Laufwerk \"%1\" kann nicht gelesen werden."_s.arg(missing));

        // A readable drive clears the message and chooses its root.
        emit drives->activated(shown);
        QVERIFY(!message->isVisible());
        QCOMPARE(child<QLineEdit>(panel, u"txt_Favo"_s)->text(), drives->itemText(shown));
    }

    void helpAndCloseReportToTheMainWindow() {
        FavoritesPanel panel;
        panel.show();
        QSignalSpy help(&panel, &FavoritesPanel::helpRequested);
        QSignalSpy closed(&panel, &FavoritesPanel::closeRequested);

        QTest::mouseClick(child<QLabel>(panel, u"lbl_favohelp"_s), Qt::LeftButton);
        QCOMPARE(help.count(), 1);
        QCOMPARE(help.at(0).at(0).toString(), favoriteHelpText());

        QTest::mouseClick(child<QPushButton>(panel, u"cmd_favoExit"_s), Qt::LeftButton);
        QCOMPARE(closed.count(), 1);
        QVERIFY(!panel.isVisible());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<FavoritesPanelTest>(argc, argv);
}

#include "favoritespanel_test.moc"
