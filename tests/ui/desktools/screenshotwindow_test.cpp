// The screenshot window on the offscreen platform, whose screen is the picture of the test's own
// windows: fields, filter, settings, folder frame, numbering and saving.
#include "ui/desktools/screenshotwindow.h"

#include "desktools/screenshotsettings.h"
#include "panelsandbox.h"
#include "settings/settingsstore.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/statushints.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace quenfor;

class ScreenshotWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir* m_dir = nullptr;

    template <typename T = QLineEdit> static T* child(QWidget& window, const QString& name) {
        T* found = window.findChild<T*>(name);
        if (!found)
            qFatal("no %s", qPrintable(name));
        return found;
    }
    static QString status(QWidget& window) { return child<QLabel>(window, u"lblstatus"_s)->text(); }
    static void click(QWidget& window, const QString& name) { child<QPushButton>(window, name)->click(); }
    QString path(const QString& name) const { return QDir::toNativeSeparators(m_dir->filePath(name)); }

    // A window aimed at a small rectangle in the temporary folder.
    std::unique_ptr<ScreenshotWindow> aimedWindow(const QRect& rect = QRect(0, 0, 8, 8)) {
        auto window = std::make_unique<ScreenshotWindow>();
        window->setTargetFolder(m_dir->path());
        child(*window, u"X"_s)->setText(QString::number(rect.x()));
        child(*window, u"Y"_s)->setText(QString::number(rect.y()));
        child(*window, u"BREITE"_s)->setText(QString::number(rect.width()));
        child(*window, u"HOEHE"_s)->setText(QString::number(rect.height()));
        return window;
    }

private slots:
    void init() {
        m_dir = new QTemporaryDir;
        SettingsStore(u"quenfor"_s).remove();
        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{Dialogs::Answer::No, {}}; });
        Dialogs::takeShownTexts();
    }

    void cleanup() {
        Dialogs::setHandler({});
        delete m_dir;
    }

    void opensWithTheFolderFrameClosedAndHints() {
        ScreenshotWindow window;
        QVERIFY(!child<QGroupBox>(window, u"Frame6"_s)->isVisibleTo(&window));
        auto* hints = window.findChild<StatusHints*>();
        for (const char16_t* button : {u"cmd_ScreenShot", u"cmd_All", u"cmdDir"})
            QVERIFY2(!hints->hintOf(child<QPushButton>(window, QString::fromUtf16(button))).isEmpty(),
                     qPrintable(QString::fromUtf16(button)));
    }

    void theSettingsAreReadOnOpenAndWrittenOnClose() {
        ScreenshotSettings{u"10"_s, u"20"_s, u"30"_s, u"40"_s, 120, 90}.save();
        ScreenshotWindow window;
        QCOMPARE(child(window, u"HOEHE"_s)->text(), u"30"_s);
        QCOMPARE(child(window, u"BREITE"_s)->text(), u"40"_s);
        QCOMPARE(window.pos(), QPoint(90, 120));
        child(window, u"BREITE"_s)->setText(u"55,5"_s);
        window.move(33, 44);
        window.close();
        const ScreenshotSettings stored = ScreenshotSettings::load();
        QCOMPARE(QStringList({stored.x, stored.y, stored.height, stored.width}),
                 QStringList({u"10"_s, u"20"_s, u"30"_s, u"55,5"_s}));
        QCOMPARE(QPoint(stored.left, stored.top), QPoint(33, 44));
    }

    void theFieldsTakeOnlyDigitsAndTheComma() {
        ScreenshotWindow window;
        window.show();
        QLineEdit* width = child(window, u"BREITE"_s);
        width->setFocus();
        width->end(false);
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Period, Qt::Key_Comma, Qt::Key_5})
            QTest::keyClick(width, key);
        QCOMPARE(width->text(), u"930,5"_s);
        width->insert(u"1x"_s);
        QCOMPARE(width->text(), u"930,5"_s);
    }

    void theFolderFrameOpensAndClosesAndSetsTheFolder() {
        ScreenshotWindow window;
        window.show();
        click(window, u"cmdDir"_s);
        QVERIFY(child<QGroupBox>(window, u"Frame6"_s)->isVisible());
        QVERIFY(child<QComboBox>(window, u"Drive2"_s)->count() > 0);
        auto* tree = child<QTreeView>(window, u"Dir2"_s);
        QVERIFY(QDir(m_dir->path()).mkdir(u"ziel"_s));
        tree->setCurrentIndex(qobject_cast<QFileSystemModel*>(tree->model())->index(m_dir->filePath(u"ziel"_s)));
        QCOMPARE(window.targetFolder(), path(u"ziel"_s));
        QCOMPARE(child<QLabel>(window, u"lbl_ordner"_s)->text(), path(u"ziel"_s));
        click(window, u"cmd_ok"_s);
        QVERIFY(!child<QGroupBox>(window, u"Frame6"_s)->isVisible());
    }

    void anUnreadableDriveIsToldAndTheTargetStays() {
        ScreenshotWindow window;
        auto* drives = child<QComboBox>(window, u"Drive2"_s);
        drives->addItem(path(u"kein Laufwerk"_s));
        // The temporary folder stands for a network drive that holds the target.
        const QString dir = QDir::toNativeSeparators(m_dir->path());
        drives->addItem(dir);
        const int target = drives->count() - 1;
        // A target that does not exist yet still decides the drive the box goes back to.
        window.setTargetFolder(m_dir->filePath(u"neu"_s));
        QCOMPARE(drives->currentIndex(), target);

        drives->setCurrentIndex(target - 1);
        emit drives->activated(target - 1);
        QCOMPARE(status(window), u"Laufwerk nicht verfügbar !"_s);
        QCOMPARE(drives->currentIndex(), target);
        QCOMPARE(window.targetFolder(), path(u"neu"_s));
        QCOMPARE(child<QLabel>(window, u"lbl_ordner"_s)->text(), path(u"neu"_s));

        // A readable drive makes its root the target.
        emit drives->activated(target);
        QCOMPARE(window.targetFolder(), dir);
        QCOMPARE(child<QLabel>(window, u"lbl_ordner"_s)->text(), dir);
    }

    void anUnusableFieldOrNameStopsTheShotBeforeItIsCounted() {
        auto window = aimedWindow();
        child(*window, u"HOEHE"_s)->clear();
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(status(*window), u"Bitte im Feld HOEHE eine Zahl eingeben."_s);
        child(*window, u"HOEHE"_s)->setText(u"10"_s);
        child(*window, u"txt_filename"_s)->setText(u"a/b"_s);
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(status(*window), u"Der Dateiname darf keines dieser Zeichen enthalten: \\ / : * ? \" < > |"_s);
        QCOMPARE(window->counter(), 0);
    }

    void shotsAreNumberedSavedAndPreviewed() {
        const int screenWidth = QGuiApplication::primaryScreen()->geometry().width();
        auto window = aimedWindow(QRect(screenWidth - 10, 0, 40, 5));
        child(*window, u"txt_CNT"_s)->setText(u"41"_s);
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(child(*window, u"txt_CNT"_s)->text(), u"42"_s);
        // The edge of the screen cuts the rectangle.
        QCOMPARE(QImage(path(u"screenshot_42.bmp"_s)).size(), QSize(10, 5));
        QCOMPARE(status(*window), u"Gespeichert: %1\nBildausschnitt auf den Bildschirm gekürzt: 10 x 5 Pixel."_s.arg(
                                      path(u"screenshot_42.bmp"_s)));
        QVERIFY(!child<QLabel>(*window, u"Image1"_s)->pixmap().isNull());
        click(*window, u"clear"_s);
        QVERIFY(child<QLabel>(*window, u"Image1"_s)->pixmap().isNull());
    }

    void anExistingFileIsOverwrittenOnlyWhenTheUserSaysSo() {
        QFile old(m_dir->filePath(u"screenshot_1.bmp"_s));
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        auto window = aimedWindow();
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(Dialogs::takeShownTexts(),
                 QStringList{u"Die Datei %1 gibt es schon. Überschreiben ?"_s.arg(path(u"screenshot_1.bmp"_s))});
        QCOMPARE(status(*window), u"Nicht gespeichert: %1"_s.arg(path(u"screenshot_1.bmp"_s)));
        QCOMPARE(QFileInfo(old).size(), 3);

        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{Dialogs::Answer::Yes, {}}; });
        child(*window, u"txt_CNT"_s)->setText(u"0"_s);
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(QImage(path(u"screenshot_1.bmp"_s)).size(), QSize(8, 8));
    }

    void aMissingFolderSkipsSavingSilentlyAFailedSaveIsTold() {
        auto window = aimedWindow();
        window->setTargetFolder(m_dir->filePath(u"gibt_es_nicht"_s));
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(window->counter(), 1);
        QCOMPARE(status(*window), QString());
        QVERIFY(!QFile::exists(window->lastShotFile()));
        QVERIFY(!child<QLabel>(*window, u"Image1"_s)->pixmap().isNull());

        window->setTargetFolder(m_dir->path());
        QVERIFY(QDir(m_dir->path()).mkdir(u"screenshot_2.bmp"_s));
        click(*window, u"cmd_ScreenShot"_s);
        QCOMPARE(status(*window),
                 u"Die Datei %1 konnte nicht gespeichert werden: An ihrer Stelle steht ein "
                 "Verzeichnis. Die bisherige Datei bleibt unverändert."_s.arg(path(u"screenshot_2.bmp"_s)));
    }

    void theWholeScreenShotHidesTheWindowMeanwhile() {
        auto window = aimedWindow();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QSignalSpy finished(window.get(), &ScreenshotWindow::shotFinished);
        click(*window, u"cmd_All"_s);
        QVERIFY(!window->isVisible());
        QVERIFY(finished.wait(5000));
        QVERIFY(window->isVisible());
        QCOMPARE(QImage(path(u"screenshot1.bmp"_s)).size(), window->screen()->geometry().size());

        const QString shots = qEnvironmentVariable("QUENFOR_SCREENSHOT_DIR");
        click(*window, u"cmdDir"_s);
        if (!shots.isEmpty())
            QVERIFY(window->grab().save(shots + u"/frmScreenShot.png"_s));
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ScreenshotWindowTest>(argc, argv);
}

#include "screenshotwindow_test.moc"
