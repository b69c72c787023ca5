// Drives the real main window as a user would: clicks, typing, Enter, buttons and menu entries.
#include "document/configdocument.h"
#include "document/documentsearch.h"
#include "panelsandbox.h"
#include "settings/mainsettings.h"
#include "settings/settingsstore.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/toolwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace quenfor;

class MainWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_file;
    std::unique_ptr<MainWindow> m_window;
    QStringList m_asked;
    Dialogs::Answer m_answer = Dialogs::Answer::Yes;

    ConfigDocument& doc() { return *m_window->document(); }
    QListView* list() { return m_window->findChild<QListView*>(u"List1"_s); }
    QLineEdit* entry() { return m_window->findChild<QLineEdit*>(u"Text1"_s); }
    QString label(const QString& name) { return m_window->findChild<QLabel*>(name)->text(); }
    QAction* action(const QString& name) { return m_window->findChild<QAction*>(name); }

    void click(const QString& buttonName) {
        auto* button = m_window->findChild<QAbstractButton*>(buttonName);
        QVERIFY2(button, qPrintable(buttonName));
        QVERIFY2(button->isEnabled(), qPrintable(buttonName));
        button->click();
    }

    void clickLine(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QRect rect = list()->visualRect(list()->model()->index(row, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, rect.center());
    }

private slots:
    void init() {
        m_file = m_dir.filePath(u"config.pro"_s);
        QByteArray text;
        for (int i = 0; i < 10; ++i)
            text += "opt" + QByteArray::number(i) + " wert\r\n";
        writeFile(m_file, text);
        m_asked.clear();
        m_answer = Dialogs::Answer::Yes;
        Dialogs::setHandler([this](const Dialogs::Request& r) {
            m_asked.append(r.text);
            return Dialogs::Reply{m_answer, {}};
        });
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1000, 700);
        m_window->startUp({u"\""_s + m_file + u"\""_s}); // quotes are taken off
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() {
        m_answer = Dialogs::Answer::No; // do not save the test document on close
        m_window.reset();
        Dialogs::setHandler({});
    }

    // Every change can be taken back, a whole-document tool in one step, and opening a file starts
    // a new history.
    void undoAndRedoTakeEveryChangeBackAndForth() {
        QAction* undo = action(u"actRueckgaengig"_s);
        QAction* redo = action(u"actWiederholen"_s);
        QVERIFY(undo && redo);
        QCOMPARE(undo->shortcut(), QKeySequence(QKeySequence::Undo));
        QVERIFY(redo->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_Y)));
        QVERIFY(!undo->isEnabled());
        const QStringList original = doc().lines();

        clickLine(3);
        entry()->setText(u"OPT3 NEU"_s);
        QTest::keyClick(entry(), Qt::Key_Return);
        QCoreApplication::processEvents();
        const QStringList edited = doc().lines();
        action(u"mnuGrossKlein"_s)->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(doc().line(3), u"opt3 neu"_s);

        undo->trigger();
        QCOMPARE(doc().lines(), edited);
        QCOMPARE(label(u"lblstatus"_s), u"Letzte Änderung zurückgenommen"_s);
        click(u"cmd_undo"_s);
        QCOMPARE(doc().lines(), original);
        QVERIFY(!undo->isEnabled());
        redo->trigger();
        QCOMPARE(doc().lines(), edited);
        click(u"cmd_redo"_s);
        QCOMPARE(doc().line(3), u"opt3 neu"_s);

        m_window->startUp({m_file});
        QCoreApplication::processEvents();
        QVERIFY(!undo->isEnabled());
        QVERIFY(!m_window->findChild<QAbstractButton*>(u"cmd_undo"_s)->isEnabled());
    }

    // Actions that find nothing to do say so instead of doing nothing silently.
    void actionsWithNothingToDoSaySo() {
        const QString gone = m_dir.filePath(u"weg.pro"_s);
        QVERIFY(setSettingValue(Setting::Label1, gone));
        click(u"cmd_last"_s);
        QVERIFY2(label(u"lblstatus"_s).contains(u"gibt es nicht mehr"_s), qPrintable(label(u"lblstatus"_s)));
        QCOMPARE(doc().count(), 10);

        MainWindow fresh;
        fresh.startUp({gone});
        QVERIFY2(fresh.status().contains(u"gibt es noch nicht"_s), qPrintable(fresh.status()));

        MainWindow empty;
        empty.startUp({});
        QVERIFY(empty.findChild<QLabel*>(u"lbl_quenconfig"_s)->text().startsWith(u"Keine Datei geöffnet."_s));
    }

    // A search.pro shows its own tools; the option list loaded unseen behind it is no news.
    void searchProShowsNothingOfTheOptionList() {
        const QString searchPro = m_dir.filePath(u"search.pro"_s);
        writeFile(searchPro, "C:\\cad\\teile\r\n");
        m_window->startUp({searchPro});
        QVERIFY2(!label(u"lblstatus"_s).contains(u"quenfor.pro"_s), qPrintable(label(u"lblstatus"_s)));
        QCOMPARE(label(u"lbl_quenconfig"_s), QString());
    }

    void opensTheFileOfTheCommandLine() {
        QCOMPARE(doc().count(), 10);
        QCOMPARE(label(u"Label1"_s), QDir::toNativeSeparators(m_file));
        QCOMPARE(settingValue(Setting::Dir1), QDir::toNativeSeparators(m_dir.path()));
    }

    // However a line becomes the current one, Enter replaces that line with the entry line's text.
    void entryLineFollowsClicksKeysAndSearchHits() {
        clickLine(3);
        QCOMPARE(entry()->text(), u"opt3 wert"_s);
        QCOMPARE(label(u"lblstatus"_s), u"auswählen..."_s);
        QTest::keyClick(list(), Qt::Key_Down);
        QCOMPARE(entry()->text(), u"opt4 wert"_s);
        QCOMPARE(label(u"lblnumber"_s), u"4"_s);
        entry()->setText(u"opt4 neu"_s);
        QTest::keyClick(entry(), Qt::Key_Return);
        QCOMPARE(doc().line(4), u"opt4 neu"_s);
        QCOMPARE(doc().count(), 10);

        selectAndShowLine(doc(), 7); // what a hit of the search dialog does
        QCOMPARE(entry()->text(), u"opt7 wert"_s);
        QTest::keyClick(entry(), Qt::Key_Return);
        QCOMPARE(doc().line(7), u"opt7 wert"_s);
        QCOMPARE(doc().line(4), u"opt4 neu"_s);
        QCOMPARE(doc().count(), 10);
    }

    // Enter in the name box or "Speichern als..." onto another existing file asks first; No keeps it.
    void savingOverAnotherFileAsksFirst() {
        const QString other = m_dir.filePath(u"andere.pro"_s);
        writeFile(other, "bleibt\r\n");
        action(u"mnuSpeichernAls"_s)->trigger();
        auto* name = m_window->findChild<QLineEdit*>(u"txt_save"_s);
        QVERIFY(name);
        name->setText(other);
        m_answer = Dialogs::Answer::No;
        QTest::keyClick(name, Qt::Key_Return);
        click(u"cmd_SaveAs"_s);
        QCOMPARE(m_asked.size(), 2);
        QVERIFY(m_asked.front().contains(u"überschrieben"_s));
        QCOMPARE(readFile(other), QByteArray("bleibt\r\n"));

        m_answer = Dialogs::Answer::Yes;
        click(u"cmd_SaveAs"_s);
        QCOMPARE(m_asked.size(), 3);
        QVERIFY(readFile(other).startsWith("opt0 wert\r\n"));
        QCOMPARE(doc().fileName(), other);
    }

    // Another program changed the file since it was opened: saving asks first, and No keeps the
    // other program's version.
    void savingAFileChangedOnDiskAsksFirst() {
        writeFile(m_file, "von anderswo\r\n");
        m_answer = Dialogs::Answer::No;
        action(u"mnuSpeichern"_s)->trigger();
        QCOMPARE(m_asked.size(), 2);
        QVERIFY(m_asked.front().contains(u"von einem anderen Programm geändert"_s));
        QCOMPARE(readFile(m_file), QByteArray("von anderswo\r\n"));

        m_answer = Dialogs::Answer::Yes;
        action(u"mnuSpeichern"_s)->trigger();
        QVERIFY(readFile(m_file).startsWith("opt0 wert\r\n"));
        // Saved once, the file is ours again: the next save asks nothing.
        const qsizetype asked = m_asked.size();
        action(u"mnuSpeichern"_s)->trigger();
        QCOMPARE(m_asked.size(), asked);
    }

    void longLineSurvivesTheEntryLine() {
        const QString longLine = u"mapkey x "_s + QString(47510, u'a');
        doc().setLine(2, longLine);
        clickLine(2);
        QCOMPARE(entry()->text().size(), longLine.size());
        QTest::keyClick(entry(), Qt::Key_Return);
        QCOMPARE(doc().line(2), longLine);
    }

    void deleteLeavesEmptyLinesAndInsertFillsOrPushes() {
        clickLine(3);
        clickLine(5, Qt::ControlModifier);
        click(u"Image8"_s);
        QCOMPARE(doc().count(), 10);
        QVERIFY(doc().line(3).isEmpty());
        QVERIFY(doc().line(5).isEmpty());
        QCOMPARE(label(u"lblstatus"_s), u"löschen..."_s);

        clickLine(5);
        entry()->setText(u"lücke"_s);
        click(u"Image9"_s);
        QCOMPARE(doc().line(5), u"lücke"_s); // an empty marked line is filled in place

        clickLine(7);
        entry()->setText(u"darüber"_s);
        click(u"Image9"_s);
        QCOMPARE(doc().line(7), u"darüber"_s);
        QCOMPARE(doc().line(8), u"opt7 wert"_s);
        QCOMPARE(label(u"lblstatus"_s), u"Eintrag in Liste eingefügt"_s);
    }

    void moveToTopKeepsTheOrderAbove() {
        clickLine(4);
        click(u"ontop"_s);
        QCOMPARE(doc().lines().mid(0, 6), QStringList({u"opt4 wert"_s, u"opt0 wert"_s, u"opt1 wert"_s, u"opt2 wert"_s,
                                                       u"opt3 wert"_s, u"opt5 wert"_s}));
        click(u"img_up"_s); // already at the top
        QCOMPARE(doc().line(0), u"opt4 wert"_s);
    }

    void copyAndPasteThroughTheClipboard() {
        clickLine(1);
        clickLine(2, Qt::ControlModifier);
        click(u"copy"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"opt1 wert\r\nopt2 wert\r\n"_s);
        click(u"paste"_s);
        QCOMPARE(doc().count(), 12);
        QCOMPARE(doc().line(11), u"opt2 wert"_s);
        QCOMPARE(label(u"lblstatus"_s), u"Zwischenablage eingefügt"_s);
    }

    void cleanUpToolsFromTheMenu() {
        doc().appendLine(u"opt1 wert"_s);
        doc().appendLine(u"  "_s);
        clickLine(2);
        action(u"mnuDoppelte"_s)->trigger();
        QCOMPARE(doc().count(), 11);
        QCOMPARE(label(u"lblnumber"_s), u"Nr."_s);
        action(u"mnuLeerzeilen"_s)->trigger();
        QCOMPARE(doc().count(), 10);
        doc().appendLine(u"OPT9 GROSS"_s);
        action(u"mnuGrossKlein"_s)->trigger();
        QCOMPARE(doc().line(10), u"opt9 gross"_s);
        action(u"mnuAlphabet"_s)->trigger();
        QCOMPARE(doc().count(), 10); // the line that sorts first leaves
        QCOMPARE(doc().line(0), u"opt1 wert"_s);
    }

    void deleteAllAsksFirst() {
        m_answer = Dialogs::Answer::No;
        action(u"mnuAllesLoeschen"_s)->trigger();
        QCOMPARE(doc().count(), 10);
        QCOMPARE(m_asked.last(), u"Soll die die kompletten Einträge gelöscht werden ?"_s);
        m_answer = Dialogs::Answer::Yes;
        click(u"cmd_delAll"_s);
        QCOMPARE(doc().count(), 0);
    }

    void longMapkeyIsSplitByClickingTheWarning() {
        const QString mapkey = u"mapkey xx @MAPKEY_LABELlang;~ Command `ProCmdOne`;~ Command `ProCmdTwo`;"_s
                               u"~ Command `ProCmdThree`;~ Command `ProCmdFour`;"_s;
        doc().appendLine(mapkey);
        clickLine(10);
        auto* warning = m_window->findChild<QLabel*>(u"lbl_warn"_s);
        QVERIFY(warning->isVisible());
        QCOMPARE(warning->text(), u"mehr als 98 Zeichen in Zeile ! (Umbruch mit \\ trennen)"_s);
        QTest::mouseClick(warning, Qt::LeftButton);
        QVERIFY(doc().line(10).endsWith(u'\\'));
        QVERIFY(doc().line(11).startsWith(u"mapkey(continued) "_s));
        QCOMPARE(label(u"lblstatus"_s), u"check your mapkey !"_s);
    }

    // Every tool window fits the free area of a 1366×768 laptop screen (title bar and task bar off).
    void toolWindowsFitALaptopScreen() {
        const QSize laptop(1366 - 20, 768 - 40 - 40);
        for (const char16_t* entry : {u"mnuMapkeyGenerator", u"mnuAscii", u"mnuModellInZeichnung", u"mnuDrFegel",
                                      u"mnuTextEditor", u"mnuScreenShot", u"mnuArbeitszeit", u"mnuSearchPro"}) {
            const QString name = QString::fromUtf16(entry);
            QAction* open = action(name);
            QVERIFY2(open, qPrintable(name));
            const QList<QWidget*> before = QApplication::topLevelWidgets();
            open->trigger();
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (before.contains(window) || !window->isVisible())
                    continue;
                fitIntoArea(window, laptop);
                QVERIFY2(window->width() <= laptop.width() && window->height() <= laptop.height(),
                         qPrintable(name + u": %1×%2"_s.arg(window->width()).arg(window->height())));
                window->close();
            }
        }
    }

    // A panel opened above the list takes its room from the list and the button column: all of
    // the window stays on a laptop's screen, and closing the panel gives back what it took.
    void panelsFitTheScreenAndGiveTheirRoomBack() {
        const int laptopHeight = 768 - 40 - 40;
        m_window->resize(1000, 560);
        QTRY_COMPARE(m_window->height(), 560);
        const struct {
            const char16_t* menuEntry;
            const char16_t* closeButton;
        } panels[] = {{u"mnuFavoriten", u"cmd_favoExit"},
                      {u"mnuFarben", u"cmd_farben_schliessen"},
                      {u"mnuTempVerzeichnis", u"cmd_tempdir_schliessen"}};
        for (const auto& panel : panels) {
            const QString name = QString::fromUtf16(panel.menuEntry);
            action(name)->trigger();
            QTest::qWait(50);
            QVERIFY2(m_window->minimumSizeHint().height() <= laptopHeight,
                     qPrintable(name + u": %1"_s.arg(m_window->minimumSizeHint().height())));
            QVERIFY2(m_window->height() <= laptopHeight, qPrintable(name + u": %1"_s.arg(m_window->height())));
            click(QString::fromUtf16(panel.closeButton));
            QTRY_COMPARE(m_window->height(), 560);
        }
    }

    // Buttons that show only a symbol explain themselves where the pointer is.
    void everyButtonOfTheMainWindowHasATooltip() {
        QStringList bare;
        for (QAbstractButton* button : m_window->findChildren<QAbstractButton*>()) {
            const bool symbol = button->text().trimmed().size() <= 3;
            if (symbol && !button->objectName().isEmpty() && !button->objectName().startsWith(u"qt_"_s) &&
                button->toolTip().isEmpty())
                bare.append(button->objectName() + u" \""_s + button->text() + u'"');
        }
        QVERIFY2(bare.isEmpty(), qPrintable(bare.join(u", "_s)));
    }

    // A menu's result stays readable when the pointer comes back onto the control it was on;
    // the next control's hint replaces it.
    void menuResultsStayUntilThePointerMovesOn() {
        QWidget* viewport = list()->viewport();
        auto* button = m_window->findChild<QAbstractButton*>(u"ontop"_s);
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(viewport, &enter);
        const QString listHint = label(u"lblstatus"_s);
        QVERIFY(!listHint.isEmpty());
        QTest::mouseClick(viewport, Qt::LeftButton, {}, QPoint(2, 2));
        action(u"mnuSpeichern"_s)->trigger();
        QCOMPARE(label(u"lblstatus"_s), u"Datei wurde gespeichert"_s);
        QApplication::sendEvent(viewport, &enter); // the menu closes over the list
        QCOMPARE(label(u"lblstatus"_s), u"Datei wurde gespeichert"_s);
        QApplication::sendEvent(button, &enter);
        QCOMPARE(label(u"lblstatus"_s), u"Die markierte Zeile nach ganz oben verschieben"_s);

        // After "Speichern als..." the result is the save, not the reading of the picker's list.
        action(u"mnuSpeichernAls"_s)->trigger();
        m_window->findChild<QLineEdit*>(u"txt_save"_s)->setText(m_dir.filePath(u"neu.pro"_s));
        click(u"cmd_SaveAs"_s);
        QCOMPARE(label(u"lblstatus"_s), u"Datei wurde gespeichert"_s);
    }

    // Every entry of the general menu has its tool now.
    void everyEntryOfTheGeneralMenuIsEnabled() {
        for (QAction* entry : m_window->findChild<QMenu*>(u"mnuAllgemein"_s)->actions())
            QVERIFY2(entry->isEnabled(), qPrintable(entry->objectName()));
    }

    void contextMenuOpensOnTheRightButtonAndHidesOnAClick() {
        auto* menu = m_window->findChild<QWidget*>(u"kontextmenue"_s);
        const QPoint point = list()->visualRect(list()->model()->index(2, 0)).center();
        QTest::mouseClick(list()->viewport(), Qt::RightButton, {}, point);
        QVERIFY(menu->isVisible());
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, point);
        QVERIFY(!menu->isVisible());
    }

    void repairSplitsAFileThatLostItsLineEnds() {
        writeFile(m_file, "eins\nzwei\ndrei\n");
        m_window->startUp({m_file});
        QCOMPARE(doc().count(), 1);
        m_answer = Dialogs::Answer::No; // keep the file as it is on disk
        QStringList asked;
        Dialogs::setHandler([&](const Dialogs::Request& r) {
            asked.append(r.text);
            return Dialogs::Reply{r.kind == Dialogs::Kind::Warning ? Dialogs::Answer::Ok : Dialogs::Answer::No, {}};
        });
        action(u"mnuReparieren"_s)->trigger();
        QCOMPARE(doc().lines(), QStringList({u"eins"_s, u"zwei"_s, u"drei"_s}));
        QCOMPARE(asked.first(), u"Wollen Sie die Datei %1 vorher speichern ?"_s.arg(m_file));
        QVERIFY(asked.last().startsWith(u"Bitte wenden Sie diese Funktion nur auf einen Text an"_s));
    }

    // Lines that end in LF alone read as one line; the status line names the tool that splits them,
    // after the status that opening shows anyway.
    void openingAFileWithLineFeedsOnlyPointsToTheRepair_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("hint");
        QTest::newRow("LF only") << QByteArray("eins\nzwei\ndrei\n") << true;
        QTest::newRow("LF only, no LF at the end") << QByteArray("eins\nzwei") << true;
        QTest::newRow("CR LF") << QByteArray("eins\r\nzwei\r\ndrei\r\n") << false;
        QTest::newRow("CR LF with a stray LF") << QByteArray("eins\r\nzw\nei\r\n") << false;
        QTest::newRow("lone CR") << QByteArray("eins\rzwei\r") << false;
        QTest::newRow("one line without end") << QByteArray("eins") << false;
    }

    void openingAFileWithLineFeedsOnlyPointsToTheRepair() {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, hint);
        const QString note =
            u"Hinweis: Die Zeilen enden nur mit LF; \"fragmentierten Unix Text reparieren\" (Werkzeuge) trennt sie."_s;
        const QString crlfFile = m_dir.filePath(u"crlf.pro"_s);
        writeFile(crlfFile, "eins\r\n");
        writeFile(m_file, bytes);

        // Started with the file: the file type rules have the last word, the note follows them.
        m_window->startUp({crlfFile});
        const QString startStatus = label(u"lblstatus"_s);
        QVERIFY(!startStatus.isEmpty());
        m_window->startUp({m_file});
        QCOMPARE(label(u"lblstatus"_s), hint ? startStatus + u" – "_s + note : startStatus);

        // Opened again with the button for the last file: its line count, then the note.
        setSettingValue(Setting::Label1, m_file);
        click(u"cmd_last"_s);
        const QString designed = u"%1 Zeilen gelesen"_s.arg(doc().count());
        QCOMPARE(label(u"lblstatus"_s), hint ? designed + u" – "_s + note : designed);
    }

    void colourSchemeSurvivesARestart() {
        auto* swatch = m_window->findChild<QAbstractButton*>(u"schwarz"_s);
        QVERIFY(swatch);
        action(u"mnuFarben"_s)->trigger();
        swatch->click();
        QCOMPARE(label(u"lbl_schwarzweissblau"_s), u"schwarz"_s);
        m_answer = Dialogs::Answer::No;
        QVERIFY(m_window->close());
        QCOMPARE(settingValue(Setting::LblSchwarzweissblau), u"schwarz"_s);

        m_window = std::make_unique<MainWindow>();
        m_window->startUp({});
        QCOMPARE(label(u"lbl_schwarzweissblau"_s), u"schwarz"_s);
        QCOMPARE(list()->palette().color(QPalette::Base), QColor(Qt::black));
        setSettingValue(Setting::LblSchwarzweissblau, u"weiss"_s);
    }

    void missingTemporaryFolderOpensItsFrameAtStart() {
        setSettingValue(Setting::TxtTempdir, m_dir.filePath(u"gibt-es-nicht"_s));
        m_window = std::make_unique<MainWindow>();
        m_window->startUp({});
        m_window->show();
        auto* frame = m_window->findChild<QWidget*>(u"Tempdir"_s);
        QVERIFY(frame->isVisible());
        QVERIFY(label(u"lbl_TempDirCheck"_s).startsWith(u"Das angegebene Verzeichnis existiert nicht !"_s));
        setSettingValue(Setting::TxtTempdir, QDir::tempPath());
    }

    void resetRemovesTheStoredSettings() {
        QVERIFY(setSettingValue(Setting::Codepage, u"windows-1250"_s));
        m_answer = Dialogs::Answer::Yes;
        click(u"cmd_RegDelTree"_s);
        QCOMPARE(m_asked.last(), u"Programm-Einstellungen löschen ?"_s);
        QCOMPARE(settingValue(Setting::Codepage), u"windows-1252"_s);
    }

    void searchDialogOpensFromTheMenu() {
        action(u"mnuSuchen"_s)->trigger();
        auto* dialog = m_window->findChild<QWidget*>(u"frm_such"_s);
        QVERIFY(dialog && dialog->isVisible());
    }

    void screenshotAndShooterOpenOnceFromTheMenu() {
        for (const auto& [entry, window] :
             {std::pair{u"mnuScreenShot"_s, u"frmScreenShot"_s}, std::pair{u"mnuShooter"_s, u"frmShooter"_s}}) {
            QVERIFY(action(entry)->isEnabled());
            action(entry)->trigger();
            action(entry)->trigger();
            const QList<QWidget*> windows = m_window->findChildren<QWidget*>(window);
            QCOMPARE(windows.size(), 1);
            QVERIFY(windows.front()->isVisible());
        }
    }

    void closingAsksAndSaves() {
        clickLine(0);
        entry()->setText(u"geändert"_s);
        QTest::keyClick(entry(), Qt::Key_Return);
        m_answer = Dialogs::Answer::Yes;
        QVERIFY(m_window->close());
        QCOMPARE(m_asked.last(), u"Wollen Sie die Datei %1 speichern ?"_s.arg(m_file));
        QVERIFY(readFile(m_file).startsWith("ge\xE4ndert\r\nopt1 wert\r\n"));
        QCOMPARE(settingValue(Setting::Label1), QDir::toNativeSeparators(m_file));
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<MainWindowTest>(argc, argv);
}
#include "mainwindow_test.moc"
