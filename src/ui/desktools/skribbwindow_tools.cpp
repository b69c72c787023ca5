// The text editor's tools: explanation of the current line, colours, the status line's commands
// and the translation line by line.
#include "ui/desktools/skribbwindow.h"

#include "desktools/editorexplanation.h"
#include "desktools/shellstart.h"
#include "desktools/skribbcommands.h"
#include "desktools/skribbsettings.h"
#include "desktools/texthandback.h"
#include "desktools/translationrequest.h"
#include "settings/mainsettings.h"
#include "ui/desktools/linetranslator.h"
#include "ui/desktools/skribbfilebox.h"
#include "ui/widgets/applycolourscheme.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/programexit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextCursor>
#include <QToolButton>

#include <algorithm>
#include <climits>

using namespace Qt::StringLiterals;

namespace quenfor {

void SkribbWindow::explainCurrentLine() {
    const EditorExplanation explanation =
        explainEditorLine(currentLine(), editorKnowledgeBasePath(), {settingValue(Setting::Codepage), false});
    if (explanation.knowledgeBaseMissing || !explanation.error.isEmpty()) {
        // Said once: explaining stops until the user ticks it again.
        m_explain->setChecked(false);
        Dialogs::information(this, explanation.knowledgeBaseMissing ? QString::fromUtf16(kEditorKnowledgeBaseMissing)
                                                                    : explanation.error);
        return;
    }
    const bool typing = m_text->hasFocus();
    emit explanationReady(explanation.text);
    // The panel comes to the front; the user goes on typing here.
    if (typing) {
        activateWindow();
        m_text->setFocus();
    }
}

void SkribbWindow::toggleExplain() {
    m_explain->setChecked(!m_explain->isChecked());
}

void SkribbWindow::toggleColourFrame() {
    const bool open = m_colourFrame->isHidden();
    if (open) {
        m_colourFrame->adjustSize();
        m_colourFrame->move(boxPlace(m_colourFrame, true));
        m_colourFrame->show();
        m_colourFrame->raise();
    } else {
        m_colourFrame->hide();
    }
    m_settingsButton->setText(open ? tr("QUIT") : tr("Farben"));
}

void SkribbWindow::chooseColour(const QString& word) {
    m_colourLabel->setText(word);
    if (!m_colourFrame->isHidden())
        toggleColourFrame();
    refresh();
}

void SkribbWindow::refresh() {
    QFont font(u"MS Sans Serif"_s, 10);
    font.setStyleHint(QFont::SansSerif); // a sans serif of the system where that font is missing
    font.setBold(true);
    font.setItalic(false);
    font.setUnderline(false);
    font.setStrikeOut(false);
    m_text->setFont(font);
    applyColourScheme(m_text, m_colourLabel->text());
}

void SkribbWindow::runCommand(const QString& command) {
    if (command.isEmpty())
        return;
    switch (skribbCommand(command)) {
    case SkribbCommand::Help:
        openHelpPage();
        break;
    case SkribbCommand::Terminal:
        startTerminal();
        break;
    case SkribbCommand::EndProgram:
        endWholeProgram();
        break;
    case SkribbCommand::Author:
        setStatus(skribbAuthorText());
        break;
    case SkribbCommand::None:
        break;
    }
}

void SkribbWindow::openHelpPage() {
    const HelpPage page = helpPageOf(skribbHelpPage());
    if (!page.problem.isEmpty()) {
        setStatus(page.problem);
        return;
    }
    setStatus(page.address);
    if (!QDesktopServices::openUrl(page.url))
        setStatus(helpPageFailure(page.address));
}

void SkribbWindow::startTerminal() {
    if (!quenfor::startTerminal(m_folder))
        setStatus(QString::fromUtf16(kTerminalFailed));
}

bool SkribbWindow::isTranslating() const {
    return m_translator->isRunning();
}

void SkribbWindow::translate(const QString& name) {
    // The box shows "Richtung wählen" again, so that the next choice is a choice again.
    m_direction->setCurrentIndex(-1);
    const std::optional<TranslationDirection> direction = translationDirectionOf(name);
    if (!direction || isTranslating())
        return;
    if (Dialogs::question(this, QString::fromUtf16(kTranslationQuestion)) != Dialogs::Answer::Yes)
        return;
    const QString endpoint = translationEndpoint();
    if (const QString problem = translationEndpointProblem(endpoint); !problem.isEmpty()) {
        Dialogs::information(this, problem);
        return;
    }
    const QString source = text();
    m_backupPath = translationBackupPath(editorTempFolder());
    const WriteResult backup = writeTranslationBackup(m_backupPath, source);
    if (!backup.ok) {
        m_backupPath.clear();
        if (Dialogs::warning(this, u"Die Sicherungskopie des Textes konnte nicht angelegt werden:\n%1\n\nTrotzdem "
                                   u"übersetzen?"_s.arg(backup.error)) != Dialogs::Answer::Ok)
            return;
    }
    setStatus(QString::fromUtf16(kTranslationStarted));

    m_sourceLines = translationSourceLines(source);
    m_sourceText = m_text->document()->toRawText();
    m_translated = 0;
    m_failedLines = 0;
    m_askedLines = std::count_if(m_sourceLines.cbegin(), m_sourceLines.cend(),
                                 [](const QString& line) { return !line.isEmpty(); });
    // Emptying and every appended line make one step of the undo history: Ctrl+Z gives the
    // text from before the translation back in one go.
    QTextCursor cursor(m_text->document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.endEditBlock();
    m_progress->setRange(0, int(std::min<qsizetype>(m_sourceLines.size(), INT_MAX)));
    m_progress->setValue(0);
    setTranslating(true);
    m_translator->start({m_sourceLines,
                         *direction,
                         endpoint,
                         translationTimeoutSeconds() * 1000,
                         {settingValue(Setting::Codepage), false}});
}

void SkribbWindow::cancelTranslation() {
    m_translator->cancel();
}

void SkribbWindow::lineTranslated(qsizetype index, const QString& result, bool failed) {
    appendToText(result + u'\n');
    m_translated = index + 1;
    if (failed)
        ++m_failedLines;
    m_progress->setValue(int(std::min<qsizetype>(m_translated, INT_MAX)));
}

void SkribbWindow::appendToText(const QString& text) {
    QTextCursor cursor(m_text->document());
    cursor.movePosition(QTextCursor::End);
    cursor.joinPreviousEditBlock();
    cursor.insertText(text);
    cursor.endEditBlock();
}

void SkribbWindow::finishTranslation(bool cancelled) {
    if (cancelled) {
        // Nothing is lost: the lines not yet translated follow as they were.
        QString rest;
        for (qsizetype i = m_translated; i < m_sourceLines.size(); ++i)
            rest += m_sourceLines.at(i) + u'\n';
        if (!rest.isEmpty())
            appendToText(rest);
    }
    const bool noneCameThrough = !cancelled && m_askedLines > 0 && m_failedLines == m_askedLines;
    if (noneCameThrough) {
        // Without a connection every line fails: the text stays as it was instead of turning into
        // empty lines. One undo step still leads back through the attempt.
        QTextCursor cursor(m_text->document());
        cursor.joinPreviousEditBlock();
        cursor.select(QTextCursor::Document);
        cursor.insertText(m_sourceText);
        cursor.endEditBlock();
    }
    QString status;
    // A line that failed came back empty: its text then lives on only in the backup, which stays.
    if (m_failedLines > 0 && !noneCameThrough && !m_backupPath.isEmpty())
        status = tr("Die Sicherungskopie des Textes bleibt in %1.").arg(QDir::toNativeSeparators(m_backupPath));
    else if (!m_backupPath.isEmpty() && (QFile::remove(m_backupPath) || !QFile::exists(m_backupPath)))
        status = QString::fromUtf16(kTranslationFileDeleted);
    const QString outcome = cancelled ? translationCancelledText(m_translated, m_sourceLines.size())
                                      : translationShortfall(m_failedLines, m_askedLines);
    if (!outcome.isEmpty())
        status = status.isEmpty() ? outcome : status + u" – "_s + outcome;
    setTranslating(false);
    refresh();
    setStatus(status);
    m_sourceLines.clear();
    m_sourceText.clear();
    emit translationFinished();
}

void SkribbWindow::setTranslating(bool running) {
    m_text->setReadOnly(running);
    m_direction->setEnabled(!running);
    m_progressRow->setVisible(running);
}

} // namespace quenfor
