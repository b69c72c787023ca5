// The path options window as a new user meets it: defaults on first start, red for paths that do
// not exist, a warning that never costs the inserted line, values that survive closing, and the
// proposal that opens the window.
#include "panelsandbox.h"

#include "document/configdocument.h"
#include "knowledge/pathoptions.h"
#include "knowledge/proposal.h"
#include "ui/knowledge/formopt.h"
#include "ui/knowledge/proposalactions.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>

#include <memory>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QColor kRed(255, 0, 0);

int indexOfOption(const QString& option) {
    return pathOptionIndex(option);
}

} // namespace

class FormOptTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_store;
    QList<Dialogs::Request> m_shown;
    QString m_chosenPath; // what a file or folder dialog answers
    Dialogs::Answer m_answer = Dialogs::Answer::Yes;

    static QLineEdit* entry(const QWidget& window, const QString& option) {
        return child<QLineEdit>(window, pathOptions().at(indexOfOption(option)).textBox);
    }

    static void click(const QWidget& window, const QString& name) {
        QAbstractButton* button = child<QAbstractButton>(window, name);
        QVERIFY(button);
        button->click();
    }

    QStringList shownTexts() const {
        QStringList texts;
        for (const Dialogs::Request& r : m_shown)
            texts.append(r.text);
        return texts;
    }

private slots:
    void init() {
        // Each test starts as on a fresh seat: nothing stored yet.
        m_store = std::make_unique<QTemporaryDir>();
        QVERIFY(m_store->isValid());
        SettingsStore::setStoreRoot(m_store->path());
        m_shown.clear();
        m_chosenPath.clear();
        m_answer = Dialogs::Answer::Yes;
        Dialogs::setHandler([this](const Dialogs::Request& r) {
            m_shown.append(r);
            Dialogs::Reply reply{m_answer, {}};
            if (r.kind == Dialogs::Kind::ChooseFolder || r.kind == Dialogs::Kind::OpenFile)
                reply.path = m_chosenPath;
            if (r.kind == Dialogs::Kind::Warning)
                reply.answer = Dialogs::Answer::Ok;
            return reply;
        });
    }

    void cleanup() { Dialogs::setHandler({}); }

    void firstStartShowsDefaultsAndInsertsThem() {
        ConfigDocument doc;
        FormOpt window(&doc);
        for (const PathOption& option : pathOptions()) {
            QLineEdit* box = child<QLineEdit>(window, option.textBox);
            QVERIFY(box);
            QCOMPARE(box->text(), option.defaultValue);
            QVERIFY(child<QAbstractButton>(window, option.button));
        }
        // company_name has no test, so it is never red; the Windows defaults do not exist here.
        QVERIFY(entry(window, u"company_name"_s)->palette().color(QPalette::Text) != kRed);
        QCOMPARE(entry(window, u"pro_colormap_path"_s)->palette().color(QPalette::Text), kRed);

        click(window, u"cmdCompName"_s);
        QCOMPARE(doc.lines(), QStringList{u"company_name quenfor"_s});
        QVERIFY(m_shown.isEmpty());
    }

    void insertButtonWarnsButKeepsTheLine_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("name"); // below the temporary folder; empty: the folder itself
        QTest::addColumn<QString>("warningKind");
        QTest::newRow("existing folder") << u"pro_format_dir"_s << u""_s << u""_s;
        QTest::newRow("missing folder") << u"pro_format_dir"_s << u"Format fehlt"_s << u"Verzeichnis "_s;
        QTest::newRow("existing file") << u"search_path_file"_s << u"search.pro"_s << u""_s;
        QTest::newRow("missing file") << u"search_path_file"_s << u"fehlt.pro"_s << u"Datei "_s;
        QTest::newRow("folder for a file") << u"mdl_tree_cfg_file"_s << u""_s << u"Datei "_s;
    }

    void insertButtonWarnsButKeepsTheLine() {
        QFETCH(QString, option);
        QFETCH(QString, name);
        QFETCH(QString, warningKind);
        QTemporaryDir work;
        QFile file(work.filePath(u"search.pro"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const QString value = QDir::toNativeSeparators(name.isEmpty() ? work.path() : work.filePath(name));
        const PathOption& o = pathOptions().at(indexOfOption(option));

        ConfigDocument doc;
        doc.appendLine(u"! vorher"_s);
        {
            FormOpt window(&doc);
            QLineEdit* box = entry(window, option);
            box->clear();
            QTest::keyClicks(box, value);
            QCOMPARE(box->palette().color(QPalette::Text) == kRed, !warningKind.isEmpty());
            click(window, o.button);
            QCOMPARE(doc.lines(), QStringList({u"! vorher"_s, option + u' ' + value}));
            QCOMPARE(shownTexts(), warningKind.isEmpty() ? QStringList()
                                                         : QStringList{warningKind + value + u" existiert nicht !"_s});
            QCOMPARE(loadPathValues().at(indexOfOption(option)), value);
        }
        // Stored by the insert itself: a window opened later shows it.
        FormOpt again(&doc);
        QCOMPARE(entry(again, option)->text(), value);
    }

    void nameClickShowsFullHelp() {
        ConfigDocument doc;
        FormOpt window(&doc);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseClick(child<QLabel>(window, u"lbl_pro_catalog_dir"_s), Qt::LeftButton);
        QCOMPARE(window.helpText(), pathOptions().at(pathOptionIndex(u"pro_catalog_dir"_s)).help);
        // Going into a text box shows the help of its option too.
        entry(window, u"template_solidpart"_s)->setFocus();
        QTRY_COMPARE(window.helpText(), pathOptions().at(pathOptionIndex(u"template_solidpart"_s)).help);
    }

    void insertAllUsesItsOrderTestsNothingAndStores() {
        ConfigDocument doc;
        FormOpt window(&doc);
        entry(window, u"company_name"_s)->setText(u"Muster GmbH"_s);
        entry(window, u"trail_dir"_s)->clear();
        const QStringList values = window.values();
        click(window, u"cmd_alle"_s);
        QVERIFY(m_shown.isEmpty()); // the defaults do not exist here, yet nothing warns
        QCOMPARE(doc.count(), 23);
        for (int i = 0; i < 23; ++i) {
            const int option = insertAllOrder().at(i);
            QCOMPARE(doc.line(i), pathOptions().at(option).option + u' ' + values.at(option));
        }
        QCOMPARE(doc.line(1), u"company_name Muster GmbH"_s);
        QCOMPARE(loadPathValues(), values);
    }

    void closingStoresEveryValue() {
        ConfigDocument doc;
        FormOpt window(&doc);
        window.show();
        entry(window, u"pro_symbol_dir"_s)->setText(u"D:\\symbole"_s);
        entry(window, u"template_designasm"_s)->setText(QString());
        click(window, u"Command_pathclose"_s);
        QVERIFY(!window.isVisible());
        QVERIFY(doc.isEmpty()); // closing inserts nothing
        const QStringList stored = loadPathValues();
        QCOMPARE(stored.at(indexOfOption(u"pro_symbol_dir"_s)), u"D:\\symbole"_s);
        QCOMPARE(stored.at(indexOfOption(u"template_designasm"_s)), QString());
        QCOMPARE(stored.at(indexOfOption(u"trail_dir"_s)), u"C:\\3d\\Trail"_s);
    }

    void browsingFillsTheBox() {
        QTemporaryDir work;
        ConfigDocument doc;
        FormOpt window(&doc);
        QLineEdit* box = entry(window, u"pro_format_dir"_s);
        m_chosenPath = work.path();
        click(window, u"browse_TextFormat"_s);
        QCOMPARE(m_shown.front().kind, Dialogs::Kind::ChooseFolder);
        QCOMPARE(box->text(), QDir::toNativeSeparators(work.path()));
        QVERIFY(box->palette().color(QPalette::Text) != kRed);

        QVERIFY(!window.findChild<QAbstractButton*>(u"browse_Textcompname"_s)); // a name is not browsed for
    }

    void proposalOpensTheWindowUnlessRefused_data() {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("appended");
        QTest::newRow("empty") << QStringList() << false << false << true;
        QTest::newRow("lines, yes") << QStringList{u"a 1"_s} << true << true << true;
        QTest::newRow("lines, no") << QStringList{u"a 1"_s} << false << true << false;
    }

    void proposalOpensTheWindowUnlessRefused() {
        QFETCH(QStringList, before);
        QFETCH(bool, yes);
        QFETCH(bool, asked);
        QFETCH(bool, appended);
        m_answer = yes ? Dialogs::Answer::Yes : Dialogs::Answer::No;
        QWidget main;
        ConfigDocument doc;
        doc.replaceAll(before);
        QPointer<FormOpt> window;
        FormOpt* shown = proposeConfiguration(&main, &doc, window);
        QCOMPARE(shownTexts(), asked ? QStringList{QString::fromUtf16(kProposalQuestion)} : QStringList());
        QCOMPARE(doc.lines(), appended ? before + proposalLines() : before);
        if (!appended) { // "No" leaves the document and opens no window
            QVERIFY(!shown && !window);
            QVERIFY(main.findChildren<FormOpt*>().isEmpty());
            return;
        }
        QVERIFY(shown && shown == window);
        QVERIFY(shown->isVisible());

        // A second proposal brings the same window back instead of opening another one.
        m_answer = Dialogs::Answer::Yes;
        QCOMPARE(proposeConfiguration(&main, &doc, window), shown);
        QCOMPARE(main.findChildren<FormOpt*>().size(), 1);
        window->close();
        QTRY_VERIFY(window.isNull()); // deleted on close
    }

    void ghostOptionsAskFirst() {
        ConfigDocument doc;
        m_answer = Dialogs::Answer::No;
        QVERIFY(!addGhostOptions(nullptr, doc));
        QVERIFY(doc.isEmpty());
        m_answer = Dialogs::Answer::Yes;
        QVERIFY(addGhostOptions(nullptr, doc));
        QCOMPARE(doc.lines(), ghostLines());
        QCOMPARE(shownTexts(), QStringList(2, u"Wollen Sie die Ghost Optionen jetzt hinzufügen ?"_s));
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<FormOptTest>(argc, argv);
}

#include "formopt_test.moc"
