// The mapkey generator as its user drives it: files chosen by pattern from a folder, the lines
// shown, doit.pro written into another folder, and the questions before anything is replaced.
#include "panelsandbox.h"

#include "ui/cadfiles/tastomatparameterdialog.h"
#include "ui/cadfiles/tastomatwindow.h"
#include "ui/widgets/dialogs.h"

#include "knowledge/mapkeytools.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStringDecoder>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

void click(const QWidget& window, const QString& button) {
    QTest::mouseClick(child<QPushButton>(window, button), Qt::LeftButton);
}

void touch(const QString& path, const QByteArray& bytes = "x") {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    file.write(bytes);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Answers every box with `answer` and records the kinds asked.
struct AnsweringBoxes {
    explicit AnsweringBoxes(Dialogs::Answer answer) {
        Dialogs::setHandler([this, answer](const Dialogs::Request& request) {
            kinds << request.kind;
            return Dialogs::Reply{answer, {}};
        });
        Dialogs::takeShownTexts();
    }
    ~AnsweringBoxes() { Dialogs::setHandler({}); }
    QList<Dialogs::Kind> kinds;
};

} // namespace

class TastomatWindowTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_parts;
    QTemporaryDir m_target;

private slots:
    void initTestCase() {
        QVERIFY(m_parts.isValid() && m_target.isValid());
        for (const QString& name : {u"bracket.prt.1"_s, u"bracket.prt.2"_s, u"Welle mit Nut.prt.1"_s,
                                    u"Gehäuse groß.asm.3"_s, u"blatt.drw"_s, u"notiz.txt"_s})
            touch(m_parts.filePath(name));
    }

    void init() {
        // A target folder of its own for each test: no doit.pro of an earlier test.
        QFile::remove(m_target.filePath(u"doit.pro"_s));
    }

    void generatesAndWritesDoitPro() {
        TastomatWindow window;
        window.setFolder(m_parts.path());
        window.setPatterns(u"*.prt;*.asm"_s);
        QCOMPARE(window.listedFiles(), (QStringList{u"bracket.prt"_s, u"Gehäuse groß.asm"_s, u"Welle mit Nut.prt"_s}));
        QCOMPARE(window.selectedFiles(), window.listedFiles());

        window.setTemplateId(u"speichern"_s);
        const QStringList lines = window.generatedLines();
        QCOMPARE(child<QPlainTextEdit>(window, u"txt_mapkeys"_s)->toPlainText(), lines.join(u'\n'));
        QCOMPARE(mapkeyNames(lines), (QStringList{u"qm1"_s, u"qm2"_s, u"qm3"_s}));
        QVERIFY(lines.join(QString()).contains(u"`Inputname` `Gehäuse groß.asm`;"_s));
        QCOMPARE(child<QLabel>(window, u"lbl_anzahl"_s)->text(), u"3 Dateien, 3 ausgewählt, 3 Mapkeys"_s);

        // Taking one file out renumbers the rest.
        child<QListWidget>(window, u"List1"_s)->item(0)->setSelected(false);
        QCOMPARE(mapkeyNames(window.generatedLines()), (QStringList{u"qm1"_s, u"qm2"_s}));

        child<QLineEdit>(window, u"txt_ziel"_s)->setText(m_target.path());
        AnsweringBoxes boxes(Dialogs::Answer::Yes);
        click(window, u"cmd_schreiben"_s);
        QVERIFY(boxes.kinds.isEmpty());
        const QByteArray written = contents(m_target.filePath(u"doit.pro"_s));
        QVERIFY(written.endsWith("\r\n"));
        const QString text = QStringDecoder("windows-1252").decode(written);
        QCOMPARE(text.split(u"\r\n"_s, Qt::SkipEmptyParts), window.generatedLines());
        QVERIFY(child<QLabel>(window, u"lblstatus"_s)->text().contains(u"2 Mapkeys"_s));
    }

    void asksBeforeReplacingAnExistingDoitPro() {
        const QString path = m_target.filePath(u"doit.pro"_s);
        touch(path, "alt\r\n");
        TastomatWindow window;
        window.setFolder(m_parts.path());
        window.setTargetFolder(m_target.path());
        {
            AnsweringBoxes boxes(Dialogs::Answer::No);
            QVERIFY(!window.writeDoit());
            QCOMPARE(boxes.kinds, QList<Dialogs::Kind>{Dialogs::Kind::Question});
            QCOMPARE(contents(path), QByteArray("alt\r\n"));
        }
        AnsweringBoxes boxes(Dialogs::Answer::Yes);
        QVERIFY(window.writeDoit());
        QVERIFY(contents(path).startsWith("! quenfor Mapkey-Generator"));
    }

    void aMissingTargetFolderIsToldAndNothingIsWritten() {
        TastomatWindow window;
        window.setFolder(m_parts.path());
        window.setTargetFolder(m_target.filePath(u"fehlt"_s));
        AnsweringBoxes boxes(Dialogs::Answer::Ok);
        QVERIFY(!window.writeDoit());
        const QStringList shown = Dialogs::takeShownTexts();
        QCOMPARE(shown.size(), 1);
        QVERIFY2(shown.first().contains(u"existiert nicht"_s), qPrintable(shown.first()));
        QVERIFY(!QFile::exists(m_target.filePath(u"fehlt/doit.pro"_s)));
    }

    void aLeftOutFileIsShownAndAskedAbout() {
        QTemporaryDir odd;
        touch(odd.filePath(u"gut.prt"_s));
        touch(odd.filePath(u"semi;kolon.prt"_s));
        TastomatWindow window;
        window.setFolder(odd.path());
        window.setPatterns(u"*.prt"_s);
        window.setTargetFolder(odd.path());
        auto* problems = child<QLabel>(window, u"lbl_probleme"_s);
        QVERIFY(problems->text().contains(u"semi;kolon.prt"_s));
        {
            AnsweringBoxes boxes(Dialogs::Answer::Cancel);
            QVERIFY(!window.writeDoit());
            QCOMPARE(boxes.kinds, QList<Dialogs::Kind>{Dialogs::Kind::Warning});
            QVERIFY(!QFile::exists(odd.filePath(u"doit.pro"_s)));
        }
        AnsweringBoxes boxes(Dialogs::Answer::Ok);
        QVERIFY(window.writeDoit());
        QCOMPARE(mapkeyNames(window.generatedLines()), QStringList{u"qm1"_s});
    }

    void nothingSelectedWritesNothing() {
        TastomatWindow window;
        window.setFolder(m_parts.path());
        window.setTargetFolder(m_target.path());
        click(window, u"cmd_keine"_s);
        QVERIFY(window.generatedLines().isEmpty());
        QVERIFY(!child<QPushButton>(window, u"cmd_schreiben"_s)->isEnabled());
        QVERIFY(child<QLabel>(window, u"lbl_probleme"_s)->isHidden());
        AnsweringBoxes boxes(Dialogs::Answer::Ok);
        QVERIFY(!window.writeDoit());
        QCOMPARE(Dialogs::takeShownTexts(), QStringList{u"Es ist keine Datei ausgewählt."_s});
        QVERIFY(!QFile::exists(m_target.filePath(u"doit.pro"_s)));
        click(window, u"cmd_alle"_s);
        QCOMPARE(window.selectedFiles(), window.listedFiles());
        QCOMPARE(window.listedFiles().size(), 4);
    }

    void keepsItsSettingsAcrossAClose() {
        {
            TastomatWindow window;
            window.setFolder(m_parts.path());
            window.setPatterns(u"*.drw"_s);
            window.setTemplateId(u"regenerieren"_s);
            window.setTargetFolder(m_target.path());
            BatchParameters parameters = window.parameters();
            parameters.keyPrefix = u"zz"_s;
            window.setParameters(parameters);
            window.close();
        }
        TastomatWindow window;
        QCOMPARE(window.folder(), QDir::toNativeSeparators(m_parts.path()));
        QCOMPARE(window.patterns(), u"*.drw"_s);
        QCOMPARE(window.templateId(), u"regenerieren"_s);
        QCOMPARE(child<QLineEdit>(window, u"txt_ziel"_s)->text(), QDir::toNativeSeparators(m_target.path()));
        QCOMPARE(window.listedFiles(), QStringList{u"blatt.drw"_s});
        QCOMPARE(mapkeyNames(window.generatedLines()), QStringList{u"zz1"_s});
    }

    void parameterDialogRefusesBadValuesAndKeepsEditsPerTemplate() {
        TastomatParameterDialog dialog(defaultBatchParameters(), u"oeffnen"_s);
        auto* prefix = child<QLineEdit>(dialog, u"txt_praefix"_s);
        auto* actions = child<QPlainTextEdit>(dialog, u"txt_befehle"_s);
        auto* problem = child<QLabel>(dialog, u"lbl_fehler"_s);
        QCOMPARE(actions->toPlainText(), defaultActions(u"oeffnen"_s).join(u'\n'));

        prefix->setText(u"q m"_s);
        click(dialog, u"cmd_ok"_s);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(problem->text().contains(u"Leerzeichen"_s));

        prefix->setText(u"b"_s);
        child<QSpinBox>(dialog, u"spn_startnummer"_s)->setValue(7);
        child<QLineEdit>(dialog, u"txt_sammeltaste"_s)->setText(u"$F5"_s);
        actions->setPlainText(u"~ Command `ProCmdModelOpen` ;\n\n~ Command `ProCmdRegenPart` ;"_s);
        dialog.showTemplate(u"speichern"_s);
        QCOMPARE(actions->toPlainText(), defaultActions(u"speichern"_s).join(u'\n'));
        actions->setPlainText(u"~ Command `kaputt ;"_s);
        click(dialog, u"cmd_ok"_s);
        QVERIFY(problem->text().contains(u"schließendes"_s));
        click(dialog, u"cmd_standard"_s);
        click(dialog, u"cmd_ok"_s);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));

        const BatchParameters edited = dialog.parameters();
        QCOMPARE(edited.keyPrefix, u"b"_s);
        QCOMPARE(edited.firstNumber, 7);
        QCOMPARE(edited.collectorKey, u"$F5"_s);
        QCOMPARE(edited.templates.at(0).actions,
                 (QStringList{u"~ Command `ProCmdModelOpen` ;"_s, u"~ Command `ProCmdRegenPart` ;"_s}));
        QCOMPARE(edited.templates.at(2).actions, defaultActions(u"speichern"_s));
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<TastomatWindowTest>(argc, argv);
}

#include "tastomatwindow_test.moc"
