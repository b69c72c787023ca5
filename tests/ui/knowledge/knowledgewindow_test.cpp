// The option picker, the Erklär-Bär and the sort by category, driven through the main window.
#include "document/configdocument.h"
#include "panelsandbox.h"
#include "settings/mainsettings.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;
using namespace quenfor;

class KnowledgeWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_data;
    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_window;
    QStringList m_shown;
    QList<Dialogs::Kind> m_kinds;

    ConfigDocument& doc() { return *m_window->document(); }
    QListWidget* picker() { return m_window->findChild<QListWidget*>(u"List2cfg"_s); }
    QListView* list() { return m_window->findChild<QListView*>(u"List1"_s); }
    QPlainTextEdit* panelText() {
        QWidget* panel = m_window->findChild<QWidget*>(u"frmErklaer"_s);
        return panel ? panel->findChild<QPlainTextEdit*>(u"Text1"_s) : nullptr;
    }

    void clickLine(int row) {
        const QRect rect = list()->visualRect(list()->model()->index(row, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rect.center());
    }

private slots:
    void initTestCase() {
        qputenv("QUENFOR_DATA_DIR", QFile::encodeName(m_data.path()));
        writeFile(m_data.filePath(u"config_opts.txt"_s),
                  "display  shade | wireframe\r\n  Darstellung der Modelle.\r\n\r\n\r\n\r\n\r\n\r\n");
        writeFile(m_data.filePath(u"quenfor.pro"_s), "display shade\r\ntrail_dir C:\\temp\r\n");
    }

    void init() {
        writeFile(m_work.filePath(u"config.pro"_s), "zzz unbekannt\r\ndisplay wireframe\r\n! Kommentar\r\n");
        m_shown.clear();
        m_kinds.clear();
        Dialogs::setHandler([this](const Dialogs::Request& r) {
            m_shown.append(r.text);
            m_kinds.append(r.kind);
            return Dialogs::Reply{r.kind == Dialogs::Kind::Question ? Dialogs::Answer::Yes : Dialogs::Answer::Ok, {}};
        });
        m_window = std::make_unique<MainWindow>();
        m_window->startUp({m_work.filePath(u"config.pro"_s)});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() {
        Dialogs::setHandler([](const Dialogs::Request&) { return Dialogs::Reply{Dialogs::Answer::No, {}}; });
        m_window.reset();
        Dialogs::setHandler({});
    }

    void pickerIsFilledFromItsSource() {
        QCOMPARE(picker()->count(), 2);
        QCOMPARE(picker()->item(1)->text(), u"trail_dir C:\\temp"_s);
        QVERIFY(picker()->isVisible());
    }

    void clickingALineExplainsItWhenTheBearIsOn() {
        m_window->findChild<QCheckBox*>(u"chk_erklaerbaer"_s)->setChecked(true);
        clickLine(1);
        QVERIFY(panelText());
        QCOMPARE(
            panelText()->toPlainText(),
            u"*** Erklärung zur Option: ***\ndisplay  shade | wireframe\n  Darstellung der Modelle.\n\n\n\n\n ...\n"
            "Vorgabe: shade\nErlaubte Werte: wireframe, hiddenvis, hiddeninvis, shade, shadewithreflect, shadewithedges"_s);
        clickLine(2);
        QVERIFY(panelText()->toPlainText().startsWith(u"Diese Zeile ist eine Kommentarzeile."_s));
    }

    void fixedTextsFillThePanelWithoutOpeningIt() {
        m_window->findChild<QCheckBox*>(u"chk_erklaerbaer"_s)->setChecked(true);
        doc().replaceAll({u"! Kommentar"_s, u"mapkey(continued) ~ Command;"_s, u""_s, u"display shade"_s});
        const auto panel = [this] { return m_window->findChild<QWidget*>(u"frmErklaer"_s); };
        const struct {
            int row;
            QString text;
        } fixed[] = {{0, u"Diese Zeile ist eine Kommentarzeile."_s},
                     {1, u"Diese Zeile ist ein Teil eines Mapkeys."_s},
                     {2, u"Leerzeile."_s}};
        for (const auto& f : fixed) {
            clickLine(f.row);
            QVERIFY(panelText());
            QVERIFY2(panelText()->toPlainText().startsWith(f.text), qPrintable(f.text));
            QVERIFY(!panel()->isVisible());
        }
        clickLine(3); // only an option line opens it
        QVERIFY(panel()->isVisible());
        clickLine(0); // once open, it shows the fixed texts too
        QVERIFY(panel()->isVisible());
        QVERIFY(panelText()->toPlainText().startsWith(u"Diese Zeile ist eine Kommentarzeile."_s));
        QVERIFY(m_shown.isEmpty());
    }

    void missingKnowledgeBaseIsCriticalAndSwitchesTheBearOff() {
        const QString kb = m_data.filePath(u"config_opts.txt"_s);
        QVERIFY(QFile::rename(kb, kb + u".weg"_s));
        auto* check = m_window->findChild<QCheckBox*>(u"chk_erklaerbaer"_s);
        check->setChecked(true);
        clickLine(2); // a comment needs no knowledge base
        QVERIFY(m_shown.isEmpty());
        clickLine(1);
        QVERIFY(QFile::rename(kb + u".weg"_s, kb));
        QCOMPARE(m_kinds, QList<Dialogs::Kind>{Dialogs::Kind::Critical});
        QVERIFY(m_shown.first().startsWith(u"Die Konfigurations-Datei nicht gefunden !"_s));
        QVERIFY(!check->isChecked());
    }

    void feedingAddsARecordTheNextLookupFinds() {
        m_window->findChild<QCheckBox*>(u"chk_erklaerbaer"_s)->setChecked(true);
        clickLine(1);
        QWidget* panel = m_window->findChild<QWidget*>(u"frmErklaer"_s);
        QTest::mouseClick(panel->findChild<QLabel*>(u"Image1"_s), Qt::LeftButton);
        QVERIFY(panelText()->toPlainText().isEmpty());
        panelText()->setPlainText(u"Bei uns immer wireframe."_s);
        panel->findChild<QAbstractButton*>(u"plus"_s)->click();
        QCOMPARE(m_shown.last(), u"Erklärung wurde zum Eintrag hinzugefügt"_s);
        QVERIFY(readFile(m_data.filePath(u"config_opts.txt"_s))
                    .endsWith("display wireframe\rBei uns immer wireframe.\r***\r\n"));
        clickLine(1);
        QVERIFY(panelText()->toPlainText().contains(u"Bei uns immer wireframe.\n***"_s));
    }

    void categoryBoxFiltersThePicker() {
        auto* box = m_window->findChild<QComboBox*>(u"combo_kathegorie"_s);
        const int zeichnung = box->findText(u"Zeichnung"_s);
        box->setCurrentIndex(zeichnung);
        emit box->activated(zeichnung);
        QCOMPARE(picker()->item(0)->text(), u"! ZEICHNUNG"_s);
        box->setCurrentIndex(0);
        emit box->activated(0);
        QCOMPARE(picker()->count(), 2);
    }

    void pickerOffersTheAllowedValues() {
        const auto menuAt = [this](int row) {
            emit picker()->customContextMenuRequested(picker()->visualItemRect(picker()->item(row)).center());
            return m_window->findChild<QMenu*>(u"menu_werte"_s);
        };
        QVERIFY(!menuAt(1)); // trail_dir takes any folder
        QMenu* menu = menuAt(0);
        QVERIFY(menu);
        QStringList offered;
        for (QAction* action : menu->actions()) {
            if (!action->isSeparator())
                offered.append(action->text());
        }
        QCOMPARE(offered,
                 QStringList({u"display wireframe"_s, u"display hiddenvis"_s, u"display hiddeninvis"_s,
                              u"display shade"_s, u"display shadewithreflect"_s, u"display shadewithedges"_s}));
        menu->actions().at(1)->trigger(); // after the section title: the first value
        QCOMPARE(m_window->findChild<QLineEdit*>(u"Text1"_s)->text(), u"display wireframe"_s);
        menu->close();
    }

    void takeOverAppendsTheSelectionInListOrder() {
        picker()->item(1)->setSelected(true);
        picker()->item(0)->setSelected(true);
        m_window->findChild<QAbstractButton*>(u"cmdAlle"_s)->click();
        QCOMPARE(doc().lines().mid(3), QStringList({u"display shade"_s, u"trail_dir C:\\temp"_s}));
    }

    void sortByCategoryFromTheMenu() {
        m_window->findChild<QAction*>(u"mnuKategorien"_s)->trigger();
        QVERIFY(!m_shown.isEmpty());
        QCOMPARE(m_shown.last(), u"Wollen Sie nun alle Einträge nach Themen sortieren ?"_s);
        QCOMPARE(doc().line(0), u"! Anwendung -----------------------"_s);
        QVERIFY(doc().lines().contains(u"! nicht zugeornete Schalter, Mapkeys, Favoriten : ----------"_s));
        QCOMPARE(doc().lines().last(), u"! Kommentar"_s);
        QCOMPARE(m_window->findChild<QLabel*>(u"lblnumber"_s)->text(), u"Nr."_s);
        // Every category was selected in turn: the combo and the picker stay on the last one.
        QCOMPARE(m_window->findChild<QComboBox*>(u"combo_kathegorie"_s)->currentText(), u"Zeichnung"_s);
        QCOMPARE(picker()->item(0)->text(), u"! ZEICHNUNG"_s);
        QCOMPARE(m_window->findChild<QLabel*>(u"lbl_kathi"_s)->text(), u"Kategorie Zeichnung"_s);
        QCOMPARE(m_window->findChild<QLabel*>(u"lblstatus"_s)->text(), u"lösche doppelte Einträge..."_s);
    }

    // Hidden options stand out in the picker: for the latest release until the administrator picks
    // the release the seats run in the settings, which stores it and marks the picker anew.
    void pickerMarksHiddenOptionsOfTheTargetRelease() {
        const QString source = m_data.filePath(u"quenfor.pro"_s);
        const QByteArray original = readFile(source);
        writeFile(source, "18_plus yes\r\nauto_locate_in_tree yes\r\ndisplay shade\r\n");
        auto* box = m_window->findChild<QComboBox*>(u"combo_kathegorie"_s);
        emit box->activated(0); // "Alles" reads the picker source again
        writeFile(source, original);
        QCOMPARE(picker()->count(), 3);
        const auto marked = [this](int row) { return picker()->item(row)->font().italic(); };
        QCOMPARE(picker()->item(0)->toolTip(),
                 u"Versteckte Option: Creo Parametric 11.0 liest sie, dokumentiert sie aber nicht."_s);
        QVERIFY(marked(0));
        QVERIFY(!marked(1)); // documented in the latest release, hidden in older ones
        QVERIFY(picker()->item(1)->toolTip().isEmpty());
        QVERIFY(!marked(2));

        m_window->findChild<QAction*>(u"mnuTempVerzeichnis"_s)->trigger();
        auto* release = m_window->findChild<QComboBox*>(u"combo_zielversion"_s);
        QVERIFY(release && release->isVisible());
        QCOMPARE(release->currentText(), u"keine"_s);
        const int cp4 = release->findData(u"CP4"_s);
        QCOMPARE(release->itemText(cp4), u"Creo Parametric 4.0 (CP4)"_s);
        release->setCurrentIndex(cp4);
        emit release->activated(cp4);
        QCOMPARE(settingValue(Setting::Zielversion), u"CP4"_s);
        QVERIFY(marked(0));
        QVERIFY(marked(1));
        QCOMPARE(picker()->item(1)->toolTip(),
                 u"Versteckte Option: Creo Parametric 4.0 liest sie, dokumentiert sie aber nicht."_s);
        QVERIFY(!marked(2));

        // A new window starts with the stored release.
        m_window = std::make_unique<MainWindow>();
        m_window->startUp({m_work.filePath(u"config.pro"_s)});
        QCOMPARE(m_window->findChild<QComboBox*>(u"combo_zielversion"_s)->currentData().toString(), u"CP4"_s);
        release = m_window->findChild<QComboBox*>(u"combo_zielversion"_s);
        release->setCurrentIndex(0);
        emit release->activated(0);
        QCOMPARE(settingValue(Setting::Zielversion), QString());
    }

    void sortByCategoryRefusesOtherFamiliesVisibly() {
        const QString refusal = u"Diese Funktion ist nur für config.pro und config.sup Dateien nutzbar ! (Mal im "
                                u"Ernst: was erwartest Du denn, was da passiert ?!... ehrlich)"_s;
        for (const QString& name : {u"search.pro"_s, u"din.dtl"_s, u"quen.pcf"_s}) {
            writeFile(m_work.filePath(name), "zzz eins\r\ndisplay wireframe\r\n");
            m_window = std::make_unique<MainWindow>();
            m_window->startUp({m_work.filePath(name)});
            m_window->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
            auto* button = m_window->findChild<QAbstractButton*>(u"img_kathi"_s);
            QVERIFY2(button && button->isVisible(), qPrintable(name));
            m_shown.clear();
            QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(m_shown, QStringList{refusal});
            QCOMPARE(doc().lines(), QStringList({u"zzz eins"_s, u"display wireframe"_s}));
        }
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<KnowledgeWindowTest>(argc, argv);
}
#include "knowledgewindow_test.moc"
