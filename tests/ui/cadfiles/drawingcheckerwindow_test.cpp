// The drawing/model checker window, clicked as its user does, with drawings built in a temporary folder.
#include "ui/cadfiles/drawingcheckerwindow.h"

#include "../cadfiles/drawingfixture.h"
#include "../cadfiles/modellistfixture.h"
#include "cadfiles/drawingcheckersettings.h"
#include "panelsandbox.h"
#include "settings/settingsstore.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;
using drawingfixture::drawingBytes;
using drawingfixture::writeFile;

namespace {

const QString kOk = u"OK! Zeichnung enthält Modell gleichen Namens"_s;
const QString kNicht = u"Achtung : Zeichnung enthält Modell NICHT gleichen Namens"_s;

void clickItem(QListWidget* list, int row) {
    QListWidgetItem* item = list->item(row);
    QVERIFY(item);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
}

} // namespace

class DrawingCheckerWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    void storeFolder(const QString& folder) { QVERIFY(storeDrawingCheckerSettings({folder, u"/"_s})); }

private slots:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        QVERIFY(!writeFile(m_dir.path(), u"bracket.drw.2"_s, drawingBytes("BRACKET ")).isEmpty());
        QVERIFY(!writeFile(m_dir.path(), u"bracket2.drw"_s, drawingBytes("BRACKET ")).isEmpty());
        QVERIFY(!writeFile(m_dir.path(), u"housing.DRW.1"_s, drawingBytes("housing ")).isEmpty());
        QVERIFY(!writeFile(m_dir.path(), u"kurz.drw"_s, "#UGC:2 DRAWING 1977\n").isEmpty());
        QVERIFY(!writeFile(m_dir.path(), u"plate.prt.1"_s, drawingBytes("PLATE ")).isEmpty());
    }

    void opensTheStoredFolderAndListsItsDrawings() {
        storeFolder(m_dir.path());
        DrawingCheckerWindow window;
        QCOMPARE(window.currentFolder(), QDir::toNativeSeparators(m_dir.path()));
        QCOMPARE(window.drawingFiles(),
                 (QStringList{u"bracket.drw.2"_s, u"bracket2.drw"_s, u"housing.DRW.1"_s, u"kurz.drw"_s}));
    }

    void missingStoredFolderFallsBack() {
        storeFolder(m_dir.filePath(u"gibt-es-nicht"_s));
        DrawingCheckerWindow window;
        QVERIFY(QDir(window.currentFolder()).exists());
        QVERIFY(window.currentFolder() != QDir::toNativeSeparators(m_dir.filePath(u"gibt-es-nicht"_s)));
    }

    void closingStoresFolderAndDrive() {
        storeFolder(QDir::homePath());
        {
            DrawingCheckerWindow window;
            QVERIFY(window.setCurrentFolder(m_dir.path()));
            window.close();
        }
        const DrawingCheckerSettings stored = loadDrawingCheckerSettings();
        QCOMPARE(stored.folder, QDir::toNativeSeparators(m_dir.path()));
        QVERIFY(!stored.drive.isEmpty());
        QVERIFY(QDir::fromNativeSeparators(stored.folder).startsWith(QDir::fromNativeSeparators(stored.drive).left(1)));
    }

    void clickOnADrawingShowsItsModel_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("note");
        QTest::newRow("same name") << 0 << u"BRACKET"_s << kOk << false;
        QTest::newRow("shorter model") << 1 << u"BRACKET"_s << kNicht << false;
        QTest::newRow("lower case model") << 2 << u"HOUSING"_s << kOk << false;
        QTest::newRow("short first line") << 3 << u""_s << kNicht << true;
    }

    void clickOnADrawingShowsItsModel() {
        QFETCH(int, row);
        QFETCH(QString, model);
        QFETCH(QString, status);
        QFETCH(bool, note);
        storeFolder(m_dir.path());
        DrawingCheckerWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        clickItem(window.findChild<QListWidget*>(u"File1"_s), row);
        QCOMPARE(window.findChild<QLineEdit*>(u"Text1"_s)->text(), model);
        QCOMPARE(window.findChild<QLabel*>(u"lblStatus"_s)->text(), status);
        QCOMPARE(window.findChild<QLabel*>(u"lbl_note"_s)->isVisible(), note);
    }

    void folderCheckListsDifferingDrawings() {
        storeFolder(m_dir.path());
        DrawingCheckerWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy finished(&window, &DrawingCheckerWindow::folderCheckFinished);
        QTest::mouseClick(window.findChild<QPushButton*>(u"cmd_check"_s), Qt::LeftButton);
        QVERIFY(finished.count() == 1 || finished.wait(60000));

        auto* differing = window.findChild<QListWidget*>(u"List1"_s);
        QCOMPARE(differing->count(), 2);
        QCOMPARE(differing->item(0)->text(), u"BRACKET2"_s);
        QCOMPARE(differing->item(1)->text(), u"KURZ"_s);
        QCOMPARE(window.findChild<QLabel*>(u"lblStatus"_s)->text(), u"4 files checked"_s);
        QVERIFY(window.findChild<QLabel*>(u"lbl_note"_s)->text().contains(u"Bei 1 von 4"_s));
        QVERIFY(window.findChild<QPushButton*>(u"cmd_check"_s)->isEnabled());
        QVERIFY(!window.findChild<QPushButton*>(u"cmd_cancel"_s)->isVisible());

        // A click on an entry finds its drawing in the file list.
        auto* files = window.findChild<QListWidget*>(u"File1"_s);
        clickItem(differing, 1);
        QCOMPARE(files->currentRow(), 3);
        clickItem(differing, 0);
        QCOMPARE(files->currentRow(), 1);
    }

    // Drawings of current releases: the designed rule reads no name, the drawing's own list shows
    // beside Text1 and as the tooltip of their List1 entries.
    void showsTheModelsTheDrawingLists() {
        using namespace modellistfixture;
        QTemporaryDir current;
        QVERIFY(!writeFile(current.path(), u"gehaeuse.drw.3"_s,
                           currentDrawing({packedSection(), modelsSection({"GEHAEUSE.PRT"}), objectsSection()}))
                     .isEmpty());
        QVERIFY(!writeFile(current.path(), u"welle.drw"_s, currentDrawing({modelsSection({"WELLE.PRT", "LAGER.ASM"})}))
                     .isEmpty());
        QVERIFY(!writeFile(current.path(), u"zzz.drw"_s, drawingBytes("ZZZ ")).isEmpty());
        storeFolder(current.path());
        DrawingCheckerWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* files = window.findChild<QListWidget*>(u"File1"_s);
        auto* models = window.findChild<QLabel*>(u"lbl_modelle"_s);
        QVERIFY(models);
        QVERIFY(!models->isVisible());

        clickItem(files, 0);
        QCOMPARE(window.findChild<QLineEdit*>(u"Text1"_s)->text(), u""_s);
        QCOMPARE(window.findChild<QLabel*>(u"lblStatus"_s)->text(), kNicht);
        QVERIFY(models->isVisible());
        QCOMPARE(models->text(), u"Modelle laut Zeichnung: GEHAEUSE.PRT"_s);

        clickItem(files, 1);
        QCOMPARE(models->text(), u"Modelle laut Zeichnung: WELLE.PRT, LAGER.ASM"_s);

        // A drawing that names no model leaves nothing there.
        clickItem(files, 2);
        QCOMPARE(window.findChild<QLineEdit*>(u"Text1"_s)->text(), u"ZZZ"_s);
        QVERIFY(!models->isVisible());

        QSignalSpy finished(&window, &DrawingCheckerWindow::folderCheckFinished);
        QTest::mouseClick(window.findChild<QPushButton*>(u"cmd_check"_s), Qt::LeftButton);
        QVERIFY(finished.count() == 1 || finished.wait(60000));
        auto* differing = window.findChild<QListWidget*>(u"List1"_s);
        QCOMPARE(differing->count(), 2);
        QCOMPARE(differing->item(0)->text(), u"GEHAEUSE"_s);
        QCOMPARE(differing->item(0)->toolTip(), u"Modelle laut Zeichnung: GEHAEUSE.PRT"_s);
        QCOMPARE(differing->item(1)->text(), u"WELLE"_s);
        QCOMPARE(differing->item(1)->toolTip(), u"Modelle laut Zeichnung: WELLE.PRT, LAGER.ASM"_s);
    }

    void aLongFolderCheckCanBeCancelled() {
        QTemporaryDir many;
        const QByteArray bytes = drawingBytes("X ");
        for (int i = 0; i < 3000; ++i)
            QVERIFY(!writeFile(many.path(), u"d%1.drw"_s.arg(i, 5, 10, QChar(u'0')), bytes).isEmpty());
        storeFolder(many.path());
        DrawingCheckerWindow window;
        window.show();
        QSignalSpy finished(&window, &DrawingCheckerWindow::folderCheckFinished);
        window.checkFolder();
        QVERIFY(window.isChecking());
        QVERIFY(window.findChild<QPushButton*>(u"cmd_cancel"_s)->isVisible());
        QVERIFY(!window.findChild<QPushButton*>(u"cmd_check"_s)->isEnabled());
        QTest::mouseClick(window.findChild<QPushButton*>(u"cmd_cancel"_s), Qt::LeftButton);
        QVERIFY(finished.count() == 1 || finished.wait(60000));
        QVERIFY(!window.isChecking());
        const QString status = window.findChild<QLabel*>(u"lblStatus"_s)->text();
        // The worker may have finished before the click arrived; otherwise it says how far it got.
        QVERIFY2(status == u"3000 files checked"_s ||
                     (status.startsWith(u"Abgebrochen: "_s) && status.endsWith(u" von 3000 Zeichnungen geprüft."_s)),
                 qPrintable(status));
        QVERIFY(window.findChild<QPushButton*>(u"cmd_check"_s)->isEnabled());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<DrawingCheckerWindowTest>(argc, argv);
}

#include "drawingcheckerwindow_test.moc"
