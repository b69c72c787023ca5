// Drives the text editor as a user would, against a translation service played by the test on
// 127.0.0.1, so that no request ever leaves the machine: real-looking pages, a page without
// result_box, a broken page, a slow answer and a port nobody listens on.
#include "desktools/caretposition.h"
#include "desktools/editorexplanation.h"
#include "desktools/skribbcommands.h"
#include "desktools/texthandback.h"
#include "document/configdocument.h"
#include "panelsandbox.h"
#include "settings/mainsettings.h"
#include "settings/settingsstore.h"
#include "ui/desktools/linetranslator.h"
#include "ui/desktools/skribbwindow.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/statushints.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QNetworkProxy>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextBlock>
#include <QToolButton>
#include <QUrlQuery>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// A translation service on 127.0.0.1. The line asked for picks the answer: a known German word
// gets its translation in a page like the service's, "ohne" a page without result_box, "kaputt"
// garbage, "Fehler" a server error, "langsam" no answer at all.
class FakeTranslationService : public QObject {
public:
    FakeTranslationService() {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
        QVERIFY(m_server.listen(QHostAddress::LocalHost));
    }

    QString endpoint() const { return u"http://127.0.0.1:%1/"_s.arg(m_server.serverPort()); }

    struct Request {
        QByteArray method;
        QString target; // percent-decoded
        QByteArray contentType;
        QString text;
    };
    QList<Request> requests;

private:
    void answer(QTcpSocket* socket) {
        QByteArray& buffer = m_buffers[socket];
        buffer += socket->readAll();
        if (!buffer.contains("\r\n\r\n"))
            return;
        const QList<QByteArray> head = buffer.left(buffer.indexOf("\r\n\r\n")).split('\n');
        m_buffers.remove(socket);
        const QList<QByteArray> requestLine = head.first().trimmed().split(' ');
        Request request;
        request.method = requestLine.value(0);
        request.target = QUrl::fromPercentEncoding(requestLine.value(1));
        for (const QByteArray& line : head.mid(1)) {
            if (line.toLower().startsWith("content-type:"))
                request.contentType = line.mid(13).trimmed();
        }
        const qsizetype start = request.target.indexOf(u"text='"_s) + 6;
        const qsizetype end = request.target.indexOf(u"'&langpair"_s);
        request.text = request.target.mid(start, end - start);
        requests.append(request);

        if (request.text == u"langsam")
            return; // never answers
        QByteArray status = "200 OK";
        QByteArray body;
        if (request.text == u"ohne") {
            body = page("<div id=result>'Hello'</div>");
        } else if (request.text == u"kaputt") {
            body = QByteArray("\x1f\x8b\x08\x00\xff<<<<span id=", 17);
        } else if (request.text == u"Fehler") {
            status = "500 Internal Server Error";
            body = page("<span id=result_box>'Hello'</span>");
        } else {
            static const QHash<QString, QByteArray> words = {{u"Hallo"_s, "Hello"},
                                                             {u"Hallo Welt"_s, "Hello <b>world</b>"},
                                                             {u"Guten Tag"_s, "Good&nbsp;day"},
                                                             {u"good day"_s, "Guten Tag"},
                                                             {u"Öl & Wasser"_s, "Oil &amp; water"}};
            body = page("<span id=result_box class=\"short_text\"><span title=\"x\">&#39;" +
                        words.value(request.text, "?") + "&#39;</span></span>");
        }
        socket->write("HTTP/1.1 " + status + "\r\nContent-Type: text/html; charset=UTF-8\r\nContent-Length: " +
                      QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
        socket->disconnectFromHost();
    }

    static QByteArray page(const QByteArray& result) {
        return "<html><head><title>Translate</title><script>var r='<span id=result_box>';</script></head>"
               "<body><div id=gt-res-content><div dir=ltr>" +
               result + "</div></div></body></html>";
    }

    QTcpServer m_server;
    QHash<QTcpSocket*, QByteArray> m_buffers;
};

// Takes the place of the browser: remembers what it was asked to open.
class UrlRecorder : public QObject {
    Q_OBJECT

public:
    QList<QUrl> urls;

public slots:
    void open(const QUrl& url) { urls.append(url); }
};

} // namespace

class SkribbWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir* m_dir = nullptr;
    QStringList m_asked;
    Dialogs::Answer m_answer = Dialogs::Answer::Yes;
    FakeTranslationService* m_service = nullptr;

    QString path(const QString& name = {}) const {
        return QDir::toNativeSeparators(name.isEmpty() ? m_dir->path() : m_dir->filePath(name));
    }
    static void setSkribbSetting(const QString& key, const QString& value) {
        QVERIFY(SettingsStore(u"Skribb"_s).setValue(u"Optionen"_s, key, value));
    }
    template <typename T> static T* child(QWidget& window, const QString& name) {
        T* widget = window.findChild<T*>(name);
        if (!widget)
            qFatal("no control %s", qPrintable(name));
        return widget;
    }
    static void chooseDirection(SkribbWindow& window, int index) {
        auto* combo = child<QComboBox>(window, u"Combo1"_s);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
    static void waitForTranslation(SkribbWindow& window) { QTRY_VERIFY_WITH_TIMEOUT(!window.isTranslating(), 20000); }

private slots:
    void initTestCase() {
        // Straight to 127.0.0.1, whatever proxy the environment names.
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    }

    void init() {
        m_dir = new QTemporaryDir;
        m_asked.clear();
        m_answer = Dialogs::Answer::Yes;
        Dialogs::setHandler([this](const Dialogs::Request& r) {
            m_asked.append(r.text);
            return Dialogs::Reply{m_answer, {}};
        });
        m_service = new FakeTranslationService;
        setSkribbSetting(u"Uebersetzungsdienst"_s, m_service->endpoint());
        setSkribbSetting(u"Uebersetzungszeitlimit"_s, u"2"_s);
        setSkribbSetting(u"dir1"_s, path());
        QVERIFY(setSettingValue(Setting::TxtTempdir, path() + QDir::separator()));
        qputenv("HOME", QFile::encodeName(m_dir->path()));
    }

    void cleanup() {
        Dialogs::setHandler({});
        delete m_service;
        delete m_dir;
    }

    void opensWithItsControlsHintsAndSettings() {
        setSkribbSetting(u"Filter"_s, u"*.txt"_s);
        setSkribbSetting(u"chkerklaer.Value"_s, u"1"_s);
        setSkribbSetting(u"lbl_schwarzweissblau"_s, u"schwarz"_s);
        SkribbWindow window(u"eins\r\nzwei"_s);
        QCOMPARE(window.text(), u"eins\r\nzwei"_s);
        QCOMPARE(child<QLineEdit>(window, u"Filter"_s)->text(), u"*.txt"_s);
        QVERIFY(child<QCheckBox>(window, u"chkErklaer"_s)->isChecked());
        QCOMPARE(child<QLabel>(window, u"lbl_schwarzweissblau"_s)->text(), u"schwarz"_s);
        QCOMPARE(child<QPlainTextEdit>(window, u"TextBox1"_s)->palette().color(QPalette::Base), QColor(Qt::black));

        // Every button tells the status line what it does.
        auto* statusHints = window.findChild<StatusHints*>();
        for (const char16_t* control : {u"cmd_open", u"Save_AS", u"img_save", u"copy", u"img_clear", u"cmd_fresh",
                                        u"Print", u"cmd_Einstell", u"ImgErklaerBaer", u"Info1", u"EXIT"})
            QVERIFY2(!statusHints->hintOf(child<QWidget>(window, QString::fromUtf16(control))).isEmpty(),
                     qPrintable(QString::fromUtf16(control)));

        // Closing stores what the user changed, under the keys it has always used.
        child<QLineEdit>(window, u"Filter"_s)->setText(u"*.pro"_s);
        child<QCheckBox>(window, u"chkErklaer"_s)->setChecked(false);
        m_answer = Dialogs::Answer::No;
        window.close();
        const SettingsStore store(u"Skribb"_s);
        QCOMPARE(store.value(u"Optionen"_s, u"Filter"_s, {}), u"*.pro"_s);
        QCOMPARE(store.value(u"Optionen"_s, u"chkerklaer.Value"_s, {}), u"0"_s);
        QCOMPARE(store.value(u"Optionen"_s, u"dir1"_s, {}), path());
        QCOMPARE(m_asked.last(), u"Text  in Liste übernehmen ?"_s);
    }

    void statusShowsLineAndColumnAfterKeysAndClicks() {
        SkribbWindow window(u"ab\r\ncdef\r\n\r\nxyz"_s);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* box = child<QPlainTextEdit>(window, u"TextBox1"_s);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(window.status(), u"Zeile 1, Spalte 1"_s);
        // The window's quick count agrees with the rule on the CR LF text at every step.
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left}) {
            QTest::keyClick(box, key);
            const QTextCursor cursor = box->textCursor();
            const qsizetype crlfCaret = cursor.position() + cursor.blockNumber(); // each break is 2 there
            QCOMPARE(window.status(), lineColumnText(lineColumnAt(window.text(), crlfCaret)));
        }
        QCOMPARE(window.status(), u"Zeile 4, Spalte 3"_s);
        const QRect second = box->cursorRect(QTextCursor(box->document()->findBlockByNumber(1)));
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {}, second.center() + QPoint(1, 0));
        QCOMPARE(window.status(), u"Zeile 2, Spalte 1"_s);
    }

    void translatesLineByLineKeepingEmptyLines() {
        SkribbWindow window(u"Hallo Welt\r\n\r\nGuten Tag"_s);
        QSignalSpy finished(&window, &SkribbWindow::translationFinished);
        chooseDirection(window, 0);
        QCOMPARE(m_asked.first(), u"Sie benötigen für diese Funktion eine Internet Verbindung ! Soll dieser Text "
                                  u"übersetzt werden ?"_s);
        QCOMPARE(window.status(), u"temporäre Datei gespeichert. Die Funktion wird ausgeführt. Bitte warten..."_s);
        QVERIFY(QFile::exists(path(u"skribb.tmp"_s)));
        waitForTranslation(window);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(window.text(), u"Hello world\r\n\r\nGood\u00A0day\r\n"_s);
        QCOMPARE(window.status(), u"temporäre Datei wurde gelöscht"_s);
        QVERIFY(!QFile::exists(path(u"skribb.tmp"_s)));

        QCOMPARE(m_service->requests.size(), 2); // the empty line asks nothing
        for (const auto& request : m_service->requests) {
            QCOMPARE(request.method, QByteArray("POST"));
            QCOMPARE(request.contentType, QByteArray("text/xml"));
        }
        QCOMPARE(m_service->requests.at(0).target, u"/translate_t?text='Hallo Welt'&langpair=de|en&hl=en"_s);

        // One Ctrl+Z gives the text from before back.
        auto* box = child<QPlainTextEdit>(window, u"TextBox1"_s);
        QVERIFY(!box->isReadOnly());
        box->undo();
        QCOMPARE(window.text(), u"Hallo Welt\r\n\r\nGuten Tag"_s);
    }

    void translatesEnglishToGerman() {
        SkribbWindow window(u"good day"_s);
        chooseDirection(window, 1);
        waitForTranslation(window);
        QCOMPARE(window.text(), u"Guten Tag\r\n"_s);
        QCOMPARE(m_service->requests.at(0).target, u"/translate_t?text='good day'&langpair=en|de&hl=de"_s);
    }

    void everyFailureLeavesAnEmptyLineAndGoesOn() {
        SkribbWindow window(u"ohne\r\nkaputt\r\nHallo\r\nFehler"_s);
        chooseDirection(window, 0);
        waitForTranslation(window);
        QCOMPARE(window.text(), u"\r\n\r\nHello\r\n\r\n"_s);
        // The failed lines live on only in the backup: it stays, and the status says where.
        const QString backup = translationBackupPath(path() + QDir::separator());
        QVERIFY2(window.status().startsWith(u"Die Sicherungskopie des Textes bleibt in "_s +
                                            QDir::toNativeSeparators(backup) + u". – 3 von 4 Zeilen"_s),
                 qPrintable(window.status()));
        QVERIFY(QFile::exists(backup));
    }

    void aSlowAnswerTimesOutAndTheWindowStaysUsable() {
        setSkribbSetting(u"Uebersetzungszeitlimit"_s, u"1"_s);
        SkribbWindow window(u"langsam\r\nHallo"_s);
        window.show();
        chooseDirection(window, 0);
        QTRY_COMPARE(m_service->requests.size(), 1);
        // While the service keeps silent the window answers: it takes typing in the status line.
        auto* status = child<QLineEdit>(window, u"lblstatus"_s);
        QVERIFY(child<QProgressBar>(window, u"prgTranslate"_s)->isVisible());
        QVERIFY(child<QPlainTextEdit>(window, u"TextBox1"_s)->isReadOnly());
        status->clear();
        QTest::keyClicks(status, u"tippen"_s);
        QCOMPARE(status->text(), u"tippen"_s);
        waitForTranslation(window);
        QCOMPARE(window.text(), u"\r\nHello\r\n"_s);
    }

    void aRefusedConnectionKeepsTheText() {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const quint16 port = closed.serverPort();
        closed.close();
        setSkribbSetting(u"Uebersetzungsdienst"_s, u"http://127.0.0.1:%1/"_s.arg(port));
        SkribbWindow window(u"Hallo\r\n\r\nGuten Tag"_s);
        chooseDirection(window, 0);
        waitForTranslation(window);
        QCOMPARE(window.text(), u"Hallo\r\n\r\nGuten Tag"_s);
    }

    void cancellingKeepsTheLinesNotYetTranslated() {
        setSkribbSetting(u"Uebersetzungszeitlimit"_s, u"30"_s);
        SkribbWindow window(u"Hallo\r\nlangsam\r\nGuten Tag"_s);
        window.show();
        chooseDirection(window, 0);
        QTRY_COMPARE(m_service->requests.size(), 2);
        child<QPushButton>(window, u"cmdCancelTranslate"_s)->click();
        QVERIFY(!window.isTranslating());
        QCOMPARE(window.text(), u"Hello\r\nlangsam\r\nGuten Tag\r\n"_s);
        QCOMPARE(window.status(), u"temporäre Datei wurde gelöscht – Übersetzung abgebrochen: 1 von 3 Zeilen "
                                  u"übersetzt, die übrigen stehen unverändert darunter."_s);
        QVERIFY(!child<QPlainTextEdit>(window, u"TextBox1"_s)->isReadOnly());
    }

    void noTranslationWithoutYesOrWithABadAddress() {
        SkribbWindow window(u"Hallo"_s);
        m_answer = Dialogs::Answer::No;
        chooseDirection(window, 0);
        QVERIFY(!window.isTranslating());
        m_answer = Dialogs::Answer::Yes;
        setSkribbSetting(u"Uebersetzungsdienst"_s, u"translate.example"_s);
        chooseDirection(window, 0);
        QVERIFY(!window.isTranslating());
        QVERIFY(m_asked.last().contains(u"Uebersetzungsdienst"_s));
        QTest::qWait(50);
        QCOMPARE(window.text(), u"Hallo"_s);
        QVERIFY(m_service->requests.isEmpty());
    }

    void saveNeverCreatesAFileSaveAsDoes() {
        SkribbWindow window(u"Text"_s);
        window.show();
        window.save();
        QCOMPARE(m_asked.last(), u"Bitte zuerst einen Namen vergeben !"_s);
        QCOMPARE(window.fileName(), path(u"Skribb.txt"_s));
        QVERIFY(!QFile::exists(path(u"Skribb.txt"_s)));
        auto* saveAsBox = child<QFrame>(window, u"Dateiauswahl2"_s);
        QVERIFY(saveAsBox->isVisible());

        child<QLineEdit>(window, u"txt_name"_s)->setText(u"neu.txt"_s);
        child<QPushButton>(window, u"saveas"_s)->click();
        QCOMPARE(window.fileName(), path(u"neu.txt"_s));
        QCOMPARE(window.status(), u"Datei wurde gespeichert unter "_s + path(u"neu.txt"_s));
        QVERIFY(!saveAsBox->isVisible());

        // Replacing an existing file is asked first.
        window.setText(u"anders"_s);
        m_answer = Dialogs::Answer::No;
        window.saveAs(path(), u"neu.txt"_s);
        QCOMPARE(m_asked.last(), u"Die Datei "_s + path(u"neu.txt"_s) + u" gibt es schon. Soll sie ersetzt werden ?"_s);
        QFile saved(path(u"neu.txt"_s));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), QByteArray("Text\r\n"));
        saved.close();

        // Now the file has a name and exists: save replaces it.
        window.save();
        QCOMPARE(window.status(), u"Datei "_s + path(u"neu.txt"_s) + u" wurde gespeichert"_s);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), QByteArray("anders\r\n"));
    }

    void openBoxLoadsTheChosenFile() {
        QFile file(m_dir->filePath(u"a.pro"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("opt1 ja\r\nopt2 gr\xfc\xdf\r\n");
        file.close();
        SkribbWindow window;
        window.show();
        child<QToolButton>(window, u"cmd_open"_s)->click();
        auto* openBox = child<QFrame>(window, u"Dateiauswahl"_s);
        QVERIFY(openBox->isVisible());
        child<QLineEdit>(window, u"Filter"_s)->setText(u"*.pro"_s);
        auto* files = child<QListWidget>(window, u"File1"_s);
        QCOMPARE(files->count(), 1);
        child<QPushButton>(window, u"cmdLoad"_s)->click();
        QCOMPARE(m_asked.last(), u"Zuerst Datei auswählen !"_s);
        files->setCurrentRow(0);
        child<QPushButton>(window, u"cmdLoad"_s)->click();
        QCOMPARE(window.text(), u"opt1 ja\r\nopt2 grüß\r\n"_s);
        QCOMPARE(window.fileName(), path(u"a.pro"_s));
        QVERIFY(!openBox->isVisible());

        // Dragged with the right button, the box moves and stays inside the window.
        window.resize(900, 650);
        child<QToolButton>(window, u"cmd_open"_s)->click();
        const QPoint before = openBox->pos();
        const QPoint grip(openBox->width() / 2, 4);
        QTest::mousePress(openBox, Qt::RightButton, {}, grip);
        QMouseEvent move(QEvent::MouseMove, QPointF(grip + QPoint(40, 30)),
                         openBox->mapToGlobal(QPointF(grip + QPoint(40, 30))), Qt::NoButton, Qt::RightButton,
                         Qt::NoModifier);
        QApplication::sendEvent(openBox, &move);
        QTest::mouseRelease(openBox, Qt::RightButton, {}, grip + QPoint(40, 30));
        QCOMPARE(openBox->pos(), before + QPoint(40, 30));
    }

    void anUnreadableDriveInEitherBoxIsToldAndTheBoxGoesBack() {
        SkribbWindow window;
        window.show();
        const qsizetype askedBefore = m_asked.size();
        for (const QString& name : {u"Drive1"_s, u"Drive2"_s}) {
            auto* drives = child<QComboBox>(window, name);
            const int shown = drives->currentIndex();
            QVERIFY(shown >= 0);
            drives->addItem(path(u"kein Laufwerk"_s));
            drives->setCurrentIndex(drives->count() - 1);
            emit drives->activated(drives->count() - 1);
            QCOMPARE(m_asked.last(), u"Laufwerk nicht verfügbar !"_s);
            QCOMPARE(drives->currentIndex(), shown);
        }
        QCOMPARE(m_asked.size(), askedBefore + 2);
        // The save-as box still saves into the folder it showed.
        child<QLineEdit>(window, u"txt_name"_s)->setText(u"neu.txt"_s);
        child<QPushButton>(window, u"saveas"_s)->click();
        QCOMPARE(window.fileName(), path(u"neu.txt"_s));
    }

    void coloursFrameTogglesAndColoursTheText() {
        SkribbWindow window;
        window.show();
        auto* settings = child<QToolButton>(window, u"cmd_Einstell"_s);
        settings->click();
        QCOMPARE(settings->text(), u"QUIT"_s);
        QVERIFY(child<QFrame>(window, u"Optionen"_s)->isVisible());
        child<QPushButton>(window, u"weiss"_s)->click();
        QCOMPARE(settings->text(), u"Farben"_s);
        QVERIFY(!child<QFrame>(window, u"Optionen"_s)->isVisible());
        QCOMPARE(child<QLabel>(window, u"lbl_schwarzweissblau"_s)->text(), u"weiss"_s);
        QCOMPARE(child<QPlainTextEdit>(window, u"TextBox1"_s)->palette().color(QPalette::Base), QColor(Qt::white));
        QVERIFY(child<QPlainTextEdit>(window, u"TextBox1"_s)->font().bold());
    }

    void explainsTheCurrentLine() {
        QFile kb(m_dir->filePath(u"config_opts.txt"_s));
        QVERIFY(kb.open(QIODevice::WriteOnly));
        kb.write("display_mode  wireframe\r\nZwei\r\nDrei\r\nVier\r\nF\xfcnf\r\nSechs\r\n");
        kb.close();
        qputenv("QUENFOR_DATA_DIR", QFile::encodeName(m_dir->path()));
        SkribbWindow window(u"! Kommentar\r\ndisplay_mode shade"_s);
        window.show();
        QSignalSpy explained(&window, &SkribbWindow::explanationReady);
        auto* box = child<QPlainTextEdit>(window, u"TextBox1"_s);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down); // not explaining yet
        QCOMPARE(explained.count(), 0);
        child<QToolButton>(window, u"ImgErklaerBaer"_s)->click(); // ticks chkErklaer and explains
        QVERIFY(child<QCheckBox>(window, u"chkErklaer"_s)->isChecked());
        QCOMPARE(explained.count(), 1);
        QCOMPARE(explained.last().first().toString(),
                 u"*** Erklärung des Begriffes: ***\ndisplay_mode  wireframe\nZwei\nDrei\nVier\nFünf\nSechs\n ..."_s);
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(explained.last().first().toString().left(30), u"Diese Zeile ist eine Kommentar"_s);

        // Without the file: said once, and explaining stops.
        QVERIFY(QFile::remove(kb.fileName()));
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(m_asked.last(), QString::fromUtf16(kEditorKnowledgeBaseMissing));
        QVERIFY(!child<QCheckBox>(window, u"chkErklaer"_s)->isChecked());
        const qsizetype asked = m_asked.size();
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(m_asked.size(), asked);
        qunsetenv("QUENFOR_DATA_DIR");
    }

    void statusLineCommands() {
        SkribbWindow window;
        window.show();
        auto* status = child<QLineEdit>(window, u"lblstatus"_s);
        const auto enter = [status](const QString& command) {
            status->setText(command);
            QTest::keyClick(status, Qt::Key_Return);
        };
        enter(u"autor"_s);
        QCOMPARE(window.status(), skribbAuthorText());
        enter(u"Autor"_s);
        QCOMPARE(window.status(), u"Autor"_s); // anything else does nothing

        // "help" opens the help page; the test takes the place of the browser.
        QFile help(m_dir->filePath(u"hilfe.html"_s));
        QVERIFY(help.open(QIODevice::WriteOnly));
        help.close();
        setSkribbSetting(u"Hilfeseite"_s, help.fileName());
        UrlRecorder browser;
        QDesktopServices::setUrlHandler(u"file"_s, &browser, "open");
        enter(u"help"_s);
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(browser.urls, QList<QUrl>{QUrl::fromLocalFile(help.fileName())});
        QCOMPARE(window.status(), path(u"hilfe.html"_s));
        setSkribbSetting(u"Hilfeseite"_s, path(u"fehlt.html"_s));
        enter(u"info"_s);
        QCOMPARE(window.status(), u"Die Hilfeseite "_s + path(u"fehlt.html"_s) + u" gibt es nicht."_s);

        // With no terminal to be found the status line says so.
        const QByteArray oldPath = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(m_dir->path()));
        enter(u"dos"_s);
        qputenv("PATH", oldPath);
        QCOMPARE(window.status(), u"Es konnte keine Eingabeaufforderung gestartet werden."_s);
    }

    void exitEndsEveryWindow() {
        QWidget other;
        other.setWindowTitle(u"ein anderes Fenster"_s);
        other.show();
        auto* window = new SkribbWindow(u"Text"_s);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QPointer<SkribbWindow> alive(window);
        m_answer = Dialogs::Answer::No;
        auto* status = child<QLineEdit>(*window, u"lblstatus"_s);
        status->setText(u"exit"_s);
        QTest::keyClick(status, Qt::Key_Return);
        QVERIFY(!other.isVisible());
        QCOMPARE(m_asked, QStringList{u"Text  in Liste übernehmen ?"_s});
        QTRY_VERIFY(!alive);
    }

    void closingHandsTheTextToTheMainDocument() {
        MainWindow main;
        main.document()->appendLines({u"opt1 ja"_s, u"opt2 nein"_s});
        main.show();
        main.findChild<QAction*>(u"mnuTextEditor"_s)->trigger();
        auto* editor = main.findChild<SkribbWindow*>();
        QVERIFY(editor);
        QCOMPARE(editor->text(), u"opt1 ja\r\nopt2 nein"_s);
        editor->setText(u"neu1\r\n\r\nneu2 ł"_s);
        m_answer = Dialogs::Answer::Yes;
        editor->close();
        QCOMPARE(m_asked.last(), u"Text  in Liste übernehmen ?"_s);
        // The editor worked on the document's own lines: they are replaced, never doubled.
        QCOMPARE(main.document()->lines(), (QStringList{u"neu1"_s, QString(), u"neu2 ł"_s}));
        QCOMPARE(main.status(), u"Text aus Texteditor übernommen"_s);
        QVERIFY(!QFile::exists(path(u"quen.tmp"_s)));

        // Lines the document gained meanwhile stay; the text is added behind them.
        main.findChild<QAction*>(u"mnuTextEditor"_s)->trigger();
        editor = main.findChild<SkribbWindow*>();
        QVERIFY(editor);
        main.document()->appendLines({u"dazu"_s});
        editor->setText(u"anderes"_s);
        editor->close();
        QCOMPARE(main.document()->lines(), (QStringList{u"neu1"_s, QString(), u"neu2 ł"_s, u"dazu"_s, u"anderes"_s}));
    }

    // The title bar closes the main window the way EXIT does: the editor hands its text back
    // first, then the main window asks about saving the document that now holds it.
    void closingTheMainWindowClosesTheEditorFirst() {
        MainWindow main;
        main.show();
        main.findChild<QAction*>(u"mnuTextEditor"_s)->trigger();
        auto* editor = main.findChild<SkribbWindow*>();
        QVERIFY(editor);
        editor->show();
        editor->setText(u"aus dem Editor"_s);
        m_answer = Dialogs::Answer::Yes;
        const QString target = path(u"ziel.pro"_s);
        main.document()->setFileName(target);
        QVERIFY(main.close());
        QCOMPARE(m_asked.size(), 2);
        QCOMPARE(m_asked.at(0), u"Text  in Liste übernehmen ?"_s);
        QVERIFY(m_asked.at(1).contains(u"speichern ?"_s));
        QFile saved(target);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), QByteArray("aus dem Editor\r\n"));
    }

    void lineBreaksAndNamesAreSavedAsTyped() {
        SkribbWindow window{QString()};
        window.show();
        auto* box = child<QPlainTextEdit>(window, u"TextBox1"_s);
        box->setFocus();
        QTest::keyClicks(box, u"eins"_s);
        QTest::keyClick(box, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(box, u"zwei"_s);
        QCOMPARE(window.text(), u"eins\r\nzwei"_s);

        window.saveAs(path(), u"a.txt "_s);
        QVERIFY(QFile::exists(path(u"a.txt"_s)));
        QVERIFY(!QFile::exists(path(u"a.txt "_s)));
        QFile saved(path(u"a.txt"_s));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), QByteArray("eins\r\nzwei\r\n"));
    }

    void aTempFolderThatFailsLosesNoLine() {
        QVERIFY(QDir(m_dir->path()).mkdir(u"quen.tmp"_s));
        MainWindow main;
        main.findChild<QAbstractButton*>(u"cmd_Textedi"_s)->click();
        auto* editor = main.findChild<SkribbWindow*>();
        QVERIFY(editor);
        editor->setText(u"bleibt"_s);
        editor->close();
        QVERIFY(m_asked.last().contains(u"konnte nicht geschrieben werden"_s));
        QCOMPARE(main.document()->lines(), QStringList{u"bleibt"_s});
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<SkribbWindowTest>(argc, argv);
}

#include "skribbwindow_test.moc"
