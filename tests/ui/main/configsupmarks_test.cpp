// "config.sup wählen…": lines of the open config.pro that the chosen config.sup locks, or that a
// later line replaces, carry a mark and say why on hover; the marks follow edits.
#include "document/configdocument.h"
#include "panelsandbox.h"
#include "ui/main/mainwindow.h"
#include "ui/widgets/dialogs.h"

#include <QAction>
#include <QDir>
#include <QIcon>
#include <QListView>

using namespace Qt::StringLiterals;
using namespace quenfor;

class ConfigSupMarksTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<MainWindow> m_window;
    QString m_chosen;

    QAbstractItemModel* model() { return m_window->findChild<QListView*>(u"List1"_s)->model(); }
    QString tip(int row) { return model()->data(model()->index(row, 0), Qt::ToolTipRole).toString(); }
    bool hasIcon(int row) {
        const QIcon icon = model()->data(model()->index(row, 0), Qt::DecorationRole).value<QIcon>();
        return !icon.isNull() && icon.pixmap(12, 12).toImage().pixelColor(6, 6).alpha() > 0;
    }
    void choose(const QString& path) {
        m_chosen = path;
        m_window->findChild<QAction*>(u"mnuConfigSup"_s)->trigger();
    }

private slots:
    void init() {
        Dialogs::setHandler([this](const Dialogs::Request&) { return Dialogs::Reply{Dialogs::Answer::Ok, m_chosen}; });
        writeFile(m_dir.filePath(u"config.sup"_s),
                  "! Firma\r\npro_unit_length unit_mm\r\nsearch_path C:\\normteile\r\n");
        writeFile(m_dir.filePath(u"config.pro"_s), "PRO_UNIT_LENGTH unit_inch\r\nbell yes\r\n"
                                                   "search_path C:\\eigene\r\nbell no\r\n");
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1000, 700);
        m_window->startUp({m_dir.filePath(u"config.pro"_s)});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() {
        m_window.reset();
        Dialogs::setHandler({});
    }

    void lockedAndOverriddenLinesAreMarkedWithTheirReason() {
        QVERIFY(tip(0).isEmpty()); // no config.sup chosen yet: no marks
        QVERIFY(!hasIcon(0));
        choose(m_dir.filePath(u"config.sup"_s));

        QCOMPARE(tip(0), u"gesperrt durch config.sup: dort steht \"pro_unit_length unit_mm\" (config.sup, Zeile 2). "
                         u"Diese Zeile bleibt ohne Wirkung."_s);
        QVERIFY(hasIcon(0));
        QCOMPARE(tip(1),
                 u"überschrieben: es gilt \"bell no\" (config.pro, Zeile 4). Diese Zeile bleibt ohne Wirkung."_s);
        QVERIFY(hasIcon(1));
        // search_path collects, and the line in effect is not marked.
        QVERIFY(tip(2).isEmpty());
        QVERIFY(!hasIcon(2));
        QVERIFY(tip(3).isEmpty());
        QCOMPARE(m_window->status(), u"config.sup %1: 1 Zeile gesperrt, 1 Zeile überschrieben"_s.arg(
                                         QDir::toNativeSeparators(m_dir.filePath(u"config.sup"_s))));

        // Removing the later bell line gives the earlier one its effect back.
        m_window->document()->removeLine(3);
        QTRY_VERIFY(tip(1).isEmpty());
        QCOMPARE(tip(0).left(26), u"gesperrt durch config.sup:"_s);

        m_window->findChild<QAction*>(u"mnuConfigSupAus"_s)->trigger();
        QVERIFY(tip(0).isEmpty());
        QVERIFY(!m_window->findChild<QAction*>(u"mnuConfigSupAus"_s)->isEnabled());
    }

    void aFileThatCannotBeReadIsRefusedInGerman() {
        Dialogs::takeShownTexts();
        choose(m_dir.filePath(u"fehlt.sup"_s));
        const QStringList shown = Dialogs::takeShownTexts();
        QVERIFY2(shown.size() >= 1 && shown.last().contains(u"existiert nicht"_s), qPrintable(shown.join(u'|')));
        QVERIFY(tip(0).isEmpty());
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ConfigSupMarksTest>(argc, argv);
}

#include "configsupmarks_test.moc"
