// The folder browser exists to put a folder's path on the clipboard; its hints and closing are
// its contract with the main window.
#include "panelsandbox.h"

#include "ui/main/folderpanel.h"
#include "ui/widgets/statushints.h"

#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace quenfor;

class FolderPanelTest : public QObject {
    Q_OBJECT

private slots:
    void copiesTheChosenFolderAndCloses() {
        QTemporaryDir work;
        const QString folder = work.path() + u"/Zeichnungen ä"_s;
        QVERIFY(QDir().mkdir(folder));
        FolderPanel panel;
        panel.show();
        QLabel status;
        StatusHints hints(&status);
        panel.registerHints(hints);
        auto* copy = panel.findChild<QPushButton*>(u"cmd_browser"_s);
        auto* exit = panel.findChild<QPushButton*>(u"cmd_exit_sp"_s);
        QVERIFY(copy && exit && !copy->isEnabled());

        panel.setFolder(folder);
        QTest::mouseClick(copy, Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), QDir::toNativeSeparators(folder));

        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(copy, &enter);
        QCOMPARE(status.text(),
                 u"Pfade mit einem kleinen Browser finden und als Textstring in die Zwischenablage kopieren"_s);
        QApplication::sendEvent(exit, &enter);
        QCOMPARE(status.text(), u"blendet dieses Feld aus"_s);

        QSignalSpy closing(&panel, &FolderPanel::closeRequested);
        QTest::mouseClick(exit, Qt::LeftButton);
        QCOMPARE(closing.count(), 1);
        QVERIFY(panel.isHidden());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<FolderPanelTest>(argc, argv);
}

#include "folderpanel_test.moc"
