// The small desk tools as a user drives them: typing, clicking labels and buttons, answering the
// questions; and that each opens from the main window's menu or button.
#include "desktools/worktimesettings.h"
#include "panelsandbox.h"
#include "settings/mainsettings.h"
#include "ui/desktools/colourboxwindow.h"
#include "ui/desktools/interpolationwindow.h"
#include "ui/desktools/worktimewindow.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QColor kRed(255, 0, 0);
const QColor kToday(255, 128, 128);
// A Wednesday morning, and a Saturday.
const QDateTime kWednesday(QDate(2026, 3, 4), QTime(9, 41, 5));
const QDateTime kSaturday(QDate(2026, 3, 7), QTime(10, 5));

QLineEdit* field(QWidget& window, const QString& name) {
    auto* edit = window.findChild<QLineEdit*>(name);
    if (!edit)
        qFatal("no field %s", qPrintable(name));
    return edit;
}

QString text(QWidget& window, const QString& name) {
    return field(window, name)->text();
}

QString labelText(QWidget& window, const QString& name) {
    return window.findChild<QLabel*>(name)->text();
}

void click(QWidget& window, const QString& name) {
    auto* button = window.findChild<QAbstractButton*>(name);
    QVERIFY2(button, qPrintable(name));
    button->click();
}

// Replaces the field's text as typing would; beyond Latin-1, where the test's keyboard ends, as
// pasting would.
void type(QWidget& window, const QString& name, const QString& typed) {
    QLineEdit* edit = field(window, name);
    edit->selectAll();
    if (std::all_of(typed.begin(), typed.end(), [](QChar c) { return c.unicode() < 256; })) {
        QTest::keyClicks(edit, typed);
    } else {
        edit->insert(typed);
        emit edit->textEdited(edit->text());
    }
}

bool isRed(QWidget& window, const QString& name) {
    return field(window, name)->palette().color(QPalette::Text) == kRed;
}

QString dayField(int day) {
    return u"txt_woche(%1)"_s.arg(day);
}

} // namespace

class SmallToolWindowsTest : public QObject {
    Q_OBJECT

    QStringList m_shown;
    Dialogs::Answer m_answer = Dialogs::Answer::Yes;

private slots:
    void init() {
        SettingsStore(u"Zeit"_s).remove();
        m_shown.clear();
        m_answer = Dialogs::Answer::Yes;
        Dialogs::setHandler([this](const Dialogs::Request& request) {
            m_shown.append(request.text);
            return Dialogs::Reply{m_answer, {}};
        });
    }

    void cleanup() { Dialogs::setHandler({}); }

    // The work-time planner.

    void plannerDefaultsAreRedAndTodayIsHighlighted() {
        WorkTimeWindow window(nullptr, [] { return kWednesday; });
        QCOMPARE(text(window, u"diff_h"_s), u"-7,8167"_s);
        QVERIFY(isRed(window, u"diff_h"_s));
        QCOMPARE(text(window, u"gesamt"_s), u"5"_s);
        QVERIFY(!isRed(window, u"gesamt"_s));
        QCOMPARE(labelText(window, u"lbl_Minuten(4)"_s), u"60"_s);
        QCOMPARE(labelText(window, u"lbl_gesamtmin"_s), u"300"_s);
        QCOMPARE(labelText(window, u"lbl_Uhrzeit"_s), u"09:41:05"_s);
        QCOMPARE(window.highlightedDay(), 2);
        for (int day = 0; day < 5; ++day) {
            auto* label = window.findChild<QLabel*>(u"lbl_tag(%1)"_s.arg(day));
            const bool highlighted = label->autoFillBackground() && label->palette().color(QPalette::Window) == kToday;
            QCOMPARE(highlighted, day == 2);
        }
        QCOMPARE(labelText(window, u"lbl_tag(2)"_s), u"Mittwoch"_s);
    }

    void plannerWritesTodaysEntryIntoTheHighlightedDay() {
        WorkTimeWindow window(nullptr, [] { return kWednesday; });
        type(window, u"kommt_h"_s, u"8"_s);
        type(window, u"kommt_min"_s, u"0"_s);
        type(window, u"geht_h"_s, u"16"_s);
        type(window, u"geht_min"_s, u"30"_s);
        type(window, u"pause_min"_s, u"30"_s);
        type(window, u"Arbeitszeit"_s, u"8"_s);
        QCOMPARE(text(window, u"diff_h"_s), u"0"_s);
        QVERIFY(!isRed(window, u"diff_h"_s));

        type(window, u"geht_h"_s, u"15"_s);
        click(window, u"cmd_calc"_s);
        QCOMPARE(text(window, dayField(2)), u"-1"_s);
        QCOMPARE(text(window, dayField(1)), u"1"_s);
        QCOMPARE(labelText(window, u"lbl_Minuten(2)"_s), u"-60"_s);
        QCOMPARE(text(window, u"gesamt"_s), u"3"_s);
        QVERIFY(m_shown.isEmpty());

        // A day the user types in counts at once, rounded down to hundredths.
        type(window, dayField(0), u"-3,239"_s);
        QCOMPARE(text(window, u"gesamt"_s), u"-1,24"_s);
        QVERIFY(isRed(window, u"gesamt"_s));
        QCOMPARE(labelText(window, u"lbl_gesamtmin"_s), u"-74,3"_s);
    }

    void plannerRefusesAFieldThatIsNoNumber() {
        WorkTimeWindow window(nullptr, [] { return kWednesday; });
        type(window, u"pause_min"_s, u"halbe"_s);
        QCOMPARE(text(window, u"diff_h"_s), QString());
        const QString message =
            u"Im Feld „Pause“ steht keine Zahl: „halbe“. Bitte eine Zahl eingeben, z. B. 7 oder 7,5."_s;
        QCOMPARE(labelText(window, u"lblstatus"_s), message);
        click(window, u"cmd_calc"_s);
        QCOMPARE(m_shown, QStringList{message});
        QCOMPARE(text(window, dayField(2)), u"1"_s);
    }

    void plannerAsksOnAWeekendBeforeMonday() {
        WorkTimeWindow window(nullptr, [] { return kSaturday; });
        QCOMPARE(window.highlightedDay(), std::nullopt);
        for (int day = 0; day < 5; ++day)
            QVERIFY(!window.findChild<QLabel*>(u"lbl_tag(%1)"_s.arg(day))->autoFillBackground());
        m_answer = Dialogs::Answer::No;
        click(window, u"cmd_calc"_s);
        QCOMPARE(text(window, dayField(0)), u"1"_s);
        QVERIFY(m_shown.value(0).startsWith(u"Heute ist Samstag"_s));
        m_answer = Dialogs::Answer::Yes;
        click(window, u"cmd_calc"_s);
        QCOMPARE(text(window, dayField(0)), u"-7,8167"_s);
    }

    void plannerLabelsTakeTheTimeAndClearTheWeek() {
        WorkTimeWindow window(nullptr, [] { return kWednesday; });
        QTest::mouseClick(window.findChild<QLabel*>(u"Label1"_s), Qt::LeftButton);
        QCOMPARE(text(window, u"kommt_h"_s), u"9"_s);
        QCOMPARE(text(window, u"kommt_min"_s), u"41"_s);
        QTest::mouseClick(window.findChild<QLabel*>(u"Label2"_s), Qt::LeftButton);
        QCOMPARE(text(window, u"geht_h"_s), u"9"_s);
        QCOMPARE(text(window, u"geht_min"_s), u"41"_s);
        QCOMPARE(text(window, u"diff_h"_s), u"-7,8167"_s);

        auto* week = window.findChild<QLabel*>(u"Label5"_s);
        m_answer = Dialogs::Answer::No;
        QTest::mouseDClick(week, Qt::LeftButton);
        QCOMPARE(m_shown.value(0), u"Wollen Sie wirklich alle Einträge löschen ?"_s);
        QCOMPARE(text(window, dayField(3)), u"1"_s);
        m_answer = Dialogs::Answer::Yes;
        QTest::mouseDClick(week, Qt::LeftButton);
        for (int day = 0; day < 5; ++day)
            QCOMPARE(text(window, dayField(day)), QString());
        QCOMPARE(text(window, u"gesamt"_s), u"0"_s);
    }

    void plannerStoresItsFieldsOnClose() {
        {
            WorkTimeWindow window(nullptr, [] { return kWednesday; });
            type(window, u"pause_min"_s, u"45"_s);
            type(window, u"kommt_h"_s, u"6"_s);
            click(window, u"cmd_calc"_s);
            window.show();
            click(window, u"Image1"_s);
            QVERIFY(!window.isVisible());
        }
        const WorkTimeSettings stored = WorkTimeSettings::load();
        QCOMPARE(stored.day.pauseMinutes, u"45"_s);
        QCOMPARE(stored.day.arriveHour, u"6"_s);
        QCOMPARE(stored.week[2], u"-6,75"_s);
        WorkTimeWindow again(nullptr, [] { return kWednesday; });
        QCOMPARE(text(again, u"pause_min"_s), u"45"_s);
        QCOMPARE(text(again, dayField(2)), u"-6,75"_s);
    }

    // The linear interpolation.

    void interpolationFiltersAndCalculates() {
        InterpolationWindow window;
        QTest::keyClicks(field(window, u"a"_s), u"2.5"_s);
        QCOMPARE(text(window, u"a"_s), u"2,5"_s);
        QVERIFY(m_shown.isEmpty());
        QTest::keyClicks(field(window, u"a"_s), u"x"_s);
        QCOMPARE(text(window, u"a"_s), u"2,5"_s);
        QCOMPARE(m_shown, QStringList{u"Bitte nur Zahlen eingeben."_s});

        const QString inputs[] = {u"x1"_s, u"y1"_s, u"x2"_s, u"y2"_s, u"a"_s};
        const QString values[] = {u"0"_s, u"0"_s, u"10"_s, u"10"_s, u"5"_s};
        for (int i = 0; i < 5; ++i)
            type(window, inputs[i], values[i]);
        click(window, u"cmd_calc"_s);
        QCOMPARE(text(window, u"b"_s), u"11,5"_s);

        m_shown.clear();
        type(window, u"x2"_s, u"0"_s);
        QTest::keyClick(field(window, u"x2"_s), Qt::Key_Return);
        QCOMPARE(text(window, u"b"_s), QString());
        QCOMPARE(m_shown, QStringList{u"x1 und x2 sind gleich: durch x1 − x2 = 0 kann nicht geteilt werden."_s});
    }

    // The ASCII table.

    // The limits of the conversion are the table's own business; here the fields, buttons, list and
    // clipboard pass the values on.
    void asciiTableConvertsBothWays() {
        setSettingValue(Setting::Codepage, u"windows-1252"_s);
        MainWindow owner;
        owner.findChild<QAction*>(u"mnuAscii"_s)->trigger();
        auto* window = owner.findChild<QWidget*>(u"frmAscii"_s);
        QVERIFY(window && window->isVisible());
        auto* list = window->findChild<QListWidget*>(u"List2"_s);

        type(*window, u"Text2"_s, u"254"_s);
        click(*window, u"Command2"_s);
        QCOMPARE(text(*window, u"Text1"_s), u"þ"_s);
        QCOMPARE(list->currentRow(), 253);
        click(*window, u"cmd_up"_s);
        QCOMPARE(m_shown, QStringList{u" Bitte eine Zahl (< 255) eingeben !"_s});

        type(*window, u"Text1"_s, u"€uro"_s);
        QCOMPARE(text(*window, u"Text1"_s), u"€"_s);
        click(*window, u"Command1"_s);
        QCOMPARE(text(*window, u"Text2"_s), u"128"_s);
        click(*window, u"Command3"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"€"_s);

        list->setFocus();
        list->setCurrentRow(64);
        emit list->itemClicked(list->item(64));
        QCOMPARE(text(*window, u"Text1"_s), u"A"_s);
        QCOMPARE(text(*window, u"Text2"_s), u"65"_s);
    }

    void asciiTableFollowsTheCodepageSetting() {
        setSettingValue(Setting::Codepage, u"ISO-8859-2"_s);
        MainWindow owner;
        owner.findChild<QAction*>(u"mnuAscii"_s)->trigger();
        auto* window = owner.findChild<QWidget*>(u"frmAscii"_s);
        type(*window, u"Text2"_s, u"177"_s);
        click(*window, u"Command2"_s);
        QCOMPARE(text(*window, u"Text1"_s), u"ą"_s);
        QCOMPARE(labelText(*window, u"lbl_codepage"_s), u"Codepage: ISO-8859-2"_s);
        setSettingValue(Setting::Codepage, u"windows-1252"_s);
    }

    // The colour box.

    void colourBoxKeepsPercentAndRgbInStep() {
        ColourBoxWindow window(
            [] { return std::optional<QString>(u"SYSTEM_BACKGROUND_COLOR 0.000000 7.058824 19.607843"_s); });
        QCOMPARE(window.findChild<QComboBox*>(u"cmb_name"_s)->currentText(), u"SYSTEM_BACKGROUND_COLOR"_s);
        QCOMPARE(text(window, u"txt_rgbGruen"_s), u"18"_s);
        QCOMPARE(text(window, u"txt_rgbBlau"_s), u"50"_s);
        QCOMPARE(window.colour(), QColor(0, 18, 50));

        type(window, u"txt_prozentRot"_s, u"50"_s);
        QCOMPARE(text(window, u"txt_rgbRot"_s), u"128"_s);
        type(window, u"txt_rgbBlau"_s, u"255"_s);
        QCOMPARE(text(window, u"txt_prozentBlau"_s), u"100"_s);
        QCOMPARE(window.findChild<QLabel*>(u"lbl_farbe"_s)->palette().color(QPalette::Window), QColor(128, 18, 255));
        QCOMPARE(text(window, u"txt_zeile"_s), u"SYSTEM_BACKGROUND_COLOR 50.000000 7.058824 100.000000"_s);

        click(window, u"cmd_kopieren"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"SYSTEM_BACKGROUND_COLOR 50.000000 7.058824 100.000000"_s);
        QVERIFY(m_shown.isEmpty());

        // A value out of range is refused: it turns red, and nothing is copied until it is right.
        type(window, u"txt_rgbGruen"_s, u"300"_s);
        QVERIFY(isRed(window, u"txt_rgbGruen"_s));
        QCOMPARE(labelText(window, u"lblstatus"_s), u"Grün: RGB-Werte sind ganze Zahlen von 0 bis 255."_s);
        QVERIFY(!window.copyLine());
        QCOMPARE(m_shown, QStringList{u"Grün: RGB-Werte sind ganze Zahlen von 0 bis 255."_s});
        // The line and the swatch never show an older value as if it were the one typed.
        QCOMPARE(text(window, u"txt_zeile"_s), QString());
        QVERIFY(window.findChild<QLabel*>(u"lbl_farbe"_s)->palette().color(QPalette::Window) != QColor(128, 18, 255));
        type(window, u"txt_prozentRot"_s, u"250"_s);
        QCOMPARE(text(window, u"txt_zeile"_s), QString());
        type(window, u"txt_prozentRot"_s, u"50"_s);
        QCOMPARE(text(window, u"txt_zeile"_s), QString()); // green is still refused
        type(window, u"txt_rgbGruen"_s, u"0"_s);
        QCOMPARE(text(window, u"txt_zeile"_s), u"SYSTEM_BACKGROUND_COLOR 50.000000 0.000000 100.000000"_s);
        QVERIFY(!isRed(window, u"txt_rgbGruen"_s));
        window.setColour(QColor(255, 255, 255));
        QCOMPARE(window.valueLine(), u"SYSTEM_BACKGROUND_COLOR 100.000000 100.000000 100.000000"_s);
    }

    void colourBoxTakesOnlyColourLines() {
        QString marked = u"display_coordinate_sys no"_s;
        ColourBoxWindow window([&marked] { return std::optional<QString>(marked); });
        QCOMPARE(window.colour(), QColor(Qt::black));
        click(window, u"cmd_zeile"_s);
        QCOMPARE(m_shown.size(), 1);
        QVERIFY(m_shown[0].startsWith(u"Die markierte Zeile ist keine Farbzeile"_s));
        marked = u"100.000000 100.000000 0.000000"_s;
        click(window, u"cmd_zeile"_s);
        QCOMPARE(window.colour(), QColor(255, 255, 0));
        QCOMPARE(window.valueLine(), u"100.000000 100.000000 0.000000"_s);
    }

    // The main window opens each tool once and brings it to the front when chosen again.

    void menuEntriesAndButtonsOpenTheirWindows() {
        MainWindow owner;
        owner.show();
        QVERIFY(QTest::qWaitForWindowExposed(&owner));
        const std::pair<QString, QString> entries[] = {
            {u"mnuArbeitszeit"_s, u"frmZeit"_s}, {u"mnuInterpolation"_s, u"frmInterpolation"_s},
            {u"mnuAscii"_s, u"frmAscii"_s},      {u"mnuFarbBox"_s, u"frmColor"_s},
            {u"mnuUeber"_s, u"frmAbout"_s},
        };
        for (const auto& [entry, window] : entries) {
            QAction* action = owner.findChild<QAction*>(entry);
            QVERIFY2(action->isEnabled(), qPrintable(entry));
            action->trigger();
            action->trigger();
            const QList<QWidget*> opened = owner.findChildren<QWidget*>(window);
            QCOMPARE(opened.size(), 1);
            QVERIFY2(opened[0]->isVisible() && opened[0]->isWindow(), qPrintable(window));
            opened[0]->close();
        }
        QTRY_VERIFY(!owner.findChild<QWidget*>(u"frmAbout"_s));

        for (const auto& [button, window] : {std::pair{u"cmd_Color"_s, u"frmColor"_s}, {u"Image10"_s, u"frmAbout"_s}}) {
            auto* b = owner.findChild<QAbstractButton*>(button);
            QVERIFY2(b && b->isEnabled(), qPrintable(button));
            b->click();
            auto* opened = owner.findChild<QWidget*>(window);
            QVERIFY2(opened && opened->isVisible(), qPrintable(window));
        }
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<SmallToolWindowsTest>(argc, argv);
}
#include "smalltoolwindows_test.moc"
