// Real screen captures on an X server (run under xvfb-run): a window of a known colour is
// photographed, saved, and read back; the whole-screen shot leaves the tool's own window out; the
// desktop names the title of a process's window.
#include "ui/desktools/screenshotwindow.h"
#include "ui/desktools/windowtitle.h"

#include "panelsandbox.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

class ScreenshotX11Test : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::unique_ptr<QWidget> m_patch;
    const QColor m_colour{0x12, 0xab, 0x34};
    const QRect m_patchGeometry{40, 50, 300, 200};

    static void set(QWidget& window, const QString& name, const QString& text) {
        window.findChild<QLineEdit*>(name)->setText(text);
    }
    static void click(QWidget& window, const QString& name) { window.findChild<QPushButton*>(name)->click(); }

    static bool isPlain(const QImage& image, const QRect& area, const QColor& colour) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (image.pixelColor(x, y) != colour)
                    return false;
            }
        }
        return true;
    }

private slots:
    void initTestCase() {
        if (QGuiApplication::platformName() != u"xcb"_s)
            QSKIP("needs an X server: run under xvfb-run with QT_QPA_PLATFORM=xcb");
        QVERIFY(m_dir.isValid());
        m_patch = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        m_patch->setWindowTitle(u"Farbprobe"_s);
        m_patch->setStyleSheet(u"background: %1"_s.arg(m_colour.name()));
        m_patch->setGeometry(m_patchGeometry);
        m_patch->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_patch.get()));
        // The X server shows what the window painted once the event queue has run.
        QTRY_VERIFY_WITH_TIMEOUT(
            QGuiApplication::primaryScreen()->grabWindow(0, 100, 100, 1, 1).toImage().pixelColor(0, 0) == m_colour,
            5000);
    }

    void theThirdRectangleShotHoldsTheColouredWindow() {
        ScreenshotWindow window;
        window.setTargetFolder(m_dir.path());
        set(window, u"txt_filename"_s, u"shot"_s);
        set(window, u"X"_s, u"60"_s);
        set(window, u"Y"_s, u"70"_s);
        set(window, u"BREITE"_s, u"100"_s);
        set(window, u"HOEHE"_s, u"50"_s);
        window.move(500, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (int i = 0; i < 3; ++i)
            click(window, u"cmd_ScreenShot"_s);

        const QString third = QDir::toNativeSeparators(m_dir.filePath(u"shot_3.bmp"_s));
        QCOMPARE(window.lastShotFile(), third);
        const QImage saved(third, "BMP");
        QCOMPARE(saved.size(), QSize(100, 50));
        QVERIFY(isPlain(saved, saved.rect(), m_colour));
        // The Print key step left the whole screen on the clipboard.
        const QImage clipboard = QGuiApplication::clipboard()->image();
        QCOMPARE(clipboard.size(), window.screen()->geometry().size());
        QCOMPARE(clipboard.pixelColor(m_patchGeometry.center()), m_colour);
        window.close();
    }

    void theWholeScreenShotLeavesTheToolOut() {
        ScreenshotWindow window;
        window.setTargetFolder(m_dir.path());
        // A colour the tool alone has, to look for it in the shot.
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, QColor(0xff, 0x00, 0xff));
        window.setPalette(palette);
        window.setAutoFillBackground(true);
        window.setGeometry(420, 260, 500, 460);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::primaryScreen()
                                         ->grabWindow(0, window.x() + 2, window.y() + 2, 1, 1)
                                         .toImage()
                                         .pixelColor(0, 0) == QColor(0xff, 0x00, 0xff),
                                 5000);
        QSignalSpy finished(&window, &ScreenshotWindow::shotFinished);
        click(window, u"cmd_All"_s);
        QVERIFY(finished.wait(5000));
        QVERIFY(window.isVisible());

        const QImage saved(m_dir.filePath(u"screenshot1.bmp"_s), "BMP");
        QCOMPARE(saved.size(), window.screen()->geometry().size());
        QCOMPARE(saved.pixelColor(m_patchGeometry.center()), m_colour);
        QVERIFY(!isPlain(saved, QRect(window.x() + 2, window.y() + 2, 4, 4), QColor(0xff, 0x00, 0xff)));
        window.close();
    }

    void theDesktopNamesTheWindowOfAProcess() {
        const WindowTitleLookup own = windowTitleOfProcess(qint64(::getpid()));
        QVERIFY(own.desktopTells);
        QVERIFY(own.title.has_value());
        QCOMPARE(*own.title, u"Farbprobe"_s);
        // xvfb-run's shell has no window.
        const WindowTitleLookup parent = windowTitleOfProcess(qint64(::getppid()));
        QVERIFY(parent.desktopTells);
        QVERIFY(!parent.title.has_value());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ScreenshotX11Test>(argc, argv);
}

#include "screenshot_x11_test.moc"
