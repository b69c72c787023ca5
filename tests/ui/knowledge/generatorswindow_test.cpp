// The generators reached from the main window: every entry opens its window or acts on the document.
#include "document/configdocument.h"
#include "knowledge/proposal.h"
#include "panelsandbox.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace quenfor;

class GeneratorsWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<MainWindow> m_window;
    QStringList m_asked;

    ConfigDocument& doc() { return *m_window->document(); }
    QWidget* window(const QString& name) {
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* w : widgets) {
            if (w->objectName() == name && w->isVisible())
                return w;
        }
        return m_window->findChild<QWidget*>(name);
    }

private slots:
    void init() {
        m_asked.clear();
        Dialogs::setHandler([this](const Dialogs::Request& r) {
            m_asked.append(r.text);
            return Dialogs::Reply{Dialogs::Answer::Yes, {}};
        });
        m_window = std::make_unique<MainWindow>();
        m_window->startUp({});
        m_window->show();
    }

    void cleanup() {
        doc().clear(); // nothing to save on close
        m_window.reset();
        Dialogs::setHandler({});
    }

    void proposalButtonFillsAnEmptyDocumentWithoutAsking() {
        m_window->findChild<QAbstractButton*>(u"img_vorschlag"_s)->click();
        QCOMPARE(doc().lines(), proposalLines());
        QVERIFY(m_asked.isEmpty());
        QVERIFY(window(u"FormOpt"_s) && window(u"FormOpt"_s)->isVisible());
    }

    void rightButtonOffersTheGhostOptions() {
        auto* button = m_window->findChild<QAbstractButton*>(u"img_vorschlag"_s);
        QTest::mousePress(button, Qt::RightButton);
        QCOMPARE(m_asked.value(0), u"Wollen Sie die Ghost Optionen jetzt hinzufügen ?"_s);
        QCOMPARE(doc().lines(), ghostLines());
    }

    void favouriteCheckTakesTheEntryLineApart() {
        auto* entry = m_window->findChild<QLineEdit*>(u"Text1"_s);
        entry->setText(u"browser_favorite C:\\Program Files\\parts Teile "_s);
        QTest::mouseClick(m_window->findChild<QLabel*>(u"img_favocheck"_s), Qt::LeftButton);
        QCOMPARE(entry->text(), u"browser_favorite C:\\Program Files\\parts Teile"_s);
        QCOMPARE(m_window->findChild<QLineEdit*>(u"txt_Favo"_s)->text(), u"C:\\Program Files\\parts"_s);
        QCOMPARE(m_window->findChild<QLineEdit*>(u"txt_Favoname"_s)->text(), u"Teile"_s);
        QVERIFY(m_window->findChild<QWidget*>(u"Favoriten"_s)->isVisible());
    }

    void menuEntriesOpenTheirWindows() {
        const struct {
            const char16_t* action;
            const char16_t* window;
        } entries[] = {
            {u"mnuMapkeysAuflisten", u"frm_listmapkey"},
            {u"mnuSearchPro", u"search_pro"},
            {u"mnuErsetzen", u"frm_ersetz"},
            {u"mnuPfadUmwandlung", u"frmPfadolin"},
            {u"mnuNeu", u"FormOpt"},
            {u"mnuDrFegel", u"frmPurge"},
            {u"mnuModellInZeichnung", u"frm_drw_mdl_checker"},
            {u"mnuMapkeyGenerator", u"frmTastomat"},
        };
        for (const auto& e : entries) {
            QAction* action = m_window->findChild<QAction*>(QString::fromUtf16(e.action));
            QVERIFY(action && action->isEnabled());
            action->trigger();
            QWidget* w = window(QString::fromUtf16(e.window));
            QVERIFY2(w && w->isVisible(), qPrintable(QString::fromUtf16(e.window)));
        }
    }

    void duplicateMapkeysAreFoundFromTheMenu() {
        doc().appendLines({u"mapkey a @MAPKEY_LABELx;"_s, u"opt 1"_s, u"mapkey a @MAPKEY_LABELx;"_s});
        m_window->findChild<QAction*>(u"mnuDoppelteMapkeys"_s)->trigger();
        QCOMPARE(m_window->status(), u"suche doppelte Mapkeys..."_s);
        QVERIFY(window(u"frm_mapkey"_s)->isVisible());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<GeneratorsWindowTest>(argc, argv);
}
#include "generatorswindow_test.moc"
