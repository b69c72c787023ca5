// Drives vistrel as a user would: folders and files, the wheel and the mouse on the picture, and
// the console line.
#include "desktools/viewersettings.h"
#include "desktools/viewertexts.h"
#include "panelsandbox.h"
#include "ui/desktools/pictureviewerwindow.h"
#include "ui/widgets/dialogs.h"

#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using namespace quenfor;

class PictureViewerWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir* m_dir = nullptr;
    int m_messengerOpened = 0;
    int m_mainWindowShown = 0;
    QList<QUrl> m_opened;
    QStringList m_terminals;

    QString folder() const { return QDir::toNativeSeparators(m_dir->path()); }
    QString path(const QString& name) const { return QDir::toNativeSeparators(m_dir->filePath(name)); }

    std::unique_ptr<PictureViewerWindow> makeWindow() {
        PictureViewerLinks links;
        links.openMessenger = [this] { ++m_messengerOpened; };
        links.showMainWindow = [this] { ++m_mainWindowShown; };
        links.openUrl = [this](const QUrl& url) {
            m_opened.append(url);
            return true;
        };
        links.startTerminal = [this](const QString& where) {
            m_terminals.append(where);
            return false;
        };
        auto window = std::make_unique<PictureViewerWindow>(std::move(links));
        window->show();
        if (!QTest::qWaitForWindowExposed(window.get()))
            return nullptr;
        return window;
    }

    static QLineEdit* console(PictureViewerWindow& window) { return window.findChild<QLineEdit*>(u"lblstatus"_s); }
    static QScrollBar* vscroll(PictureViewerWindow& window) { return window.findChild<QScrollBar*>(u"VScroll"_s); }
    static QWidget* viewport(PictureViewerWindow& window) {
        return window.findChild<QScrollArea*>(u"picFrame"_s)->viewport();
    }

    static void type(PictureViewerWindow& window, const QString& command) {
        // Typed key by key where the test keyboard can (it knows ASCII only), and Enter.
        QLineEdit* line = console(window);
        line->clear();
        bool ascii = true;
        for (const QChar c : command)
            ascii = ascii && c.unicode() < 0x80;
        if (ascii)
            QTest::keyClicks(line, command);
        else
            line->setText(command);
        QTest::keyClick(line, Qt::Key_Return);
    }

    static void turnWheel(QWidget* target, int steps) {
        const QPointF at(10, 10);
        QWheelEvent wheel(at, target->mapToGlobal(at), QPoint(), QPoint(0, -120 * steps), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);
    }

private slots:
    void init() {
        m_dir = new QTemporaryDir;
        QImage tall(120, 3000, QImage::Format_RGB32);
        tall.fill(Qt::darkGreen);
        QVERIFY(tall.save(m_dir->filePath(u"hoch.png"_s)));
        QImage small(30, 20, QImage::Format_RGB32);
        small.fill(Qt::yellow);
        QVERIFY(small.save(m_dir->filePath(u"Klein.bmp"_s)));
        QFile broken(m_dir->filePath(u"kaputt.png"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write(QByteArray(64, 'x'));
        broken.close();
        QFile notes(m_dir->filePath(u"notizen.txt"_s));
        QVERIFY(notes.open(QIODevice::WriteOnly));
        QVERIFY(QDir(m_dir->path()).mkdir(u"unter"_s));
        QVERIFY(storePictureViewerSettings({u"standard"_s, folder(), QString()}));
        m_messengerOpened = 0;
        m_mainWindowShown = 0;
        m_opened.clear();
        m_terminals.clear();
        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{}; });
        Dialogs::takeShownTexts();
    }

    void cleanup() {
        Dialogs::setHandler({});
        delete m_dir;
    }

    void opensOnTheStoredFolderWithItsPictures() {
        auto window = makeWindow();
        QVERIFY(window);
        QCOMPARE(window->currentFolder(), folder());
        QCOMPARE(window->files(), (QStringList{u"hoch.png"_s, u"kaputt.png"_s, u"Klein.bmp"_s}));
        QCOMPARE(window->size(), QSize(667, 435));
    }

    void choosingAFileShowsItAndABrokenOneKeepsThePicture() {
        auto window = makeWindow();
        QVERIFY(window);
        window->resize(900, 700);
        window->selectFile(u"Klein.bmp"_s);
        QCOMPARE(window->picture().size(), QSize(30, 20));
        QCOMPARE(window->size(), QSize(667, 435));
        QCOMPARE(window->statusText(), pictureShownText(path(u"Klein.bmp"_s), 30, 20));
        window->selectFile(u"kaputt.png"_s);
        QCOMPARE(window->statusText(), u"Bitmap kann nicht aus Bild-Datei erstellt werden – unbekanntes Bildformat"_s);
        QCOMPARE(window->picture().size(), QSize(30, 20));
    }

    void wheelAndMouseMoveThePicture() {
        auto window = makeWindow();
        QVERIFY(window);
        window->selectFile(u"hoch.png"_s);
        QScrollBar* bar = vscroll(*window);
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), 0);
        turnWheel(viewport(*window), 2);
        const int afterPicture = bar->value();
        QVERIFY(afterPicture > 0);
        // Turned elsewhere over the window (a real turn over the console line ends up there too), the
        // wheel still moves the picture.
        turnWheel(window.get(), 1);
        QVERIFY(bar->value() > afterPicture);

        const int before = bar->value();
        QWidget* area = viewport(*window);
        QTest::mousePress(area, Qt::LeftButton, {}, QPoint(50, 200));
        QMouseEvent move(QEvent::MouseMove, QPointF(50, 120), area->mapToGlobal(QPointF(50, 120)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(area, &move);
        QTest::mouseRelease(area, Qt::LeftButton, {}, QPoint(50, 120));
        QCOMPARE(bar->value(), before + 80);
    }

    void consoleLineRunsOnEnterAndEmptiesOnDoubleClick() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, u"?"_s);
        QVERIFY(window->statusText().startsWith(u"<Dateipfad> autor black"_s));
        // Longer than the line: the whole overview shows when the pointer rests on it.
        QCOMPARE(console(*window)->toolTip(), window->statusText());
        type(*window, u"Black"_s);
        QCOMPARE(window->statusText(), u"Black"_s);
        QCOMPARE(window->schemeWord(), u"standard"_s);
        QTest::mouseDClick(console(*window), Qt::LeftButton);
        QCOMPARE(window->statusText(), QString());
        // Enter on an empty line does nothing.
        QTest::keyClick(console(*window), Qt::Key_Return);
        QCOMPARE(window->statusText(), QString());
    }

    void colourWordsColourWindowAndConsoleAndAreStored() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, u"black"_s);
        QCOMPARE(window->schemeWord(), u"schwarz"_s);
        QCOMPARE(console(*window)->palette().color(QPalette::Base), QColor(0, 0, 0));
        QCOMPARE(console(*window)->palette().color(QPalette::Text), QColor(128, 255, 128));
        QCOMPARE(window->backgroundColour(), QColor(0, 0, 0));
        QCOMPARE(viewport(*window)->palette().color(QPalette::Window), QColor(0, 0, 0));
        // The scroll bars keep the system's colours, or they would vanish into a black scheme.
        QCOMPARE(vscroll(*window)->palette().color(QPalette::Window), QApplication::palette().color(QPalette::Window));
        type(*window, u"grün"_s);
        QCOMPARE(window->schemeWord(), u"gruen"_s);
        window->close();
        QCOMPARE(loadPictureViewerSettings().scheme, u"gruen"_s);
        QCOMPARE(loadPictureViewerSettings().folder, folder());

        auto again = makeWindow();
        QVERIFY(again);
        QCOMPARE(again->schemeWord(), u"gruen"_s);
        QCOMPARE(again->backgroundColour(), QColor(192, 255, 192));
        type(*again, u"reset"_s);
        QCOMPARE(again->schemeWord(), u"standard"_s);
        QCOMPARE(again->statusText(), u"Fenster zurückgesetzt"_s);
        QCOMPARE(again->size(), QSize(667, 435));
    }

    void saveListAndDeleteWorkInTheFolder() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, u"save"_s);
        QCOMPARE(window->statusText(), QString::fromUtf16(kNoPictureShown));
        window->selectFile(u"Klein.bmp"_s);
        type(*window, u"save"_s);
        QCOMPARE(window->statusText(), u"Bild als "_s + path(u"Zwischenablage.bmp"_s) + u" gespeichert"_s);
        QCOMPARE(QImage(path(u"Zwischenablage.bmp"_s)).size(), QSize(30, 20));
        QVERIFY(window->files().contains(u"Zwischenablage.bmp"_s));
        QCOMPARE(window->selectedFile(), u"Klein.bmp"_s);

        type(*window, u"list"_s);
        QCOMPARE(window->statusText(), u"Dateiliste wurde in "_s + path(u"Liste.txt"_s) + u" geschrieben"_s);
        QFile list(path(u"Liste.txt"_s));
        QVERIFY(list.open(QIODevice::ReadOnly));
        QCOMPARE(list.readAll(), QByteArray("hoch.png\r\nkaputt.png\r\nKlein.bmp\r\nZwischenablage.bmp\r\n"));
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(path(u"Liste.txt"_s))});

        window->selectFile(u"kaputt.png"_s);
        type(*window, u"del"_s);
        QCOMPARE(window->statusText(), u"Datei gelöscht"_s);
        QVERIFY(!QFile::exists(path(u"kaputt.png"_s)));
        QVERIFY(!window->files().contains(u"kaputt.png"_s));
        QVERIFY(QFile::exists(path(u"hoch.png"_s)));
    }

    void aTypedPathIsLoaded() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, path(u"hoch.png"_s));
        QCOMPARE(window->picture().size(), QSize(120, 3000));
        // A name alone is looked for in the viewer's folder.
        type(*window, u"Klein.bmp"_s);
        QCOMPARE(window->picture().size(), QSize(30, 20));
    }

    void copyAndPasteGoThroughTheClipboard() {
        auto window = makeWindow();
        QVERIFY(window);
        QApplication::clipboard()->setText(u"Notiz"_s);
        type(*window, u"paste"_s);
        QCOMPARE(window->statusText(), u"kein Bild:Notiz"_s);
        window->selectFile(u"Klein.bmp"_s);
        type(*window, u"copy"_s);
        QCOMPARE(window->statusText(), u"Bild wurde in die Zwischenablage kopiert"_s);
        window->selectFile(u"hoch.png"_s);
        type(*window, u"paste"_s);
        QCOMPARE(window->statusText(), u"Zwischenablage eingefügt"_s);
        QCOMPARE(window->picture().size(), QSize(30, 20));
    }

    void outsideLinksAreUsed() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, u"netsend"_s);
        QCOMPARE(m_messengerOpened, 1);
        type(*window, u"viewer"_s);
        QCOMPARE(m_opened, QList<QUrl>{QUrl(viewerWebPage())});
        type(*window, u"dos"_s);
        QCOMPARE(m_terminals, QStringList{folder()});
        QCOMPARE(window->statusText(), QString::fromUtf16(kNoTerminal));
        type(*window, u"autor"_s);
        QCOMPARE(Dialogs::takeShownTexts(), QStringList{authorText()});
        type(*window, u"info"_s);
        QCOMPARE(window->statusText(), u"*** INFO Anzeigen ***"_s);
        QVERIFY(window->findChild<QFrame*>(u"frmInfo"_s)->isVisible());
    }

    void printSaysWhyNothingWasPrinted() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, u"print"_s);
        QCOMPARE(window->statusText(), QString::fromUtf16(kNoPictureShown));
        if (!QPrinterInfo::defaultPrinter().isNull())
            QSKIP("Hier ist ein Drucker eingerichtet; der Test druckt nicht wirklich.");
        window->selectFile(u"Klein.bmp"_s);
        type(*window, u"print"_s);
        QCOMPARE(window->statusText(), QString::fromUtf16(kNoDefaultPrinter));
    }

    void quitShowsTheMainWindowAndClosesTheViewer() {
        auto window = makeWindow();
        QVERIFY(window);
        type(*window, u"q"_s);
        QCOMPARE(m_mainWindowShown, 1);
        QVERIFY(!window->isVisible());
    }

    void exitClosesEveryWindow() {
        auto window = makeWindow();
        QVERIFY(window);
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        type(*window, u"blau"_s);
        type(*window, u"exit"_s);
        QVERIFY(!window->isVisible());
        QVERIFY(!other.isVisible());
        // Closing stored the settings as any close does.
        QCOMPARE(loadPictureViewerSettings().scheme, u"blau"_s);
    }

    void looksRight() {
        auto window = makeWindow();
        QVERIFY(window);
        window->selectFile(u"Klein.bmp"_s);
        type(*window, u"info"_s);
        const QString shots = qEnvironmentVariable("QUENFOR_SCREENSHOT_DIR");
        if (!shots.isEmpty()) {
            QVERIFY(window->grab().save(shots + u"/vistrel.png"_s));
            window->findChild<QPushButton*>(u"cmd_info"_s)->click();
            window->selectFile(u"hoch.png"_s);
            type(*window, u"black"_s);
            QTest::qWait(50);
            QVERIFY(window->grab().save(shots + u"/vistrel_schwarz.png"_s));
        }
        QVERIFY(window->findChild<QListWidget*>(u"File1"_s)->width() > 100);
        QVERIFY(viewport(*window)->width() > 300);
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<PictureViewerWindowTest>(argc, argv);
}

#include "pictureviewerwindow_test.moc"
