// The picture viewer and the messenger as the main window opens them: one window each, the
// viewer's "netsend" reaching the same messenger, and "exit" ending the program the way "EXIT" does.
#include "panelsandbox.h"
#include "ui/widgets/dialogs.h"
#include "ui/main/mainwindow.h"
#include "ui/desktools/netsendwindow.h"
#include "ui/desktools/pictureviewerwindow.h"

#include <QAction>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace quenfor;

class VistrelMainTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<MainWindow> m_window;
    QList<Dialogs::Request> m_asked;

    void trigger(const QString& entry) {
        QAction* action = m_window->findChild<QAction*>(entry);
        QVERIFY2(action && action->isEnabled(), qPrintable(entry));
        action->trigger();
    }

    PictureViewerWindow* viewer() const { return m_window->findChild<PictureViewerWindow*>(); }

    static void type(QWidget* window, const QString& command) {
        auto* console = window->findChild<QLineEdit*>(u"lblstatus"_s);
        console->setText(command);
        QTest::keyClick(console, Qt::Key_Return);
    }

private slots:
    void init() {
        const QString file = m_dir.filePath(u"config.pro"_s);
        QFile config(file);
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write("display_grid yes\r\n");
        config.close();
        m_asked.clear();
        Dialogs::setHandler([this](const Dialogs::Request& request) {
            m_asked.append(request);
            return Dialogs::Reply{Dialogs::Answer::No, {}};
        });
        m_window = std::make_unique<MainWindow>();
        m_window->startUp({file});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() {
        m_window.reset();
        Dialogs::setHandler({});
    }

    void menuOpensOneViewerAndItsNetsendTheOneMessenger() {
        trigger(u"mnuPictureViewer"_s);
        trigger(u"mnuPictureViewer"_s);
        QCOMPARE(m_window->findChildren<PictureViewerWindow*>().size(), 1);
        QVERIFY(viewer()->isVisible());

        type(viewer(), u"netsend"_s);
        QCOMPARE(m_window->findChildren<NetSendWindow*>().size(), 1);
        trigger(u"mnuNetSend"_s);
        QCOMPARE(m_window->findChildren<NetSendWindow*>().size(), 1);
        QVERIFY(m_window->findChild<NetSendWindow*>()->isVisible());
    }

    void quitBringsBackTheMainWindow() {
        trigger(u"mnuPictureViewer"_s);
        m_window->hide();
        type(viewer(), u"quit"_s);
        QVERIFY(m_window->isVisible());
        QTRY_VERIFY(!viewer());
    }

    void exitClosesEverythingAndTheMainWindowAsksToSave() {
        trigger(u"mnuPictureViewer"_s);
        trigger(u"mnuNetSend"_s);
        type(viewer(), u"exit"_s);
        QCOMPARE(m_asked.size(), 1);
        QCOMPARE(m_asked.first().kind, Dialogs::Kind::Question);
        QVERIFY(!m_window->isVisible());
        QTRY_VERIFY(!viewer());
        QTRY_VERIFY(!m_window->findChild<NetSendWindow*>());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<VistrelMainTest>(argc, argv);
}

#include "vistrelmain_test.moc"
